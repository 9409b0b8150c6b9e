// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "acceptors.h"
#include "acceptorsettings.h"
#include "droutemapitem.h"
#include "filterchain.h"
#include "input.h"
#include "settings/settingscheck.h"
#include "settings/settingslist.h"
#include "terminal/table.h"
#include "text/devicename.h"
#include "text/filterwords.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace {

using S = AcceptorSettings;
using Used = SettingsList::Used;

// One element a line, like the lists that people write.
void printList(const QList<JsonText>& list)
{
    QByteArrayList lines;
    for (const JsonText& element : list)
        lines += "    " + element;
    const QByteArray text =
        lines.isEmpty() ? QByteArray("[]\n") : "[\n" + lines.join(",\n") + "\n]\n";
    print(QString::fromUtf8(text));
}

JsonText jsonOf(const ServiceSetting& setting, const QVariant& value)
{
    return value.isValid() ? setting.listValue(value.toString()) : JsonText::null();
}

JsonText jsonOf(const QVariant& text)
{
    return text.isValid() ? JsonText(text.toString()) : JsonText::null();
}

// A map of maps and of values, as QJsonDocument indents it; that rounds numbers beyond 53 bits.
QByteArray indentedJson(const QVariant& value, const QByteArray& indent = {})
{
    if (value.userType() == QMetaType::Bool)
        return JsonText(value.toBool());
    if (value.userType() == QMetaType::Int || value.userType() == QMetaType::LongLong)
        return JsonText(value.toLongLong());
    if (value.userType() != QMetaType::QVariantMap)
        return JsonText(value.toString());
    QByteArrayList members;
    const QVariantMap map = value.toMap();
    for (auto member = map.begin(); member != map.end(); ++member) {
        members += indent + "    " + JsonText(member.key()) + ": "
            + indentedJson(member.value(), indent + "    ");
    }
    return "{\n" + members.join(",\n") + "\n" + indent + "}";
}

QString deviceHeading(const SettingsList& list, int device)
{
    const auto value = [&](const QString& subgroup, const QString& key) {
        return list.used(ServiceSetting::find(deviceGroup(device, subgroup), key)).value.toString();
    };
    const QString type = list.interfaceType(device);
    const QString address = type == QLatin1String("tcp") ? value(S::HARDWARE_SECTION, S::TCP_HOST)
            + QLatin1Char(':') + value(S::HARDWARE_SECTION, S::TCP_PORT)
                                                         : value(S::HARDWARE_SECTION, S::PORT_NAME);
    const int model = list.model(device);
    QString heading =
        Velmo::tr("Device %1: %2 (%3) \"%4\", %5 %6")
            .arg(QString::number(device),
                 model == 0 || modelName(model).isEmpty() ? Velmo::tr("unknown model")
                                                          : modelName(model),
                 QString::number(model), value(S::DEVICE_SECTION, S::DEVICE_NAME), type, address);
    if (device < 0 || device >= list.deviceCount())
        heading += Velmo::tr(" - not below the device count");
    return heading;
}

QString routesTable(const QString& json)
{
    QList<QStringList> rows;
    const QList<DRouteMapItem> map = DRouteMap::fromJson(json);
    for (const DRouteMapItem& route : map) {
        const bool isCoin = route.billType == Acceptors::Coin;
        rows += QStringList{printable(route.currency), QString::number(route.denomination),
                            isCoin ? Velmo::tr("coin") : Velmo::tr("note"),
                            QString::number(route.route), QString::number(route.count)};
    }
    return formatTable({Velmo::tr("Currency"), QLatin1Char('>') + Velmo::tr("Face value"),
                        Velmo::tr("Kind"), QLatin1Char('>') + Velmo::tr("Route"),
                        QLatin1Char('>') + Velmo::tr("Count")},
                       rows);
}

QString limitsTable(const QString& json)
{
    QList<QStringList> rows;
    const QJsonArray limits = QJsonDocument::fromJson(json.toUtf8()).array();
    for (const QJsonValue& limit : limits) {
        rows += QStringList{printable(limit[QStringLiteral("denom")].toVariant().toString()),
                            printable(limit[QStringLiteral("attempts")].toVariant().toString())};
    }
    return formatTable(
        {QLatin1Char('>') + Velmo::tr("Face value"), QLatin1Char('>') + Velmo::tr("Rejections")},
        rows);
}

QString indented(const QString& lines)
{
    QString text = QStringLiteral("  ") + lines.trimmed();
    return text.replace(QLatin1Char('\n'), QStringLiteral("\n  ")) + QLatin1Char('\n');
}

// The settings that are tables in themselves.
QString tableOf(const Used& used)
{
    const QString value = used.value.toString();
    const SettingDescription::Kind kind = used.setting.kind();
    if (kind == SettingDescription::AttemptsLimits)
        return limitsTable(value);
    return kind == SettingDescription::RouteMap ? routesTable(value) : QString();
}

// The settings of the service or of one device; tables of their own go to @p tables.
QString block(const QString& heading, const SettingsList& list, std::optional<int> device,
              QString& tables)
{
    QList<QStringList> rows;
    for (const Used& used : list.used()) {
        if (used.setting.device() != device)
            continue;
        QString value = printable(used.value.toString().simplified());
        const QString table = tableOf(used);
        if (table.count(QLatin1Char('\n')) > 1) {
            const QString label = used.setting.label();
            value = Velmo::tr("in the table below");
            tables +=
                QStringLiteral("\n%1: %2\n").arg(label, used.setting.path()) + indented(table);
        }
        QString mark = used.value == used.setting.defaultValue() ? Velmo::tr("default") : QString();
        if (!used.isListed())
            mark = Velmo::tr("missing");
        else if (!used.isForDevice)
            mark = Velmo::tr("not used");
        rows += QStringList{QStringLiteral("  ") + used.setting.path(), mark, value};
    }
    return printable(heading) + QLatin1Char('\n')
        + formatTable({QStringLiteral("  ") + Velmo::tr("Setting"), QString(), Velmo::tr("Value")},
                      rows, outputWidth());
}

QString settingsText(const SettingsList& list)
{
    QString tables;
    QString text = block(Velmo::tr("Common settings"), list, {}, tables);
    text += tables;
    for (auto device = list.devices().keyBegin(); device != list.devices().keyEnd(); ++device)
        text += QLatin1Char('\n') + block(deviceHeading(list, *device), list, *device, tables);
    return text;
}

QList<JsonText> settingsJson(const SettingsList& list)
{
    QList<JsonText> settings;
    for (const Used& used : list.used()) {
        const JsonText source = used.isListed() ? JsonText(QStringLiteral("list"))
            : used.value.isValid()              ? JsonText(QStringLiteral("default"))
                                                : JsonText::null();
        settings +=
            JsonText::object({{"default", jsonOf(used.setting, used.setting.defaultValue())},
                              {"path", used.setting.path()},
                              {"source", source},
                              {"value", jsonOf(used.setting, used.value)}});
    }
    return settings;
}

// The values of a list by path, as far as the service is sure to use them.
QMap<QString, QVariant> valuesByPath(const SettingsList& list)
{
    QMap<QString, QVariant> values;
    for (const Used& used : list.used()) {
        if (used.isForDevice && used.isCertain())
            values.insert(used.setting.path(), used.value);
    }
    return values;
}

QString shown(const QVariant& value)
{
    return value.isValid()
        ? QLatin1Char('"') + printable(value.toString().simplified()) + QLatin1Char('"')
        : Velmo::tr("not set");
}

// Whether the device that a setting is of has it, where that device is in the list.
bool isForDevice(const SettingsList& list, const ServiceSetting& setting)
{
    const std::optional<int> device = setting.device();
    return !device || setting.appliesTo(list.model(*device), list.interfaceType(*device));
}

bool isNamed(const SettingsList& list, const ServiceSetting& setting)
{
    return std::any_of(list.elements().begin(), list.elements().end(), [&](const auto& element) {
        return element.setting.isValid() && element.setting.path() == setting.path();
    });
}

Fault whyNotSet(const SettingsList& list, const Used& used, const QString& fileName)
{
    const std::optional<int> device = used.setting.device();
    if (device && !list.devices().contains(*device))
        return {Velmo::tr("%1: there is no %2").arg(fileName, deviceGroup(*device))};
    const QString why = used.isForDevice
        ? Velmo::tr("%1: %2 is not set and has no default")
        : Velmo::tr("%1: %2 is not set: not for a device of this model and interface");
    return {why.arg(fileName, used.setting.path())};
}

} // namespace

int showSettingsCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    if (arguments.isSet(options::formatted)) {
        // Only the process's configuration can be written as a formatted map.
        S settings;
        settings.setList(file.values());
        const QVariantMap map = settings.toFormattedMap();
        settings.setList({}); // deletes the devices
        print(QString::fromUtf8(indentedJson(map)) + QLatin1Char('\n'));
        return exitSuccess;
    }
    const SettingsList list(file);
    if (arguments.isSet(options::json))
        printList(settingsJson(list));
    else
        print(settingsText(list));
    return exitSuccess;
}

int getSettingCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    const ServiceSetting asked = ServiceSetting::require(arguments.operands().at(1));
    const SettingsList list(file);
    Used used = list.used(asked);
    // What shares its place is another setting, unless no sub-group says which one is asked for.
    const bool isAnother =
        arguments.operands().at(1).count(QLatin1Char('/')) > 1 || used.setting.key() != asked.key();
    if (isAnother && !isForDevice(list, asked) && !isNamed(list, asked))
        used = {asked, {}, -1, false};
    if (!used.value.isValid())
        throw whyNotSet(list, used, file.name());
    if (!used.isCertain()) {
        printError(Velmo::tr("%1: %2 is missing: the built-in default is \"%3\", AcceptorSettings "
                             "has \"%4\"")
                       .arg(file.name(), asked.path(), used.value.toString(),
                            used.setting.unsetValue().toString()));
    }
    QString text = printableLines(used.value.toString());
    if (arguments.isSet(options::source)) {
        text += QLatin1Char('\t')
            + (used.isListed() ? Velmo::tr("list (%1)").arg(printable(file.place(used.element)))
                               : Velmo::tr("default"));
    }
    print(text + QLatin1Char('\n'));
    return exitSuccess;
}

int checkSettingsCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    const QList<SettingsFinding> findings = checkSettings(file);
    QList<JsonText> list;
    for (const SettingsFinding& finding : findings) {
        const bool hasPlace = finding.element >= 0;
        const JsonText element = hasPlace ? JsonText(finding.element + 1) : JsonText::null();
        const JsonText line = hasPlace ? JsonText(file.lineOf(finding.element)) : JsonText::null();
        list += JsonText::object({{"element", element},
                                  {"level", finding.levelKey()},
                                  {"line", line},
                                  {"path", finding.path},
                                  {"text", finding.text}});
        if (!arguments.isSet(options::json))
            print(printable(finding.line(file)) + QLatin1Char('\n'));
    }
    if (arguments.isSet(options::json))
        printList(list);
    return findings.isEmpty() ? exitSuccess : exitFindings;
}

int diffSettingsCommand(const Arguments& arguments)
{
    const QString first = arguments.operands().at(0);
    const QString second = arguments.operands().at(1);
    if (first == QLatin1String("-") && second == first)
        throw arguments.usageFault();
    const auto values = [](const QString& name) {
        return valuesByPath(SettingsList(readSettings(name)));
    };
    const QMap<QString, QVariant> before = values(first);
    const QMap<QString, QVariant> after = values(second);
    QStringList paths = before.keys() + after.keys();
    paths.sort();
    paths.removeDuplicates();
    QList<JsonText> differences;
    QString text;
    for (const QString& path : std::as_const(paths)) {
        const QVariant a = before.value(path);
        const QVariant b = after.value(path);
        if (a == b && a.isValid() == b.isValid())
            continue;
        differences += JsonText::object({{"a", jsonOf(a)}, {"b", jsonOf(b)}, {"path", path}});
        text += QStringLiteral("%1: %2 -> %3\n").arg(path, shown(a), shown(b));
    }
    if (arguments.isSet(options::json))
        printList(differences);
    else
        print(text);
    return differences.isEmpty() ? exitSuccess : exitFindings;
}

int settingsFiltersCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    const FilterSet filters = filterSetOf(file, ListKind::Settings);
    // The settings that imply filters stand in this group.
    for (const SettingsFinding& finding : checkSettings(file)) {
        if (finding.path.startsWith(S::ACCEPTOR_COMMON_SECTION + QLatin1Char('/')))
            printError(finding.line(file));
    }
    if (!arguments.isSet(options::json)) {
        const QStringList rules = filters.rules();
        print(rules.join(QLatin1Char('\n')) + QLatin1Char('\n'));
        return exitSuccess;
    }
    FilterChain chain;
    QList<JsonText> list;
    for (const AbstractFilter* const filter : filters.addTo(chain)) {
        list += JsonText::object(
            {{"name", filterName(*filter)}, {"params", JsonText::of(filterParams(*filter))}});
    }
    printList(list);
    return exitSuccess;
}

int showRoutesCommand(const Arguments& arguments)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
    const SettingsList list(file);
    print(routesTable(
        list.used(ServiceSetting::find(S::DISPENSER_SECTION, S::ROUTE_MAP)).value.toString()));
    return exitSuccess;
}
