// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

#include <deque>

class AbstractFilter;

/// What a filter has counted of a session.
struct FilterCount
{
    int denomination; ///< that the filter is about, if it is about one
    int total = 0; ///< so many events count
    std::deque<qint64> lines = {}; ///< those of the newest that count, oldest first
    qint64 since = 0; ///< the line of the event since which it counts
    qint64 first = 0; ///< that of the event with which the session began
    qint64 newest = 0; ///< that of the newest event

    bool newestCounts() const { return !lines.empty() && lines.back() == newest; }
};

/// A session whose newest event a filter refuses.
struct RefusedSession
{
    const AbstractFilter& filter;
    const FilterCount& count;
    int limit; ///< so many counted events make it refuse
    const DeviceState& newest;
};

/// Why a filter refuses.
struct Finding
{
    QVector<qint64> lines; ///< of the events that are enough for it to refuse, oldest first
    QString text;
};

/// What is known of a filter besides what it says of itself: one row of a table.
struct FilterWords
{
    const char* const& filter; ///< name, as the filters file has it; null for one that has no row
    const char* purpose; ///< in a sentence; null likewise
    QString (*rule)(const AbstractFilter& filter);
    const char* limit; ///< the parameter that limits how many events count; null without one
    /// Takes in an event that is not the first, which no filter looks at; null when it is not known
    /// which events a filter looks at.
    void (*count)(FilterCount& count, const DeviceState& before, const DeviceState& event,
                  qint64 line);
    Finding (*find)(const RefusedSession& session);
    /// Said to the customer; %1 is the face value, %2 the parameter below.
    const char* noteRefused;
    const char* coinRefused;
    const char* refusalParameter;
};

/// The row of the filter of that name; where there is none, one that leaves the words to the
/// filter.
const FilterWords& filterWords(const QString& name);

/// What the filter of that name is for, in a sentence; empty for an unknown name.
QString filterPurpose(const QString& name);

/// What a filter does with the parameters that it holds, in a sentence.
QString filterRule(const AbstractFilter& filter);

/// "line 3", "lines 3 and 6"; of many lines the first ones and the last one.
QString lineList(const QVector<qint64>& lines);

/// The filter's name as the filters file has it.
QString filterName(const AbstractFilter& filter);

/// The filter's parameters with the values that it holds.
QJsonObject filterParams(const AbstractFilter& filter);
