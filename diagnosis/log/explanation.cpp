// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/explanation.h"

#include "text/diagnosis.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace {

const quint32 stateBit = DeviceReport::bit(deviceStateDescConst::STATE);
const quint32 noteBit = DeviceReport::bit(deviceStateDescConst::CURRENT_NOTE);
const quint32 sessionSumBit = DeviceReport::bit(deviceStateDescConst::SESSION_SUM);

bool isOffer(const DeviceState& event)
{
    return event.state == STATE_ACCEPTING && event.currentNote > 0;
}

bool tellsOfNote(State state)
{
    return state >= STATE_ACCEPTING && state <= STATE_RETURNED;
}

// It was that of the note before; the filters were not asked about this one.
void takeBackValue(NoteAnswer& answer)
{
    answer.note = 0;
    answer.outcome = Outcome::Unknown;
    answer.objections.clear();
    answer.isJudged = false;
}

} // namespace

LogExplainer::LogExplainer(const FilterSet& filters, Receiver receiver, MoneyWatcher* watcher)
    : m_player(filters)
    , m_receiver(std::move(receiver))
    , m_watcher(watcher ? *watcher : m_nobody)
{
}

LogExplainer::Trail& LogExplainer::trailOf(const LogDevice& device)
{
    Trail& trail = m_trails[&device];
    if (!trail.money) {
        trail.money = std::make_unique<MoneyTrail>(device, m_watcher);
        if (m_player.skippedLines() > device.skippedBefore())
            trail.money->skipLine();
    }
    return trail;
}

void LogExplainer::skipLine()
{
    m_player.skipLine();
    for (auto& [device, trail] : m_trails)
        trail.money->skipLine();
}

void LogExplainer::take(const SessionLine& line, qint64 lineNumber)
{
    const std::vector<LogStep>& taken = m_player.take(line, lineNumber);
    if (taken.size() == 1) {
        takeStep(taken.front(), line, lineNumber);
    } else {
        std::vector<const LogStep*> steps;
        steps.reserve(taken.size());
        for (const LogStep& step : taken)
            steps.push_back(&step);
        // In whatever order they are published.
        std::sort(steps.begin(), steps.end(), [](const LogStep* a, const LogStep* b) {
            return std::make_pair(a->device->deviceId(), a->device->threadId())
                < std::make_pair(b->device->deviceId(), b->device->threadId());
        });
        for (const LogStep* const step : steps)
            takeStep(*step, line, lineNumber);
    }
    giveAway();
}

void LogExplainer::takeStep(const LogStep& step, const SessionLine& line, qint64 lineNumber)
{
    const LogDevice& device = *step.device;
    Trail& trail = trailOf(device);
    const auto closeUnlessInHand = [&] {
        if (step.startsSession && trail.note
            && (trail.note->phase != InHand || trail.note->piece.isInChannel))
            close(device);
    };
    closeUnlessInHand();
    if (step.startsSession) {
        // What the device has in hand goes on into the next session, where only what is told there
        // says what becomes of it.
        if (trail.note) {
            trail.note->answer.end = Outcome::Unknown;
            trail.note->isInterrupted = true;
        }
        trail.money->startSession(trail.answer());
    }
    trail.money->see(step, line, lineNumber);
    if (trail.money->giveToLast(trail.answer()))
        keepInChannel(trail, lineNumber);
    if (step.sent) {
        takeEvent(step, line, lineNumber);
        trail.money->follow(trail.answer());
    } else if (trail.note) {
        watch(device, *trail.note, lineNumber); // a first report may tell of what is no event
    }
    count(trail);
    if (trail.note && trail.note->phase == InHand)
        trail.note->piece.collectionsAtEnd = trail.money->collections();
    if (trail.money->giveRest(trail.answer()))
        keepInChannel(trail, lineNumber);
    closeUnlessInHand();
}

// The registry tells where the note is, whatever else the device tells.
void LogExplainer::keepInChannel(Trail& trail, qint64 lineNumber)
{
    if (!trail.note)
        return;
    trail.note->piece.isInChannel = true;
    trail.note->answer.end = Outcome::Taken;
    trail.note->answer.lastLine = lineNumber;
    trail.note->stoppedLine = 0;
}

void LogExplainer::count(Trail& trail)
{
    if (trail.note && trail.note->answer.isNote())
        trail.money->countNote();
}

void LogExplainer::finish()
{
    for (const auto& device : m_player.devices()) {
        Trail& trail = trailOf(*device);
        Note* const note = trail.note;
        if (note && note->phase == InHand && !note->piece.isInChannel) {
            // It is on its way still, unless all that was told of it is of a session before.
            const bool isTold = !std::exchange(note->isInterrupted, true);
            if (isTold && note->answer.isNote() && note->stoppedLine == 0
                && note->answer.outcome != Outcome::Refused)
                note->stoppedLine = note->seenLine;
            note->answer.end = Outcome::Unknown;
        }
        close(*device);
        trail.money->finish();
    }
    giveAway();
}

void LogExplainer::foresee(MoneyWatcher& watcher) const
{
    for (const auto& [device, trail] : m_trails) {
        if (!trail.note || !trail.note->answer.isNote()) {
            trail.money->foresee(nullptr, watcher);
            continue;
        }
        PieceEnd piece = pieceOf(*trail.note, *trail.money);
        piece.isOnItsWay = trail.note->phase == InHand && piece.end != Outcome::Stuck;
        trail.money->foresee(&piece, watcher);
    }
}

int LogExplainer::firstOpenSession() const
{
    int first = m_player.sessions();
    for (const auto& device : m_player.devices())
        first = qMin(first, device->session());
    for (const Note& note : m_notes)
        first = qMin(first, note.answer.session);
    return first;
}

void LogExplainer::takeEvent(const LogStep& step, const SessionLine& line, qint64 lineNumber)
{
    const LogDevice& device = *step.device;
    const StatesList& events = device.events();
    const DeviceState& event = events.constLast();
    const DeviceState* const last = events.size() > 1 ? &events.at(events.size() - 2) : nullptr;
    Trail& trail = trailOf(device);
    // A session does not make news of how the device stands.
    const bool isNewState = trail.state != event.state;
    // What is published, or told of an idle device, repeats the value of a note that is long gone.
    const bool isTold = !line.isPublished() && (step.reported & noteBit) != 0;
    const bool isNewValue =
        event.currentNote != trail.value || (isTold && event.state != STATE_IDLING);
    trail.state = event.state;
    // A start sets it to 0 and tells nothing of it.
    if (!step.startsSession || (step.reported & noteBit) != 0)
        trail.value = event.currentNote;
    trail.isValueNew = event.currentNote > 0 && (trail.isValueNew || isNewValue);
    if (trail.note && trail.note->phase == Ended && isNewState)
        close(device);

    // Told once more in the next session.
    const bool isCarriedOver = trail.note && !isNewState && trail.note->phase == InHand
        && trail.note->answer.end == Outcome::Unknown
        && trail.note->answer.session != device.session()
        && trail.note->answer.note == event.currentNote;
    const bool isSameOffer = last && isOffer(*last) && last->currentNote == event.currentNote;
    if (isOffer(event) && !isSameOffer && !isCarriedOver) {
        const bool isLate = trail.note && !isNewState && trail.note->phase == InHand
            && (!trail.note->answer.hasValue() || trail.note->isValuePresumed);
        const Note before = isLate ? std::exchange(*trail.note, Note()) : Note();
        addNote(device, line, lineNumber, isLate);
        trail.note->isValuePresumed = !std::exchange(trail.isValueNew, false);
        trail.note->stoppedLine = before.stoppedLine;
        trail.note->answer.machine = before.answer.machine;
        return judge(device, *trail.note);
    }
    if (isNewState && !trail.money->isAtWork() && beginsNote(event, trail.note))
        addNote(device, line, lineNumber);
    if (!trail.note) {
        // A value of a note that was not seen to begin is none of the next one.
        trail.isValueNew = trail.isValueNew && !tellsOfNote(event.state);
        return;
    }
    NoteAnswer& answer = trail.note->answer;
    if (answer.session != device.session() && (step.reported & stateBit) != 0
        && tellsOfNote(event.state)) {
        trail.note->isInterrupted = false;
        trail.money->resumeNote(answer);
    }
    if (event.state != STATE_IDLING && std::exchange(trail.isValueNew, false)) {
        if (std::exchange(trail.note->isValuePresumed, false))
            takeBackValue(answer);
        if (answer.hasValue() && answer.note != event.currentNote) {
            answer.uncertain += Diagnosis::tr("its value became %1 in line %2")
                                    .arg(event.currentNote)
                                    .arg(lineNumber);
            trail.note->piece.otherNote = event.currentNote;
        } else {
            answer.note = event.currentNote;
        }
    }
    follow(device, *trail.note, isNewState, lineNumber);
}

// Whether a new state without a value is of a note after the one that is open, if any.
bool LogExplainer::beginsNote(const DeviceState& event, const Note* open)
{
    if (event.state == STATE_ACCEPTING)
        return !open || open->phase != InHand || open->answer.end != Outcome::Unknown;
    return event.state == STATE_REJECTED && !open;
}

void LogExplainer::addNote(const LogDevice& device, const SessionLine& line, qint64 lineNumber,
                           bool isSame)
{
    close(device);
    Trail& trail = trailOf(device);
    Note& note = m_notes.emplace_back();
    note.answer.session = device.session();
    note.answer.device = device.deviceId();
    note.answer.thread = device.threadId();
    note.answer.deviceName = device.name();
    note.answer.line = lineNumber;
    note.answer.time = line.time();
    note.sumBefore = device.state().sessionSum;
    note.startSeen = device.sessionStartSeen();
    note.skippedBefore = device.skippedBefore();
    note.piece.skippedBefore = trail.money->skippedLines();
    note.seenLine = lineNumber;
    note.piece.collections = note.piece.collectionsAtEnd = trail.money->collections();
    trail.note = &note;
    trail.money->beginNote(note.answer, isSame);
}

// Asks the filters about a note that is offered.
void LogExplainer::judge(const LogDevice& device, Note& note)
{
    note.answer.note = device.state().currentNote;
    note.answer.addConditions(device.conditions());
    note.answer.isJudged = true;
    const QVector<const FilterMemory*> refusing = device.refusing();
    if (!refusing.isEmpty())
        note.answer.outcome = Outcome::Refused;
    for (const FilterMemory* const filter : refusing)
        note.answer.objections += filter->objection();
}

// Sees what is the matter with a device while it has a note in hand.
void LogExplainer::watch(const LogDevice& device, Note& note, qint64 lineNumber)
{
    if (note.phase != InHand)
        return;
    note.answer.addConditions(device.conditions());
    if (note.stoppedLine == 0 && lineNumber > note.answer.line && device.stopsOn(lineNumber))
        note.stoppedLine = lineNumber;
}

// Takes what an event says about the note that is in the device.
void LogExplainer::follow(const LogDevice& device, Note& note, bool isNewState, qint64 lineNumber)
{
    NoteAnswer& answer = note.answer;
    const State state = device.state().state;
    const Outcome before = answer.end;
    const bool isKept = isNewState && (state == STATE_ACCEPTED || state == STATE_STACKING);
    if (isKept || state == STATE_STACKED || note.piece.isInChannel)
        answer.end = Outcome::Taken;
    else if (state == STATE_REJECTED)
        answer.end = Outcome::Rejected;
    else if (state == STATE_RETURNED)
        answer.end = Outcome::Returned;
    else if (state == STATE_RETURNING)
        answer.end = Outcome::Unknown;
    answer.isSeen = answer.isSeen || isKept || state == STATE_RETURNING;
    if (answer.end != before) {
        answer.lastLine = lineNumber;
        note.piece.collectionsAtEnd = trailOf(device).money->collections();
    }
    if (note.phase == InHand)
        note.seenLine = lineNumber;
    if (device.state().sessionSum > note.sumBefore && answer.creditLine.value_or(0) == 0)
        answer.creditLine = lineNumber;

    const bool isAtEnd =
        state == STATE_REJECTED || state == STATE_RETURNED || state == STATE_STACKED;
    if (isAtEnd)
        note.stoppedLine = 0;
    if (isKept && note.phase == Idle)
        note.phase = InHand; // once more
    const bool isJam = isNewState && (state == STATE_JAMMED || state == STATE_ERROR);
    if (isJam && note.phase == InHand && note.stoppedLine == 0)
        note.stoppedLine = lineNumber;
    watch(device, note, lineNumber);
    if (isAtEnd) {
        note.phase = Ended;
        note.stoppedLine = 0;
    } else if (state == STATE_IDLING) {
        note.phase = Idle;
    }
    // Its value may come yet, or, where the device stopped, where it went.
    if (isAtEnd ? answer.hasValue()
                : note.phase == Idle && answer.end != Outcome::Unknown && note.stoppedLine == 0)
        close(device);
}

void LogExplainer::close(const LogDevice& device)
{
    Trail& trail = trailOf(device);
    if (!trail.note)
        return;
    count(trail);
    if (trail.note->answer.line > 0 && trail.money->isNoteCounted())
        trail.note->answer.isSeen = true;
    Note& note = *std::exchange(trail.note, nullptr);
    note.isOpen = false;
    NoteAnswer& answer = note.answer;
    if (note.stoppedLine > 0 && !note.piece.isInChannel) {
        answer.end = Outcome::Stuck;
        answer.lastLine = note.stoppedLine;
    }
    if (answer.outcome != Outcome::Refused)
        answer.outcome = answer.end;
    if (answer.isTaken() || (answer.outcome == Outcome::Refused && answer.end != Outcome::Stuck))
        answer.machine.clear();
    if (answer.end != Outcome::Stuck || !device.hasReported(sessionSumBit))
        answer.creditLine.reset();
    else
        answer.creditLine = answer.creditLine.value_or(0);
    if (answer.hasValue() && !answer.isJudged)
        answer.uncertain += Diagnosis::tr("its value came too late to ask the filters about it");
    if (!note.startSeen)
        answer.uncertain += Diagnosis::tr("the log begins in the middle of this session");
    const qint64 skipped = m_player.skippedLines() - note.skippedBefore;
    if (skipped > 0)
        answer.uncertain += Diagnosis::tr("%n lines were skipped in this session", nullptr,
                                          static_cast<int>(qMin<qint64>(skipped, INT_MAX)));
    // Where it was interrupted, it may have been one.
    if (!answer.isNote() && !note.isInterrupted)
        return;
    trail.money->closeNote(answer, pieceOf(note, *trail.money));
}

// Where it is if nothing more is told of it.
PieceEnd LogExplainer::pieceOf(const Note& note, const MoneyTrail& money)
{
    PieceEnd piece = note.piece;
    static_cast<LogPlace&>(piece) = note.answer;
    piece.note = note.answer.note;
    const bool isStuck = note.stoppedLine > 0 && !piece.isInChannel;
    piece.end = isStuck ? Outcome::Stuck : note.answer.end;
    piece.isSure = money.skippedLines() == piece.skippedBefore;
    return piece;
}

void LogExplainer::giveAway()
{
    for (; !m_notes.empty() && !m_notes.front().isOpen; m_notes.pop_front()) {
        if (m_notes.front().answer.isNote())
            m_receiver(m_notes.front().answer);
    }
}
