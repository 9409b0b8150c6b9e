// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "languagewatch.h"
#include "rowmodel.h"

/// The settings of the service, or with a device number those of that device, for configuration
/// screens. Roles: group, key and path (as the settings list has them; path is both with a slash
/// between them), label and help (for people, in the language that is shown), kind ("number",
/// "switch", "text", "choice", "attemptsLimits" or "routeMap"), minimum and maximum (of a number),
/// choices (of a choice), defaultValue (a text; undefined without one), value (the text given, else
/// the default, else empty), isDefault (none was given, or the same text as the default) and valid
/// (whether the service can work with the value).
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

    /// The texts given, by path, for example {"device2/ccnet/response_time": "20"}. Those of
    /// settings that are not listed stay as they are.
    Q_PROPERTY(QVariantMap values READ values WRITE setValues NOTIFY valuesChanged)

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

    QVariantMap values() const { return m_values; }
    void setValues(const QVariantMap& values)
    {
        set(m_values, values, &SettingDescriptions::valuesChanged);
    }

    /// Gives the setting this text, as an editor of it does. A setting that there is none of, and a
    /// text that it was given already, change nothing.
    Q_INVOKABLE void setValue(const QString& group, const QString& key, const QString& text);

    /// Whether the service can work with the value; false for a setting that there is none of.
    Q_INVOKABLE bool accepts(const QString& group, const QString& key, const QString& value) const;

    /// The value as the service reads it: 0 for what is no number, and so on.
    Q_INVOKABLE QString readAs(const QString& group, const QString& key,
                               const QString& value) const;

Q_SIGNALS:
    void deviceChanged();
    void modelChanged();
    void interfaceTypeChanged();
    void valuesChanged();

    /// setValue() changed the text, after which values has it.
    void valueEdited(const QString& group, const QString& key, const QString& text);

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
    QVariantMap m_values;
    LanguageWatch m_language;
};
