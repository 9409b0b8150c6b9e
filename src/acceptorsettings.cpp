// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorsettings.h"

#include "acceptors.h"
#include "settingelement_p.h"
#include "settingstable_p.h"
#include "wraparound_p.h"
#include "json/variants.h"

#include <QMutexLocker>
#include <QPair>

const QString AcceptorSettings::SERVICE_SECTION = QStringLiteral("service");
const QString AcceptorSettings::DEVICE_SECTION = QStringLiteral("device");
const QString AcceptorSettings::DISPENSER_SECTION = QStringLiteral("dispenser");
const QString AcceptorSettings::DEVICE = QStringLiteral("device");
const QString AcceptorSettings::DEVICE_ID = QStringLiteral("device_id");
const QString AcceptorSettings::DEVICE_NAME = QStringLiteral("device_name");
const QString AcceptorSettings::HARDWARE_SECTION = QStringLiteral("hw_interface");
const QString AcceptorSettings::ACCEPTOR_COMMON_SECTION = QStringLiteral("acceptor_common");
const QString AcceptorSettings::DEBUG_SECTION = QStringLiteral("debug");
const QString AcceptorSettings::PORT_LOGGING = QStringLiteral("port_logging");
const QString AcceptorSettings::INTERFACE_TYPE = QStringLiteral("interface_type");
const QString AcceptorSettings::PORT_NAME = QStringLiteral("portname");
const QString AcceptorSettings::PORT_BAUDRATE = QStringLiteral("baudrate");
const QString AcceptorSettings::PORT_FLOW_CONTROL = QStringLiteral("flowcontrol");
const QString AcceptorSettings::PORT_PARITY = QStringLiteral("parity");
const QString AcceptorSettings::PORT_DATABITS = QStringLiteral("databits");
const QString AcceptorSettings::PORT_STOPBIT = QStringLiteral("stopbits");
const QString AcceptorSettings::ACCEPT_ALL = QStringLiteral("acceptAll");
const QString AcceptorSettings::MAX_SUMM = QStringLiteral("maxSumm");
const QString AcceptorSettings::DEVICE_COUNT = QStringLiteral("devices_count");
const QString AcceptorSettings::RESET_IDLE_TIMEOUT = QStringLiteral("reset_idle_timeout");
const QString AcceptorSettings::ATTEMPTS_FILTER = QStringLiteral("attempts_filter_settings");
const QString AcceptorSettings::RESET_STATISTICS = QStringLiteral("reset_stats");
const QString AcceptorSettings::UNITAILER_GROUP = QStringLiteral("uniteller_service");
const QString AcceptorSettings::UNITAILER_ID = QStringLiteral("terminal_id");
const QString AcceptorSettings::ROUTE_MAP = QStringLiteral("route_map");
const QString AcceptorSettings::TCP_PORT = QStringLiteral("tcp_port");
const QString AcceptorSettings::TCP_HOST = QStringLiteral("tcp_host");
const QString AcceptorSettings::SM_G_POSD2000 = QStringLiteral("posd200");
const QString AcceptorSettings::SM_P_POSD2000_TIMEOUT_ACK = QStringLiteral("timeout_ack");
const QString AcceptorSettings::SM_P_POSD2000_TIMEOUT_PACKET = QStringLiteral("timeout_packet");
const QString AcceptorSettings::SM_P_POSD2000_COUNT_NAK = QStringLiteral("count_nak");
const QString AcceptorSettings::SM_P_POSD2000_PACKET_SIZE = QStringLiteral("packet_size");
const QString AcceptorSettings::SM_P_POSD2000_POS_ID = QStringLiteral("terminal_id");
const QString AcceptorSettings::RESPONSE_TIME = QStringLiteral("response_time");
const QString AcceptorSettings::POLLING_INTERVAL = QStringLiteral("polling_interval");
const QString AcceptorSettings::BILL_TABLE_INTERVAL = QStringLiteral("bill_table_interval");
const QString AcceptorSettings::RESET_INTERVAL = QStringLiteral("reset_interval");
const QString AcceptorSettings::REST_INTERVAL = QStringLiteral("rest_interval");
const QString AcceptorSettings::MAPPED_RESET_IDDLE_TIMEOUT = QStringLiteral("RESET_IDDLE_TIMEOUT");
const QString AcceptorSettings::MAPPED_RESET_STATISTICS =
    QStringLiteral("RESET_ACCEPTORS_STATISTICS");
const QString AcceptorSettings::MAPPED_BILL_1000000_ATTEMPTS =
    QStringLiteral("BILL_1000000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_500000_ATTEMPTS =
    QStringLiteral("BILL_500000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_200000_ATTEMPTS =
    QStringLiteral("BILL_200000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_100000_ATTEMPTS =
    QStringLiteral("BILL_100000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_50000_ATTEMPTS = QStringLiteral("BILL_50000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_20000_ATTEMPTS = QStringLiteral("BILL_20000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_10000_ATTEMPTS = QStringLiteral("BILL_10000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_5000_ATTEMPTS = QStringLiteral("BILL_5000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_1000_ATTEMPTS = QStringLiteral("BILL_1000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_1000_ATTEMPTS = QStringLiteral("COIN_1000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_500_ATTEMPTS = QStringLiteral("COIN_500_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_200_ATTEMPTS = QStringLiteral("COIN_200_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_100_ATTEMPTS = QStringLiteral("COIN_100_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_50_ATTEMPTS = QStringLiteral("COIN_50_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_10_ATTEMPTS = QStringLiteral("COIN_10_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_5_ATTEMPTS = QStringLiteral("COIN_5_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_1_ATTEMPTS = QStringLiteral("COIN_1_ATTEMPTS");
const QString AcceptorSettings::MAPPED_ANTIFISHING = QStringLiteral("ANTIFISHING");

QMap<int, AcceptorDeviceSettings*> AcceptorSettings::devices;
QList<AcceptorAttemptFilterItem> AcceptorSettings::attemptsFilter_;
qint64 AcceptorSettings::maxSumm_ = 0;
bool AcceptorSettings::acceptAll_ = true;
bool AcceptorSettings::portLogs_ = false;
qint64 AcceptorSettings::resetIdleTimeout_ = 3600000;
AcceptorSettings::ECleanStatistics AcceptorSettings::cleanStatistics_ = CleanStatistics0;
qint32 AcceptorSettings::deviceCount_ = -1;
QString AcceptorSettings::_routeMap;
QMutex AcceptorSettings::settingsMutex_;

namespace {

using S = AcceptorSettings;
using Device = AcceptorDeviceSettings;
using SerialPortTexts::Form;
using SerialPortTexts::FormattedMap;
using SerialPortTexts::ListForm;
using SettingsTable::deviceGroup;

// Hands every setting of a form to visit(group path, key, value): first those of the service,
// then those of each device in ascending index order.
template <typename Visitor>
void walk(Form form, Visitor visit)
{
    for (const SettingRow& row : SettingsTable::serviceSettings)
        visit(row.group, row.key(form), row.access.value(form, nullptr));
    for (auto entry = S::devices.constBegin(); entry != S::devices.constEnd(); ++entry) {
        const int index = entry.key();
        const bool shown = form == ListForm || (index >= 0 && index < S::deviceCount());
        const Device* const device = entry.value();
        if (!device || !shown)
            continue;
        const int model = device->type();
        const QString interfaceType = device->interfaceType();
        const QString indexText = QString::number(index);
        QString path;
        const QString* subgroup = nullptr;
        for (const SettingRow& row : SettingsTable::deviceSettings) {
            const QString& key = row.key(form);
            // The formatted map shows every device alike.
            if (key.isEmpty() || (form == ListForm && !row.isFor(model, interfaceType)))
                continue;
            if (subgroup != &row.group)
                path = deviceGroup(indexText, row.group);
            subgroup = &row.group;
            visit(path, key, row.access.value(form, device));
        }
    }
}

Device& deviceAt(int index)
{
    Device*& device = S::devices[index];
    if (!device)
        device = new Device;
    return *device;
}

Device* deviceOf(const SettingGroup& group)
{
    return group.isOfDevice() ? &deviceAt(group.deviceIndex()) : nullptr;
}

// The result is that of updateValue().
bool apply(const SettingGroup& group, Device* device, const SettingRow* row, const QString& value)
{
    if (row && row->access.set)
        row->access.set(device, value);
    return !device ? group.isOfService()
                   : group.name() == S::HARDWARE_SECTION || group.name() == S::DEVICE_SECTION;
}

// Elements of one group follow each other in a list: its path is read once for all of them.
class Elements
{
public:
    bool apply(const QVariantMap& element)
    {
        const QVariant none;
        const QVariant* path = nullptr;
        const QVariant* name = &none;
        const QVariant* value = &none;
        for (auto entry = element.constBegin(); entry != element.constEnd(); ++entry) {
            if (SettingRow::isEqual(entry.key(), SettingElement::groupKey))
                path = &*entry;
            else if (SettingRow::isEqual(entry.key(), SettingElement::nameKey))
                name = &*entry;
            else if (SettingRow::isEqual(entry.key(), SettingElement::valueKey))
                value = &*entry;
        }
        if (!path)
            return false;
        const QString text = Variants::toString(*path);
        if (text != m_path) {
            m_group = SettingGroup(text);
            m_device = deviceOf(m_group);
            m_likely = nullptr;
            m_path = text;
        }
        const SettingRow* const row = m_group.find(Variants::toString(*name), m_likely);
        if (row)
            m_likely = row + 1;
        return ::apply(m_group, m_device, row, Variants::toString(*value));
    }

private:
    QString m_path;
    SettingGroup m_group{m_path};
    Device* m_device = nullptr; // null for a group that is none of a device
    const SettingRow* m_likely = nullptr; // to come next
};

} // namespace

AcceptorSettings::~AcceptorSettings() = default;

QString AcceptorSettings::routeMap()
{
    return _routeMap;
}

void AcceptorSettings::setRouteMap(const QString& routeMap)
{
    _routeMap = routeMap;
}

int AcceptorSettings::deviceCount()
{
    return deviceCount_;
}

void AcceptorSettings::setDeviceCount(int count)
{
    deviceCount_ = count;
}

qint64 AcceptorSettings::resetIdleTimeout()
{
    return resetIdleTimeout_;
}

void AcceptorSettings::setResetIdleTimeout(qint64 timeout)
{
    resetIdleTimeout_ = timeout;
}

AcceptorSettings::ECleanStatistics AcceptorSettings::cleanStatistics()
{
    return cleanStatistics_;
}

void AcceptorSettings::setCleanStatistics(const ECleanStatistics& mode)
{
    cleanStatistics_ = mode;
}

qint64 AcceptorSettings::maxSumm()
{
    return maxSumm_;
}

void AcceptorSettings::setMaxSumm(const qint64& sum)
{
    maxSumm_ = sum;
}

bool AcceptorSettings::acceptAll()
{
    return acceptAll_;
}

void AcceptorSettings::setAcceptAll(bool acceptAll)
{
    acceptAll_ = acceptAll;
}

bool AcceptorSettings::portLogs()
{
    return portLogs_;
}

void AcceptorSettings::setPortLogs(bool portLogs)
{
    portLogs_ = portLogs;
}

QList<AcceptorAttemptFilterItem> AcceptorSettings::attemptsFilter()
{
    return attemptsFilter_;
}

void AcceptorSettings::setAttemptsFilter(const QList<AcceptorAttemptFilterItem>& limits)
{
    attemptsFilter_ = limits;
}

void AcceptorSettings::addAttemptsFilter(int denom, int attempts)
{
    for (AcceptorAttemptFilterItem& limit : attemptsFilter_) {
        if (limit.denom() == denom)
            return limit.setAttempts(attempts);
    }
    AcceptorAttemptFilterItem limit;
    limit.setDenom(denom);
    limit.setAttempts(attempts);
    attemptsFilter_.append(limit);
}

QList<SettingDescription> AcceptorSettings::settingDescriptions()
{
    QList<SettingDescription> descriptions;
    for (const SettingRow& row : SettingsTable::serviceSettings)
        descriptions.append({&row, row.group});
    for (const SettingRow& row : SettingsTable::deviceSettings)
        descriptions.append({&row, deviceGroup(QStringLiteral("#"), row.group)});
    return descriptions;
}

SettingDescription AcceptorSettings::settingDescription(const QString& group, const QString& key)
{
    const SettingGroup asked(group);
    const SettingRow* const row = asked.find(key);
    if (!row)
        return {};
    const QString index = QString::number(asked.deviceIndex());
    return {row, asked.isOfService() ? row->group : deviceGroup(index, row->group)};
}

bool AcceptorSettings::isEmpty()
{
    return devices.isEmpty() || deviceCount_ < 1;
}

QVariantList AcceptorSettings::toList() const
{
    QVariantList list;
    walk(ListForm, [&list](const QString& group, const QString& key, const QVariant& value) {
        list.append(SettingElement::of(group, key, value));
    });
    return list;
}

void AcceptorSettings::setList(const QVariantList& list)
{
    const QMutexLocker locker(&settingsMutex_);
    qDeleteAll(devices);
    devices.clear();
    maxSumm_ = 0;
    deviceCount_ = 0;
    cleanStatistics_ = CleanStatistics0;
    Elements elements;
    for (const QVariant& element : list)
        elements.apply(Variants::toMap(element));
}

QVariantMap AcceptorSettings::toFormattedMap() const
{
    QMap<QString, QVariantMap> groups;
    walk(FormattedMap, [&groups](const QString& group, const QString& key, const QVariant& value) {
        groups[group].insert(key, value);
        // Programs expect this entry; it sets nothing when it is read.
        if (key == PORT_PARITY)
            groups[group].insert(QStringLiteral("key"), PORT_PARITY);
    });
    QVariantMap map;
    for (auto group = groups.constBegin(); group != groups.constEnd(); ++group)
        map.insert(group.key(), group.value());
    return map;
}

void AcceptorSettings::setFotmattedMap(const QVariantMap& map)
{
    const QMutexLocker locker(&settingsMutex_);
    for (auto entry = map.constBegin(); entry != map.constEnd(); ++entry) {
        const SettingGroup group(entry.key());
        const QVariantMap settings = Variants::toMap(entry.value());
        for (auto setting = settings.constBegin(); setting != settings.constEnd(); ++setting)
            apply(group, deviceOf(group), group.find(setting.key()),
                  Variants::toString(setting.value()));
    }
    for (auto entry = devices.lowerBound(deviceCount_); entry != devices.end();) {
        delete entry.value();
        entry = devices.erase(entry);
    }
}

bool AcceptorSettings::setValue(const QVariantMap& setting)
{
    const QMutexLocker locker(&settingsMutex_);
    return Elements().apply(setting);
}

bool AcceptorSettings::updateValue(QString group, QString subgroup, QString key, QString value)
{
    const SettingGroup path(group, subgroup);
    return apply(path, deviceOf(path), path.find(key), value);
}

void AcceptorSettings::removeDeviceByIndex(int position)
{
    if (position < 0 || position >= devices.size())
        return;
    const auto entry = std::next(devices.begin(), position);
    delete entry.value();
    devices.erase(entry);
    deviceCount_ = wrappingDifference(deviceCount_, 1);
}

// It changes the settings, though they are not the object's. NOLINTNEXTLINE(readability-make-*)
void AcceptorSettings::fromAcceptorInfoList(const QList<AcceptorInfo>& infos)
{
    const QSet<int> fixedTypes = fixedDeviceTypes();
    // Of one type, the description that was inserted last comes first.
    QMultiMap<int, AcceptorInfo> infoByType;
    for (const AcceptorInfo& info : infos) {
        if (!fixedTypes.contains(info.type))
            infoByType.insert(info.type, info);
    }

    int firstIndex = devices.isEmpty() ? -1 : devices.firstKey();
    bool dropped = false;
    QList<QPair<int, AcceptorDeviceSettings*>> kept;
    for (auto entry = devices.constBegin(); entry != devices.constEnd(); ++entry) {
        AcceptorDeviceSettings* const device = entry.value();
        const bool fixed = device && fixedTypes.contains(device->type());
        if (!device || (!fixed && !infoByType.contains(device->type()))) {
            delete device;
            dropped = true;
            continue;
        }
        if (!fixed)
            device->setAcceptorInfo(infoByType.value(device->type()));
        kept.append({entry.key(), device});
        infoByType.remove(device->type());
        // A negative index counts as none: the next device that is kept takes its place.
        if (firstIndex < 0 || entry.key() < firstIndex)
            firstIndex = entry.key();
    }

    const bool renumber = firstIndex > 0 || dropped;
    devices.clear();
    for (const auto& [index, device] : std::as_const(kept))
        devices.insert(renumber ? int(devices.size()) : index, device);
    int index = devices.isEmpty() ? -1 : devices.lastKey();
    for (const AcceptorInfo& info : std::as_const(infoByType)) {
        do
            index = wrappingSum(index, 1);
        while (devices.contains(index));
        devices.insert(index, new AcceptorDeviceSettings(info));
    }
    deviceCount_ = int(devices.size());
}

QSet<int> AcceptorSettings::fixedDeviceTypes() const
{
    // Never destroyed: the destructor of a program's static object may ask.
    static const auto& fixedtypes = *new QSet<int>{Acceptors::PosD200, Acceptors::Uniteller};
    return fixedtypes;
}

QList<AcceptorInfo> AcceptorSettings::fixedDevices() const
{
    QList<AcceptorInfo> infos;
    for (const AcceptorDeviceSettings* const device : std::as_const(devices)) {
        if (device && fixedDeviceTypes().contains(device->type()))
            infos.append(device->toAcceptorInfo());
    }
    return infos;
}
