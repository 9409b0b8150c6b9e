// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "acceptors.h"
#include "acceptorsettings.h"
#include "arrayfile.h"
#include "droutemapitem.h"
#include "filterset.h"
#include "inputfile.h"
#include "knownsettings.h"
#include "options.h"
#include "output.h"
#include "settingscheck.h"
#include "settingsedit.h"
#include "settingsmanager.h"
#include "table.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QSaveFile>

namespace {

ArrayFile readSettings(const QString& fileName)
{
    TextInput text = openInput(fileName);
    const ArrayFile file(text, QStringLiteral("settings"));
    requireKind(file, ListKind::Settings);
    return file;
}

// One element a line, like the lists that people write.
QByteArray listText(const QJsonArray& list)
{
    QByteArrayList lines;
    for (const QJsonValue& element : list) {
        const QByteArray inBrackets =
            QJsonDocument(QJsonArray{element}).toJson(QJsonDocument::Compact);
        lines += "    " + inBrackets.mid(1, inBrackets.size() - 2);
    }
    return "[\n" + lines.join(",\n") + "\n]\n";
}

void save(const QJsonArray& list, const QString& fileName)
{
    if (fileName == QLatin1String("-"))
        return print(QString::fromUtf8(listText(list)));
    const QByteArray text = listText(list);
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.commit())
        throw Fault{QStringLiteral("%1: %2").arg(fileName, file.errorString())};
}

// Splits GROUP/KEY, in which the group of a device has a slash of its own.
Assignment assignment(const QString& path, const QString& value)
{
    const auto keyBegin = path.lastIndexOf(QLatin1Char('/')) + 1;
    if (keyBegin < 2)
        throw Fault{QStringLiteral("\"%1\": expected GROUP/KEY").arg(path)};
    return {path.left(keyBegin - 1), path.mid(keyBegin), value};
}

// The values of the list form that the model carries now, by path.
QMap<QString, QString> carriedValues()
{
    QMap<QString, QString> values;
    const QVariantList list = AcceptorSettings().toList();
    for (const QVariant& element : list) {
        const QVariantMap map = element.toMap();
        values.insert(map.value(QStringLiteral("group")).toString() + QLatin1Char('/')
                          + map.value(QStringLiteral("key")).toString(),
                      map.value(QStringLiteral("value")).toString());
    }
    return values;
}

// The default of a device's setting; the intervals of ID 003 devices have none.
bool isDeviceDefault(const QString& subgroup, const QString& key, const QString& value)
{
    using acceptorSettings::SettingsManager;
    return subgroup != SettingsManager::SM_G_ID003
        && SettingsManager().getDefault(subgroup, key).toString() == value;
}

QString deviceHeading(int number, const AcceptorDeviceSettings& device)
{
    const QString model = Acceptors::devName(static_cast<Acceptors::Supported>(device.type()));
    const bool isTcp = device.interfaceType() == QLatin1String("tcp");
    const QString address =
        isTcp ? QStringLiteral("%1:%2").arg(device.tcpHost(), device.tcpPort()) : device.portName();
    QString heading = QStringLiteral("Device %1: %2 (%3) \"%4\", %5 %6")
                          .arg(number)
                          .arg(model)
                          .arg(device.type())
                          .arg(device.name(), device.interfaceType(), address);
    if (number < 0 || number >= AcceptorSettings::deviceCount())
        heading += QStringLiteral(" - not below the device count");
    return heading;
}

} // namespace

int showSettingsCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    const QMap<QString, QString> defaults = carriedValues();
    AcceptorSettings settings;
    settings.setList(file.elements().toVariantList());
    if (arguments.isSet(options::json)) {
        const QJsonDocument map(QJsonObject::fromVariantMap(settings.toFormattedMap()));
        print(QString::fromUtf8(map.toJson()));
        return exitSuccess;
    }

    QString text;
    QString heading = QStringLiteral("Common settings");
    QList<QStringList> rows;
    const auto finishBlock = [&](const QString& nextHeading) {
        text += heading + QLatin1Char('\n')
            + formatTable({QStringLiteral("  Setting"), QString(), QStringLiteral("Value")}, rows);
        heading = QLatin1Char('\n') + nextHeading;
        rows.clear();
    };
    std::optional<int> shownDevice;
    const QVariantList list = settings.toList();
    for (const QVariant& element : list) {
        const QVariantMap map = element.toMap();
        const QString group = map.value(QStringLiteral("group")).toString();
        const QString key = map.value(QStringLiteral("key")).toString();
        const QString path = group + QLatin1Char('/') + key;
        const QString value = map.value(QStringLiteral("value")).toString();
        const std::optional<DeviceGroup> device = deviceGroup(group);
        if (device && device->device != shownDevice) {
            shownDevice = device->device;
            finishBlock(deviceHeading(*shownDevice, *AcceptorSettings::devices[*shownDevice]));
        }
        const bool isDefault =
            device ? isDeviceDefault(device->subgroup, key, value) : defaults.value(path) == value;
        rows += QStringList{QStringLiteral("  ") + path,
                            isDefault ? QStringLiteral("default") : QString(), value.simplified()};
    }
    finishBlock(QString());
    print(text);
    return exitSuccess;
}

int getSettingCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    const Assignment asked = assignment(arguments.operands().at(1), QString());
    const QString known = requireKnownSetting(asked.group, asked.key).path;
    AcceptorSettings().setList(file.elements().toVariantList());
    const QMap<QString, QString> values = carriedValues();
    if (!values.contains(known))
        throw Fault{QStringLiteral("%1: %2 is not set").arg(file.name(), known)};
    print(values.value(known) + QLatin1Char('\n'));
    return exitSuccess;
}

int setSettingsCommand(const Arguments& arguments)
{
    const QString fileName = arguments.operands().constFirst();
    const ArrayFile file = readSettings(fileName);
    const QStringList texts = arguments.operands().mid(1);
    QList<Assignment> assignments;
    for (const QString& text : texts) {
        const auto equals = text.indexOf(QLatin1Char('='));
        if (equals < 0)
            throw Fault{QStringLiteral("\"%1\": expected GROUP/KEY=VALUE").arg(text)};
        assignments += assignment(text.left(equals), text.mid(equals + 1));
    }
    save(editSettings(file.elements(), assignments),
         arguments.isSet(options::output) ? arguments.value(options::output) : fileName);
    return exitSuccess;
}

int checkSettingsCommand(const Arguments& arguments)
{
    const QStringList findings = checkSettings(readSettings(arguments.operands().constFirst()));
    for (const QString& finding : findings)
        print(finding + QLatin1Char('\n'));
    return findings.isEmpty() ? exitSuccess : exitFindings;
}

int showRoutesCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    AcceptorSettings().setList(file.elements().toVariantList());
    QList<QStringList> rows;
    const QList<DRouteMapItem> map = DRouteMap::fromJson(AcceptorSettings::routeMap());
    for (const DRouteMapItem& route : map) {
        const bool isCoin = route.billType == Acceptors::Coin;
        rows += QStringList{route.currency, QString::number(route.denomination),
                            isCoin ? QStringLiteral("coin") : QStringLiteral("note"),
                            QString::number(route.route), QString::number(route.count)};
    }
    print(formatTable({QStringLiteral("Currency"), QStringLiteral(">Face value"),
                       QStringLiteral("Kind"), QStringLiteral(">Route"), QStringLiteral(">Count")},
                      rows));
    return exitSuccess;
}
