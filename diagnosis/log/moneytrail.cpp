// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/moneytrail.h"

#include "dispenserregistrymodel.h"
#include "text/diagnosis.h"

#include <QStringList>

#include <algorithm>
#include <climits>

namespace {

const quint32 sumBit = DeviceReport::bit(deviceStateDescConst::SESSION_SUM);
const quint32 paidBit = DeviceReport::bit(deviceStateDescConst::DISPENSED_SUM);
const quint32 cassetteBit = DeviceReport::bit(deviceStateDescConst::STACKER_PRESENT);
const quint32 stateBit = DeviceReport::bit(deviceStateDescConst::STATE);
const quint32 registryBit = DeviceReport::bit(DispenserRegistryModel::DISPENSER_REGISTRY);

constexpr size_t mostWithheld = 1000;

// What a device does with the money that it has.
struct Operation
{
    MoneyAct act;
    State begun;
    State ended;
};

constexpr Operation operations[] = {
    {MoneyAct::Payout, STATE_DISPENSING, STATE_DISPENSED},
    {MoneyAct::Float, STATE_FLOATING, STATE_FLOATED},
    {MoneyAct::Emptying, STATE_EMPTYING, STATE_EMPTIED},
};

const Operation* operationOf(State state)
{
    const auto* const found =
        std::find_if(std::begin(operations), std::end(operations), [state](const Operation& o) {
            return o.begun == state || o.ended == state;
        });
    return found == std::end(operations) ? nullptr : found;
}

bool isOperation(MoneyAct act)
{
    return act >= MoneyAct::Payout;
}

// Whether a log that begins in this state begins with money on its way.
bool isUnderWay(State state)
{
    switch (state) {
    case STATE_IDLING:
    case STATE_ACCEPTING:
    case STATE_BUSY:
    case STATE_UPDATING:
        return false;
    default:
        return true;
    }
}

bool isGivenBack(Outcome end)
{
    return end == Outcome::Returned || end == Outcome::Rejected;
}

} // namespace

bool CashChannel::isOf(const DispenserRegistryItem& row) const
{
    return row.channel == number && row.denomination == denomination && row.billType == billType
        && (currency.isEmpty() || row.currency.isEmpty() || row.currency == currency);
}

MoneyTrail::MoneyTrail(const LogDevice& device, MoneyWatcher& watcher)
    : m_device(device)
    , m_watcher(watcher)
{
    if (device.sessionStartSeen())
        m_sum = m_paid = 0;
}

LogPlace MoneyTrail::here() const
{
    return {m_device.session(), m_device.deviceId(), m_device.threadId(),
            m_device.name(),    m_line,              m_time};
}

void MoneyTrail::skipLine()
{
    m_act.hasGap = true;
    m_isAfterGap = true;
    m_areChannelsKnown = false;
    m_sum.reset();
    m_paid.reset();
}

void MoneyTrail::see(const LogStep& step, const SessionLine& line, qint64 lineNumber)
{
    m_line = lineNumber;
    m_time = line.time();
    m_newCounter = step.notesInserted;
    const State state = m_device.state().state;
    const bool mayBegin =
        state != m_state && (state == STATE_ACCEPTING || state == STATE_REJECTED);
    m_isNoteMissing = m_newCounter && m_counter
        && *m_newCounter - *m_counter > m_notes + int(m_isUncounted) + int(mayBegin);
    if (step.startsSession)
        m_sum = m_paid = 0;
    else if (m_isFirst && !m_device.sessionStartSeen() && (step.reported & stateBit) == 0)
        m_act.kind = MoneyAct::Unseen;
    if ((step.reported & cassetteBit) != 0) {
        const bool isIn = m_device.state().stackerPresent;
        if (!isIn && m_isCassetteIn)
            ++m_collections;
        m_watcher.takeCassette(*this, isIn);
        m_isCassetteIn = isIn;
    }
    m_watcher.takeReport(*this, step);
    seeSums(step);
    m_changes.clear();
    if ((step.reported & registryBit) != 0)
        seeRegistry();
    if (m_withheld.empty())
        return;
    for (const auto& [fields, found] : m_withheld) {
        if ((step.reported & fields) == fields)
            m_watcher.takeContradiction(*this, found);
    }
    m_withheld.erase(std::remove_if(m_withheld.begin(), m_withheld.end(),
                                    [&](const auto& withheld) {
                                        return (step.reported & withheld.first) == withheld.first;
                                    }),
                     m_withheld.end());
}

void MoneyTrail::seeSums(const LogStep& step)
{
    const DeviceState& state = m_device.state();
    m_newCredit = m_newPaid = 0;
    if ((step.reported & sumBit) != 0) {
        if (!m_sum)
            m_act.isCreditKnown = false;
        const qint64 before = m_sum.value_or(state.sessionSum);
        m_newCredit = qMax<qint64>(0, state.sessionSum - before);
        if (state.sessionSum < before) {
            tell(Rule::CreditFell, here(), {m_sumLine, m_line},
                 Diagnosis::tr("The session's sum fell from %1 to %2. The start of a session "
                               "before this line would clear this.")
                     .arg(before)
                     .arg(state.sessionSum));
        }
        m_sum = state.sessionSum;
        m_sumLine = m_line;
    } else if (step.startsSession) {
        m_sumLine = m_line;
    }
    if ((step.reported & paidBit) != 0) {
        const qint64 before = m_paid.value_or(state.dispensedSum);
        if (!m_paid || state.dispensedSum < before)
            m_act.isPaidKnown = false;
        m_newPaid = qMax<qint64>(0, qint64(state.dispensedSum) - before);
        m_paid = state.dispensedSum;
    }
}

void MoneyTrail::seeRegistry()
{
    const bool isFirst = m_channels.empty();
    std::vector<ChannelChange> told(m_channels.size());
    for (size_t i = 0; i < told.size(); ++i) {
        told.at(i) = {i, 0, 0, m_collections};
        m_channels.at(i).isTold = false;
    }
    for (const DispenserRegistryItem& row : m_device.state().dispenserRegistry) {
        auto channel = std::find_if(m_channels.begin(), m_channels.end(),
                                    [&](const CashChannel& known) { return known.isOf(row); });
        if (channel == m_channels.end()) {
            m_channels.push_back(
                {row.channel, row.denomination, row.billType, row.currency, 0, 0, true});
            channel = m_channels.end() - 1;
            told.push_back({m_channels.size() - 1, 0, 0, m_collections});
        }
        channel->isTold = true;
        if (channel->currency.isEmpty())
            channel->currency = row.currency;
        ChannelChange& now = told.at(size_t(channel - m_channels.begin()));
        now.count += row.count; // two rows may be of one
        now.rejected += row.rejected;
    }
    for (ChannelChange& now : told) {
        CashChannel& channel = m_channels.at(now.channel);
        if (!channel.isTold)
            continue;
        const ChannelChange change{now.channel, now.count - channel.count,
                                   now.rejected - channel.rejected, m_collections};
        channel.count = now.count;
        channel.rejected = now.rejected;
        const bool isNew = now.channel >= m_knownChannels;
        if (isNew)
            m_watcher.takeChannel(*this, now.channel);
        else if (change.count == 0 && change.rejected == 0)
            continue;
        else if (m_areChannelsKnown)
            m_changes.push_back(change);
        else
            m_watcher.takeChange(*this, MoneyAct::Unseen, change);
    }
    m_knownChannels = m_channels.size();
    if (isFirst || !m_areChannelsKnown) {
        m_act.isPaidKnown = false;
        m_act.isRegistryNew = m_isRegistryNew = !m_channels.empty();
    }
    m_areChannelsKnown = true;
}

const NoteAnswer* MoneyTrail::noteOfAct(const NoteAnswer* open) const
{
    if (m_act.kind != MoneyAct::Piece)
        return nullptr;
    if (m_act.piece)
        return &m_act.note;
    return open && open->line == m_act.begin.line ? open : nullptr;
}

bool MoneyTrail::giveToLast(const NoteAnswer* note)
{
    const NoteAnswer* const last = noteOfAct(note);
    bool isInChannel = false;
    if (last && !isGivenBack(last->end) && !m_isNoteMissing) {
        isInChannel = takeGrowth(*last);
        if (m_act.credit == 0)
            takeCredit();
    }
    const bool beginsOperation =
        m_device.state().state != m_state && operationOf(m_device.state().state);
    if ((isOperation(m_act.kind) && !beginsOperation) || m_act.kind == MoneyAct::Unseen)
        takeChanges();
    return isInChannel;
}

bool MoneyTrail::giveRest(const NoteAnswer* note)
{
    if (m_newCounter && seeCounter(*m_newCounter))
        m_isNoteMissing = true;
    const NoteAnswer* const now = noteOfAct(note);
    const bool isInChannel =
        now && !isGivenBack(now->end) && !m_isNoteMissing && takeGrowth(*now);
    takeLoneCredit();
    takeChanges();
    const bool isJam = m_state == STATE_JAMMED || m_state == STATE_ERROR;
    m_act.isStopped = m_act.isStopped || isJam || m_device.stopsOn(m_line);
    if (m_device.state().currentChannel > 0)
        m_act.channel = m_device.state().currentChannel;
    m_isFirst = m_isAfterGap = m_isRegistryNew = false;
    return isInChannel;
}

bool MoneyTrail::hasChannelOf(const NoteAnswer& note) const
{
    return std::any_of(m_channels.begin(), m_channels.end(), [&](const CashChannel& channel) {
        return !note.hasValue() || channel.denomination == note.note;
    });
}

// Whether a channel of its value grew by it, so that it is there; one that grew by more was filled.
bool MoneyTrail::takeGrowth(const NoteAnswer& note)
{
    if (m_act.isInChannel)
        return false;
    const auto grown =
        std::find_if(m_changes.begin(), m_changes.end(), [&](const ChannelChange& change) {
            const int value = m_channels.at(change.channel).denomination;
            return change.count == 1 && (!note.hasValue() || note.note == value);
        });
    if (grown == m_changes.end())
        return false;
    m_act.isInChannel = true;
    --grown->count;
    m_watcher.takeChange(*this, MoneyAct::Piece, {grown->channel, 1, 0, m_collections});
    return true;
}

void MoneyTrail::takeCredit()
{
    if (m_newCredit == 0)
        return;
    m_act.credit += std::exchange(m_newCredit, 0);
    m_act.lines += m_line;
}

// What of a credit is left belongs to no piece, or is one more of it.
void MoneyTrail::takeLoneCredit()
{
    if (m_isNoteMissing)
        return; // it may be that one's
    if (m_act.kind == MoneyAct::Piece || m_act.kind == MoneyAct::Unseen)
        return takeCredit();
    if (m_newCredit > 0 && !m_act.hasGap) {
        tell(Rule::CreditWithoutNote, here(), {m_line},
             Diagnosis::tr("The session's sum rose by %1 without a note. A note that was offered "
                           "before, with nothing between, would clear this.")
                 .arg(m_newCredit),
             0, 1);
    }
}

// Gives the act what is left of what was paid and of the channels.
void MoneyTrail::takeChanges()
{
    if (m_act.kind == MoneyAct::Payout && m_newPaid > 0) {
        m_act.paid += m_newPaid;
        m_act.lines += m_line;
    }
    m_newPaid = 0;
    QStringList unexplained;
    for (const ChannelChange& change : m_changes) {
        const CashChannel& channel = m_channels.at(change.channel);
        const bool isFilling = change.count >= 0 && change.rejected == 0;
        if (change.count == 0 && change.rejected == 0)
            continue;
        if (isOperation(m_act.kind) || isFilling || m_act.kind == MoneyAct::Unseen
            || m_act.hasGap) {
            if (isOperation(m_act.kind))
                m_act.moved.push_back(change);
            m_watcher.takeChange(*this, m_act.kind, change);
            continue;
        }
        m_watcher.takeChange(*this, MoneyAct::None, change);
        const QString kind = Diagnosis::tr("channel %1 (%2)")
                                 .arg(channel.number)
                                 .arg(channel.denomination);
        if (change.count != 0)
            unexplained += Diagnosis::tr("%1 went from %2 to %3")
                               .arg(kind)
                               .arg(channel.count - change.count)
                               .arg(channel.count);
        if (change.rejected != 0)
            unexplained += Diagnosis::tr("rejects of %1 went from %2 to %3")
                               .arg(kind)
                               .arg(channel.rejected - change.rejected)
                               .arg(channel.rejected);
    }
    m_changes.clear();
    if (!unexplained.isEmpty()) {
        tell(Rule::RegistryChanged, here(), {m_line},
             Diagnosis::tr("The registry changed: %1. A payout, a float or an emptying that began "
                           "before, with nothing between, would clear this.")
                 .arg(unexplained.join(QStringLiteral(", "))));
    }
}

void MoneyTrail::beginNote(const NoteAnswer& note, bool isSame)
{
    if (!isSame || m_act.kind != MoneyAct::Piece)
        begin(MoneyAct::Piece, nullptr);
    m_isUncounted = m_isUncounted || !isSame;
    m_act.isRegistryNew = m_isRegistryNew && !m_device.sessionStartSeen();
    m_act.isCreditKnown = !m_isAfterGap && (!m_isFirst || m_device.sessionStartSeen());
    m_act.begin = note;
}

void MoneyTrail::resumeNote(const NoteAnswer& note)
{
    if (m_act.kind != MoneyAct::None)
        return;
    m_act.kind = MoneyAct::Piece;
    m_act.begin = note;
}

void MoneyTrail::countNote()
{
    if (std::exchange(m_isUncounted, false))
        ++m_notes;
}

void MoneyTrail::follow(const NoteAnswer* note)
{
    const State state = m_device.state().state;
    if (state == m_state)
        return;
    const Operation* const operation = operationOf(state);
    if (operation) {
        const bool isOn = m_act.kind == operation->act && !m_act.isEnded;
        const bool isResumed = isOn && (state == operation->ended || !m_act.isCalm);
        if (!isResumed) {
            const bool isSeen = state == operation->begun && !m_isFirst;
            begin(operation->act, note);
            m_act.isPaidKnown = isSeen;
            m_act.isRegistryNew = m_isRegistryNew && !m_device.sessionStartSeen();
            m_act.hasGap = m_isAfterGap; // it may have begun in it
        }
        m_act.isEnded = state == operation->ended;
    } else if (m_isFirst && m_act.kind == MoneyAct::None && isUnderWay(state)
               && !m_device.sessionStartSeen()) {
        m_act.kind = MoneyAct::Unseen;
    }
    if (!m_act.isCalm)
        m_act.collectionsAtEnd = m_collections;
    m_act.isCalm = state == STATE_IDLING || (m_act.isCalm && !operation);
    m_state = state;
}

void MoneyTrail::begin(MoneyAct kind, const NoteAnswer* note)
{
    endAct(note);
    m_act.kind = kind;
    m_act.begin = here();
    m_act.collections = m_collections;
}

void MoneyTrail::startSession(const NoteAnswer* note)
{
    const Operation* const operation = operationOf(m_state);
    const MoneyAct kind = m_act.kind;
    const bool isOn = operation && operation->act == kind && !m_act.isEnded;
    endAct(note);
    if (!isOn)
        return;
    m_act.kind = kind; // what it goes on with, it has told without an end
    m_act.isTold = true;
    m_act.begin = here();
    m_act.collections = m_collections;
}

void MoneyTrail::closeNote(const NoteAnswer& note, const PieceEnd& end)
{
    if (m_act.kind == MoneyAct::Piece && m_act.begin.line == note.line && !m_act.piece) {
        m_act.note = note;
        m_act.piece = end;
    } else {
        m_watcher.takePiece(*this, end);
    }
}

void MoneyTrail::endAct(const NoteAnswer* open)
{
    if (m_act.kind == MoneyAct::Piece) {
        const NoteAnswer* const note = noteOfAct(open);
        NoteAnswer judged = note ? *note : NoteAnswer();
        if (!m_act.piece && !m_act.isInChannel && judged.isTaken())
            judged.end = Outcome::Stuck; // it may come back yet
        judgeNote(judged);
        if (m_act.piece) {
            m_act.piece->isInChannel = m_act.isInChannel;
            m_act.piece->isPlaceKnown =
                !(m_act.isRegistryNew || m_act.hasGap) || !hasChannelOf(m_act.note);
            m_watcher.takePiece(*this, *m_act.piece);
        }
    } else if (m_act.kind == MoneyAct::Payout) {
        judgePayout();
    }
    tellUnfinished(m_watcher);
    m_act = Act();
}

// Tells of an act what the log does not, if it ended now.
void MoneyTrail::tellUnfinished(MoneyWatcher& watcher) const
{
    // What it moved is told; of one that went on from another session nothing may be.
    const bool isBalanced = m_act.kind == MoneyAct::Payout && m_act.isPaidKnown
        && !m_act.isStopped && lostOfAct() == m_act.paid;
    const bool isSettled = m_act.moved.empty() ? m_act.isTold : m_act.isCalm || isBalanced;
    const bool isIntoCassette = isOperation(m_act.kind) && m_act.kind != MoneyAct::Payout;
    const bool isCounted = !isIntoCassette || !m_act.isRegistryNew;
    const bool isUnfinished =
        isOperation(m_act.kind) && !m_act.isEnded && (isIntoCassette || !isSettled);
    if (isUnfinished || !isCounted)
        watcher.takeUnfinished(*this,
                                 {m_act.kind, m_act.collections,
                                  m_act.isCalm ? m_act.collectionsAtEnd : m_collections,
                                  m_act.isEnded, isCounted, isSettled, m_act.channel,
                                  m_act.moved});
}

void MoneyTrail::foresee(const PieceEnd* open, MoneyWatcher& watcher) const
{
    if (m_act.piece) {
        PieceEnd piece = *m_act.piece;
        piece.isInChannel = m_act.isInChannel;
        // The registry may tell yet that it is in a channel.
        piece.isOnItsWay =
            piece.end == Outcome::Taken && !m_act.isCalm && hasChannelOf(m_act.note);
        watcher.takePiece(*this, piece);
    }
    if (open)
        watcher.takePiece(*this, *open);
    tellUnfinished(watcher);
}

void MoneyTrail::judgeNote(const NoteAnswer& note)
{
    if (m_act.hasGap || !m_act.isCreditKnown)
        return;
    m_judgedNote = note.note;
    const QVector<qint64> lines = QVector<qint64>{m_act.begin.line} + m_act.lines;
    const QString rise = QString::number(m_act.credit);
    const bool isRefused = note.outcome == Outcome::Refused && !note.isTaken();
    if (!note.isNote()) {
        if (m_act.credit > 0)
            tell(Rule::CreditWithoutNote, m_act.begin, lines,
                 Diagnosis::tr("The session's sum rose by %1 while the device accepted, without a "
                               "note. The value of one would clear this.")
                     .arg(rise),
                 0, 1);
    } else if (isGivenBack(note.end) || isRefused) {
        if (m_act.credit > 0)
            tell(Rule::CreditedNotTaken, m_act.begin, lines,
                 Diagnosis::tr("The session's sum rose by %1 for a %2 that was not taken. That it "
                               "was stacked would clear this.")
                     .arg(rise, note.what()));
    } else if (note.isTaken() && m_act.credit == 0) {
        tell(Rule::NotCredited, m_act.begin, lines,
             Diagnosis::tr("A %1 was taken, and the session's sum did not rise. That it rises "
                           "before the next note, payout or session would clear this.")
                 .arg(note.what()),
             sumBit);
    } else if (note.hasValue() && m_act.credit > 0 && m_act.credit != note.note) {
        tell(Rule::CreditDiffers, m_act.begin, lines,
             Diagnosis::tr("The session's sum rose by %1 for a %2. That it rises by %3 in all "
                           "would clear this.")
                 .arg(rise, note.what(), QString::number(note.note)));
    }
    m_judgedNote = 0;
}

// What left the channels without being rejected. What grew was filled.
qint64 MoneyTrail::lostOfAct() const
{
    qint64 lost = 0;
    for (const ChannelChange& change : m_act.moved) {
        lost += (qMax<qint64>(0, -change.count) - qMax<qint64>(0, change.rejected))
            * m_channels.at(change.channel).denomination;
    }
    return lost;
}

void MoneyTrail::judgePayout()
{
    if (m_act.hasGap || m_act.isTold)
        return;
    const QVector<qint64> lines = QVector<qint64>{m_act.begin.line} + m_act.lines;
    if (!m_act.isEnded) {
        tell(Rule::PayoutUnfinished, m_act.begin, lines,
             Diagnosis::tr("A payout began, and the log does not tell its end. \"dispensed\" "
                           "before the next note, payout or session would clear this."));
        return;
    }
    if (!m_act.isPaidKnown || m_channels.empty())
        return;
    const qint64 lost = lostOfAct();
    if (lost == m_act.paid)
        return;
    tell(Rule::PayoutDiffers, m_act.begin, lines,
         Diagnosis::tr("%1 was paid, and %2 left the channels without being rejected. That both "
                       "are the same before the next note, payout or session would clear this.")
             .arg(m_act.paid)
             .arg(lost),
         paidBit);
}

// The notes that were offered since the counter was told; of those before, the last one may be
// counted late.
// Returns whether one is missing: what is told of it has its reason then.
bool MoneyTrail::seeCounter(qint64 counter)
{
    const qint64 before = m_counter.value_or(counter);
    const qint64 rise = counter - before;
    if (rise > m_notes)
        countNote(); // one that is begun
    const qint64 missing = rise - m_notes;
    if (missing > 0) {
        tell(Rule::CounterJump, here(), {m_counterLine, m_line},
             Diagnosis::tr("The device counted %1, and the log has %2 of them: %n notes are missing "
                           "from the log. Their lines would clear this.",
                           nullptr, int(qMin<qint64>(missing, INT_MAX)))
                 .arg(rise)
                 .arg(m_notes),
             0, missing);
    }
    m_notes = qBound(qint64(0), m_notes - qMax<qint64>(0, rise), qint64(1));
    m_counter = counter;
    m_counterLine = m_line;
    m_counterCollections = m_collections;
    return missing > 0;
}

// Withholds what is only known once the log tells of the fields at all.
void MoneyTrail::tell(Rule rule, const LogPlace& place, QVector<qint64> lines,
                      const QString& sentence, quint32 fields, qint64 missing)
{
    Contradiction found;
    static_cast<LogPlace&>(found) = place;
    found.rule = rule;
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    lines.removeAll(0);
    found.lines = lines;
    found.sentence = sentence;
    found.missing = missing;
    found.note = m_judgedNote;
    found.collections = rule == Rule::CounterJump ? m_counterCollections : m_collections;
    if (fields == 0 || m_device.hasReported(fields)) {
        m_watcher.takeContradiction(*this, found);
        return;
    }
    // A log that is silent for so long began to tell the field later, if ever.
    if (m_withheld.size() >= mostWithheld)
        m_withheld.clear();
    m_withheld.emplace_back(fields, found);
}
