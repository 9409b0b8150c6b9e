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

CashPeriod CashBook::current()
{
    CashAccount* const now = period();
    return told(now ? *now : openPeriod(PieceRange::exactly(0), m_now));
}
