// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/conditiontimeline.h"
#include "question.h"

#include <QList>

#include <deque>
#include <map>
#include <unordered_set>

/// What is told of the devices of logs beside their notes, as far as it is asked for: their totals,
/// and the spans in which something was the matter with them. In JSON each span is told when it
/// ends, in text the last ones of each device at the end.
class Overview
{
public:
    /// @param question outlives this
    Overview(const Question& question, bool isJson, bool hasSeveralLogs);

    /// @param name for people
    void beginLog(const QString& log, const QString& name);

    /// Takes what a line led to.
    void follow(const LogPlayer& player, const LogTime& time, qint64 lineNumber);

    /// Takes a note of the log.
    /// @param isAsked whether it counts
    void add(const NoteAnswer& answer, bool isAsked);

    /// After the last note, unless nothing is told of the log.
    void endLog();

    /// The JSON objects that were not taken yet, a line each.
    QByteArray takeJson() { return std::exchange(m_json, {}); }

    /// What stands below the totals of all logs; perhaps nothing.
    QString text() const;

private:
    using DeviceAndThread = std::pair<quint32, quint32>;

    struct LastSpans
    {
        QString device;
        std::deque<QString> texts;
        int before = 0;
    };

    void take(const ConditionSpan& span);
    bool isAsked(const ConditionSpan& span) const;
    void addRow(const QString& device, const Summary& summary);

    const Question& m_question;
    const bool m_isJson;
    const bool m_hasSeveralLogs;
    QByteArray m_json;
    QList<QStringList> m_rows; // of the table of totals
    QString m_spans; // of the logs before this one, in words

    // Of the log that is read:
    QString m_log;
    QString m_name;
    std::optional<ConditionTimeline> m_timeline;
    std::unordered_set<const LogDevice*> m_asked; // devices
    const LogDevice* m_askedLast = nullptr; // of them, the one of the last line
    std::map<DeviceAndThread, Summary> m_totals;
    Summary m_logTotals;
    std::map<DeviceAndThread, LastSpans> m_lastSpans;
    qint64 m_askedLine = 0; // the last one of the session that is asked for
    std::optional<qint64> m_end; // the time of the last line, where times select
};
