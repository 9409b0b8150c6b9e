// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/sessionrecord.h"

#include <algorithm>
#include <optional>

namespace {

// A part of a picture ends before the next note once it has so many moments, or at most so many.
constexpr size_t partMoments = 90;
constexpr size_t mostMoments = 130;

} // namespace

void SessionRecord::add(const LogDevice& device, const LogTime& time, qint64 line)
{
    if (moments.empty() || moments.back().line != line)
        moments.push_back({line, time});
    auto lane = std::find_if(lanes.begin(), lanes.end(), [&](const Lane& known) {
        return known.device == device.deviceId() && known.thread == device.threadId();
    });
    if (lane == lanes.end())
        lane = lanes.insert(lane, {device.deviceId(), device.threadId(), {}, {}});
    lane->name = device.name(); // a thread is named once there is another one
    const DeviceState& state = device.state();
    lane->events.push_back({line, state.state, state.sessionSum, device.conditions()});
}

bool SessionRecord::hasTimes() const
{
    qint64 last = 0;
    for (const Moment& moment : moments) {
        const std::optional<qint64> time = moment.time.wallClock();
        if (!time || (&moment != &moments.front() && *time < last))
            return false;
        last = *time;
    }
    return !moments.empty();
}

std::vector<size_t> SessionRecord::parts() const
{
    std::vector<size_t> begins{0};
    auto note = answers.begin();
    for (size_t i = 0; i < moments.size(); ++i) {
        const qint64 line = moments.at(i).line;
        while (note != answers.end() && note->line < line)
            ++note;
        const bool isNote = note != answers.end() && note->line == line;
        const size_t length = i - begins.back();
        if (length >= mostMoments || (isNote && length >= partMoments))
            begins.push_back(i);
    }
    if (moments.size() > begins.back())
        begins.push_back(moments.size());
    return begins;
}

QString anchorName(Anchor kind, const SessionRecord& session, qint64 line, quint32 device,
                   quint32 thread, const QString& what)
{
    static constexpr char letters[] = {'m', 'n', 'e', 'c', 'w', 'r'};
    const QString name = QStringLiteral("%1%2-%3-%4.%5")
                             .arg(QLatin1Char(letters[int(kind)]))
                             .arg(session.log)
                             .arg(line)
                             .arg(device)
                             .arg(thread);
    // A condition outlives sessions, its place does not. Of one line several things may be wrong.
    return !what.isEmpty() ? QStringLiteral("%1-%2-%3").arg(name, what).arg(session.number) : name;
}
