// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/arrayfile.h"
#include "settings/servicesetting.h"

#include <QHash>
#include <QMap>
#include <QVector>

/// Reads a settings list: a list of which at least one element is a known setting. Throws Fault for
/// a file that is none and says what it looks like.
ArrayFile readSettingsFile(TextInput& input);

/// A settings list as the service would use it. What AcceptorSettings makes of it, with two
/// differences: it has the device count that the list says, and each device's own port log, which
/// the service reads.
class SettingsList
{
public:
    /// One element of the list.
    struct Element
    {
        bool hasGroup = false;
        QString group;
        QString key;
        QVariant value;
        std::optional<int> device;
        ServiceSetting setting; ///< not valid when nothing known reads the element

        QString path() const { return group + QLatin1Char('/') + key; }
        QString text() const { return value.toString(); } ///< as it is read
    };

    /// One setting and the value that the service would use.
    struct Used
    {
        ServiceSetting setting;
        QVariant value; ///< a text; invalid where neither list nor default has one
        int element = -1; ///< the list's; -1 for the default
        /// Whether the service has the setting for the device's model and interface. An element
        /// for another one is read all the same.
        bool isForDevice = true;

        bool isListed() const { return element >= 0; }
        /// Whether who reads the list with SettingsManager and who reads it into AcceptorSettings
        /// have the same value.
        bool isCertain() const { return isListed() || value == setting.unsetValue().toString(); }
    };

    explicit SettingsList(const ArrayFile& file);

    const QVector<Element>& elements() const { return m_elements; }

    /// The service's, then each device's, in the order of the library's list.
    const QVector<Used>& used() const { return m_used; }

    /// What counts for a setting in any of its spellings; one that is neither in the list nor for
    /// the device has no value.
    Used used(const ServiceSetting& setting) const;

    /// Every device that the list names, with its first element.
    const QMap<int, int>& devices() const { return m_devices; }

    int deviceCount() const;
    int model(int device) const; ///< 0 without one
    QString interfaceType(int device) const;

    /// The index of a further device: the first that is free.
    int nextDevice() const;

private:
    void add(const ServiceSetting& setting, bool isForDevice);
    QString valueOf(int device, const QString& subgroup, const QString& key) const;

    QVector<Element> m_elements;
    QVector<Used> m_used;
    QMap<int, int> m_devices;
    QHash<QString, int> m_lastElements; // by place
    QHash<QString, int> m_usedOfPlace; // indexes into m_used
};
