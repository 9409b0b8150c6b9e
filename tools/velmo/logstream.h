// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/sessionline.h"

#include <QStringList>

#include <functional>
#include <optional>
#include <set>

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

/// Where the lines may not be all that was written.
struct StreamGap
{
    int log = 0;
    qint64 number = 0; ///< of the line; 0, before all else, where a whole log is missing
    std::set<QString> kiosks; ///< that it may be of; any when empty
    std::optional<qint64> moment;
};

/// The lines of several session logs in the order of their times: those of one moment log by log,
/// the log that begins first before the others. Lines of one log keep their order; those before
/// its first time come right before that one. A line that several logs of a kiosk have at one
/// moment is taken once, or as often as the log has it that has it most often; one that does not
/// name its device only where its log begins or right behind such a line, as logs of other devices
/// may say the same. Where a log has no times, and where each is of a kiosk of its own, they come
/// one after the other as they are given.
///
/// Where a log begins with lines of the very second in which another one ends, such a line may be a
/// copy or have happened twice: it is taken once, and a gap.
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
    using Doubt = std::function<void(const StreamGap& gap)>;

    /// @param logs files, "-" for standard input, which there may be once
    /// @param perFile each log is of the kiosk that has its name
    /// @param keepGoing bad lines, what cannot be read of a log, and logs that cannot be opened are
    /// skipped; else they are thrown as Fault
    LogStream(const QStringList& logs, bool perFile, bool keepGoing);

    /// Hands over every line, once only. What is skipped is reported on standard error and told to
    /// @p doubt where it stands in the stream, as are other gaps.
    /// @return the exit code
    int read(const Take& take, const Doubt& doubt);

    /// What is to be said of the order after reading: overlaps, clocks that went back, logs without
    /// times.
    QStringList notes() const { return m_notes; }

private:
    const QStringList m_logs;
    const bool m_perFile;
    const bool m_keepGoing;
    QStringList m_notes;
};
