// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "acceptors.h"
#include "filterfactory.h"
#include "terminal/table.h"
#include "text/devicename.h"
#include "text/filterwords.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

void printJson(const QJsonArray& array)
{
    print(QString::fromUtf8(QJsonDocument(array).toJson()));
}

QJsonObject filterObject(const QString& name)
{
    QJsonArray params;
    const QList<FieldDescription> fields = FilterFactory::getFieldsDesc(name);
    for (const FieldDescription& field : fields)
        params.append(QJsonObject::fromVariantMap(field.toMap()));
    const QString description = FilterFactory::getFilterDesc(name); // "title|explanation"
    return {{QStringLiteral("name"), name},
            {QStringLiteral("purpose"), filterPurpose(name)},
            {QStringLiteral("title"), description.section(QLatin1Char('|'), 0, 0)},
            {QStringLiteral("explanation"), description.section(QLatin1Char('|'), 1)},
            {QStringLiteral("params"), params}};
}

QString filterText(const QString& name)
{
    QList<QStringList> rows;
    const QList<FieldDescription> fields = FilterFactory::getFieldsDesc(name);
    for (const FieldDescription& field : fields) {
        rows +=
            QStringList{QStringLiteral("  ") + field.name, field.type, field.regexp, field.desc};
    }
    return name + QLatin1Char('\n') + wrapped(QStringLiteral("  ") + filterPurpose(name), 2)
        + formatTable({QStringLiteral("  ") + Velmo::tr("Parameter"), Velmo::tr("Type"),
                       Velmo::tr("Pattern"), Velmo::tr("Meaning")},
                      rows);
}

} // namespace

int devicesCommand(const Arguments& arguments)
{
    if (arguments.isSet(options::json)) {
        printJson(QJsonArray::fromVariantList(Acceptors::SupportedDevicesAsVariantList()));
        return exitSuccess;
    }
    QList<QStringList> rows;
    const QList<SupportedDevice> devices = Acceptors::supportedDevices();
    for (const SupportedDevice& device : devices) {
        const auto id = Acceptors::Supported(device.value(QStringLiteral("id")).toInt());
        rows += QStringList{QString::number(id), Acceptors::devName(id), kindName(id),
                            Acceptors::canDispense(id) ? Velmo::tr("yes") : Velmo::tr("no"),
                            device.value(QStringLiteral("class")).toString()};
    }
    print(formatTable({QStringLiteral(">Id"), Velmo::tr("Model"), Velmo::tr("Kind"),
                       Velmo::tr("Pays out"), Velmo::tr("Class")},
                      rows));
    return exitSuccess;
}

int filtersCommand(const Arguments& arguments)
{
    QStringList names = arguments.operands();
    const QStringList known = FilterFactory::getFilters();
    if (!names.isEmpty() && !known.contains(names.constFirst())) {
        throw Fault{Velmo::tr("unknown filter \"%1\" (known: %2)")
                        .arg(names.constFirst(), known.join(QStringLiteral(", ")))};
    }
    if (names.isEmpty())
        names = known;
    if (arguments.isSet(options::json)) {
        QJsonArray objects;
        for (const QString& name : std::as_const(names))
            objects.append(filterObject(name));
        printJson(objects);
        return exitSuccess;
    }
    QStringList blocks;
    for (const QString& name : std::as_const(names))
        blocks.append(filterText(name));
    print(blocks.join(QLatin1Char('\n')));
    return exitSuccess;
}
