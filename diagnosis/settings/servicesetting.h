// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settingdescription.h"
#include "json/jsontext.h"

#include <QList>
#include <QString>

#include <optional>

/// "device2", or "device2/ccnet" with a sub-group.
QString deviceGroup(int device, const QString& subgroup = {});

/// The text as JSON of a type of QVariant; nothing where it would not mean the same in it.
std::optional<JsonText> jsonOfType(int type, const QString& text);

/// A setting that the service reads, one of its own or of one device.
class ServiceSetting : public SettingDescription
{
public:
    ServiceSetting() = default;

    /// The setting that is read under a group and a key, in any spelling that is read; not valid
    /// when nothing known reads them.
    static ServiceSetting find(const QString& group, const QString& key);

    /// The same for GROUP/KEY. Throws Fault, which names the nearest known path.
    static ServiceSetting require(const QString& path);

    /// Those that AcceptorSettings writes for a device or, without one, for the service, in its
    /// order.
    static QList<ServiceSetting> listed(std::optional<int> device);

    /// Of a device's those of a model and interface.
    static QList<ServiceSetting> ofDevice(int device, int model, const QString& interfaceType);

    /// The known path that is spelled most like this one, as nearestKnown() says it.
    static QString nearestKnown(const QString& path);

    /// Whether some setting is read in this group.
    static bool isGroupKnown(const QString& group);

    /// Whether the service reads it and no list of AcceptorSettings has it.
    bool isOfServiceAlone() const { return isValid() && !isWritten(); }

    /// Whether it stands only in the lists of certain models.
    bool isOfProtocol() const;

    /// The text as JSON of the type that it has in a list of AcceptorSettings; as text where it
    /// does not fit.
    JsonText listValue(const QString& text) const;

private:
    explicit ServiceSetting(const SettingDescription& description)
        : SettingDescription(description)
    {
    }
};
