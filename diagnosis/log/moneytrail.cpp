// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/moneytrail.h"

#include <QStringList>

#include <algorithm>

namespace {

const quint32 creditField = DeviceReport::bit(deviceStateDescConst::SESSION_SUM);
const quint32 payoutField = DeviceReport::bit(deviceStateDescConst::DISPENSED_SUM);

} // namespace

MoneyTrail::MoneyTrail(const LogDevice& device, MoneyWatcher& watcher)
    : m_device(device)
    , m_watcher(watcher)
{
    if (device.sessionStartSeen())
        m_sum = m_paid = 0;
}

LogPlace MoneyTrail::here() const
{
    return {m_device.session(),
            m_device.deviceId(),
            m_device.threadId(),
            m_device.name(),
            m_line,
            m_time};
}

void MoneyTrail::skipLine()
{
    ++m_skippedLines;
    m_act.hasGap = true;
    m_isAfterGap = true;
    m_channels.skipLine();
    m_sum.reset();
    m_paid.reset();
}

bool MoneyTrail::giveToLast(const NoteAnswer* note)
{
    const NoteAnswer* const last = m_act.noteOf(note);
    bool isInChannel = false;
    if (last && !isGivenBack(last->end) && !m_isNoteMissing) {
        isInChannel = takeGrowth(*last);
        if (m_act.credit == 0)
            takeCredit();
    }
    const bool beginsOperation =
        m_device.state().state != m_state && MoneyOperation::of(m_device.state().state);
    if ((isOperation(m_act.kind) && !beginsOperation) || m_act.kind == MoneyAct::Unseen)
        takeChanges();
    return isInChannel;
}

bool MoneyTrail::giveRest(const NoteAnswer* note)
{
    seeCounter();
    const NoteAnswer* const now = m_act.noteOf(note);
    const bool isInChannel = now && !isGivenBack(now->end) && !m_isNoteMissing && takeGrowth(*now);
    takeLoneCredit();
    takeChanges();
    const bool isJam = m_state == STATE_JAMMED || m_state == STATE_ERROR;
    m_act.isStopped = m_act.isStopped || isJam || m_device.stopsOn(m_line);
    if (m_device.state().currentChannel > 0)
        m_act.channel = m_device.state().currentChannel;
    m_isFirst = m_isAfterGap = m_isRegistryNew = false;
    return isInChannel;
}

// Whether a channel of its value grew by it, so that it is there; one that grew by more was filled.
bool MoneyTrail::takeGrowth(const NoteAnswer& note)
{
    if (m_act.isInChannel)
        return false;
    const auto grown =
        std::find_if(m_changes.begin(), m_changes.end(), [&](const ChannelChange& change) {
            const int value = m_channels.all().at(change.channel).denomination;
            return change.count == 1 && (!note.hasValue() || note.note == value);
        });
    if (grown == m_changes.end())
        return false;
    m_act.isInChannel = true;
    --grown->count;
    m_watcher.takeChange(
        *this, MoneyAct::Piece,
        {grown->channel, 1, 0, m_act.firstCollections(), m_act.lastCollections(m_collections)});
    return true;
}

void MoneyTrail::takeCredit()
{
    if (m_newCredit == 0)
        return;
    // What fell and comes back is no more credit.
    const qint64 back = qMin(m_act.fallen, m_newCredit);
    m_act.fallen -= back;
    m_act.credit += std::exchange(m_newCredit, 0) - back;
    m_act.lines += m_line;
}

// What of a credit is left belongs to no piece, or is one more of it.
void MoneyTrail::takeLoneCredit()
{
    if (m_newCredit == 0)
        return;
    const bool isOwn = m_act.kind == MoneyAct::Piece && !m_isNoteMissing
        && (m_act.credit == 0 || m_missingNotes == 0);
    if (isOwn || m_act.kind == MoneyAct::Unseen)
        return takeCredit();
    if (m_missingNotes > 0) {
        --m_missingNotes; // it is that one's
        return;
    }
    if (m_isNoteMissing || m_act.hasGap)
        return;
    Contradiction found = Contradiction::ofLoneCredit(m_newCredit);
    found.collections = m_collections;
    static_cast<LogPlace&>(found) = here();
    found.lines = {m_line};
    m_loneCredits.push_back(found);
    if (!m_counter.isKnown())
        tellLoneCredits();
}

void MoneyTrail::tellLoneCredits()
{
    for (const Contradiction& found : std::exchange(m_loneCredits, {}))
        tell(found, found, found.lines);
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
    for (ChannelChange& change : m_changes) {
        const bool isFilling = change.count >= 0 && change.rejected == 0;
        if (isOperation(m_act.kind) && !isFilling) {
            change.first = m_act.firstCollections();
            change.last = m_act.lastCollections(m_collections);
        }
        if (change.count == 0 && change.rejected == 0)
            continue;
        if (isOperation(m_act.kind) || isFilling || m_act.kind == MoneyAct::Unseen
            || m_act.hasGap) {
            if (isOperation(m_act.kind))
                m_act.moved.push_back(change);
            m_watcher.takeChange(*this, isFilling ? MoneyAct::None : m_act.kind, change);
            continue;
        }
        m_watcher.takeChange(*this, MoneyAct::None, change);
        unexplained += m_channels.told(change);
    }
    m_changes.clear();
    if (!unexplained.isEmpty()) {
        tell(Contradiction::ofRegistry(unexplained, m_collections), here(), {m_line});
    }
}

void MoneyTrail::beginNote(const NoteAnswer& note, bool isSame)
{
    if (!isSame || m_act.kind != MoneyAct::Piece)
        begin(MoneyAct::Piece, nullptr);
    if (!isSame)
        m_counter.begin();
    m_act.isRegistryNew = m_isRegistryNew && !m_device.sessionStartSeen();
    m_act.isCreditKnown = !m_isAfterGap && (!m_isFirst || m_device.sessionStartSeen());
    m_act.begin = note;
}

void MoneyTrail::resumeNote(const NoteAnswer& note)
{
    if (m_act.kind != MoneyAct::None)
        return;
    if (m_parked && m_parked->isOf(note))
        m_act = *std::exchange(m_parked, {});
    else
        begin(MoneyAct::Piece, nullptr);
    m_act.begin = note;
}

void MoneyTrail::follow(const NoteAnswer* note)
{
    const State state = m_device.state().state;
    if (state == m_state)
        return;
    if (!m_act.isDone())
        m_act.collectionsAtEnd = m_collections;
    const MoneyOperation* const operation = MoneyOperation::of(state);
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
    } else if (m_isFirst && m_act.kind == MoneyAct::None && isMoneyUnderWay(state)
               && !m_device.sessionStartSeen()) {
        m_act.kind = MoneyAct::Unseen;
    }
    m_act.isCalm = state == STATE_IDLING || (m_act.isCalm && !operation);
    m_state = state;
    if (m_act.isCut && state == STATE_IDLING)
        endAct(note);
}

void MoneyTrail::begin(MoneyAct kind, const NoteAnswer* note)
{
    endAct(note);
    m_act.kind = kind;
    m_act.begin = here();
    m_act.collections = m_act.collectionsAtEnd = m_collections;
}

void MoneyTrail::startSession(const NoteAnswer* note)
{
    if (m_act.isAtWork())
        m_act.isCut = true; // its end may be told yet
    else
        endAct(note);
    tellLoneCredits();
    m_missingNotes = 0;
}

void MoneyTrail::finish()
{
    endAct(nullptr);
    tellLoneCredits();
}

void MoneyTrail::closeNote(const NoteAnswer& note, const PieceEnd& end)
{
    if (m_act.isOf(note) && !m_act.piece) {
        m_act.note = note;
        m_act.piece = end;
        return;
    }
    OpenAct now = std::exchange(m_act, OpenAct());
    if (m_parked && m_parked->isOf(note))
        m_act = *std::exchange(m_parked, {});
    m_act.note = note;
    m_act.piece = end;
    finishPiece();
    m_act = std::move(now);
}

void MoneyTrail::endAct(const NoteAnswer* open)
{
    if (m_act.kind == MoneyAct::Piece && !m_act.piece && m_act.noteOf(open)) {
        m_parked = std::exchange(m_act, OpenAct());
        return;
    }
    if (m_act.kind == MoneyAct::Piece) {
        finishPiece();
    } else if (m_act.kind == MoneyAct::Payout) {
        const bool isLostKnown = m_act.isPaidKnown && !m_act.isCut && !m_channels.all().empty();
        const qint64 lost = isLostKnown ? m_channels.sumLost(m_act.moved) : m_act.paid;
        judge(Contradiction::ofPayout(m_act.isEnded, m_act.paid, lost), payoutField);
    }
    if (const auto unfinished = m_act.unfinished(m_channels, m_collections))
        m_watcher.takeUnfinished(*this, *unfinished);
    m_act = OpenAct();
}

// Nothing more is told of a piece, if it was one.
void MoneyTrail::finishPiece()
{
    if (m_act.isCreditKnown && m_sum)
        judge(Contradiction::ofCredit(m_act.note, m_act.credit), creditField);
    if (m_act.piece)
        m_watcher.takePiece(*this, m_act.pieceEnd(m_channels));
}

void MoneyTrail::foresee(const PieceEnd* open, MoneyWatcher& watcher) const
{
    if (m_act.piece) {
        PieceEnd piece = m_act.pieceEnd(m_channels);
        // The registry may tell yet that it is in a channel.
        piece.isOnItsWay =
            piece.end == Outcome::Taken && !m_act.isCalm && m_channels.haveValue(m_act.note.note);
        watcher.takePiece(*this, piece);
    }
    if (open)
        watcher.takePiece(*this, *open);
    if (const auto unfinished = m_act.unfinished(m_channels, m_collections))
        watcher.takeUnfinished(*this, *unfinished);
}

// Tells what does not add up with the act, unless the log may lack what would clear it.
void MoneyTrail::judge(std::optional<Contradiction> found, quint32 field)
{
    if (!found || m_act.hasGap)
        return;
    // That a field stays is only known once the log tells of it at all.
    const bool needsField = found->rule == Rule::NotCredited || found->rule == Rule::PayoutDiffers;
    found->collections = m_act.lastCollections(m_collections);
    tell(*found, m_act.begin, QVector<qint64>{m_act.begin.line} + m_act.lines,
         needsField ? field : 0);
}

// @param field of which the log must tell
void MoneyTrail::tell(Contradiction found, const LogPlace& place, QVector<qint64> lines,
                      quint32 field)
{
    static_cast<LogPlace&>(found) = place;
    lines.erase(std::unique(lines.begin(), lines.end()), lines.end());
    lines.removeAll(0);
    found.lines = lines;
    if (field == 0 || m_device.hasReported(field))
        m_watcher.takeContradiction(*this, found);
    else
        m_withheld.add(field, found);
}
