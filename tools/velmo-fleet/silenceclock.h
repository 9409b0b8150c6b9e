// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

/// The clock by which kiosks are silent. It stands while nobody could have been heard.
class SilenceClock
{
public:
    using Duration = std::chrono::steady_clock::duration;

    /// Goes on to a moment. It stands also over a pause of more than two seconds between two calls:
    /// then the program itself was stopped.
    /// @param now on the system's clock
    void turn(std::chrono::steady_clock::time_point now, bool isListening)
    {
        constexpr std::chrono::seconds longestTurn{2};
        const Duration passed = now - m_last;
        if (isListening && passed <= longestTurn)
            m_now += passed;
        m_last = now;
    }

    /// Stands for so long from now on.
    void grant(Duration time) { m_now -= time; }

    Duration now() const { return m_now; }

private:
    Duration m_now{0};
    std::chrono::steady_clock::time_point m_last = std::chrono::steady_clock::now();
};
