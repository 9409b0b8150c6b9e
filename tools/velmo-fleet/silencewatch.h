// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

/// Says how long kiosks have been silent while they could have been heard. Its clock stands while
/// there is no connection, while the program is stopped and while the broker stands still.
///
/// That the broker is alive is seen by a probe: a message that it acknowledges. What it had of
/// kiosks until the probe was sent, it has sent before the acknowledgement.
class SilenceWatch
{
public:
    using Clock = std::chrono::steady_clock;
    using Duration = Clock::duration;

    static constexpr std::chrono::seconds longestTurn{2}; ///< of a program that is not stopped

    /// @param time of silence after which it is told of; 0 for never
    explicit SilenceWatch(std::chrono::seconds time)
        : m_time(time)
    {
    }

    /// Goes on to a moment.
    /// @param isListening whether kiosks could be heard since the last one
    void turn(Clock::time_point now, bool isListening);

    /// There is a connection again: kiosks, too, have to come back.
    void restart();

    Duration now() const { return m_now; }

    /// Whether a kiosk is silent that was heard of at that time.
    bool isSilent(Duration heardOf) const { return isOver(heardOf, m_probed); }

    /// Whether it would be if the broker is alive: then it is to be probed.
    bool mayBeSilent(Duration heardOf) const { return m_probe == 0 && isOver(heardOf, m_now); }

    void sendProbe(int message);
    void acknowledge(int message);

private:
    bool isOver(Duration heardOf, Duration now) const
    {
        return m_time.count() > 0 && now != Duration::min() && heardOf + m_time < now;
    }

    const std::chrono::seconds m_time;
    Duration m_now{0};
    Clock::time_point m_last = Clock::now();
    int m_probe = 0; // 0 for none
    Duration m_probeSent{0};
    Clock::time_point m_probeSentAt;
    Duration m_probed = Duration::min(); // until then all is heard
};
