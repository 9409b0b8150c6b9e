// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/noteanswer.h"

#include <functional>
#include <unordered_map>

/// A part of a log in which the same conditions of a device held, at least one.
struct ConditionSpan
{
    /// A line and its time; line 0 for none.
    struct Place
    {
        qint64 line = 0;
        LogTime time;
    };

    quint32 device = 0;
    quint32 thread = 0;
    QString deviceName;
    quint32 conditions = 0; ///< a bit for each Condition::Kind
    Place from;
    Place to; ///< where they became others; none while they hold where the log ends
    Place lastNote; ///< that was offered to the device before the end of the span

    /// Those of the conditions.
    QStringList keys() const;

    /// "Bill validator (CCNet): from 09:12:03 (line 12) to the end: disabled, stacker full; last
    /// note 09:11:13 (line 10)". With dates where these are of several days.
    QString text() const;
};

/// Follows what is the matter with the devices of a log.
class ConditionTimeline
{
public:
    using Receiver = std::function<void(const ConditionSpan& span)>;

    /// @param receiver is given each span when it ends
    explicit ConditionTimeline(Receiver receiver);

    /// Takes what a line led to.
    void take(const std::vector<LogStep>& steps, const LogTime& time, qint64 lineNumber);

    /// Takes a note that was explained: of those without a value, the steps do not tell.
    void take(const NoteAnswer& note);

    /// Gives away the spans that are open at the end of the log, by device and thread.
    void finish();

private:
    struct Track
    {
        const LogDevice* device = nullptr;
        ConditionSpan span; // the open one; with no conditions none
        State state = STATE_IDLING; // of the last event, and its note
        int note = 0;
    };

    void giveAway(Track& track);

    const Receiver m_receiver;
    std::unordered_map<const LogDevice*, Track> m_tracks;
};
