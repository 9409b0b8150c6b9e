// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingsmanager.h"

#include "log_p.h"
#include "settingelement_p.h"
#include "settingstable_p.h"
#include "json/variants.h"

#include <algorithm>

namespace acceptorSettings {

using SM = SettingsManager;

const QString SM::SM_G_INTERFACE = QStringLiteral("hw_interface");
const QString SM::SM_P_INTERFACE_TYPE = QStringLiteral("interface_type");
const QString SM::SM_P_PORTNAME = QStringLiteral("portname");
const QString SM::SM_P_BAUDRATE = QStringLiteral("baudrate");
const QString SM::SM_P_DATABITS = QStringLiteral("databits");
const QString SM::SM_P_PARITY = QStringLiteral("parity");
const QString SM::SM_P_STOPBITS = QStringLiteral("stopbits");
const QString SM::SM_P_FLOWCONTROL = QStringLiteral("flowcontrol");
const QString SM::SM_P_TCP_HOST = QStringLiteral("tcp_host");
const QString SM::SM_P_TCP_PORT = QStringLiteral("tcp_port");

const QString SM::SM_G_DEBUG = QStringLiteral("debug");
const QString SM::SM_P_PORT_LOGGING = QStringLiteral("port_logging");

const QString SM::SM_G_DEVICE = QStringLiteral("device");
const QString SM::SM_P_DEVICE_ID = QStringLiteral("device_id");
const QString SM::SM_P_DEVICE_NAME = QStringLiteral("device_name");
const QString SM::SM_P_ACCEPT_ON_JAM = QStringLiteral("accept_on_jam");

const QString SM::SM_G_UNITELLER = QStringLiteral("uniteller_service");
const QString SM::SM_P_UNI_TERMINAL_ID = QStringLiteral("terminal_id");

const QString SM::SM_G_POSD2000 = QStringLiteral("posd200");
const QString SM::SM_P_POSD2000_TIMEOUT_ACK = QStringLiteral("timeout_ack");
const QString SM::SM_P_POSD2000_TIMEOUT_PACKET = QStringLiteral("timeout_packet");
const QString SM::SM_P_POSD2000_COUNT_NAK = QStringLiteral("count_nak");
const QString SM::SM_P_POSD2000_PACKET_SIZE = QStringLiteral("packet_size");
const QString SM::SM_P_POSD2000_POS_ID = QStringLiteral("terminal_id");

const QString SM::SM_G_CCNET = QStringLiteral("ccnet");
const QString SM::SM_P_CCNET_RESPONSE_TIME = QStringLiteral("response_time");
const QString SM::SM_P_CCNET_POLLING_INTERVAL = QStringLiteral("polling_interval");
const QString SM::SM_P_CCNET_BILL_TABLE_INTERVAL = QStringLiteral("bill_table_interval");
const QString SM::SM_P_CCNET_RESET_INTERVAL = QStringLiteral("reset_interval");
const QString SM::SM_P_CCNET_REST_INTERVAL = QStringLiteral("rest_interval");

const QString SM::SM_G_ID003 = QStringLiteral("id003");
const QString SM::SM_P_ID003_RESPONSE_TIME = QStringLiteral("response_time");
const QString SM::SM_P_ID003_REST_INTERVAL = QStringLiteral("rest_interval");
const QString SM::SM_P_ID003_POLLING_INTERVAL = QStringLiteral("polling_interval");

const QString SM::SM_G_ICT = QStringLiteral("ict");
const QString SM::SM_P_ICT_RESET_TIMEOUT = QStringLiteral("reset_timeout");

const QString SM::SM_G_SSP = QStringLiteral("ssp");
const QString SM::SM_P_SSP_RESPONSE_TIME = QStringLiteral("response_time");
const QString SM::SM_P_SSP_REST_INTERVAL = QStringLiteral("rest_interval");
const QString SM::SM_P_SSP_GET_LEVELS_REST_TIME = QStringLiteral("get_levels_rest_time");
const QString SM::SM_P_SSP_PAYOUT_REST_TIME = QStringLiteral("payout_rest_time");
const QString SM::SM_P_SSP_LOG_DECRYPTED_MSG = QStringLiteral("log_decrypted_msg");

const QString SM::SM_G_DISPENSER = QStringLiteral("dispenser");
const QString SM::SM_P_ROUTE_MAP = QStringLiteral("route_map");

const QString SM::SM_G_SERVICE = QStringLiteral("service");
const QString SM::SM_P_DEVICES_CNT = QStringLiteral("devices_count");
const QString SM::SM_P_RESET_AFTER_EMPTY_SESSIONS = QStringLiteral("reset_after_empty_sessions");
const QString SM::SM_P_RESET_IDLE_TIMEOUT = QStringLiteral("reset_idle_timeout");

SettingsManager* SettingsManager::_instance = nullptr;

namespace {

// Null where the store has none. The groups of the table are plain: none is that of one device.
const char* defaultText(const QString& group, const QString& param)
{
    // Of the common acceptance settings the model alone has defaults.
    if (group == AcceptorSettings::ACCEPTOR_COMMON_SECTION)
        return nullptr;
    for (const auto rows : {SettingsTable::serviceSettings, SettingsTable::deviceSettings,
                            SettingsTable::storeSettings}) {
        for (const SettingRow& row : rows) {
            if (group == row.group && param == row.keys.list)
                return row.defaultText;
        }
    }
    return nullptr;
}

} // namespace

SettingsItem::SettingsItem(QString groupName, QString settingName, QVariant settingValue)
    : group(std::move(groupName))
    , name(std::move(settingName))
    , value(std::move(settingValue))
{
}

SettingsManager::SettingsManager()
    : items(std::make_unique<QList<SettingsItem>>())
{
}

SettingsManager::~SettingsManager() = default;

QString SettingsManager::getDeviceGroupName(const int& device, const QString& group) const
{
    return QStringLiteral("device%1/%2").arg(QString::number(device), group);
}

SettingsItem* SettingsManager::addItem(const QString& group, const QString& name,
                                       const QVariant& value)
{
    items->append(SettingsItem(group, name, value));
    return &items->last();
}

SettingsItem* SettingsManager::addItem(int device, const QString& group, const QString& name,
                                       const QVariant& value)
{
    return addItem(getDeviceGroupName(device, group), name, value);
}

SettingsItem* SettingsManager::find(const QString& group, const QString& name) const
{
    const auto item =
        std::find_if(items->begin(), items->end(), [&group, &name](const SettingsItem& i) {
            return i.group == group && i.name == name;
        });
    return item == items->end() ? nullptr : &*item;
}

SettingsItem* SettingsManager::find(int device, const QString& group, const QString& name) const
{
    return find(getDeviceGroupName(device, group), name);
}

QVariant SettingsManager::getValue(const QString& group, const QString& name,
                                   bool* usedDefault) const
{
    const SettingsItem* const item = find(group, name);
    if (usedDefault)
        *usedDefault = !item;
    return item ? item->value : getDefault(group, name);
}

QVariant SettingsManager::getValue(int device, const QString& group, const QString& name,
                                   bool* usedDefault) const
{
    const SettingsItem* const item = find(device, group, name);
    if (usedDefault)
        *usedDefault = !item;
    return item ? item->value : getDefault(group, name);
}

bool SettingsManager::isExists(const QString& group, const QString& name) const
{
    return find(group, name);
}

bool SettingsManager::isExists(int device, const QString& group, const QString& name) const
{
    return find(device, group, name);
}

void SettingsManager::insUpdItem(const QString& group, const QString& name, const QVariant& value)
{
    if (SettingsItem* const item = find(group, name))
        item->value = value;
    else
        addItem(group, name, value);
}

void SettingsManager::insUpdItem(int device, const QString& group, const QString& name,
                                 const QVariant& value)
{
    insUpdItem(getDeviceGroupName(device, group), name, value);
}

void SettingsManager::clear()
{
    items->clear();
}

int SettingsManager::count() const
{
    return static_cast<int>(items->size());
}

bool SettingsManager::isLoaded() const
{
    return loaded;
}

QVariant SettingsManager::getDefault(QString group, QString param) const
{
    if (const char* const text = defaultText(group, param))
        return QString::fromLatin1(text);
    qCritical().noquote()
        << QStringLiteral("Default settings not found for param %1 in group %2").arg(param, group);
    return false;
}

bool SettingsManager::load(const quorbus::ClientSettings& settings)
{
    logDebug() << QStringLiteral("Parsing settings list...");
    clear();
    const QList<QVariant> list = settings.settings();
    for (const QVariant& element : list) {
        const QVariantMap map = Variants::toMap(element);
        const SettingsItem* const item =
            addItem(Variants::toString(map.value(SettingElement::groupKey)),
                    Variants::toString(map.value(SettingElement::nameKey)),
                    map.value(SettingElement::valueKey));
        logDebug() << QStringLiteral("Added [%1/%2 = %3]")
                          .arg(item->group, item->name, Variants::toString(item->value));
    }
    loaded = true;
    return true;
}

QList<QVariant> SettingsManager::toList() const
{
    QList<QVariant> list;
    for (const SettingsItem& item : std::as_const(*items))
        list.append(SettingElement::of(item.group, item.name, item.value));
    return list;
}

} // namespace acceptorSettings
