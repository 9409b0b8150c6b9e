// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "history.h"
#include "kioskrecord.h"

class HistoryDatabase;

/// What the levels of the last two weeks say of the days to come.
class LevelReader
{
public:
    LevelReader(HistoryDatabase& database, qint64 now);

    /// Those due first come first, those of which it cannot be said last.
    std::vector<History::Due> due();

private:
    struct Series;
    using DeviceHours = QHash<QString, qint64>;

    void readCapacities();
    void readInserted();
    void add(Series& series);

    HistoryDatabase& m_database;
    const qint64 m_now;
    const qint64 m_begin; // of the two weeks
    QHash<QString, qint64> m_capacities; // of a device's key
    DeviceHours m_inserted; // of a device's key and an hour
    std::vector<History::Due> m_due;
};
