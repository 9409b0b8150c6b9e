// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/conditiontimeline.h"

#include "text/devicename.h"
#include "text/diagnosis.h"

#include <algorithm>

namespace {

QString dateOf(const LogTime& time)
{
    return time.iso().left(10);
}

QString textOf(const ConditionSpan::Place& place, bool isDated)
{
    const QString line = Diagnosis::tr("line %1").arg(place.line);
    if (!place.time.isKnown())
        return line;
    const QString date = isDated ? dateOf(place.time) + QLatin1Char(' ') : QString();
    return QStringLiteral("%1%2 (%3)").arg(date, place.time.clock(), line);
}

} // namespace

QStringList ConditionSpan::keys() const
{
    QStringList keys;
    for (size_t i = 0; i < Condition::count; ++i) {
        if ((conditions & 1U << i) != 0)
            keys += QLatin1String(Condition::table[i].key);
    }
    return keys;
}

QString ConditionSpan::text() const
{
    QStringList words;
    for (size_t i = 0; i < Condition::count; ++i) {
        if ((conditions & 1U << i) != 0)
            words += Diagnosis::tr(Condition::table[i].word);
    }
    bool isDated = false;
    for (const Place& place : {to, lastNote})
        isDated = isDated || (place.time.isKnown() && dateOf(place.time) != dateOf(from.time));
    const QString end = to.line > 0 ? textOf(to, isDated) : Diagnosis::tr("the end");
    const bool isCoin = isCoinDevice(int(device));
    const QString before = lastNote.line == 0
        ? (isCoin ? Diagnosis::tr("no coin until then") : Diagnosis::tr("no note until then"))
        : (isCoin ? Diagnosis::tr("last coin %1") : Diagnosis::tr("last note %1"))
              .arg(textOf(lastNote, isDated));
    //: "DEVICE: from 10:05:12 (line 3) to the end: disabled, stacker full; last note ..."
    return Diagnosis::tr("%1: from %2 to %3: %4; %5")
        .arg(deviceName, textOf(from, isDated), end, words.join(QStringLiteral(", ")), before);
}

ConditionTimeline::ConditionTimeline(Receiver receiver)
    : m_receiver(std::move(receiver))
{
}

void ConditionTimeline::take(const std::vector<LogStep>& steps, const LogTime& time,
                             qint64 lineNumber)
{
    for (const LogStep& step : steps) {
        Track& track = m_tracks[step.device];
        track.device = step.device;
        ConditionSpan& span = track.span;
        const quint32 conditions = step.device->conditionBits();
        if (conditions != span.conditions) {
            span.to = {lineNumber, time};
            giveAway(track);
            span.conditions = conditions;
            span.from = std::exchange(span.to, {});
        }
        const DeviceState& event = step.device->state();
        // A session that begins takes the value of what the device has in hand.
        if (!step.sent
            || (step.startsSession && track.state == event.state && event.currentNote == 0))
            continue;
        // Told once more, it is the same.
        const bool isSame = track.state == event.state && track.note == event.currentNote;
        track.state = event.state;
        track.note = event.currentNote;
        if (event.state == STATE_ACCEPTING && event.currentNote > 0 && !isSame)
            span.lastNote = {lineNumber, time};
    }
}

void ConditionTimeline::take(const NoteAnswer& note)
{
    if (note.isJudged)
        return;
    for (auto& [device, track] : m_tracks) {
        if (device->deviceId() == note.device && device->threadId() == note.thread
            && track.span.lastNote.line < note.line)
            track.span.lastNote = {note.line, note.time};
    }
}

void ConditionTimeline::finish()
{
    std::vector<Track*> open;
    for (auto& entry : m_tracks)
        open.push_back(&entry.second);
    std::sort(open.begin(), open.end(), [](const Track* a, const Track* b) {
        return std::make_pair(a->device->deviceId(), a->device->threadId())
            < std::make_pair(b->device->deviceId(), b->device->threadId());
    });
    for (Track* const track : open)
        giveAway(*track);
    m_tracks.clear();
}

void ConditionTimeline::giveAway(Track& track)
{
    if (track.span.conditions == 0)
        return;
    track.span.device = track.device->deviceId();
    track.span.thread = track.device->threadId();
    track.span.deviceName = track.device->name();
    m_receiver(track.span);
}
