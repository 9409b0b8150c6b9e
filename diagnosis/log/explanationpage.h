// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/sessionpicture.h"

#include <QIODevice>
#include <QStringList>

#include <map>
#include <set>

/// Makes a page to look at of explained logs: HTML in one file that needs no other, and no script.
/// It holds a session until that ends; the finished ones wait in a device of the caller's, since
/// the totals stand before them. Throws Fault when a device cannot be written or read.
class ExplanationPage
{
public:
    struct Subject
    {
        QString filtersFile;
        QStringList rules; ///< of the filters in force, a sentence each
        QStringList warnings; ///< what may make every answer wrong
        std::optional<int> sumLimit;
    };

    /// @param sections is open for reading and writing, empty, and outlives the page
    ExplanationPage(Subject subject, QIODevice& sections);

    void beginLog(const QString& name);

    /// Shows a device as it is after the line.
    void add(const LogDevice& device, const LogTime& time, qint64 line);

    void add(const NoteAnswer& answer);
    void add(const Contradiction& found);

    /// Tells what may make answers wrong.
    void addDoubt(const QString& doubt) { m_doubts += doubt; }

    /// Writes down the sessions before a number, of which nothing follows. Notes that are not told
    /// have marks as far as they are evidence.
    /// @param only the numbers of those that are written; null for all
    void finishSessions(int before, Told told, const std::set<int>* only);

    /// @param skipped lines that could not be read
    void endLog(qint64 skipped, Told told, const std::set<int>* only);

    /// Writes the page.
    void write(QIODevice& page, const Summary& summary);

private:
    SessionRecord& session(int number);
    void writeSession(const SessionRecord& session);
    QString warnings() const;

    const Subject m_subject;
    QIODevice& m_sections;
    QStringList m_logs;
    std::map<int, SessionRecord> m_open; // sessions of the log that is read, by number
    int m_finished = 0; // sessions before this number
    int m_written = 0; // parts of sessions
    QStringList m_doubts; // about logs
};
