// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashbook.h"

#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/filterwords.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace {

constexpr size_t mostExamples = 20;
constexpr size_t mostContradictions = 200;
constexpr size_t mostContents = 2001; // of a period's course; odd, so that the newest stays

// Why a number is uncertain.
constexpr const char* unknownEnd =
    QT_TRANSLATE_N_NOOP("Diagnosis", "of %n pieces the log does not say what became of them");
constexpr const char* inHandAtGap =
    QT_TRANSLATE_N_NOOP("Diagnosis", "lines were skipped while %n pieces were on their way");
constexpr const char* otherValue =
    QT_TRANSLATE_N_NOOP("Diagnosis", "the value of %n pieces changed while they were on their way");
constexpr const char* noValue =
    QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces of unknown value were taken");
constexpr const char* missing = QT_TRANSLATE_N_NOOP(
    "Diagnosis", "by the device's counter %n pieces are missing from the log");
constexpr const char* creditAlone =
    QT_TRANSLATE_N_NOOP("Diagnosis", "%n credits came without a piece");
constexpr const char* gap = QT_TRANSLATE_N_NOOP("Diagnosis", "%n lines were skipped");
constexpr const char* unseenCollection = QT_TRANSLATE_N_NOOP(
    "Diagnosis", "lines were skipped in which the cassette may have been emptied");
constexpr const char* unknownPlace = QT_TRANSLATE_N_NOOP(
    "Diagnosis", "of %n pieces the registry does not tell whether they are in a channel");
constexpr const char* uncounted = QT_TRANSLATE_N_NOOP(
    "Diagnosis", "the registry was told for the first time while channels were floated or emptied");
constexpr const char* unexplained =
    QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces left a channel, and the log does not say why");
constexpr const char* unfinished =
    QT_TRANSLATE_N_NOOP("Diagnosis", "the log does not tell the end of a payout, a float or an "
                                     "emptying, %n pieces may be on their way");

bool isSure(const PieceEnd& piece)
{
    return piece.end == Outcome::Taken && piece.isSure && piece.isPlaceKnown && piece.note > 0
        && !piece.otherNote && !piece.isOnItsWay;
}

// The lines of several logs are in the order of their times.
bool isBefore(const CashPeriod::Content& content, const LogMoment& at)
{
    if (LogPosition::log(content.position) == LogPosition::log(at.position))
        return content.position < at.position;
    return content.time.moment() < at.time.moment();
}

const char* doubtOf(const PieceEnd& piece)
{
    return piece.isOnItsWay            ? CashDoubt::onItsWay
        : piece.end == Outcome::Stuck  ? CashDoubt::stuck
        : piece.end != Outcome::Taken  ? unknownEnd
        : piece.note <= 0              ? noValue
        : piece.otherNote              ? otherValue
        : !piece.isPlaceKnown          ? unknownPlace
                                       : inHandAtGap;
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
    return {device.session(), device.deviceId(), device.threadId(), device.name(), m_now.position,
            m_now.time};
}

CashBook::Period& CashBook::openPeriod(const PieceRange& opening)
{
    m_isOut = false;
    Period& period = m_periods.emplace_back();
    period.opening = opening;
    period.collections = m_trail.collections();
    CashPeriod& told = period.told;
    told.number = int(m_periods.size());
    told.device = m_trail.device().deviceId();
    told.thread = m_trail.device().threadId();
    told.deviceName = m_trail.device().name();
    told.from = told.to = m_now.time;
    told.fromPosition = told.toPosition = m_now.position;
    for (size_t i = 0; i < m_trail.channels().size(); ++i) {
        const CashChannel& channel = m_trail.channels().at(i);
        CashFlow& flow = period.channels.emplace_back();
        flow.opening = channelNow(i);
        if (i < m_fewer.size() && m_fewer.at(i) > 0)
            addDoubt(period, here(), unfinished, m_fewer.at(i), CashPlace::Channel,
                     channel.denomination, channel.number);
        CashFlow& reject = rejects(period, channel);
        reject.opening += m_trail.areChannelsKnown() ? PieceRange::exactly(channel.rejected)
                                                     : PieceRange::atLeast(channel.rejected);
    }
    addContent(period, m_now);
    for (const PieceEnd& piece : std::exchange(m_waiting, {}))
        takeDoubtful(period, piece);
    return period;
}

// The one that is on; null while the cassette is out.
CashBook::Period* CashBook::period()
{
    if (m_isOut)
        return nullptr;
    return m_periods.empty() ? &openPeriod(PieceRange::atLeast(0)) : &m_periods.back();
}

// The one in which a piece came to its end; null for one that is not told. That the cassette came
// back, the log may tell after the first piece, or never.
CashBook::Period* CashBook::periodOf(const PieceEnd& piece)
{
    const auto found = std::find_if(m_periods.rbegin(), m_periods.rend(), [&](const Period& p) {
        return p.collections <= piece.collectionsAtEnd;
    });
    if (found == m_periods.rend())
        return m_periods.empty() && piece.end == Outcome::Taken
            ? &openPeriod(PieceRange::exactly(0))
            : nullptr;
    const bool isWithout = m_isOut && found->collections < piece.collectionsAtEnd;
    if (!isWithout)
        return &*found;
    return piece.end == Outcome::Taken ? &openPeriod(PieceRange::exactly(0)) : nullptr;
}

CashFlow& CashBook::cassette(Period& period, const CashKind& kind) const
{
    const auto found = period.cassette.find(kind);
    if (found != period.cassette.end())
        return found->second;
    CashFlow& flow = period.cassette[kind];
    flow.opening = period.opening;
    return flow;
}

CashFlow& CashBook::rejects(Period& period, const CashChannel& channel) const
{
    return period.rejects[kindOf(channel)];
}

CashKind CashBook::kindOf(const CashChannel& channel) const
{
    return {channel.denomination, channel.currency, channel.billType};
}

CashKind CashBook::kindOf(int note) const
{
    const int device = int(m_trail.device().deviceId());
    std::optional<int> billType;
    if (isCoinDevice(device))
        billType = 1;
    else if (isValidator(device))
        billType = 0;
    return {note, {}, billType};
}

PieceRange CashBook::cassetteNow(const Period& period, const CashFlow& flow) const
{
    PieceRange now = flow.opening;
    now += flow.in;
    now += flow.moved;
    now -= flow.out;
    now.widen(0, period.extra);
    now.min = qMax<qint64>(0, now.min - flow.lost);
    if (period.isUnbounded)
        now.max.reset();
    return now;
}

// Of each kind that the cassette was not seen to hold.
PieceRange CashBook::unseen(const Period& period) const
{
    return cassetteNow(period, {period.opening, {}, {}, {}, 0, 0});
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
    Period* const now = period();
    if (!now)
        return;
    const LogDevice& device = m_trail.device();
    now->told.deviceName = device.name();
    now->told.to = m_now.time;
    now->told.toPosition = m_now.position;
    if (hasCash)
        now->told.cash = device.state().cash;
    if (device.session() != now->session) {
        now->session = device.session();
        ++now->told.sessions;
    }
}

void CashBook::skipLine()
{
    ++m_skipped;
    if (m_isOut || m_periods.empty())
        return;
    Period& now = m_periods.back();
    now.isUnbounded = true;
    addDoubt(now, here(), gap, 1, {}, 0);
    addContent(now, m_now);
    // Taken out in one line that was skipped, back in another one.
    if (m_skipped > 1)
        mayBeCollected(now);
}

void CashBook::mayBeCollected(Period& period)
{
    m_emptiedAfter = m_now.skipped;
    addDoubt(period, here(), unseenCollection, 0, CashPlace::Cassette, 0);
    for (auto& [kind, flow] : period.cassette)
        flow.lost += cassetteNow(period, flow).min;
    addContent(period, m_now);
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
    Period before = std::move(m_periods.back());
    m_periods.clear();
    PieceRange opening = before.opening;
    opening.widen(0, before.extra);
    if (before.isUnbounded)
        opening.max.reset();
    Period& period = openPeriod(opening);
    for (const auto& [kind, flow] : before.cassette)
        cassette(period, kind).opening = cassetteNow(before, flow);
    period.told.course.clear();
    addContent(period, m_now);
    period.told.doubts = before.told.doubts;
}

void CashBook::takeContradiction(const Contradiction& found)
{
    Period* now = period();
    if (!now && !m_periods.empty())
        now = &m_periods.back();
    if (!now)
        return;
    if (found.missing > 0) {
        const char* const reason = found.rule == Rule::CounterJump ? missing : creditAlone;
        for (Period& each : m_periods) {
            if (&each != now && each.collections < found.collections)
                continue;
            each.extra += found.missing;
            addDoubt(each, found, reason, found.missing, CashPlace::Cassette, 0);
            addContent(each, m_now);
        }
    }
    if (now->told.contradictions.size() < mostContradictions)
        now->told.contradictions.push_back(found);
}

void CashBook::takePiece(const PieceEnd& piece)
{
    if (piece.isInChannel)
        return;
    Period* const last = periodOf(piece);
    if (last && piece.note > 0)
        cassette(*last, kindOf(piece.note)); // seen
    if (piece.end == Outcome::Returned || piece.end == Outcome::Rejected)
        return;
    // It is entered once no more is told of it: it may be gone again.
    if (last && isSure(piece) && piece.skippedBefore >= m_emptiedAfter) {
        inflow(*last, piece.note, piece) += PieceRange::exactly(1);
        return addContent(*last, {piece.line, piece.time});
    }
    const bool isTaken = piece.end == Outcome::Taken;
    for (Period& period : m_periods) {
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
PieceRange& CashBook::inflow(Period& period, int note, const PieceEnd& piece) const
{
    CashFlow& flow = cassette(period, kindOf(note));
    const bool isOld = m_beginning && isBefore({piece.line, piece.time, {}}, *m_beginning);
    return isOld ? flow.opening : flow.in;
}

// It may have come into the cassette.
void CashBook::takeDoubtful(Period& period, const PieceEnd& piece)
{
    if (piece.note > 0)
        inflow(period, piece.note, piece).widen(0, 1);
    else
        ++period.extra;
    addDoubt(period, piece, doubtOf(piece), 1, CashPlace::Cassette, piece.note);
    if (piece.otherNote && *piece.otherNote > 0) {
        inflow(period, *piece.otherNote, piece).widen(0, 1);
        addDoubt(period, piece, doubtOf(piece), 1, CashPlace::Cassette, *piece.otherNote);
    }
    addContent(period, {piece.line, piece.time});
}

void CashBook::takeChannel(size_t channel)
{
    Period* const now = period();
    if (!now)
        return;
    const CashChannel& row = m_trail.channels().at(channel);
    now->channels.resize(qMax(now->channels.size(), channel + 1));
    now->channels.at(channel).opening = PieceRange::exactly(row.count);
    rejects(*now, row).opening += PieceRange::exactly(row.rejected);
}

void CashBook::takeChange(MoneyAct act, const ChannelChange& change)
{
    if (change.channel < m_fewer.size())
        m_fewer.at(change.channel) = 0; // counted anew
    Period* const now = period();
    if (!now)
        return;
    const CashChannel& channel = m_trail.channels().at(change.channel);
    const CashKind kind = kindOf(channel);
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
        rejects(*now, channel).moved += PieceRange::exactly(rejected);
    if (change.rejected < 0)
        rejects(*now, channel).out += PieceRange::exactly(-change.rejected);
    if (rest == 0)
        return;
    if (act == MoneyAct::Payout) {
        flow.out += PieceRange::exactly(rest);
        return;
    }
    CashFlow& into = cassette(*now, kind);
    if (act == MoneyAct::Float || act == MoneyAct::Emptying) {
        flow.moved -= PieceRange::exactly(rest);
        into.moved += PieceRange::exactly(rest);
    } else {
        flow.out.widen(0, rest);
        flow.moved.widen(rest, 0);
        into.moved.widen(0, rest);
        addDoubt(*now, here(), unexplained, rest, {}, channel.denomination, channel.number);
    }
    addContent(*now, m_now);
}

void CashBook::takeUnfinished(const UnfinishedAct& act)
{
    for (Period& period : m_periods) {
        if (act.isCounted || period.collections < act.collections
            || period.collections > act.collectionsAtEnd)
            continue;
        period.isUnbounded = true;
        addDoubt(period, here(), uncounted, 1, CashPlace::Cassette, 0);
        addContent(period, m_now);
    }
    if (act.isEnded)
        return;
    m_fewer.resize(m_trail.channels().size());
    for (size_t i = 0; i < m_fewer.size(); ++i) {
        const CashChannel& row = m_trail.channels().at(i);
        // Where nothing was told, all may have left it; else the next piece.
        const bool isAtWork = act.channel <= 0 || row.number == act.channel;
        const qint64 untold =
            act.areCounted || !isAtWork ? 0 : act.moved.empty() ? row.count : qMin<qint64>(1, row.count);
        m_fewer.at(i) = qMax(m_fewer.at(i), untold);
        qint64 left = 0;
        for (const ChannelChange& change : act.moved)
            left += change.channel == i ? qMax<qint64>(0, -change.count) : 0;
        if (left + untold == 0)
            continue;
        for (Period& period : m_periods) {
            if (period.collections < act.collections || period.collections > act.collectionsAtEnd)
                continue;
            // What left it for the cassette may not have come there, what was to be paid may have.
            qint64 counted = 0; // as come into the cassette
            for (const ChannelChange& change : act.moved) {
                if (act.kind != MoneyAct::Payout && change.channel == i
                    && change.collections == period.collections)
                    counted += qMax<qint64>(0, -change.count);
            }
            period.channels.at(i).moved.widen(untold, 0);
            cassette(period, kindOf(row)).moved.widen(counted, untold + left - counted);
            addDoubt(period, here(), unfinished, left + untold, {}, row.denomination, row.number);
            addContent(period, m_now);
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

void CashBook::close(Period& period)
{
    period.told.isOpen = false;
    period.told.to = m_now.time;
    period.told.toPosition = m_now.position;
    for (size_t i = 0; i < period.channels.size(); ++i)
        period.channelsNow.push_back(channelNow(i));
    period.areRejectsKnown = m_trail.areChannelsKnown();
    addContent(period, m_now);
}

void CashBook::addDoubt(Period& period, const LogPlace& where, const char* reason, qint64 pieces,
                        std::optional<CashPlace> place, int denomination, int channel)
{
    std::vector<CashDoubt>& doubts = period.told.doubts;
    auto found = std::find_if(doubts.begin(), doubts.end(), [&](const CashDoubt& known) {
        return known.reason == reason && known.place == place && known.channel == channel
            && known.denomination == denomination;
    });
    if (found == doubts.end())
        found = doubts.insert(found, {reason, place, channel, denomination, 0, {}});
    found->pieces += pieces;
    if (found->examples.size() < mostExamples)
        found->examples.push_back({where, Diagnosis::tr(reason, nullptr, int(pieces))});
}

// What the cassette holds has changed at a moment, which may be before what the course ends with,
// or after the end of the period.
// Of a long course, every second one is enough.
void CashBook::addContent(Period& period, LogMoment at) const
{
    PieceRange sum = PieceRange::exactly(0);
    for (const auto& [kind, flow] : period.cassette)
        sum += cassetteNow(period, flow).times(kind.denomination);
    if (!unseen(period).isExact())
        sum.max.reset(); // of any value
    std::vector<CashPeriod::Content>& course = period.told.course;
    if (course.empty()) {
        course.push_back({at.position, at.time, sum});
        return;
    }
    if (!period.told.isOpen && isBefore(course.back(), at))
        at = {period.told.toPosition, period.told.to};
    const PieceRange last = course.back().sum;
    auto place = course.end();
    while (place - 1 != course.begin() && !isBefore(*(place - 1), at))
        --place;
    const CashPeriod::Content& before = *(place - 1);
    if (place == course.end() || place->position != at.position) {
        const bool isHere = isBefore(before, at);
        place = course.insert(place, {isHere ? at.position : before.position,
                                      isHere ? at.time : before.time, before.sum});
    }
    for (; place != course.end(); ++place) {
        place->sum.min += sum.min - last.min;
        if (place->sum.max && last.max && sum.max)
            *place->sum.max += *sum.max - *last.max;
        else
            place->sum.max.reset();
    }
    if (course.size() < mostContents)
        return;
    size_t kept = 0;
    for (size_t i = 0; i < course.size(); i += 2)
        course.at(kept++) = course.at(i);
    course.resize(kept);
}

std::vector<CashPeriod> CashBook::periods() const
{
    std::vector<CashPeriod> all;
    for (const Period& period : m_periods)
        all.push_back(told(period));
    return all;
}

CashPeriod CashBook::current()
{
    Period* const now = period();
    return told(now ? *now : openPeriod(PieceRange::exactly(0)));
}

CashPeriod CashBook::told(const Period& period) const
{
    CashPeriod told = period.told;
    told.unseen = unseen(period);
    const auto add = [&](CashRow row) {
        row.why = whyOf(period, row);
        told.rows.push_back(std::move(row));
    };
    for (const auto& [kind, cassette] : merged(period.cassette)) {
        CashRow row{CashPlace::Cassette, 0, kind, cassette, cassetteNow(period, cassette), {}};
        row.flow.in.widen(0, period.extra);
        if (period.isUnbounded)
            row.flow.in.max.reset();
        add(std::move(row));
    }
    for (size_t i = 0; i < period.channels.size(); ++i) {
        const CashChannel& channel = m_trail.channels().at(i);
        add({CashPlace::Channel, channel.number, kindOf(channel), period.channels.at(i),
             told.isOpen ? channelNow(i) : period.channelsNow.at(i), {}});
    }
    const bool areKnown = told.isOpen ? m_trail.areChannelsKnown() : period.areRejectsKnown;
    for (const auto& [kind, rejects] : merged(period.rejects)) {
        PieceRange now = rejects.opening;
        now += rejects.moved;
        now -= rejects.out;
        if (!areKnown)
            now.max.reset();
        add({CashPlace::Reject, 0, kind, rejects, now, {}});
    }
    return told;
}

// A currency may be left out: where there is one only, the money without is of it.
CashBook::Flows CashBook::merged(const Flows& flows) const
{
    Flows found;
    for (const auto& [kind, flow] : flows) {
        CashKind known = kind;
        int currencies = 0;
        for (const CashChannel& channel : m_trail.channels()) {
            if (channel.denomination != kind.denomination || channel.currency.isEmpty()
                || channel.currency == known.currency)
                continue;
            ++currencies;
            if (kind.currency.isEmpty())
                known = kindOf(channel);
        }
        if (kind.currency.isEmpty() && currencies > 1)
            known = kind;
        const auto [same, isNew] = found.emplace(known, flow);
        if (isNew)
            continue;
        same->second.opening += flow.opening;
        same->second.in += flow.in;
        same->second.out += flow.out;
        same->second.moved += flow.moved;
        same->second.filled += flow.filled;
        same->second.lost += flow.lost;
    }
    return found;
}

QStringList CashBook::whyOf(const Period& period, const CashRow& row) const
{
    QStringList why;
    if (row.place == CashPlace::Cassette) {
        if (!period.opening.max && period.told.number == 1)
            why += Diagnosis::tr("what lay in it when the log began is not known");
        else if (period.collections > 0)
            why += Diagnosis::tr("taken to have come back empty");
    }
    if (row.place == CashPlace::Channel) {
        const auto channel = std::find_if(
            m_trail.channels().begin(), m_trail.channels().end(), [&](const CashChannel& known) {
                return known.number == row.channel && known.denomination == row.kind.denomination
                    && known.currency == row.kind.currency;
            });
        if (period.told.isOpen && !channel->isTold)
            why += Diagnosis::tr("the registry does not tell of it any more");
        if (row.flow.filled > 0)
            why += Diagnosis::tr("%n pieces were filled in", nullptr,
                                 int(qMin<qint64>(row.flow.filled, INT_MAX)));
    }
    for (const CashDoubt& doubt : period.told.doubts) {
        const bool isOfExact = doubt.reason == unexplained;
        if (!doubt.isAbout(row.place, row.channel, row.kind.denomination)
            || (row.now.isExact() && !isOfExact))
            continue;
        why += QStringLiteral("%1 (%2)").arg(
            Diagnosis::tr(doubt.reason, nullptr, int(qMin<qint64>(doubt.pieces, INT_MAX))),
            placesOf(doubt));
    }
    if (why.isEmpty() && !row.now.isExact())
        why += Diagnosis::tr("lines were skipped since it was told");
    return why;
}

// "line 3", "lines 3 and 6", or with the names of several logs.
QString CashBook::placesOf(const CashDoubt& doubt) const
{
    QVector<qint64> lines;
    QStringList places;
    for (const CashDoubt::Example& example : doubt.examples) {
        const qint64 line = LogPosition::line(example.place.line);
        lines += line;
        places += QStringLiteral("%1:%2").arg(
            m_logs.value(LogPosition::log(example.place.line)), QString::number(line));
    }
    constexpr int mostShown = 8;
    return m_logs.size() == 1 ? lineList(lines)
                              : QStringList(places.mid(0, mostShown)).join(QStringLiteral(", "));
}
