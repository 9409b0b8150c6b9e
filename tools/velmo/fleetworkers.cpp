// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleetworkers.h"

#include "terminal/velmo.h"

#include <algorithm>

void FleetWorkers::take(const QString& topic, const QByteArray& status)
{
    if (status.isEmpty()) {
        m_workers.remove(topic);
        return;
    }
    WorkerStatus worker = WorkerStatus::read(status);
    if (worker.part == 0)
        worker.worker = topic;
    m_workers.insert(topic, worker);
}

// Where the number of parts is being changed there may be workers of both: the number of which
// every part has a worker, else the largest.
std::vector<FleetWorkers::Part> FleetWorkers::parts() const
{
    QMap<int, std::vector<Part>> byNumber;
    for (const WorkerStatus& worker : m_workers) {
        if (worker.part == 0)
            continue;
        std::vector<Part>& all = byNumber[worker.parts];
        all.resize(size_t(worker.parts));
        Part& part = all[size_t(worker.part) - 1];
        if (worker.isGone)
            continue;
        part.isThere = true;
        part.isReady = part.isReady || worker.isReady;
        part.kiosks = std::max(part.kiosks, worker.kiosks);
    }
    std::vector<Part> best;
    int bestRank = -1;
    for (const std::vector<Part>& all : byNumber) {
        const auto there =
            std::count_if(all.begin(), all.end(), [](const Part& part) { return part.isThere; });
        const int rank = there == qint64(all.size()) ? 2 : there > 0 ? 1 : 0;
        if (rank >= bestRank) {
            bestRank = rank;
            best = all;
        }
    }
    return best;
}

bool FleetWorkers::isReady() const
{
    const std::vector<Part> all = parts();
    return !all.empty()
        && std::all_of(all.begin(), all.end(), [](const Part& part) { return part.isReady; });
}

int FleetWorkers::kiosks() const
{
    int kiosks = 0;
    for (const Part& part : parts())
        kiosks += part.kiosks;
    return kiosks;
}

QStringList FleetWorkers::faults(int summaries, const QString& topic) const
{
    QStringList faults;
    const std::vector<Part> all = parts();
    if (all.empty()) {
        faults +=
            Velmo::tr("No worker tells of itself at \"%1\": whether these are all kiosks, and "
                      "what became of them since, is not known.")
                .arg(topic);
    }
    for (size_t i = 0; i < all.size(); ++i) {
        const QString part = QStringLiteral("%1/%2").arg(i + 1).arg(all.size());
        if (!all[i].isThere) {
            faults += Velmo::tr("No worker has part %1: what is shown of its kiosks may be from "
                                "before.")
                          .arg(part);
        } else if (!all[i].isReady) {
            faults += Velmo::tr("The worker of part %1 is not ready: it still reads what the "
                                "kiosks told last.")
                          .arg(part);
        }
    }
    if (kiosks() > summaries) {
        faults += Velmo::tr("%n kiosks are missing: the broker has not sent their summaries. With "
                            "mosquitto, max_queued_messages sets how many it sends.",
                            nullptr, kiosks() - summaries);
    }
    for (const WorkerStatus& worker : m_workers) {
        if (worker.part == 0)
            faults +=
                Velmo::tr("%1: what the worker tells of itself cannot be read.").arg(worker.worker);
        for (const QString& fault : worker.faults)
            faults += Velmo::tr("Worker %1: %2").arg(worker.worker, fault);
    }
    return faults;
}
