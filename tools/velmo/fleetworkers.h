// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "workerstatus.h"

#include <QByteArray>
#include <QMap>
#include <QStringList>

#include <vector>

/// What the workers tell of themselves: how many summaries there must be, and what may be wrong
/// with them.
class FleetWorkers
{
public:
    /// @param status empty for a worker that ended in order
    void take(const QString& topic, const QByteArray& status);

    /// So many summaries there are at the broker, of the parts that have a worker.
    int kiosks() const;

    /// Whether every part has a worker that is ready, and so many summaries are all.
    bool areAll(int summaries) const { return isReady() && summaries >= kiosks(); }

    /// Why what is shown may not be all or not be true, in sentences.
    /// @param topic where the statuses were looked for
    QStringList faults(int summaries, const QString& topic) const;

private:
    // What the workers of one part say together.
    struct Part
    {
        bool isThere = false;
        bool isReady = false;
        int kiosks = 0;
    };

    std::vector<Part> parts() const;
    bool isReady() const;

    QMap<QString, WorkerStatus> m_workers; // by topic; of one that cannot be read the part is 0
};
