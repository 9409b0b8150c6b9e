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

CashAccount& CashBook::openPeriod(const PieceRange& opening)
{
    m_isOut = false;
    CashAccount& period = m_periods.emplace_back();
    period.opening = opening;
    period.collections = m_trail.collections();
    period.number = int(m_periods.size());
    period.device = m_trail.device().deviceId();
    period.thread = m_trail.device().threadId();
    period.deviceName = m_trail.device().name();
    period.from = period.to = m_now.time;
    period.fromPosition = period.toPosition = m_now.position;
    for (size_t i = 0; i < m_trail.channels().size(); ++i) {
        const CashChannel& channel = m_trail.channels().at(i);
        CashFlow& flow = period.channels.emplace_back();
        flow.opening = channelNow(i);
        if (i < m_fewer.size() && m_fewer.at(i) > 0)
            period.addDoubt(here(), DoubtReason::EndMissing, m_fewer.at(i), CashPlace::Channel,
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
    if (m_isOut)
        return nullptr;
    return m_periods.empty() ? &openPeriod(PieceRange::atLeast(0)) : &m_periods.back();
}

// The one in which a piece came to its end; null for one that is not told. That the cassette came
// back, the log may tell after the first piece, or never.
CashAccount* CashBook::periodOf(const PieceEnd& piece)
{
    const auto found =
        std::find_if(m_periods.rbegin(), m_periods.rend(),
                     [&](const CashAccount& p) { return p.collections <= piece.collectionsAtEnd; });
    if (found == m_periods.rend())
        return m_periods.empty() && piece.end == Outcome::Taken
            ? &openPeriod(PieceRange::exactly(0))
            : nullptr;
    const bool isWithout = m_isOut && found->collections < piece.collectionsAtEnd;
    if (!isWithout)
        return &*found;
    return piece.end == Outcome::Taken ? &openPeriod(PieceRange::exactly(0)) : nullptr;
}

PieceRange CashBook::channelNow(size_t channel) const
{
    const CashChannel& row = m_trail.channels().at(channel);
    if (!m_trail.areChannelsKnown() || !row.isTold)
        return PieceRange::atLeast(0);
    const qint64 fewer = channel < m_fewer.size() ? m_fewer.at(channel) : 0;
    return {qMax<qint64>(0, row.count - fewer), row.count};
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
    if (m_isOut || m_periods.empty())
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
    CashAccount& period = openPeriod(opening);
    for (const auto& [kind, flow] : before.cassette)
        period.cassetteOf(kind).opening = before.now(flow);
    period.course.clear();
    period.addContent(m_now);
    period.doubts = before.doubts;
}

void CashBook::takeContradiction(const Contradiction& found)
{
    CashAccount* now = period();
    if (!now && !m_periods.empty())
        now = &m_periods.back();
    if (!now)
        return;
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
    if (change.channel < m_fewer.size())
        m_fewer.at(change.channel) = 0; // counted anew
    CashAccount* const now = period();
    if (!now)
        return;
    const CashChannel& channel = m_trail.channels().at(change.channel);
    const CashKind kind = channel.kind();
    CashFlow& flow = now->channels.at(change.channel);
    flow.in += PieceRange::exactly(qMax<qint64>(0, change.count));
    if (act != MoneyAct::Piece)
        flow.filled += qMax<qint64>(0, change.count);
    const qint64 lost = qMax<qint64>(0, -change.count);
    const qint64 rejected = qMax<qint64>(0, change.rejected);
    const qint64 fromChannel = qMin(lost, rejected);
    const qint64 rest = lost - fromChannel;
    flow.moved -= PieceRange::exactly(fromChannel);
    if (rejected > 0)
        now->rejects[channel.kind()].moved += PieceRange::exactly(rejected);
    if (change.rejected < 0)
        now->rejects[channel.kind()].out += PieceRange::exactly(-change.rejected);
    if (rest == 0)
        return;
    if (act == MoneyAct::Payout) {
        flow.out += PieceRange::exactly(rest);
        return;
    }
    CashFlow& into = now->cassetteOf(kind);
    if (act == MoneyAct::Float || act == MoneyAct::Emptying) {
        flow.moved -= PieceRange::exactly(rest);
        into.moved += PieceRange::exactly(rest);
    } else {
        flow.out.widen(0, rest);
        flow.moved.widen(rest, 0);
        into.moved.widen(0, rest);
        now->addDoubt(here(), DoubtReason::ChannelUnexplained, rest, {}, channel.denomination,
                      channel.number);
    }
    now->addContent(m_now);
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
    m_fewer.resize(m_trail.channels().size());
    for (size_t i = 0; i < m_fewer.size() && !act.isEnded; ++i) {
        const CashChannel& row = m_trail.channels().at(i);
        const auto lost = [&](const CashAccount* period) {
            qint64 sum = 0;
            for (const ChannelChange& change : act.moved) {
                if (change.channel == i && (!period || change.collections == period->collections))
                    sum += qMax<qint64>(0, -change.count);
            }
            return sum;
        };
        // Where nothing was told, all may have left it; else the next piece.
        const bool isAtWork = act.channel <= 0 || row.number == act.channel;
        const qint64 most = act.moved.empty() ? row.count : 1;
        const qint64 untold = act.areCounted || !isAtWork ? 0 : qMin(most, row.count);
        m_fewer.at(i) = qMax(m_fewer.at(i), untold);
        const qint64 left = lost(nullptr);
        for (CashAccount* const period : periods) {
            if (left + untold == 0)
                break;
            // What left it for the cassette may not have come there, what was to be paid may have.
            const qint64 counted = act.kind == MoneyAct::Payout ? 0 : lost(period);
            period->channels.at(i).moved.widen(untold, 0);
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
    if (!isIn && !m_isOut) {
        if (!m_periods.empty())
            close(m_periods.back());
        m_isOut = true;
    } else if (isIn && m_isOut) {
        openPeriod(PieceRange::exactly(0));
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
    return told(now ? *now : openPeriod(PieceRange::exactly(0)));
}
