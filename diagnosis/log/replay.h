// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"
#include "log/logplayer.h"

#include <QString>

/// What one line of a session log led to for one device.
struct ReplayStep
{
    const LogDevice* device; ///< valid until the next line
    bool startsSession;
    bool sent; ///< the state differed from the one before and was sent
    /// What the filters say about the note in hand; nothing without a note.
    enum Verdict { NoNote, Accepted, Refused } verdict;
    const AbstractFilter* refusedBy; ///< the first that refuses; null when the note may be accepted
    QString paymentText; ///< on a screen that knows all devices of the log
    bool acceptingAllowed;
};

/// Takes a session log's lines the way that the service and a payment screen would: the worker of a
/// device takes the fields and sends the state if it changed, the chain judges the sent states, and
/// the states of all devices are published and read back by the screen.
class Replay
{
public:
    explicit Replay(const FilterSet& filters)
        : m_player(filters)
    {
    }

    /// One step for each device that the line is about.
    std::vector<ReplayStep> take(const SessionLine& line, qint64 lineNumber);

    /// Tells that a line could not be read.
    void skipLine() { m_player.skipLine(); }

private:
    void publish(const LogDevice& device);

    LogPlayer m_player;
    std::vector<const LogDevice*> m_published; // the devices of the screen's states
    AcceptorState m_screen;
};
