// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "loglimit.h"

#include "terminal/output.h"
#include "terminal/velmo.h"

#include <QLoggingCategory>

namespace {

Q_LOGGING_CATEGORY(fleetLog, "velmo.fleet")

constexpr std::chrono::minutes pause{1};
constexpr int longestText = 300;

} // namespace

void LogLimit::warn(const QString& reason, const QString& text, Clock::time_point now)
{
    Lines& lines = m_lines[reason];
    if (now < lines.next) {
        ++lines.passedOver;
        return;
    }
    QString line = printable(text.left(longestText));
    if (lines.passedOver > 0)
        line += Velmo::tr(" (and %n more since the last such line)", nullptr, lines.passedOver);
    qCWarning(fleetLog, "%s", qUtf8Printable(line));
    lines = {now + pause, 0};
}
