// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settingdescription.h"
#include "json/jsontext.h"

#include <QString>
#include <QVariant>

#include <optional>

/// The device that a group of the settings list belongs to; nothing for a group of the service and
/// for one that nothing reads.
std::optional<int> deviceOfGroup(const QString& group);

/// "device2", or "device2/ccnet" with a sub-group.
QString deviceGroup(int device, const QString& subgroup = {});

/// A setting that the service reads, one of its own or of one device. The library knows what it
/// is; a few settings, of which it has only the default, the service alone can check.
///
/// What the library does not say, it is asked by trying. That replaces the process's
/// AcceptorSettings.
class ServiceSetting
{
public:
    ServiceSetting() = default;

    /// The setting that is read under a group and a key, in any spelling that is read; not valid
    /// when nothing known reads them.
    static ServiceSetting find(const QString& group, const QString& key);

    /// The same for GROUP/KEY. Throws Fault, which names the nearest known path.
    static ServiceSetting require(const QString& path);

    /// Those that AcceptorSettings writes for a device, in its order, that of the model and
    /// interface; or those of the service.
    static QList<ServiceSetting> ofDevice(int device, int model, const QString& interfaceType);
    static QList<ServiceSetting> ofService();

    /// The known path that is spelled most like this one, as nearestKnown() says it.
    static QString nearestKnown(const QString& path);

    /// Whether some setting is read in this group.
    static bool isGroupKnown(const QString& group);

    bool isValid() const { return !m_key.isEmpty(); }

    /// As the settings list has them, whatever the spelling that was asked for.
    QString group() const { return m_group; }
    QString key() const { return m_key; }
    QString path() const { return m_group + QLatin1Char('/') + m_key; }
    std::optional<int> device() const { return m_device; }

    /// What the library knows; not valid where that is the default alone.
    const SettingDescription& description() const { return m_description; }

    /// Whether the service reads it and no list of AcceptorSettings has it.
    bool isOfServiceAlone() const { return m_storedDefault.isValid(); }

    /// Where its value is kept: settings of one device that are kept in the same place are read
    /// over each other, the last in the list counts.
    QString place() const;

    /// Whether it stands only in the lists of certain models.
    bool isOfProtocol() const;

    bool isFor(int model, const QString& interfaceType) const;

    /// The built-in default; invalid where there is none.
    QVariant defaultValue() const;

    /// What AcceptorSettings has when the list has none.
    QString unsetValue() const;

    QString readAs(const QString& value) const;
    bool accepts(const QString& value) const;

    /// The text as JSON of the type that it has in a list of AcceptorSettings; as text where it
    /// does not fit.
    JsonText listValue(const QString& text) const;

private:
    explicit ServiceSetting(const SettingDescription& description);

    QString m_group;
    QString m_key;
    std::optional<int> m_device;
    SettingDescription m_description;
    QVariant m_storedDefault; // of what no list of AcceptorSettings has
};
