// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "input.h"
#include "log/sessionline.h"

#include <deque>
#include <limits>
#include <optional>
#include <set>

/// What stands at a place of a log.
struct StreamEntry
{
    std::optional<SessionLine> line; ///< none where it is skipped
    QString fault; ///< why it is
    QByteArray text;
    qint64 number = 0;
    std::optional<qint64> moment;
};

/// One of the logs of a stream, read as far as its entry.
class StreamLog
{
public:
    StreamLog(const QString& fileName, bool keepGoing)
        : m_fileName(fileName)
        , m_keepGoing(keepGoing)
    {
        open();
    }

    /// Looks for the first time, which the lines before it need. False if there are lines and none
    /// has one.
    bool findBegin();

    bool next();

    bool hasMore() const { return m_hasMore; }

    /// Whether no line was before the entry, and what the last one says.
    bool isFirst() const { return m_isFirst; }
    const QByteArray& lastText() const { return m_lastText; }

    const TextInput& file() const { return *m_file; }
    StreamEntry& entry() { return m_entry; }
    const StreamEntry& entry() const { return m_entry; }

    /// Where the entry stands among those of other logs.
    qint64 moment() const { return m_last.value_or(begin()); }
    qint64 begin() const { return m_begin.value_or(std::numeric_limits<qint64>::min()); }

    const QString& clockNote() const { return m_clockNote; }

    /// How the times of this log and another one overlap; empty if they do not.
    QString overlap(const StreamLog& other, qint64 commonLines) const;

    QString namedKiosk; ///< by the last line that names one
    std::set<QString> kiosks; ///< that its lines are of
    bool isCopied = false; ///< the line before the entry
    bool isDoubted = false; ///< whether its beginning is a copy

private:
    void open();

    bool read();

    void passTime(const LogTime& time);

    const QString m_fileName;
    const bool m_keepGoing;
    std::optional<TextInput> m_file;
    bool m_isAtEnd = false;
    bool m_hasMore = true;
    bool m_isFirst = true;
    QByteArray m_lastText;
    StreamEntry m_entry;
    std::deque<StreamEntry> m_ahead; // read already, before the entry
    std::optional<qint64> m_begin; // where it was looked for
    std::optional<qint64> m_last;
    LogTime m_beginTime;
    LogTime m_lastTime;
    QString m_clockNote;
};
