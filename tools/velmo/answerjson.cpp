// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "answerjson.h"

#include <algorithm>

namespace {

JsonText jsonOf(const QVector<Objection>& objections)
{
    return JsonText::list(objections, [](const Objection& objection) {
        return JsonText::object({{"name", objection.filter},
                                 {"params", JsonText::of(objection.params)},
                                 {"evidence", JsonText::list(objection.evidence)},
                                 {"text", objection.text}});
    });
}

} // namespace

JsonText jsonOf(const LogTime& time)
{
    return time.isKnown() ? JsonText(time.iso()) : JsonText::null();
}

JsonText jsonOf(const Tally& tally)
{
    return JsonText::object({{"count", tally.count}, {"sum", tally.sum}});
}

JsonText jsonOf(const QVector<MachineCondition>& conditions)
{
    return JsonText::list(conditions, [](const MachineCondition& condition) {
        return JsonText::object(
            {{"what", condition.what}, {"line", condition.line}, {"text", condition.text}});
    });
}

JsonText jsonOf(const QString& log, const NoteAnswer& answer)
{
    return JsonText::object({{"kind", QStringLiteral("note")},
                             {"log", log},
                             {"session", answer.session},
                             {"device", qint64(answer.device)},
                             {"thread", qint64(answer.thread)},
                             {"line", answer.line},
                             {"time", jsonOf(answer.time)},
                             {"note", answer.hasValue() ? JsonText(answer.note) : JsonText::null()},
                             {"outcome", outcomeKey(answer.outcome)},
                             {"taken", answer.isTaken()},
                             {"filters", jsonOf(answer.objections)},
                             {"machine", jsonOf(answer.machine)},
                             {"uncertain", JsonText::list(answer.uncertain)},
                             {"text", answer.text()}});
}

JsonText jsonOf(const QStringList& logs, const Contradiction& found)
{
    JsonText text = JsonText::object(
        {{"kind", QStringLiteral("contradiction")},
         {"rule", found.ruleKey()},
         {"log", logs.value(LogPosition::log(found.line))},
         {"session", found.session},
         {"device", qint64(found.device)},
         {"thread", qint64(found.thread)},
         {"lines",
          JsonText::list(found.lines,
                         [](qint64 line) { return JsonText(LogPosition::line(line)); })},
         {"time", jsonOf(found.time)},
         {"text", found.sentence}});
    const auto isOfOther = [&](qint64 line) {
        return LogPosition::log(line) != LogPosition::log(found.line);
    };
    if (std::any_of(found.lines.begin(), found.lines.end(), isOfOther)) {
        const JsonText all = JsonText::list(
            found.lines, [&](qint64 line) { return JsonText(logs.value(LogPosition::log(line))); });
        text.replace(text.size() - 1, 1, ",\"logs\":" + all + '}');
    }
    return text;
}

JsonText jsonOf(const QString& log, const ConditionSpan& span)
{
    const auto lineOf = [](const ConditionSpan::Place& place) {
        return place.line > 0 ? JsonText(place.line) : JsonText::null();
    };
    return JsonText::object({{"kind", QStringLiteral("condition")},
                             {"log", log},
                             {"device", qint64(span.device)},
                             {"thread", qint64(span.thread)},
                             {"from_line", span.from.line},
                             {"to_line", lineOf(span.to)},
                             {"from", jsonOf(span.from.time)},
                             {"to", jsonOf(span.to.time)},
                             {"conditions", JsonText::list(span.keys())},
                             {"last_note_line", lineOf(span.lastNote)},
                             {"last_note", jsonOf(span.lastNote.time)},
                             {"text", span.text()}});
}

JsonText jsonOf(const QString& log, const LogDevice& device, const Summary& summary)
{
    return JsonText::object({{"kind", QStringLiteral("device_totals")},
                             {"log", log},
                             {"device", qint64(device.deviceId())},
                             {"thread", qint64(device.threadId())},
                             {"name", device.name()},
                             {"offered", jsonOf(summary.offered)},
                             {"taken", jsonOf(summary.of(Outcome::Taken))},
                             {"refused", jsonOf(summary.of(Outcome::Refused))},
                             {"stuck", jsonOf(summary.of(Outcome::Stuck))},
                             {"rejected", jsonOf(summary.of(Outcome::Rejected))},
                             {"returned", jsonOf(summary.of(Outcome::Returned))},
                             {"unknown", jsonOf(summary.of(Outcome::Unknown))}});
}

JsonText jsonOf(const QString& log, const Difference& difference)
{
    const NoteAnswer& note = difference.note;
    const auto verdict = [](bool refused) {
        return refused ? QStringLiteral("refuse") : QStringLiteral("accept");
    };
    return JsonText::object({{"kind", QStringLiteral("difference")},
                             {"log", log},
                             {"session", note.session},
                             {"device", qint64(note.device)},
                             {"thread", qint64(note.thread)},
                             {"line", note.line},
                             {"time", jsonOf(note.time)},
                             {"note", note.note},
                             {"a", verdict(difference.refusedByA)},
                             {"b", verdict(!difference.refusedByA)},
                             {"taken", note.isTaken()},
                             {"filters", jsonOf(note.objections)},
                             {"uncertain", JsonText::list(note.uncertain)},
                             {"text", difference.text()}});
}

JsonText jsonOf(const Summary& summary)
{
    QJsonObject by;
    for (auto filter = summary.refusedBy.begin(); filter != summary.refusedBy.end(); ++filter)
        by.insert(filter.key(), filter.value());
    const Tally& refused = summary.of(Outcome::Refused);
    JsonText text =
        JsonText::object({{"kind", QStringLiteral("summary")},
                          {"sessions", summary.sessions},
                          {"offered", jsonOf(summary.offered)},
                          {"taken", jsonOf(summary.of(Outcome::Taken))},
                          {"refused",
                           JsonText::object({{"count", refused.count},
                                             {"sum", refused.sum},
                                             {"by", JsonText::of(by)},
                                             {"taken", jsonOf(summary.takenAlthoughRefused)}})},
                          {"stuck", jsonOf(summary.of(Outcome::Stuck))},
                          {"rejected", jsonOf(summary.of(Outcome::Rejected))},
                          {"returned", jsonOf(summary.of(Outcome::Returned))},
                          {"unknown", jsonOf(summary.of(Outcome::Unknown))},
                          {"contradictions", summary.contradictions}});
    if (summary.isIncomplete)
        text.replace(text.size() - 1, 1, R"(,"incomplete":true})");
    return text;
}
