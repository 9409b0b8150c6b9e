// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/sessionline.h"

#include <QStringList>

#include <functional>
#include <optional>

/// A line of the logs of a command.
struct StreamLine
{
    SessionLine line;
    int log = 0; ///< the index of its log
    qint64 number = 0; ///< of the line in that
    QString kiosk; ///< empty before one is named; if that stays the only one, these are of it
    std::optional<qint64> moment; ///< in ms since 1970; never before that of a line before it in
                                  ///< its log, which is that of a line without a time
};

/// The lines of several session logs in the order of their times: those of one moment log by log,
/// the log that begins first before the others. Lines of one log keep their order; those before
/// its first time come right before that one. A line that several logs of a kiosk have at one
/// moment is taken once, or as often as the log has it that has it most often. Where a log has no
/// times, and where each is of a kiosk of its own, they come one after the other as they are given.
///
/// A line is of the kiosk that it names, else of the last one that its log named, else of the only
/// one that any line before it named.
///
/// What stands in a file is never kept in memory. Of several logs, one that cannot be read twice,
/// as a pipe, is up to its first time.
class LogStream
{
public:
    using Take = std::function<void(const StreamLine& line)>;
    using Skip = std::function<void(int log, const QString& kiosk, qint64 line)>;

    /// @param logs files, "-" for standard input, which there may be once
    /// @param perFile each log is of the kiosk that has its name
    /// @param keepGoing bad lines, what cannot be read of a log, and logs that cannot be opened are
    /// skipped; else they are thrown as Fault
    LogStream(const QStringList& logs, bool perFile, bool keepGoing);

    /// Hands over every line, once only. What is skipped is reported on standard error and told to
    /// @p skipped where it stands in the stream: with line 0 before all else for a whole log.
    /// @return the exit code
    int read(const Take& take, const Skip& skipped);

    /// What is to be said of the order after reading: overlaps, clocks that went back, logs without
    /// times.
    QStringList notes() const { return m_notes; }

private:
    const QStringList m_logs;
    const bool m_perFile;
    const bool m_keepGoing;
    QStringList m_notes;
};
