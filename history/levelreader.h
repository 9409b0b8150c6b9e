// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "history.h"
#include "kioskrecord.h"

#include <QMap>

#include <utility>

class HistoryDatabase;

/// What the levels of the last two weeks say of the days to come.
class LevelReader
{
public:
    LevelReader(HistoryDatabase& database, qint64 now);

    /// Those due first come first, those of which it cannot be said last.
    std::vector<History::Due> due();

private:
    struct Device
    {
        QMap<qint64, qint64> inserted; // in an hour
        std::optional<qint64> capacity; // of its cassette
    };

    void readDevices();
    void forecast(History::Due& due, const Device& device,
                  const std::vector<std::pair<qint64, qint64>>& counts) const;

    HistoryDatabase& m_database;
    const qint64 m_now;
    const qint64 m_begin; // of the two weeks
    QHash<QString, Device> m_devices; // by their keys
    std::vector<History::Due> m_due;
};
