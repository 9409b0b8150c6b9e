// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QString>

#include <chrono>

/// Warns once a minute for each reason, and tells then how many warnings it stands for.
class LogLimit
{
public:
    using Clock = std::chrono::steady_clock;

    /// @param reason one of few
    /// @param text with texts from outside in it, of which nothing reaches a terminal as a command
    void warn(const QString& reason, const QString& text, Clock::time_point now = Clock::now());

private:
    struct Lines
    {
        Clock::time_point next;
        int passedOver = 0;
    };

    QHash<QString, Lines> m_lines;
};
