// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "knownsettings.h"

#include "acceptors.h"
#include "acceptorsettings.h"
#include "droutemapitem.h"
#include "fault.h"
#include "nearest.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QStringList>

#include <algorithm>

namespace {

using S = AcceptorSettings;

// The model reads the intervals in every sub-group of a device; they are listed under this one.
const QString intervalsGroup = QStringLiteral("device#/ccnet");

QString anyText(const QString& /*value*/)
{
    return {};
}

template <auto Read>
QString numberReadBy(const QString& value)
{
    bool isNumber = false;
    (value.*Read)(&isNumber, 10);
    return isNumber ? QString() : QStringLiteral("reads as 0");
}

constexpr auto intNumber = numberReadBy<&QString::toInt>;
constexpr auto longNumber = numberReadBy<&QString::toLongLong>;
constexpr auto unsignedNumber = numberReadBy<&QString::toUInt>;

QString onOff(const QString& value)
{
    const bool known = value == QLatin1String("0") || value.toUInt() == 1;
    return known ? QString() : QStringLiteral("reads as off: only 1 is on");
}

QString statisticsMode(const QString& value)
{
    const int mode = value.toInt();
    const bool inRange = mode >= S::CleanStatistics0 && mode <= S::CleanStatistics4;
    return inRange ? intNumber(value) : QStringLiteral("reads as 0: the modes are 0 to 4");
}

QString attemptsLimits(const QString& value)
{
    const QJsonDocument document = QJsonDocument::fromJson(value.toUtf8());
    if (!document.isArray())
        return QStringLiteral("is no JSON array and sets no limit");
    const QVariantList limits = document.array().toVariantList();
    for (int i = 0; i < limits.size(); ++i) {
        const QVariantMap limit = limits.at(i).toMap();
        if (limit.isEmpty())
            return QStringLiteral("limit %1 is no object and is skipped").arg(i + 1);
        for (const QString& key : {QStringLiteral("denom"), QStringLiteral("attempts")}) {
            const QString complaint = limit.contains(key) ? intNumber(limit.value(key).toString())
                                                          : QStringLiteral("reads as 1");
            if (!complaint.isEmpty())
                return QStringLiteral("limit %1: \"%2\" %3")
                    .arg(QString::number(i + 1), key, complaint);
        }
    }
    return {};
}

QString routeMap(const QString& value)
{
    if (value.isEmpty())
        return {};
    const QJsonDocument document = QJsonDocument::fromJson(value.toUtf8());
    if (!document.isArray())
        return QStringLiteral("is no JSON array and holds no route");
    const auto dropped = document.array().size() - DRouteMap::fromJson(value).size();
    return dropped == 0 ? QString()
                        : QStringLiteral("%1 of its rows lack keys and are dropped").arg(dropped);
}

QString modelId(const QString& value)
{
    const auto devices = Acceptors::supportedDevices();
    const bool known =
        std::any_of(devices.begin(), devices.end(), [&value](const SupportedDevice& device) {
            return device.value(QStringLiteral("id")).toString() == value;
        });
    return known ? QString() : QStringLiteral("is no model of the catalogue");
}

QString oneOf(const QString& value, const QStringList& known, const QString& otherwise)
{
    return known.contains(value)
        ? QString()
        : QStringLiteral("%1 (known: %2)").arg(otherwise, known.join(QStringLiteral(", ")));
}

QString interfaceType(const QString& value)
{
    return oneOf(value, {QStringLiteral("rs232"), QStringLiteral("tcp")},
                 QStringLiteral("counts as a serial port"));
}

QString flowControl(const QString& value)
{
    return oneOf(value.toUpper(),
                 {QStringLiteral("NONE"), QStringLiteral("OFF"), QStringLiteral("HARDWARE"),
                  QStringLiteral("DTR/STR"), QStringLiteral("XONXOFF"), QStringLiteral("XON/XOFF")},
                 QStringLiteral("reads as no flow control"));
}

QString parity(const QString& value)
{
    return oneOf(value.toUpper(),
                 {QStringLiteral("NONE"), QStringLiteral("EVEN"), QStringLiteral("ODD"),
                  QStringLiteral("SPACE")},
                 QStringLiteral("reads as no parity"));
}

QString dataBits(const QString& value)
{
    return oneOf(
        value, {QStringLiteral("5"), QStringLiteral("6"), QStringLiteral("7"), QStringLiteral("8")},
        QStringLiteral("is no number of data bits"));
}

QString stopBits(const QString& value)
{
    return oneOf(value, {QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3")},
                 QStringLiteral("reads as %1").arg(value.toUInt() & 3U));
}

// A "#" stands for the device's number.
const struct
{
    QString group;
    QString key;
    QString (*complaint)(const QString& value);
    bool keyInAnyCase = false;
} known[] = {
    {S::ACCEPTOR_COMMON_SECTION, S::ACCEPT_ALL, onOff},
    {S::ACCEPTOR_COMMON_SECTION, S::MAX_SUMM, longNumber},
    {S::ACCEPTOR_COMMON_SECTION, S::RESET_STATISTICS, statisticsMode},
    {S::ACCEPTOR_COMMON_SECTION, S::ATTEMPTS_FILTER, attemptsLimits},
    {S::ACCEPTOR_COMMON_SECTION, S::PORT_LOGGING, onOff},
    {S::SERVICE_SECTION, S::DEVICE_COUNT, intNumber},
    {S::SERVICE_SECTION, S::RESET_IDLE_TIMEOUT, longNumber},
    {S::DISPENSER_SECTION, S::ROUTE_MAP, routeMap},
    // Written for every device, but the switch of the service is the one that counts.
    {QStringLiteral("device#/debug"), S::PORT_LOGGING, anyText},
    {intervalsGroup, S::RESPONSE_TIME, intNumber},
    {intervalsGroup, S::POLLING_INTERVAL, intNumber},
    {intervalsGroup, S::BILL_TABLE_INTERVAL, intNumber},
    {intervalsGroup, S::RESET_INTERVAL, intNumber},
    {intervalsGroup, S::REST_INTERVAL, intNumber},
    {QStringLiteral("device#/device"), S::DEVICE_ID, modelId},
    {QStringLiteral("device#/device"), S::DEVICE_NAME, anyText},
    {QStringLiteral("device#/uniteller_service"), S::UNITAILER_ID, anyText},
    {QStringLiteral("device#/posd200"), S::SM_P_POSD2000_POS_ID, anyText},
    {QStringLiteral("device#/posd200"), S::SM_P_POSD2000_TIMEOUT_ACK, intNumber},
    {QStringLiteral("device#/posd200"), S::SM_P_POSD2000_TIMEOUT_PACKET, intNumber},
    {QStringLiteral("device#/posd200"), S::SM_P_POSD2000_COUNT_NAK, intNumber},
    {QStringLiteral("device#/posd200"), S::SM_P_POSD2000_PACKET_SIZE, intNumber},
    {QStringLiteral("device#/hw_interface"), S::INTERFACE_TYPE, interfaceType},
    {QStringLiteral("device#/hw_interface"), S::TCP_HOST, anyText},
    {QStringLiteral("device#/hw_interface"), S::TCP_PORT, intNumber},
    {QStringLiteral("device#/hw_interface"), S::PORT_NAME, anyText, true},
    {QStringLiteral("device#/hw_interface"), S::PORT_BAUDRATE, unsignedNumber},
    {QStringLiteral("device#/hw_interface"), S::PORT_FLOW_CONTROL, flowControl, true},
    {QStringLiteral("device#/hw_interface"), S::PORT_PARITY, parity},
    {QStringLiteral("device#/hw_interface"), S::PORT_DATABITS, dataBits, true},
    {QStringLiteral("device#/hw_interface"), S::PORT_STOPBIT, stopBits, true},
};

} // namespace

std::optional<DeviceGroup> deviceGroup(const QString& group)
{
    QString device = group.section(QLatin1Char('/'), 0, 0);
    for (const QString& common :
         {S::ACCEPTOR_COMMON_SECTION, S::SERVICE_SECTION, S::DISPENSER_SECTION}) {
        if (device == common)
            return {};
    }
    if (!device.contains(S::DEVICE))
        return {};
    bool hasNumber = false;
    const int number = device.remove(S::DEVICE).toInt(&hasNumber);
    return DeviceGroup{number, hasNumber, group.section(QLatin1Char('/'), 1, 1)};
}

std::optional<KnownSetting> knownSetting(const QString& group, const QString& key)
{
    const std::optional<DeviceGroup> device = deviceGroup(group);
    const QString listed = device ? QStringLiteral("device#/") + device->subgroup
                                  : group.section(QLatin1Char('/'), 0, 0);
    for (const auto& setting : known) {
        const bool inGroup = listed == setting.group || (device && setting.group == intervalsGroup);
        if (!inGroup || (setting.keyInAnyCase ? key.toLower() : key) != setting.key)
            continue;
        QString path = listed + QLatin1Char('/') + setting.key;
        if (device)
            path.replace(QLatin1Char('#'), QString::number(device->device));
        return KnownSetting{path, setting.complaint};
    }
    return {};
}

KnownSetting requireKnownSetting(const QString& group, const QString& key)
{
    if (const std::optional<KnownSetting> setting = knownSetting(group, key))
        return *setting;
    const QString path = group + QLatin1Char('/') + key;
    throw Fault{QStringLiteral("unknown setting \"%1\" (nearest known: %2)")
                    .arg(path, nearestKnownPath(path))};
}

QString nearestKnownPath(const QString& path)
{
    const std::optional<DeviceGroup> device = deviceGroup(path);
    const QString number = QString::number(device ? device->device : 0);
    QStringList paths;
    for (const auto& setting : known)
        paths += QString(setting.group + QLatin1Char('/') + setting.key)
                     .replace(QLatin1Char('#'), number);
    return nearest(path, paths);
}
