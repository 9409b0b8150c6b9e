// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "workerstatus.h"

#include "partition.h"
#include "json/jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

WorkerStatus WorkerStatus::read(const QByteArray& json)
{
    const QJsonObject told = QJsonDocument::fromJson(json).object();
    WorkerStatus status;
    status.worker = told.value(QLatin1String("worker")).toString();
    status.part = told.value(QLatin1String("part")).toInt();
    status.parts = told.value(QLatin1String("parts")).toInt();
    if (status.part < 1 || status.part > status.parts || status.parts > Partition::most)
        status.part = status.parts = 0;
    status.isGone = told.value(QLatin1String("gone")).toBool();
    status.kiosks = told.value(QLatin1String("kiosks")).toInt();
    status.isReady = told.value(QLatin1String("ready")).toBool();
    status.since = told.value(QLatin1String("since")).toString();
    status.faults = told.value(QLatin1String("faults")).toVariant().toStringList();
    return status;
}

QByteArray WorkerStatus::json() const
{
    if (isGone)
        return JsonText::object(
            {{"worker", worker}, {"part", part}, {"parts", parts}, {"gone", true}});
    return JsonText::object({{"worker", worker},
                             {"part", part},
                             {"parts", parts},
                             {"kiosks", kiosks},
                             {"changes", changes},
                             {"ready", isReady},
                             {"version", QStringLiteral(VERSION)},
                             {"since", since},
                             {"faults", JsonText::list(faults)}});
}
