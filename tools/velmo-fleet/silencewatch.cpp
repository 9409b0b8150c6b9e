// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "silencewatch.h"

#include <algorithm>

using std::chrono::seconds;

namespace {

// Of a broker that does not stand still. One that is always slow says who is silent, too: within a
// quarter of the time, what is left of it is long enough for a kiosk to be heard.
constexpr seconds shortestPatience{1};
constexpr seconds longestPatience{30};

constexpr seconds longestGrace{60}; // for kiosks to come back

} // namespace

void SilenceWatch::turn(Clock::time_point now, bool isListening)
{
    const Duration passed = now - m_last;
    if (isListening && passed <= longestTurn)
        m_now += passed;
    if (!isListening)
        m_probe = 0; // its number may be that of another message on the next connection
    m_last = now;
}

void SilenceWatch::restart()
{
    m_now -= std::min(m_time, longestGrace);
    m_probe = 0;
    m_probed = Duration::min();
}

void SilenceWatch::sendProbe(int message)
{
    m_probe = message;
    m_probeSent = m_now;
    m_probeSentAt = m_last;
}

void SilenceWatch::acknowledge(int message)
{
    if (m_probe == 0 || message != m_probe)
        return;
    m_probe = 0;
    const Duration passed = m_last - m_probeSentAt;
    if (passed < std::clamp<Duration>(m_time / 4, shortestPatience, longestPatience)) {
        m_probed = m_probeSent;
    } else {
        m_now -= passed;
        restart();
    }
}
