// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorattemptfilteritem.h"
#include "acceptordevicesettings.h"
#include "settingdescription.h"
#include "velmolib_global.h"

#include <QList>
#include <QMap>
#include <QMutex>
#include <QSet>
#include <QString>
#include <QVariant>

/// The configuration of the acceptor service: one for the whole process, whichever object is used.
///
/// It travels in two forms. The settings list has a map {"group", "key", "value"} for each
/// setting; the formatted map has a map of settings for each group. A device's groups are
/// "device<index>/<sub-group>". Every textual setting enters through updateValue(): numbers are
/// read in base 10, a text that is no number reads as 0, and a switch is on when its text reads as
/// 1. Nothing reports an error: what is unknown is skipped.
///
/// setList(), setFotmattedMap() and setValue() exclude each other by a mutex. Everything else is
/// unguarded: who reads or changes the settings from several threads serialises those calls.
class VELMOLIB_EXPORT AcceptorSettings
{
public:
    /// How the service resets its statistics. The modes are the service's own numbers.
    enum ECleanStatistics : qint32 {
        CleanStatistics0 = 0,
        CleanStatistics1 = 1,
        CleanStatistics2 = 2,
        CleanStatistics3 = 3,
        CleanStatistics4 = 4
    };

    static const QString SERVICE_SECTION; ///< "service"
    static const QString DEVICE_SECTION; ///< "device"
    static const QString DISPENSER_SECTION; ///< "dispenser"
    static const QString DEVICE; ///< "device"
    static const QString DEVICE_ID; ///< "device_id"
    static const QString DEVICE_NAME; ///< "device_name"
    static const QString HARDWARE_SECTION; ///< "hw_interface"
    static const QString ACCEPTOR_COMMON_SECTION; ///< "acceptor_common"
    static const QString DEBUG_SECTION; ///< "debug"
    static const QString PORT_LOGGING; ///< "port_logging"
    static const QString INTERFACE_TYPE; ///< "interface_type"
    static const QString PORT_NAME; ///< "portname"
    static const QString PORT_BAUDRATE; ///< "baudrate"
    static const QString PORT_FLOW_CONTROL; ///< "flowcontrol"
    static const QString PORT_PARITY; ///< "parity"
    static const QString PORT_DATABITS; ///< "databits"
    static const QString PORT_STOPBIT; ///< "stopbits"
    static const QString ACCEPT_ALL; ///< "acceptAll"
    static const QString MAX_SUMM; ///< "maxSumm"
    static const QString DEVICE_COUNT; ///< "devices_count"
    static const QString RESET_IDLE_TIMEOUT; ///< "reset_idle_timeout"
    static const QString ATTEMPTS_FILTER; ///< "attempts_filter_settings"
    static const QString RESET_STATISTICS; ///< "reset_stats"
    static const QString UNITAILER_GROUP; ///< "uniteller_service"
    static const QString UNITAILER_ID; ///< "terminal_id"
    static const QString ROUTE_MAP; ///< "route_map"
    static const QString TCP_PORT; ///< "tcp_port"
    static const QString TCP_HOST; ///< "tcp_host"
    static const QString SM_G_POSD2000; ///< "posd200"
    static const QString SM_P_POSD2000_TIMEOUT_ACK; ///< "timeout_ack"
    static const QString SM_P_POSD2000_TIMEOUT_PACKET; ///< "timeout_packet"
    static const QString SM_P_POSD2000_COUNT_NAK; ///< "count_nak"
    static const QString SM_P_POSD2000_PACKET_SIZE; ///< "packet_size"
    static const QString SM_P_POSD2000_POS_ID; ///< "terminal_id"
    static const QString RESPONSE_TIME; ///< "response_time"
    static const QString POLLING_INTERVAL; ///< "polling_interval"
    static const QString BILL_TABLE_INTERVAL; ///< "bill_table_interval"
    static const QString RESET_INTERVAL; ///< "reset_interval"
    static const QString REST_INTERVAL; ///< "rest_interval"

    // Names of settings for clients; nothing here reads or writes them.
    static const QString MAPPED_RESET_IDDLE_TIMEOUT; ///< "RESET_IDDLE_TIMEOUT"
    static const QString MAPPED_RESET_STATISTICS; ///< "RESET_ACCEPTORS_STATISTICS"
    static const QString MAPPED_BILL_1000000_ATTEMPTS; ///< "BILL_1000000_ATTEMPTS"
    static const QString MAPPED_BILL_500000_ATTEMPTS; ///< "BILL_500000_ATTEMPTS"
    static const QString MAPPED_BILL_200000_ATTEMPTS; ///< "BILL_200000_ATTEMPTS"
    static const QString MAPPED_BILL_100000_ATTEMPTS; ///< "BILL_100000_ATTEMPTS"
    static const QString MAPPED_BILL_50000_ATTEMPTS; ///< "BILL_50000_ATTEMPTS"
    static const QString MAPPED_BILL_20000_ATTEMPTS; ///< "BILL_20000_ATTEMPTS"
    static const QString MAPPED_BILL_10000_ATTEMPTS; ///< "BILL_10000_ATTEMPTS"
    static const QString MAPPED_BILL_5000_ATTEMPTS; ///< "BILL_5000_ATTEMPTS"
    static const QString MAPPED_BILL_1000_ATTEMPTS; ///< "BILL_1000_ATTEMPTS"
    static const QString MAPPED_COIN_1000_ATTEMPTS; ///< "COIN_1000_ATTEMPTS"
    static const QString MAPPED_COIN_500_ATTEMPTS; ///< "COIN_500_ATTEMPTS"
    static const QString MAPPED_COIN_200_ATTEMPTS; ///< "COIN_200_ATTEMPTS"
    static const QString MAPPED_COIN_100_ATTEMPTS; ///< "COIN_100_ATTEMPTS"
    static const QString MAPPED_COIN_50_ATTEMPTS; ///< "COIN_50_ATTEMPTS"
    static const QString MAPPED_COIN_10_ATTEMPTS; ///< "COIN_10_ATTEMPTS"
    static const QString MAPPED_COIN_5_ATTEMPTS; ///< "COIN_5_ATTEMPTS"
    static const QString MAPPED_COIN_1_ATTEMPTS; ///< "COIN_1_ATTEMPTS"
    static const QString MAPPED_ANTIFISHING; ///< "ANTIFISHING"

    /// The devices by device index. The settings own the objects and delete them whenever they
    /// drop them.
    static QMap<int, AcceptorDeviceSettings*> devices;

    /// An object holds nothing: the configuration is there without it and outlives it.
    AcceptorSettings() = default;
    virtual ~AcceptorSettings();

    /// The route map as DRouteMap reads and writes it; empty until set.
    static QString routeMap();
    static void setRouteMap(const QString& routeMap);

    /// The configured number of devices, which need not be that of the device objects; -1 until
    /// set.
    static int deviceCount();
    static void setDeviceCount(int count);

    /// The idle time after which the service resets, in the service's own unit; 3600000 until set.
    static qint64 resetIdleTimeout();
    static void setResetIdleTimeout(qint64 timeout);

    /// How the service resets its statistics; CleanStatistics0 until set. The setter keeps any
    /// number; one that is read and is no mode becomes CleanStatistics0.
    static ECleanStatistics cleanStatistics();
    static void setCleanStatistics(const ECleanStatistics& mode);

    /// The maximum sum of a session, in the unit that the service uses; 0, until set, is no limit.
    static qint64 maxSumm();
    static void setMaxSumm(const qint64& sum);

    /// Whether all notes and coins are accepted; true until set.
    static bool acceptAll();
    static void setAcceptAll(bool acceptAll);

    /// Whether the devices' port traffic is logged; false until set.
    static bool portLogs();
    static void setPortLogs(bool portLogs);

    /// The anti-fishing limits, in the order in which they came; none until set.
    static QList<AcceptorAttemptFilterItem> attemptsFilter();
    static void setAttemptsFilter(const QList<AcceptorAttemptFilterItem>& limits);

    /// Changes the first limit of that denomination, or appends one.
    static void addAttemptsFilter(int denom, int attempts);

    /// What the settings list may hold, in its order: the settings of the service, then those of a
    /// device, whose groups are "device#/<sub-group>". May be called from any thread.
    static QList<SettingDescription> settingDescriptions();

    /// What is read under a group and a key, in any spelling that is read: its group and key are
    /// those that the settings list has. For a device the group is that of the concrete device;
    /// "ccnet" stands for the five protocol parameters, which are read in every sub-group. A
    /// description that is not valid means that the element is ignored. May be called from any
    /// thread.
    static SettingDescription settingDescription(const QString& group, const QString& key);

    /// Whether there is no device or the device count is below 1.
    static bool isEmpty();

    /// The settings list of the whole configuration. Its device count is the number of device
    /// objects. A device has only the protocol parameters of its type; mark parity is "none".
    QVariantList toList() const;

    /// Rebuilds the configuration from a settings list. All devices are deleted, and maximum sum,
    /// device count and statistics mode become 0; what else the list does not set stays. An
    /// element without "group" is skipped.
    void setList(const QVariantList& list);

    /// The formatted map. It shows the devices with an index from 0 to below the device count,
    /// without TCP endpoint, terminal identifier and protocol parameters.
    QVariantMap toFormattedMap() const;

    /// Applies a formatted map, then deletes every device with an index not below the device
    /// count.
    void setFotmattedMap(const QVariantMap& map);

    /// Applies one setting {"group", "key", "value"}.
    /// @return as updateValue(); false without "group"
    bool setValue(const QVariantMap& setting);

    /// Applies one setting. A group that contains "device" means the device whose index is the
    /// rest of the group; it is made when there is none. The caller sees to it that no other
    /// thread uses the settings.
    /// @return whether the group is a common one, or the sub-group "hw_interface" or "device";
    /// false for any other sub-group of a device, though its settings are applied
    bool updateValue(QString group, QString subgroup, QString key, QString value);

    /// Deletes the device at a position in ascending index order and takes one off the device
    /// count; the other devices keep their indexes. A position out of range does nothing.
    void removeDeviceByIndex(int position);

    /// Brings the devices in line with what the service found. Card terminals stay as they are
    /// (fixedDeviceTypes()); of the other devices, the first of each type takes the last
    /// description of its type, the rest are deleted; descriptions that are left become new
    /// devices at the end. Indexes are renumbered from 0 when the first that is not negative was
    /// above 0, a device was deleted or a null entry vanished. The device count becomes the number
    /// of devices.
    void fromAcceptorInfoList(const QList<AcceptorInfo>& infos);

    /// The catalogue identifiers of the card terminals. May be called from any thread.
    QSet<int> fixedDeviceTypes() const;

    /// The descriptions of the card terminals, in ascending index order.
    QList<AcceptorInfo> fixedDevices() const;

private:
    static QList<AcceptorAttemptFilterItem> attemptsFilter_;
    static qint64 maxSumm_;
    static bool acceptAll_;
    static bool portLogs_;
    static qint64 resetIdleTimeout_;
    static ECleanStatistics cleanStatistics_;
    static qint32 deviceCount_;
    static QString _routeMap;
    static QMutex settingsMutex_; // not recursive
};
