// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "catalogue.h"

#include "acceptors.h"
#include "text/devicename.h"

Catalogue::Catalogue(QObject* parent)
    : RowModel({"modelId", "modelName", "kind", "className", "type", "canDispense"}, parent)
    , m_language([this] { list(); })
{
    list();
}

void Catalogue::list()
{
    QVector<Row> rows;
    const QList<SupportedDevice> devices = Acceptors::supportedDevices();
    for (const SupportedDevice& device : devices) {
        const int model = device.value(QStringLiteral("id")).toInt();
        rows += Row{QString::number(model),
                    {model, device.value(QStringLiteral("protocol")), kindName(model),
                     device.value(QStringLiteral("class")), device.value(QStringLiteral("type")),
                     Acceptors::canDispense(Acceptors::Supported(model))}};
    }
    setRows(rows);
}

QString Catalogue::deviceName(int model) const
{
    return ::deviceName(model);
}
