// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"

#include <QJsonObject>
#include <QString>
#include <QVector>

class AbstractFilter;
class FilterMemory;

/// Why a filter refuses the newest event of a session.
struct Objection
{
    QString filter; ///< name, as the filters file has it
    QJsonObject params;
    /// The lines of the events that counted, in their order. They are enough: the filter would
    /// refuse the note too if all other events before it were idle ones.
    QVector<qint64> evidence;
    QString text; ///< what counted and what clears it
};

/// What the filter of that name is for, in a sentence; empty for an unknown name.
QString filterPurpose(const QString& name);

/// What a filter does with the parameters that it holds, in a sentence.
QString filterRule(const AbstractFilter& filter);

/// Explains a filter that refuses the newest event.
/// @param lines the line of each event in the log
Objection objectionOf(const FilterMemory& filter, const StatesList& events,
                      const QVector<qint64>& lines);

/// "line 3", "lines 3 and 6"; of many lines the first ones and the last one.
QString lineList(const QVector<qint64>& lines);

/// The filter's name as the filters file has it.
QString filterName(const AbstractFilter& filter);

/// The filter's parameters with the values that it holds.
QJsonObject filterParams(const AbstractFilter& filter);
