// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorsettings.h"
#include "serialporttexts_p.h"
#include "settingdescription.h"

#include <QStringBuilder>

/// One setting of the acceptor service, with all that the library knows about it.
///
/// A row is a constant without constructor or destructor: its texts are references to key
/// constants, so that it does not matter in which order the library's constants are made and
/// destroyed.
struct SettingRow
{
    using Device = AcceptorDeviceSettings;
    using Form = SerialPortTexts::Form;

    enum KeyCase : qint32 { ExactKey, KeyInAnyCase };

    /// How the setting is called.
    struct Keys
    {
        const QString& list; ///< in the list form
        const QString& map; ///< in the formatted map; empty: it is not there
        const QString& other; ///< also read, in lower case; the list's key where there is none
        KeyCase keyCase;
    };

    enum Port : qint32 { AnyPort, SerialPort, TcpPort };

    /// The devices in whose settings list it stands; the formatted map shows every device alike.
    struct Devices
    {
        bool (*hasModel)(int model); ///< Acceptors::Supported; null: any
        Port port;
        bool readInAnySubgroup = false; ///< and for any model
    };

    /// How it is written and read. The device is null for the service's settings.
    struct Access
    {
        QVariant (*value)(Form form, const Device* device); ///< null: it is never written
        /// Null: it is never read. Settings that share it are kept in the same place.
        void (*set)(Device* device, const QString& text);
        /// What the list form has after the text was read.
        /// @param isUnderstood set to whether it means what the text says, unless it is null
        QVariant (*readAs)(const QString& text, bool* isUnderstood);
    };

    /// Which values the service can work with.
    struct Values
    {
        SettingDescription::Kind kind;
        qint64 minimum = 0;
        qint64 maximum = 0;
        QStringList (*choices)() = nullptr;
    };

    bool isCalled(const QString& key) const
    {
        return isEqual(key, keys.list)
            || (keys.keyCase == KeyInAnyCase
                && (isEqualInLowerCase(key, keys.list) || isEqualInLowerCase(key, keys.other)));
    }

    const QString& key(Form form) const
    {
        return form == SerialPortTexts::ListForm ? keys.list : keys.map;
    }

    /// Whether the list form has it for a device of this model and interface.
    bool isFor(int model, const QString& interfaceType) const;

    // Most are told apart by their length, which needs no call.
    static bool isEqual(const QString& a, const QString& b)
    {
        return a.size() == b.size() && a == b;
    }

    // What becomes ASCII in lower case keeps its length.
    static bool isEqualInLowerCase(const QString& key, const QString& ascii)
    {
        return key.size() == ascii.size() && key.toLower() == ascii;
    }

    const QString& group; ///< the service's group, or the sub-group of each device
    Keys keys;
    Devices devices;
    Access access;
    Values values;
    const char* defaultText; ///< null: none
    const char* label = nullptr; ///< not translated; null: only the service knows what it means
    const char* help = nullptr; ///< the same
};

/// The settings of the acceptor service, each of them once. A new setting is one row.
namespace SettingsTable {

struct Rows
{
    const SettingRow* first;
    const SettingRow* last;

    const SettingRow* begin() const { return first; }
    const SettingRow* end() const { return last; }
};

/// In the order of the list form.
extern const Rows serviceSettings;

/// The settings of each device, in the order of the list form.
extern const Rows deviceSettings;

/// What only the service knows, of its own and of each device: no list form has them.
extern const Rows storeSettings;

/// The first setting that is kept where this one is: of the two, a device has what was read last.
const SettingRow& placeOf(const SettingRow& row);

/// "device2/ccnet" for a device and a sub-group.
inline QString deviceGroup(const QString& index, const QString& subgroup)
{
    return AcceptorSettings::DEVICE % index % QLatin1Char('/') % subgroup;
}

} // namespace SettingsTable

/// What a group path means.
class SettingGroup
{
public:
    /// A part of the path that is missing is empty; parts beyond the second do not count.
    explicit SettingGroup(const QString& path);
    SettingGroup(const QString& group, const QString& subgroup);

    bool isOfService() const { return m_kind == OfService; }
    bool isOfDevice() const { return m_kind == OfDevice; }

    int deviceIndex() const { return m_deviceIndex; }

    /// The service's group, or the sub-group of the device.
    QString name() const { return m_name; }

    /// The setting that is read under a key; null where there is none.
    /// @param likely is looked at first: the row after one that this group had found, or null
    const SettingRow* find(const QString& key, const SettingRow* likely = nullptr) const;

private:
    enum Kind : qint32 { OfNone, OfService, OfDevice };

    Kind m_kind = OfNone;
    int m_deviceIndex = 0;
    QString m_name;
};
