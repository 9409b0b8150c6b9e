// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "explanation.h"

#include "words.h"

#include <climits>

namespace {

constexpr quint32 firstCoinDevice = 100;
constexpr quint32 lastCoinDevice = 199;

struct OutcomeWords
{
    const char* key;
    const char* ofNote; // %1 is the face value
    const char* ofCoin;
};

const OutcomeWords& wordsOf(Outcome outcome)
{
    static const OutcomeWords table[outcomeCount] = {
        {"refused", QT_TRANSLATE_NOOP("Diagnosis", "note of %1 refused."),
         QT_TRANSLATE_NOOP("Diagnosis", "coin of %1 refused.")},
        {"taken", QT_TRANSLATE_NOOP("Diagnosis", "note of %1 taken."),
         QT_TRANSLATE_NOOP("Diagnosis", "coin of %1 taken.")},
        {"rejected", QT_TRANSLATE_NOOP("Diagnosis", "note of %1 rejected."),
         QT_TRANSLATE_NOOP("Diagnosis", "coin of %1 rejected.")},
        {"returned", QT_TRANSLATE_NOOP("Diagnosis", "note of %1 returned."),
         QT_TRANSLATE_NOOP("Diagnosis", "coin of %1 returned.")},
        {"unknown",
         QT_TRANSLATE_NOOP("Diagnosis", "note of %1: the log does not say what became of it."),
         QT_TRANSLATE_NOOP("Diagnosis", "coin of %1: the log does not say what became of it.")},
    };
    return table[int(outcome)];
}

bool isCoin(const NoteAnswer& answer)
{
    return answer.device >= firstCoinDevice && answer.device <= lastCoinDevice;
}

bool isOffer(const DeviceState& event)
{
    return event.state == STATE_ACCEPTING && event.currentNote > 0;
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
    return (isCoin(*this) ? Diagnosis::tr("coin of %1") : Diagnosis::tr("note of %1")).arg(note);
}

QString NoteAnswer::headline() const
{
    const OutcomeWords& words = wordsOf(outcome);
    QString what = Diagnosis::tr(isCoin(*this) ? words.ofCoin : words.ofNote).arg(note);
    if (!wasOffered()) {
        what = isCoin(*this) ? Diagnosis::tr("coin of unknown value rejected.")
                             : Diagnosis::tr("note of unknown value rejected.");
    }
    return QStringLiteral("%1: %2").arg(place(), what);
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
    if (outcome == Outcome::Refused && taken)
        sentences += Diagnosis::tr("It was taken although refused (line %1).").arg(lastLine);
    for (const MachineCondition& condition : machine)
        sentences += condition.text;
    if (machine.isEmpty() && (outcome == Outcome::Rejected || outcome == Outcome::Returned))
        sentences += Diagnosis::tr("By the device itself; no filter objected.");
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
    if (answer.wasOffered())
        offered.add(answer.note);
    outcomes.at(size_t(answer.outcome)).add(answer.note);
    if (answer.outcome != Outcome::Refused)
        return;
    if (answer.taken)
        takenAlthoughRefused.add(answer.note);
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
                    {Diagnosis::tr("Taken"), of(Outcome::Taken)},
                    {Diagnosis::tr("Refused by the filters"), of(Outcome::Refused)}};
    for (auto filter = refusedBy.begin(); filter != refusedBy.end(); ++filter)
        rows += {filter.key(), {filter.value(), 0}, false, true};
    if (takenAlthoughRefused.count > 0)
        rows += {Diagnosis::tr("taken although refused"), takenAlthoughRefused, true, true};
    return rows
        + QList<Row>{{Diagnosis::tr("Rejected by the device"), of(Outcome::Rejected)},
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
        if (step.startsSession)
            close(*step.device);
        if (step.sent)
            takeEvent(*step.device, line, lineNumber);
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

void LogExplainer::takeEvent(const LogDevice& device, const SessionLine& line, qint64 lineNumber)
{
    const StatesList& events = device.events();
    const DeviceState& event = events.constLast();
    const DeviceState* const before = events.size() > 1 ? &events.at(events.size() - 2) : nullptr;
    const auto wasSame = [&] {
        return before && isOffer(*before) && before->currentNote == event.currentNote;
    };
    if (isOffer(event) && !wasSame()) {
        close(device);
        Note& note = addNote(device, line, lineNumber);
        note.answer.note = event.currentNote;
        if (device.verdict() == AbstractFilter::FILTER_ACCEPT)
            return;
        note.answer.outcome = Outcome::Refused;
        const QList<const AbstractFilter*> refusing = device.refusing();
        for (const AbstractFilter* const filter : refusing)
            note.answer.objections += objectionOf(*filter, events, device.eventLines());
        return;
    }
    const auto open = m_open.find(&device);
    if (open != m_open.end())
        return follow(device, *open->second, lineNumber);
    if (event.state == STATE_REJECTED && !(before && before->state == STATE_REJECTED))
        follow(device, addNote(device, line, lineNumber), lineNumber);
}

LogExplainer::Note& LogExplainer::addNote(const LogDevice& device, const SessionLine& line,
                                          qint64 lineNumber)
{
    Note& note = m_notes.emplace_back();
    note.answer.session = device.session();
    note.answer.device = device.deviceId();
    note.answer.thread = device.threadId();
    note.answer.deviceName = device.name();
    note.answer.line = lineNumber;
    note.answer.time = line.time();
    note.startSeen = device.sessionStartSeen();
    note.skippedBefore = device.skippedBefore();
    m_open[&device] = &note;
    return note;
}

// Takes what an event says about the note that is in the device.
void LogExplainer::follow(const LogDevice& device, Note& note, qint64 lineNumber)
{
    const State state = device.state().state;
    const Outcome before = note.followedBy;
    if (state == STATE_ACCEPTED || state == STATE_STACKING || state == STATE_STACKED)
        note.followedBy = Outcome::Taken;
    else if (state == STATE_REJECTED)
        note.followedBy = Outcome::Rejected;
    else if (state == STATE_RETURNED)
        note.followedBy = Outcome::Returned;
    if (note.followedBy != before)
        note.answer.lastLine = lineNumber;
    const bool cameBack = state == STATE_REJECTED || state == STATE_RETURNED;
    const QVector<MachineCondition> conditions = device.conditions();
    if (cameBack || !conditions.isEmpty())
        note.answer.machine = conditions;
    // Out of the escrow a note may still come back.
    const bool cameToRest = state == STATE_IDLING && note.followedBy != Outcome::Unknown;
    if (cameBack || state == STATE_STACKED || cameToRest)
        close(device);
}

void LogExplainer::close(const LogDevice& device)
{
    const auto open = m_open.find(&device);
    if (open == m_open.end())
        return;
    Note& note = *open->second;
    m_open.erase(open);
    note.isOpen = false;
    NoteAnswer& answer = note.answer;
    answer.taken = note.followedBy == Outcome::Taken;
    if (answer.outcome != Outcome::Refused)
        answer.outcome = note.followedBy;
    if (answer.outcome == Outcome::Refused || answer.taken)
        answer.machine.clear();
    if (!note.startSeen)
        answer.uncertain += Diagnosis::tr("the log begins in the middle of this session");
    const qint64 skipped = m_player.skippedLines() - note.skippedBefore;
    if (skipped > 0)
        answer.uncertain += Diagnosis::tr("%n lines were skipped in this session", nullptr,
                                          static_cast<int>(qMin<qint64>(skipped, INT_MAX)));
}

void LogExplainer::giveAway()
{
    for (; !m_notes.empty() && !m_notes.front().isOpen; m_notes.pop_front())
        m_receiver(m_notes.front().answer);
}
