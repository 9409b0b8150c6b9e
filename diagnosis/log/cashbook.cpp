// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashbook.h"

#include <algorithm>
#include <utility>

namespace {

constexpr size_t mostContradictions = 200;

bool isSure(const PieceEnd& piece)
{
    return piece.end == Outcome::Taken && piece.isSure && piece.isPlaceKnown && piece.note > 0
        && !piece.otherNote && !piece.isOnItsWay;
}

DoubtReason doubtOf(const PieceEnd& piece)
{
    return piece.isOnItsWay           ? DoubtReason::OnItsWay
        : piece.end == Outcome::Stuck ? DoubtReason::Stuck
        : piece.end != Outcome::Taken ? DoubtReason::EndUnknown
        : piece.note <= 0             ? DoubtReason::ValueUnknown
        : piece.otherNote             ? DoubtReason::ValueChanged
        : !piece.isPlaceKnown         ? DoubtReason::PlaceUnknown
                                      : DoubtReason::InHandAtGap;
}

} // namespace

CashBook::CashBook(const MoneyTrail& trail, const LogMoment& now, const QStringList& logs)
    : m_trail(trail)
    , m_now(now)
    , m_logs(logs)
{
}

LogPlace CashBook::here() const
{
    const LogDevice& device = m_trail.device();
    return {device.session(), device.deviceId(), device.threadId(),
            device.name(),    m_now.position,    m_now.time};
}

CashAccount& CashBook::openPeriod(const PieceRange& opening, const LogMoment& at)
{
    m_isOut = false;
    CashAccount& period = m_periods.emplace_back();
    period.opening = opening;
    period.collections = m_trail.collections();
    period.number = int(m_periods.size());
    period.device = m_trail.device().deviceId();
    period.thread = m_trail.device().threadId();
    period.deviceName = m_trail.device().name();
    period.from = at.time;
    period.fromPosition = at.position;
    period.to = m_now.time;
    period.toPosition = m_now.position;
    for (size_t i = 0; i < m_trail.channels().size(); ++i) {
        const CashChannel& channel = m_trail.channels().at(i);
        CashFlow& flow = period.channels.emplace_back();
        flow.opening = channelNow(i);
        if (untoldOf(i) > 0)
            period.addDoubt(here(), DoubtReason::EndMissing, untoldOf(i), CashPlace::Channel,
                            channel.denomination, channel.number);
        CashFlow& reject = period.rejects[channel.kind()];
        reject.opening += m_trail.areChannelsKnown() ? PieceRange::exactly(channel.rejected)
                                                     : PieceRange::atLeast(channel.rejected);
    }
    period.addContent(m_now);
    for (const PieceEnd& piece : std::exchange(m_waiting, {}))
        takeDoubtful(period, piece);
    return period;
}

// The one that is on; null while the cassette is out.
CashAccount* CashBook::period()
{
    if (m_isOut && !m_isPrologue)
        return nullptr;
    return m_periods.empty() ? &openPeriod(PieceRange::atLeast(0), m_now) : &m_periods.back();
}

// The one in which a piece came to its end; null for one that is not told. That the cassette came
// back, the log may tell after the first piece, or never.
CashAccount* CashBook::periodOf(const PieceEnd& piece)
{
    const auto found =
        std::find_if(m_periods.rbegin(), m_periods.rend(),
                     [&](const CashAccount& p) { return p.collections <= piece.collectionsAtEnd; });
    const bool isThere = found != m_periods.rend()
        && (!m_isOut || m_isPrologue || found->collections == piece.collectionsAtEnd);
    if (isThere)
        return &*found;
    if (piece.end != Outcome::Taken || (found == m_periods.rend() && !m_periods.empty()))
        return nullptr;
    CashAccount& period = openPeriod(PieceRange::exactly(0), {piece.line, piece.time});
    period.session = piece.session;
    period.sessions = 1;
    return &period;
}

// So many pieces may have left a channel that its row does not tell of.
qint64 CashBook::untoldOf(size_t channel) const
{
    return channel < m_untold.size() ? m_untold.at(channel).pieces : 0;
}

PieceRange CashBook::channelNow(size_t channel) const
{
    const CashChannel& row = m_trail.channels().at(channel);
    if (!m_trail.areChannelsKnown() || !row.isTold)
        return PieceRange::atLeast(0);
    return {qMax<qint64>(0, row.count - untoldOf(channel)), qMax<qint64>(0, row.count)};
}

void CashBook::takeReport(bool hasCash)
{
    CashAccount* const now = period();
    if (!now)
        return;
    const LogDevice& device = m_trail.device();
    now->deviceName = device.name();
    now->to = m_now.time;
    now->toPosition = m_now.position;
    if (hasCash)
        now->cash = device.state().cash;
    if (device.session() != now->session) {
        now->session = device.session();
        ++now->sessions;
    }
}

void CashBook::skipLine()
{
    ++m_skipped;
    if (!period())
        return;
    CashAccount& now = m_periods.back();
    now.isUnbounded = true;
    now.addDoubt(here(), DoubtReason::LinesSkipped, 1, {}, 0);
    now.addContent(m_now);
    // Taken out in one line that was skipped, back in another one.
    if (m_skipped > 1)
        mayBeCollected(now);
}

void CashBook::mayBeCollected(CashAccount& period)
{
    m_emptiedAfter = m_trail.skippedLines();
    period.addDoubt(here(), DoubtReason::CollectionUnseen, 0, CashPlace::Cassette, 0);
    for (auto& [kind, flow] : period.cassette)
        flow.lost += period.now(flow).min;
    period.addContent(m_now);
}

void CashBook::beginHere()
{
    m_beginning = m_now;
    if (m_isOut) {
        m_periods.clear();
        return;
    }
    if (m_periods.empty())
        return;
    CashAccount before = std::move(m_periods.back());
    m_periods.clear();
    PieceRange opening = before.opening;
    opening.widen(0, before.ofAnyValue);
    if (before.isUnbounded)
        opening.max.reset();
    CashAccount& period = openPeriod(opening, m_now);
    for (const auto& [kind, flow] : before.cassette)
        period.cassetteOf(kind).opening = before.now(flow);
    period.course.clear();
    period.addContent(m_now);
    period.doubts = before.doubts;
}

void CashBook::takeContradiction(const Contradiction& found)
{
    period();
    const auto begun =
        std::find_if(m_periods.rbegin(), m_periods.rend(),
                     [&](const CashAccount& p) { return p.collections <= found.collections; });
    if (begun == m_periods.rend())
        return;
    CashAccount* const now = &*begun;
    if (found.missing > 0) {
        const DoubtReason reason =
            found.rule == Rule::CounterJump ? DoubtReason::NoteMissing : DoubtReason::CreditAlone;
        for (CashAccount& each : m_periods) {
            if (&each != now && each.collections < found.collections)
                continue;
            each.ofAnyValue += found.missing;
            each.addDoubt(found, reason, found.missing, CashPlace::Cassette, 0);
            each.addContent(m_now);
        }
    }
    if (now->contradictions.size() < mostContradictions)
        now->contradictions.push_back(found);
}

void CashBook::takePiece(const PieceEnd& piece)
{
    if (piece.isInChannel)
        return;
    CashAccount* const last = periodOf(piece);
    if (last && piece.note > 0)
        last->cassetteOf(CashKind::ofNote(piece.device, piece.note)); // seen
    if (isGivenBack(piece.end))
        return;
    // It is entered once no more is told of it: it may be gone again.
    if (last && isSure(piece) && piece.skippedBefore >= m_emptiedAfter) {
        inflow(*last, piece.note, piece) += PieceRange::exactly(1);
        return last->addContent({piece.line, piece.time});
    }
    const bool isTaken = piece.end == Outcome::Taken;
    for (CashAccount& period : m_periods) {
        const bool isLast = &period == last;
        const bool isBetween = !isTaken && period.collections >= piece.collections
            && period.collections <= piece.collectionsAtEnd;
        if (isLast || isBetween)
            takeDoubtful(period, piece);
    }
    if (m_isOut && !isTaken)
        m_waiting.push_back(piece);
}

// What came before the time that is asked for lay there when that began.
PieceRange& CashBook::inflow(CashAccount& period, int note, const PieceEnd& piece) const
{
    CashFlow& flow = period.cassetteOf(CashKind::ofNote(piece.device, note));
    const bool isOld = m_beginning && LogMoment{piece.line, piece.time}.isBefore(*m_beginning);
    return isOld ? flow.opening : flow.in;
}

// It may have come into the cassette.
void CashBook::takeDoubtful(CashAccount& period, const PieceEnd& piece)
{
    if (piece.note > 0)
        inflow(period, piece.note, piece).widen(0, 1);
    else
        ++period.ofAnyValue;
    period.addDoubt(piece, doubtOf(piece), 1, CashPlace::Cassette, piece.note);
    if (piece.otherNote && *piece.otherNote > 0) {
        inflow(period, *piece.otherNote, piece).widen(0, 1);
        period.addDoubt(piece, doubtOf(piece), 1, CashPlace::Cassette, *piece.otherNote);
    }
    period.addContent({piece.line, piece.time});
}

void CashBook::takeChannel(size_t channel)
{
    CashAccount* const now = period();
    if (!now)
        return;
    const CashChannel& row = m_trail.channels().at(channel);
    now->channels.resize(qMax(now->channels.size(), channel + 1));
    now->channels.at(channel).opening = PieceRange::exactly(row.count);
    now->rejects[row.kind()].opening += PieceRange::exactly(row.rejected);
}

void CashBook::takeChange(MoneyAct act, const ChannelChange& change)
{
    period();
    forgetUntold(change.channel); // it is counted anew
    const CashChannel& channel = m_trail.channels().at(change.channel);
    std::vector<CashAccount*> periods; // in one of which it was
    for (CashAccount& period : m_periods) {
        if (period.collections >= change.first && period.collections <= change.last
            && change.channel < period.channels.size())
            periods.push_back(&period);
    }
    if (periods.empty()) {
        if (!m_periods.empty())
            m_periods.back().addDoubt(here(), DoubtReason::CassetteOut, qAbs(change.count),
                                      CashPlace::Channel, channel.denomination, channel.number);
        return;
    }
    CashAccount& at = *periods.back();
    shiftAfter(at, change);
    CashFlow& flow = at.channels.at(change.channel);
    flow.in += PieceRange::exactly(qMax<qint64>(0, change.count));
    if (act != MoneyAct::Piece)
        flow.filled += qMax<qint64>(0, change.count);
    const qint64 lost = qMax<qint64>(0, -change.count);
    const qint64 rejected = qMax<qint64>(0, change.rejected);
    const qint64 fromChannel = qMin(lost, rejected);
    const qint64 rest = lost - fromChannel;
    flow.moved -= PieceRange::exactly(fromChannel);
    CashFlow& rejects = at.rejects[channel.kind()];
    rejects.moved += PieceRange::exactly(rejected);
    rejects.out += PieceRange::exactly(qMax<qint64>(0, -change.rejected));
    if (rest == 0)
        return;
    if (act == MoneyAct::Payout) {
        flow.out += PieceRange::exactly(rest);
        return;
    }
    const bool isIntoCassette = act == MoneyAct::Float || act == MoneyAct::Emptying;
    flow.moved -= PieceRange::exactly(rest);
    if (!isIntoCassette) {
        flow.out.widen(0, rest);
        flow.moved.widen(0, rest);
    }
    for (CashAccount* const period : periods) {
        PieceRange& into = period->cassetteOf(channel.kind()).moved;
        if (isIntoCassette && periods.size() == 1 && change.first == change.last) {
            into += PieceRange::exactly(rest);
        } else {
            into.widen(0, rest);
            period->addDoubt(
                here(), isIntoCassette ? DoubtReason::EndMissing : DoubtReason::ChannelUnexplained,
                rest, {}, channel.denomination, channel.number);
        }
        period->addContent(m_now);
    }
}

// A change that is told after the cassette was taken out: it was before.
void CashBook::shiftAfter(CashAccount& at, const ChannelChange& change)
{
    const CashKind kind = m_trail.channels().at(change.channel).kind();
    if (!at.isOpen)
        at.channelsNow.at(change.channel) += PieceRange::exactly(change.count);
    bool isLater = false;
    for (CashAccount& period : m_periods) {
        if (isLater && change.channel < period.channels.size()) {
            period.channels.at(change.channel).opening += PieceRange::exactly(change.count);
            period.rejects[kind].opening += PieceRange::exactly(change.rejected);
            if (!period.isOpen)
                period.channelsNow.at(change.channel) += PieceRange::exactly(change.count);
        }
        isLater = isLater || &period == &at;
    }
}

// What may have left a channel unseen is told now.
void CashBook::forgetUntold(size_t channel)
{
    if (untoldOf(channel) == 0)
        return;
    const Untold untold = std::exchange(m_untold.at(channel), Untold());
    for (CashAccount& period : m_periods) {
        if (period.collections < untold.first || period.collections > untold.last
            || channel >= period.channels.size())
            continue;
        CashFlow& flow = period.channels.at(channel);
        flow.moved.widen(-untold.pieces, 0);
        flow.out.widen(0, untold.isPayout ? -untold.pieces : 0);
        period.cassetteOf(m_trail.channels().at(channel).kind()).moved.widen(0, -untold.pieces);
    }
}

void CashBook::takeUnfinished(const UnfinishedAct& act)
{
    std::vector<CashAccount*> periods; // in which it may have been at work
    for (CashAccount& period : m_periods) {
        if (period.collections >= act.collections && period.collections <= act.collectionsAtEnd)
            periods.push_back(&period);
    }
    for (CashAccount* const period : periods) {
        if (act.isCounted)
            break;
        period->isUnbounded = true;
        period->addDoubt(here(), DoubtReason::RegistryNew, 1, CashPlace::Cassette, 0);
        period->addContent(m_now);
    }
    m_untold.resize(m_trail.channels().size());
    for (size_t i = 0; i < m_untold.size() && !act.isEnded; ++i) {
        const CashChannel& row = m_trail.channels().at(i);
        const auto lost = [&](const CashAccount* period) {
            qint64 sum = 0;
            for (const ChannelChange& change : act.moved) {
                if (change.channel == i && (!period || change.last == period->collections))
                    sum += qMax<qint64>(0, -change.count);
            }
            return sum;
        };
        // Where nothing was told, all may have left it; else the next piece.
        const bool isAtWork = act.channel <= 0 || row.number == act.channel;
        const qint64 most = act.moved.empty() ? row.count : 1;
        const qint64 untold = act.areCounted || !isAtWork ? 0 : qMin(most, row.count);
        const bool isPayout = act.kind == MoneyAct::Payout;
        forgetUntold(i);
        m_untold.at(i) = {untold, act.collections, act.collectionsAtEnd, isPayout};
        const qint64 left = lost(nullptr);
        for (CashAccount* const period : periods) {
            if (left + untold == 0)
                break;
            // What left it for the cassette may not have come there, what was to be paid may have.
            const qint64 counted = isPayout ? 0 : lost(period);
            CashFlow& flow = period->channels.at(i);
            flow.moved.widen(untold + (isPayout ? left : 0), 0);
            flow.out.widen(isPayout ? left : 0, isPayout ? untold : 0);
            period->cassetteOf(row.kind()).moved.widen(counted, untold + left - counted);
            period->addDoubt(here(), DoubtReason::EndMissing, left + untold, {}, row.denomination,
                             row.number);
            period->addContent(m_now);
        }
    }
}

void CashBook::takeCassette(bool isIn)
{
    const bool mayHaveBeenOut = std::exchange(m_skipped, 0) > 0;
    const bool isNews = std::exchange(m_isToldIn, isIn) != isIn;
    if (!isIn && isNews) {
        // Of a log that begins without it, the first period begins when it comes, if ever.
        m_isPrologue = m_periods.empty();
        if (m_isPrologue)
            openPeriod(PieceRange::atLeast(0), m_now);
        else if (!m_isOut)
            close(m_periods.back());
        m_isOut = true;
    } else if (isIn && m_isOut) {
        const bool isIdle =
            m_isPrologue && m_periods.back().cassette.empty() && m_periods.back().ofAnyValue == 0;
        if (isIdle)
            m_periods.clear();
        else if (m_isPrologue)
            close(m_periods.back());
        m_isPrologue = false;
        openPeriod(PieceRange::exactly(0), m_now);
    } else if (isIn && mayHaveBeenOut && !m_periods.empty()) {
        mayBeCollected(m_periods.back());
    }
}

void CashBook::close(CashAccount& period)
{
    period.isOpen = false;
    period.to = m_now.time;
    period.toPosition = m_now.position;
    lookAtChannels(period);
    period.addContent(m_now);
}

std::vector<CashPeriod> CashBook::periods() const
{
    std::vector<CashPeriod> all;
    for (const CashAccount& period : m_periods)
        all.push_back(told(period));
    return all;
}

CashPeriod CashBook::told(CashAccount period) const
{
    if (period.isOpen)
        lookAtChannels(period);
    return period.told(m_trail.channels(), m_logs);
}

// What the channels hold now.
void CashBook::lookAtChannels(CashAccount& period) const
{
    for (size_t i = 0; i < period.channels.size(); ++i) {
        period.channelsNow.push_back(channelNow(i));
        period.channelsTold.push_back(m_trail.channels().at(i).isTold);
    }
    period.areRejectsKnown = m_trail.areChannelsKnown();
}

CashPeriod CashBook::current()
{
    CashAccount* const now = period();
    return told(now ? *now : openPeriod(PieceRange::exactly(0), m_now));
}
