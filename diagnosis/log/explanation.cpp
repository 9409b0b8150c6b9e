// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/explanation.h"

#include "text/devicename.h"
#include "text/diagnosis.h"

#include <algorithm>
#include <climits>
#include <utility>

namespace {

struct OutcomeWords
{
    const char* key;
    const char* sentence; // %1 is the note
};

const OutcomeWords& wordsOf(Outcome outcome)
{
    static const OutcomeWords table[outcomeCount] = {
        {"refused", QT_TRANSLATE_NOOP("Diagnosis", "%1 refused.")},
        {"taken", QT_TRANSLATE_NOOP("Diagnosis", "%1 taken.")},
        {"stuck",
         QT_TRANSLATE_NOOP("Diagnosis", "%1 stuck in the device, neither taken nor returned.")},
        {"rejected", QT_TRANSLATE_NOOP("Diagnosis", "%1 rejected.")},
        {"returned", QT_TRANSLATE_NOOP("Diagnosis", "%1 returned.")},
        {"unknown", QT_TRANSLATE_NOOP("Diagnosis", "%1: the log does not say what became of it.")},
    };
    return table[int(outcome)];
}

bool isCoin(const NoteAnswer& answer)
{
    return moneyOf(int(answer.device)) == Money::Coin;
}

bool isOffer(const DeviceState& event)
{
    return event.state == STATE_ACCEPTING && event.currentNote > 0;
}

quint32 noteBit()
{
    static const quint32 bit = DeviceReport::bit(deviceStateDescConst::CURRENT_NOTE);
    return bit;
}

quint32 sumBit()
{
    static const quint32 bit = DeviceReport::bit(deviceStateDescConst::SESSION_SUM);
    return bit;
}

// Adds those that are new, and tells of the others what is known of them last.
void addConditions(QVector<MachineCondition>& known, const QVector<MachineCondition>& now)
{
    for (const MachineCondition& condition : now) {
        const auto same = std::find_if(known.begin(), known.end(), [&](const MachineCondition& k) {
            return k.line == condition.line && k.what == condition.what;
        });
        if (same == known.end())
            known += condition;
        else
            *same = condition;
    }
}

} // namespace

QString outcomeKey(Outcome outcome)
{
    return QLatin1String(wordsOf(outcome).key);
}

QString NoteAnswer::place() const
{
    QStringList place{Diagnosis::tr("Session %1").arg(session), Diagnosis::tr("line %1").arg(line)};
    if (time.isKnown())
        place += time.clock();
    place += deviceName;
    return place.join(QStringLiteral(", "));
}

QString NoteAnswer::what() const
{
    if (!hasValue())
        return isCoin(*this) ? Diagnosis::tr("coin of unknown value")
                             : Diagnosis::tr("note of unknown value");
    return (isCoin(*this) ? Diagnosis::tr("coin of %1") : Diagnosis::tr("note of %1")).arg(note);
}

QString NoteAnswer::headline() const
{
    return QStringLiteral("%1: %2").arg(place(),
                                        Diagnosis::tr(wordsOf(outcome).sentence).arg(what()));
}

QStringList NoteAnswer::doubts() const
{
    QStringList sentences;
    for (const QString& doubt : uncertain)
        sentences += Diagnosis::tr("Uncertain: %1.").arg(doubt);
    return sentences;
}

QStringList NoteAnswer::details() const
{
    QStringList sentences;
    for (const Objection& objection : objections)
        sentences += objection.text;
    if (outcome == Outcome::Refused && isTaken())
        sentences += Diagnosis::tr("It was taken although refused (line %1).").arg(lastLine);
    if (end == Outcome::Stuck) {
        sentences +=
            (outcome == Outcome::Refused
                 ? Diagnosis::tr("It got stuck in the device (line %1).")
                 : Diagnosis::tr("It was last seen on its way through the device (line %1)."))
                .arg(lastLine);
    }
    if (creditLine && *creditLine > 0)
        sentences += Diagnosis::tr("It was credited all the same (line %1).").arg(*creditLine);
    else if (creditLine)
        sentences += Diagnosis::tr("It was not credited.");
    for (const MachineCondition& condition : machine)
        sentences += condition.text;
    if (machine.isEmpty() && (outcome == Outcome::Rejected || outcome == Outcome::Returned)) {
        sentences += isJudged ? Diagnosis::tr("By the device itself; no filter objected.")
                              : Diagnosis::tr("By the device itself.");
    }
    return sentences + doubts();
}

QString NoteAnswer::text() const
{
    return (QStringList(headline()) + details()).join(QLatin1Char(' '));
}

void Tally::add(int note)
{
    ++count;
    sum += note;
}

void Tally::add(const Tally& other)
{
    count += other.count;
    sum += other.sum;
}

void Summary::add(const NoteAnswer& answer)
{
    if (answer.hasValue())
        offered.add(answer.note);
    outcomes.at(size_t(answer.outcome)).add(answer.note);
    if (answer.outcome != Outcome::Refused)
        return;
    if (answer.isTaken())
        takenAlthoughRefused.add(answer.note);
    if (answer.isTaken() || answer.end == Outcome::Stuck)
        outcomes.at(size_t(answer.end)).add(answer.note);
    QStringList names;
    for (const Objection& objection : answer.objections) {
        if (!names.contains(objection.filter))
            ++refusedBy[objection.filter];
        names += objection.filter;
    }
}

QList<Summary::Row> Summary::rows() const
{
    QList<Row> rows{{Diagnosis::tr("Offered"), offered},
                    {Diagnosis::tr("Taken"), of(Outcome::Taken)}};
    if (takenAlthoughRefused.count > 0)
        rows += {Diagnosis::tr("taken although refused"), takenAlthoughRefused, true, true};
    rows += {Diagnosis::tr("Refused by the filters"), of(Outcome::Refused)};
    for (auto filter = refusedBy.begin(); filter != refusedBy.end(); ++filter)
        rows += {filter.key(), {filter.value(), 0}, false, true};
    return rows
        + QList<Row>{{Diagnosis::tr("Stuck in the device"), of(Outcome::Stuck)},
                     {Diagnosis::tr("Rejected by the device"), of(Outcome::Rejected)},
                     {Diagnosis::tr("Returned"), of(Outcome::Returned)},
                     {Diagnosis::tr("Unknown"), of(Outcome::Unknown)}};
}

LogExplainer::LogExplainer(const FilterSet& filters, Receiver receiver)
    : m_player(filters)
    , m_receiver(std::move(receiver))
{
}

void LogExplainer::take(const SessionLine& line, qint64 lineNumber)
{
    for (const LogStep& step : m_player.take(line, lineNumber)) {
        // A note that the device has in hand goes on into the next session.
        const auto closeAtStart = [&] {
            const Note* const note = m_trails[step.device].note;
            if (step.startsSession && note && !note->isInHand)
                close(*step.device);
        };
        closeAtStart();
        if (step.sent)
            takeEvent(step, line, lineNumber);
        else if (Note* const note = m_trails[step.device].note)
            watch(*step.device, *note, lineNumber); // a first report may tell of what is no event
        closeAtStart();
    }
    giveAway();
}

void LogExplainer::finish()
{
    for (const auto& device : m_player.devices())
        close(*device);
    giveAway();
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
    const DeviceState* const before = events.size() > 1 ? &events.at(events.size() - 2) : nullptr;
    Trail& trail = m_trails[&device];
    // A session does not make news of how the device stands.
    const bool isNewState = trail.state != event.state;
    // What is published repeats the value of a note that is long gone.
    const bool isNewValue = event.currentNote > 0
        && (event.currentNote != trail.value
            || (!line.isPublished() && (step.reported & noteBit()) != 0));
    trail.state = event.state;
    trail.value = event.currentNote;

    const bool isSameOffer = before && isOffer(*before) && before->currentNote == event.currentNote;
    if (isOffer(event) && !isSameOffer) {
        addNote(device, line, lineNumber);
        return judge(device, *trail.note);
    }
    // Which has gone on from accepting, or is gone.
    const bool isLastDone =
        !trail.note || !trail.note->isInHand || trail.note->answer.end != Outcome::Unknown;
    const bool isNext =
        event.state == STATE_ACCEPTING ? isLastDone : event.state == STATE_REJECTED && !trail.note;
    if (isNewState && isNext)
        addNote(device, line, lineNumber);
    if (!trail.note)
        return;
    NoteAnswer& answer = trail.note->answer;
    if (!answer.hasValue() && isNewValue && event.state != STATE_IDLING)
        answer.note = event.currentNote;
    follow(device, *trail.note, isNewState, lineNumber);
}

void LogExplainer::addNote(const LogDevice& device, const SessionLine& line, qint64 lineNumber)
{
    close(device);
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
    m_trails[&device].note = &note;
}

// Asks the filters about a note that is offered.
void LogExplainer::judge(const LogDevice& device, Note& note)
{
    note.answer.note = device.state().currentNote;
    note.answer.machine = device.conditions();
    note.answer.isJudged = true;
    const QVector<const FilterMemory*> refusing = device.refusing();
    if (!refusing.isEmpty())
        note.answer.outcome = Outcome::Refused;
    for (const FilterMemory* const filter : refusing)
        note.answer.objections += objectionOf(*filter, device.events(), device.eventLines());
}

// Sees what is the matter with a device while it has a note in hand.
void LogExplainer::watch(const LogDevice& device, Note& note, qint64 lineNumber)
{
    if (!note.isInHand)
        return;
    addConditions(note.answer.machine, device.conditions());
    if (note.stoppedLine == 0 && device.hasStoppedSince(note.answer.line))
        note.stoppedLine = lineNumber;
}

// Takes what an event says about the note that is in the device.
void LogExplainer::follow(const LogDevice& device, Note& note, bool isNewState, qint64 lineNumber)
{
    NoteAnswer& answer = note.answer;
    const State state = device.state().state;
    const Outcome before = answer.end;
    if (state == STATE_ACCEPTED || state == STATE_STACKING || state == STATE_STACKED)
        answer.end = Outcome::Taken;
    else if (state == STATE_REJECTED)
        answer.end = Outcome::Rejected;
    else if (state == STATE_RETURNED)
        answer.end = Outcome::Returned;
    if (answer.end != before)
        answer.lastLine = lineNumber;
    if (device.state().sessionSum > note.sumBefore && answer.creditLine.value_or(0) == 0)
        answer.creditLine = lineNumber;

    const bool isAtEnd =
        state == STATE_REJECTED || state == STATE_RETURNED || state == STATE_STACKED;
    watch(device, note, lineNumber);
    const bool goesOn = isNewState && (state == STATE_ACCEPTED || state == STATE_STACKING)
        && !device.hasStoppedSince(answer.line);
    if (isAtEnd || goesOn)
        note.stoppedLine = 0;
    note.isInHand = note.isInHand && state != STATE_IDLING;
    // Out of the escrow a note may still come back.
    const bool cameToRest =
        !note.isInHand && (answer.end != Outcome::Unknown || note.stoppedLine > 0);
    if (isAtEnd || cameToRest)
        close(device);
}

void LogExplainer::close(const LogDevice& device)
{
    Trail& trail = m_trails[&device];
    if (!trail.note)
        return;
    Note& note = *std::exchange(trail.note, nullptr);
    note.isOpen = false;
    NoteAnswer& answer = note.answer;
    if (note.stoppedLine > 0) {
        answer.end = Outcome::Stuck;
        answer.lastLine = note.stoppedLine;
    }
    if (answer.outcome != Outcome::Refused)
        answer.outcome = answer.end;
    if (answer.isTaken() || (answer.outcome == Outcome::Refused && answer.end != Outcome::Stuck))
        answer.machine.clear();
    if (answer.end != Outcome::Stuck || !device.hasReported(sumBit()))
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
}

void LogExplainer::giveAway()
{
    for (; !m_notes.empty() && !m_notes.front().isOpen; m_notes.pop_front()) {
        // Accepting alone does not tell of a note.
        const NoteAnswer& answer = m_notes.front().answer;
        if (answer.hasValue() || answer.end != Outcome::Unknown)
            m_receiver(answer);
    }
}
