// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settings/settingslist.h"

#include "acceptorsettings.h"
#include "text/diagnosis.h"

#include <QJsonObject>

#include <algorithm>

namespace {

using S = AcceptorSettings;

bool hasSettings(const QJsonArray& elements)
{
    return std::any_of(elements.begin(), elements.end(), [](const QJsonValue& element) {
        const QJsonObject object = element.toObject();
        const QString group = object.value(QStringLiteral("group")).toString();
        return S::settingDescription(group, object.value(QStringLiteral("key")).toString())
            .isValid();
    });
}

// What people mistake for a settings list, by a key of its objects.
const struct
{
    const char* key;
    const char* kind;
} lookalikes[] = {
    {"device_states", QT_TRANSLATE_NOOP("Diagnosis", "a service state")},
    {"acceptor_common", QT_TRANSLATE_NOOP("Diagnosis", "a formatted settings map")},
    {"service", QT_TRANSLATE_NOOP("Diagnosis", "a formatted settings map")},
    {"session", QT_TRANSLATE_NOOP("Diagnosis", "a session log")},
    {"state", QT_TRANSLATE_NOOP("Diagnosis", "a device state or a line of a session log")},
    {"params", QT_TRANSLATE_NOOP("Diagnosis", "a filters file")},
    {"path", QT_TRANSLATE_NOOP("Diagnosis", "what velmo settings show --json prints")},
    {"denomination", QT_TRANSLATE_NOOP("Diagnosis", "a route map")},
    {"denom", QT_TRANSLATE_NOOP("Diagnosis", "a list of anti-fishing limits")},
    {"protocol", QT_TRANSLATE_NOOP("Diagnosis", "the catalogue of devices")},
    {"name", QT_TRANSLATE_NOOP("Diagnosis", "a filters file")},
};

QString likely(const QJsonObject& object)
{
    const auto found =
        std::find_if(std::begin(lookalikes), std::end(lookalikes), [&object](const auto& row) {
            return object.contains(QLatin1String(row.key));
        });
    return found == std::end(lookalikes) ? QString() : Diagnosis::tr(found->kind);
}

QString likely(const QByteArray& text)
{
    const QJsonDocument document = QJsonDocument::fromJson(text);
    if (document.isArray() && document.array().isEmpty())
        return Diagnosis::tr("an empty list");
    if (document.isArray())
        return likely(document.array().at(0).toObject());
    if (document.isObject())
        return likely(document.object());
    // Not JSON as a whole, but perhaps each line is.
    const QByteArray line = text.left(text.indexOf('\n')).trimmed();
    return QJsonDocument::fromJson(line).isObject() ? Diagnosis::tr("a session log") : QString();
}

} // namespace

ArrayFile readSettingsFile(TextInput& input)
{
    const QByteArray text = input.readAll();
    const QString looks = likely(text);
    try {
        const ArrayFile file(input, text, Diagnosis::tr("settings"));
        if (hasSettings(file.elements()))
            return file;
    } catch (const Fault&) {
        if (looks.isEmpty())
            throw;
    }
    if (looks.isEmpty())
        throw Fault{Diagnosis::tr("%1: not a settings list: no element is a known setting")
                        .arg(input.name())};
    throw Fault{Diagnosis::tr("%1: not a settings list: looks like %2").arg(input.name(), looks)};
}

SettingsList::SettingsList(const ArrayFile& file)
{
    m_elements.reserve(int(file.values().size()));
    for (const QVariant& value : file.values()) {
        const QVariantMap map = value.toMap();
        Element element;
        element.hasGroup = map.contains(QStringLiteral("group"));
        element.group = map.value(QStringLiteral("group")).toString();
        element.key = map.value(QStringLiteral("key")).toString();
        element.value = map.value(QStringLiteral("value"));
        if (element.hasGroup) {
            element.device = SettingDescription::deviceOf(element.group);
            element.setting = ServiceSetting::find(element.group, element.key);
        }
        const int index = int(m_elements.size());
        if (element.device && !m_devices.contains(*element.device))
            m_devices.insert(*element.device, index);
        if (element.setting.isValid())
            m_lastElements.insert(element.setting.place(), index);
        m_elements += element;
    }

    for (const ServiceSetting& setting : ServiceSetting::listed({}))
        add(setting, true);
    for (auto device = m_devices.keyBegin(); device != m_devices.keyEnd(); ++device) {
        for (const ServiceSetting& setting :
             ServiceSetting::ofDevice(*device, model(*device), interfaceType(*device)))
            add(setting, true);
    }
    for (const Element& element : std::as_const(m_elements)) {
        if (element.setting.isValid() && !m_usedOfPlace.contains(element.setting.place()))
            add(element.setting, element.setting.isOfServiceAlone());
    }
}

void SettingsList::add(const ServiceSetting& setting, bool isForDevice)
{
    const QString place = setting.place();
    Used used{setting, setting.defaultValue(), m_lastElements.value(place, -1), isForDevice};
    if (used.isListed())
        used.value = setting.readAs(m_elements.at(used.element).text());
    m_usedOfPlace.insert(place, int(m_used.size()));
    m_used += used;
}

SettingsList::Used SettingsList::used(const ServiceSetting& setting) const
{
    const auto found = m_usedOfPlace.constFind(setting.place());
    if (found != m_usedOfPlace.constEnd())
        return m_used.at(*found);
    // What only the service reads is there by its default, for a device that is there.
    const bool isThere = !setting.device() || m_devices.contains(*setting.device());
    const bool isForDevice = isThere && setting.isOfServiceAlone();
    return {setting, isForDevice ? setting.defaultValue() : QVariant(), -1, isForDevice};
}

QString SettingsList::valueOf(int device, const QString& subgroup, const QString& key) const
{
    const ServiceSetting setting = ServiceSetting::find(deviceGroup(device, subgroup), key);
    const int element = m_lastElements.value(setting.place(), -1);
    return element < 0 ? setting.defaultValue().toString()
                       : setting.readAs(m_elements.at(element).text());
}

int SettingsList::deviceCount() const
{
    const int element =
        m_lastElements.value(S::SERVICE_SECTION + QLatin1Char('/') + S::DEVICE_COUNT, -1);
    return element < 0 ? 0 : m_elements.at(element).text().toInt();
}

int SettingsList::model(int device) const
{
    return valueOf(device, S::DEVICE_SECTION, S::DEVICE_ID).toInt();
}

QString SettingsList::interfaceType(int device) const
{
    return valueOf(device, S::HARDWARE_SECTION, S::INTERFACE_TYPE);
}

int SettingsList::nextDevice() const
{
    int index = 0;
    while (m_devices.contains(index))
        ++index;
    return index;
}
