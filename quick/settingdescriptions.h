// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "rowmodel.h"

/// The settings of the service, or with a device number those of that device, for configuration
/// screens. Roles: group and key (as the settings list has them), label and help (for people), kind
/// ("number", "switch", "text", "choice", "attemptsLimits" or "routeMap"), minimum and maximum (of
/// a number), choices (of a choice) and defaultValue (a text; undefined without one).
class SettingDescriptions : public RowModel
{
    Q_OBJECT
    QML_ELEMENT

    /// The number of the device in the settings list, from 0; below 0, the initial value, means the
    /// service.
    Q_PROPERTY(int device READ device WRITE setDevice NOTIFY deviceChanged)

    /// The model of that device, a number of the catalogue: only what applies to it is listed.
    Q_PROPERTY(int model READ model WRITE setModel NOTIFY modelChanged)

    /// "tcp"; any other text means that the device is at a serial port.
    Q_PROPERTY(
        QString interfaceType READ interfaceType WRITE setInterfaceType NOTIFY interfaceTypeChanged)

public:
    explicit SettingDescriptions(QObject* parent = nullptr);

    int device() const { return m_device; }
    void setDevice(int device) { set(m_device, device, &SettingDescriptions::deviceChanged); }
    int model() const { return m_model; }
    void setModel(int model) { set(m_model, model, &SettingDescriptions::modelChanged); }
    QString interfaceType() const { return m_interfaceType; }
    void setInterfaceType(const QString& type)
    {
        set(m_interfaceType, type, &SettingDescriptions::interfaceTypeChanged);
    }

    /// Whether the service can work with the value; false for a setting that there is none of.
    Q_INVOKABLE bool accepts(const QString& group, const QString& key, const QString& value) const;

    /// The value as the service reads it: 0 for what is no number, and so on.
    Q_INVOKABLE QString readAs(const QString& group, const QString& key,
                               const QString& value) const;

Q_SIGNALS:
    void deviceChanged();
    void modelChanged();
    void interfaceTypeChanged();

private:
    template <typename Value>
    void set(Value& field, const Value& value, void (SettingDescriptions::*changed)())
    {
        if (value == field)
            return;
        field = value;
        list();
        Q_EMIT(this->*changed)();
    }

    void list();

    int m_device = -1;
    int m_model = 0;
    QString m_interfaceType;
};
