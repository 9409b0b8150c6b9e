// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QString>
#include <QStringList>
#include <QVariant>

#include <optional>

struct SettingRow;

/// What a configuration tool needs to know about one setting of the acceptor service to show it, to
/// ask for it and to check it. AcceptorSettings::settingDescriptions() and settingDescription()
/// give them, and find() here; a default-constructed one describes nothing.
///
/// A description is a small value that never changes. Different threads may use copies of it at the
/// same time.
class VELMOLIB_EXPORT SettingDescription
{
public:
    /// What a value is. All of them travel as text or as what QVariant turns into that text.
    enum Kind : qint32 {
        NoSetting, ///< nothing is described
        Number, ///< an integer from minimum() to maximum()
        Switch, ///< 1 is on; anything else is off
        Text, ///< any text
        Choice, ///< one of choices()
        AttemptsLimits, ///< a JSON array of {"denom": number, "attempts": number}
        RouteMap ///< empty, or a JSON array of rows as DRouteMap reads them
    };

    SettingDescription() = default; ///< describes nothing

    /// What the service reads under a group and a key. Beside what
    /// AcceptorSettings::settingDescription() describes these are the settings that
    /// SettingsManager::getDefault() alone knows, "service/reset_after_empty_sessions" and of a
    /// device "accept_on_jam" and the groups "ict" and "ssp", in this very spelling; in any other,
    /// and for any other key, the answer is that of settingDescription(). Of most of them the
    /// library has only the default: they accept any Text and have no label. May be called from any
    /// thread.
    static SettingDescription find(const QString& group, const QString& key);

    /// The index of the device that a group of the settings list belongs to, whatever its
    /// sub-group: 2 for "device2/ccnet", 0 where the rest of the name is no number. Nothing for the
    /// service's groups and for those that nothing reads.
    static std::optional<int> deviceOf(const QString& group);

    /// Whether a setting is described. Everything else is empty, false or invalid if none is.
    bool isValid() const { return m_row; }

    /// The group as the settings list has it: that of the service, for example "service", or that
    /// of a device, "device2/ccnet"; "device#/ccnet" where no device was named.
    QString group() const { return m_group; }

    /// The index of the device that the setting belongs to, any int; nothing for a setting of the
    /// service and where no device was named.
    std::optional<int> device() const;

    /// The same setting of this device; one of the service stays what it is.
    SettingDescription forDevice(int device) const;

    /// The key as the settings list has it, whatever the spelling that was asked for.
    QString key() const;

    /// The group and the key with a slash between them.
    QString path() const;

    /// Where AcceptorSettings keeps the value: the path of the first of settingDescriptions() that
    /// is kept there, whether or not the device's list has it; the own path of what is not read.
    /// Settings of one device that have the same place are read over each other, and the last of
    /// them in a list counts. Most have a place of their own.
    QString place() const;

    /// What the value is.
    Kind kind() const;

    /// The range of a Number, within which the service works; qlonglong, and invalid for any other
    /// kind. The model itself takes what lies outside.
    QVariant minimum() const;
    QVariant maximum() const;

    /// The texts of a Choice as the settings list has them; empty for any other kind.
    QStringList choices() const;

    /// The built-in default as text; invalid where there is none. It is that of
    /// SettingsManager::getDefault(), in the group "acceptor_common" that of a new
    /// AcceptorSettings. A default that accepts() refuses stands for nothing: a device needs a
    /// model and an address.
    QVariant defaultValue() const;

    /// What AcceptorSettings writes where nothing was ever set, with the type that its list has;
    /// for a device that of a new AcceptorDeviceSettings, which may differ from defaultValue(). Of
    /// a setting that no list has it is defaultValue(). It asks nothing of the configuration.
    QVariant unsetValue() const;

    QString label() const; ///< translated
    QString help() const; ///< translated, one line

    /// Whether settings lists that AcceptorSettings writes may have the setting. Those for which it
    /// is false only find() describes.
    bool isWritten() const;

    /// Whether AcceptorSettings reads the setting. It does not read a device's "port_logging": the
    /// service does, and what AcceptorSettings writes there is the service's own switch.
    bool isRead() const;

    /// Whether the settings list that AcceptorSettings writes has the setting for a device of this
    /// model; true for the settings of the service and for what no list has.
    /// @param model Acceptors::Supported, or any other number
    /// @param interfaceType "tcp"; any other text means a serial port
    bool appliesTo(int model, const QString& interfaceType) const;

    /// The value as AcceptorSettings would write it into a settings list after reading this text:
    /// the text itself, 0 for what is no number, the choice that stands in for what is none.
    QString readAs(const QString& value) const;

    /// Whether the text is read as what it says and the service can work with it: a Number in its
    /// range, a Switch that is 0 or 1, one of the choices in any spelling that means it, limits
    /// with both numbers 1 or more, routes of which no row is dropped, a serial port or TCP host
    /// that is not empty. A device's "port_logging" may be true or false as well.
    bool accepts(const QString& value) const;

private:
    friend class AcceptorSettings;
    SettingDescription(const SettingRow* row, const QString& group)
        : m_row(row)
        , m_group(group)
    {
    }

    const SettingRow* m_row = nullptr;
    QString m_group;
};
