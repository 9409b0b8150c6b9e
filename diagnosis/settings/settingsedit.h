// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/arrayfile.h"
#include "settings/devicenumbering.h"
#include "settings/settingscheck.h"
#include "settings/settingslist.h"

#include <QMap>
#include <QStringList>

#include <optional>

/// A setting and the value that it is to have.
struct Assignment
{
    QString path;
    QString value;

    /// Reads "PATH=VALUE". Throws Fault without "=".
    static Assignment parse(const QString& text);
};

/// Changes a settings list in its text: what need not change, stays to the byte. Every function
/// throws Fault when the list does not have what it speaks of.
class SettingsEdit
{
public:
    /// A setting that is changed, added or removed; a value that there is not is invalid.
    struct Change
    {
        QString path;
        QVariant before;
        QVariant after;
        QString from; ///< the setting whose value an added one has taken over; empty for none
        int elements = 1; ///< how many were removed
        bool wasDoubled = false; ///< whether the element had several values, of which some changed
    };

    explicit SettingsEdit(const ArrayFile& file);

    /// Sets the values where they count, the models and interfaces of devices first. What a device
    /// then has no use for is removed, what it needs is added: a setting of the same key keeps its
    /// value, any other gets its built-in default. The model of the next device adds that device.
    void set(const QList<Assignment>& assignments);

    /// Removes every element that sets the setting.
    void unset(const QString& path);

    /// Adds a device with the built-in defaults of its model at the first free index and raises
    /// the device count to have it in.
    /// @param model its number or name in the catalogue
    /// @param assignments keys of the device's settings, with or without their sub-group
    void addDevice(const QString& model, const QList<Assignment>& assignments);

    /// Removes a device, gives those behind it the index before theirs and lowers the device count.
    void removeDevice(int device);

    /// Gives a device the index of another. That one and those between them get the index of their
    /// neighbour; every element stays where it stands.
    void moveDevice(int device, int to);

    const ArrayFile& file() const { return m_file; }

    QList<Change> changes() const;

    /// What else people should know, a sentence each.
    QStringList remarks() const { return m_remarks; }

    /// What check finds in the list that it did not find before.
    QList<SettingsFinding> newFindings() const
    {
        return ::newFindings(m_original, m_file, m_numbering);
    }

private:
    /// The value that an added setting begins with, and the setting that it is taken over from.
    struct Start
    {
        QString value;
        QString from;
    };

    SettingsList list() const { return SettingsList(m_file); }

    void setValue(const ServiceSetting& asked, const QString& value);
    void setElement(const SettingsList& list, int element, const ServiceSetting& setting,
                    const QString& value);
    void insert(const ServiceSetting& setting, const Start& start);
    int positionFor(const ServiceSetting& setting) const;
    void remove(const SettingsList& list, const QVector<int>& elements);
    void setUp(int device, const SettingsList& before);
    Start startOf(const ServiceSetting& setting, const SettingsList& before);
    void makeDevice(int device, int model, const QList<Assignment>& assignments);
    void renumber(const SettingsList& list, const DeviceNumbering& numbering);
    ServiceSetting settingOfDevice(int device, const QString& key) const;
    void requireDevice(int device) const;
    void requireListed(const SettingsList& list, int device) const;
    Change& record(const QString& path, const QVariant& before, const QVariant& after,
                   const QString& from = {});

    const ArrayFile m_original;
    ArrayFile m_file;
    QMap<QString, int> m_changeOfPath; // indexes into m_changes
    QList<Change> m_changes;
    QStringList m_remarks;
    DeviceNumbering m_numbering; // of the original's devices
};
