// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <quorbus/clientsettings.h>

#include <QList>
#include <QString>
#include <QVariant>

#include <memory>

namespace acceptorSettings {

/// One setting: a value of any type under a group and a name.
struct VELMOLIB_EXPORT SettingsItem
{
    SettingsItem() = default; ///< an invalid value under empty names

    /// Takes the three as they are.
    SettingsItem(QString groupName, QString settingName, QVariant settingValue);

    QString group; ///< plain ("ccnet") or of one device ("device2/ccnet")
    QString name; ///< the setting within its group
    QVariant value; ///< with the type that it came with
};

/// The acceptor service's settings as a client keeps them: a flat list with built-in defaults for
/// what it does not hold.
///
/// A function that takes a device works on the device's group, getDeviceGroupName().
/// Entries keep their order. Two entries may have the same group and name; lookups find the first.
/// Groups and names are compared with case. Every lookup walks the list; there is no lock, so that
/// the calls on one manager come from one thread at a time.
class VELMOLIB_EXPORT SettingsManager
{
public:
    static const QString SM_G_INTERFACE; ///< "hw_interface"
    static const QString SM_P_INTERFACE_TYPE; ///< "interface_type"
    static const QString SM_P_PORTNAME; ///< "portname"
    static const QString SM_P_BAUDRATE; ///< "baudrate"
    static const QString SM_P_DATABITS; ///< "databits"
    static const QString SM_P_PARITY; ///< "parity"
    static const QString SM_P_STOPBITS; ///< "stopbits"
    static const QString SM_P_FLOWCONTROL; ///< "flowcontrol"
    static const QString SM_P_TCP_HOST; ///< "tcp_host"
    static const QString SM_P_TCP_PORT; ///< "tcp_port"

    static const QString SM_G_DEBUG; ///< "debug"
    static const QString SM_P_PORT_LOGGING; ///< "port_logging"

    static const QString SM_G_DEVICE; ///< "device"
    static const QString SM_P_DEVICE_ID; ///< "device_id"
    static const QString SM_P_DEVICE_NAME; ///< "device_name"
    static const QString SM_P_ACCEPT_ON_JAM; ///< "accept_on_jam"

    static const QString SM_G_UNITELLER; ///< "uniteller_service"
    static const QString SM_P_UNI_TERMINAL_ID; ///< "terminal_id"

    static const QString SM_G_POSD2000; ///< "posd200", without the last zero
    static const QString SM_P_POSD2000_TIMEOUT_ACK; ///< "timeout_ack"
    static const QString SM_P_POSD2000_TIMEOUT_PACKET; ///< "timeout_packet"
    static const QString SM_P_POSD2000_COUNT_NAK; ///< "count_nak"
    static const QString SM_P_POSD2000_PACKET_SIZE; ///< "packet_size"
    static const QString SM_P_POSD2000_POS_ID; ///< "terminal_id"

    static const QString SM_G_CCNET; ///< "ccnet"
    static const QString SM_P_CCNET_RESPONSE_TIME; ///< "response_time"
    static const QString SM_P_CCNET_POLLING_INTERVAL; ///< "polling_interval"
    static const QString SM_P_CCNET_BILL_TABLE_INTERVAL; ///< "bill_table_interval"
    static const QString SM_P_CCNET_RESET_INTERVAL; ///< "reset_interval"
    static const QString SM_P_CCNET_REST_INTERVAL; ///< "rest_interval"

    static const QString SM_G_ID003; ///< "id003"
    static const QString SM_P_ID003_RESPONSE_TIME; ///< "response_time"
    static const QString SM_P_ID003_REST_INTERVAL; ///< "rest_interval"
    static const QString SM_P_ID003_POLLING_INTERVAL; ///< "polling_interval"

    static const QString SM_G_ICT; ///< "ict"
    static const QString SM_P_ICT_RESET_TIMEOUT; ///< "reset_timeout"

    static const QString SM_G_SSP; ///< "ssp"
    static const QString SM_P_SSP_RESPONSE_TIME; ///< "response_time"
    static const QString SM_P_SSP_REST_INTERVAL; ///< "rest_interval"
    static const QString SM_P_SSP_GET_LEVELS_REST_TIME; ///< "get_levels_rest_time"
    static const QString SM_P_SSP_PAYOUT_REST_TIME; ///< "payout_rest_time"
    static const QString SM_P_SSP_LOG_DECRYPTED_MSG; ///< "log_decrypted_msg"

    static const QString SM_G_DISPENSER; ///< "dispenser"
    static const QString SM_P_ROUTE_MAP; ///< "route_map"

    static const QString SM_G_SERVICE; ///< "service"
    static const QString SM_P_DEVICES_CNT; ///< "devices_count"
    static const QString SM_P_RESET_AFTER_EMPTY_SESSIONS; ///< "reset_after_empty_sessions"
    static const QString SM_P_RESET_IDLE_TIMEOUT; ///< "reset_idle_timeout"

    /// A place for the one manager of a program that wants one. The library neither sets, reads
    /// nor deletes it; null until the program sets it.
    static SettingsManager* _instance;

    /// An empty manager that is not loaded.
    SettingsManager();
    virtual ~SettingsManager();

    /// The group of a device's settings: "device2/ccnet" for device 2 and "ccnet".
    QString getDeviceGroupName(const int& device, const QString& group) const;

    /// Appends an entry, whether or not there is one of that group and name.
    /// @return the entry, which is valid until the manager is next changed
    SettingsItem* addItem(const QString& group, const QString& name, const QVariant& value);
    SettingsItem* addItem(int device, const QString& group, const QString& name,
                          const QVariant& value);

    /// The first entry of that group and name, valid until the manager is next changed; null
    /// without one.
    SettingsItem* find(const QString& group, const QString& name) const;
    SettingsItem* find(int device, const QString& group, const QString& name) const;

    /// The value of the first entry, even an invalid one; without an entry the built-in default.
    /// @p usedDefault receives whether there was no entry; it may be null.
    QVariant getValue(const QString& group, const QString& name, bool* usedDefault = nullptr) const;

    /// The same for a device's entry; the default is that of the plain group.
    QVariant getValue(int device, const QString& group, const QString& name,
                      bool* usedDefault = nullptr) const;

    /// Whether there is an entry of that group and name; defaults do not count.
    bool isExists(const QString& group, const QString& name) const;
    bool isExists(int device, const QString& group, const QString& name) const;

    /// Sets the value of the first entry of that group and name, or appends one.
    void insUpdItem(const QString& group, const QString& name, const QVariant& value);
    void insUpdItem(int device, const QString& group, const QString& name, const QVariant& value);

    /// Removes every entry; isLoaded() stays.
    void clear();

    /// The number of entries, those of the same group and name included.
    int count() const;

    /// Whether load() was ever called.
    bool isLoaded() const;

    /// The built-in default, a text, of a setting in a plain group. Without one: a critical log
    /// line and the boolean false.
    QVariant getDefault(QString group, QString param) const;

    /// Replaces the entries by those of the settings list, maps {"group", "key", "value"}. None is
    /// skipped: a missing group or key reads as an empty text. Logs each at debug level.
    /// @return true
    bool load(const quorbus::ClientSettings& settings);

    /// The entries in the settings list form, values as they are.
    QList<QVariant> toList() const;

private:
    Q_DISABLE_COPY(SettingsManager)

    std::unique_ptr<QList<SettingsItem>> items;
    bool loaded = false;
};

} // namespace acceptorSettings
