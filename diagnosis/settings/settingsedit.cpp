// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settings/settingsedit.h"

#include "acceptors.h"
#include "acceptorsettings.h"
#include "text/diagnosis.h"
#include "text/nearest.h"

#include <algorithm>

namespace {

using S = AcceptorSettings;

const QString valueKey = QStringLiteral("value");

QVector<ArrayFile::Member> elementOf(const ServiceSetting& setting, const QString& value)
{
    return {{QStringLiteral("group"), setting.group()},
            {QStringLiteral("key"), setting.key()},
            {valueKey, setting.listValue(value)}};
}

// The number of a model that is called by its number or name.
std::optional<int> modelOf(const QString& text)
{
    const QList<SupportedDevice> catalogue = Acceptors::supportedDevices();
    for (const SupportedDevice& row : catalogue) {
        const QString id = row.value(QStringLiteral("id")).toString();
        const QString name = row.value(QStringLiteral("protocol")).toString();
        if (text == id || text.compare(name, Qt::CaseInsensitive) == 0)
            return id.toInt();
    }
    return {};
}

int requireModel(const QString& text)
{
    if (const std::optional<int> model = modelOf(text))
        return *model;
    QStringList names;
    const QList<SupportedDevice> catalogue = Acceptors::supportedDevices();
    for (const SupportedDevice& row : catalogue)
        names += row.value(QStringLiteral("protocol")).toString();
    throw Fault{Diagnosis::tr("\"%1\" is no model of the catalogue").arg(text)
                + nearestKnown(text, names)};
}

// Models decide which settings a device has, interfaces the rest.
int rank(const Assignment& assignment)
{
    if (assignment.path.endsWith(S::DEVICE_ID))
        return 0;
    return assignment.path.endsWith(S::INTERFACE_TYPE) ? 1 : 2;
}

QList<Assignment> ranked(QList<Assignment> assignments)
{
    std::stable_sort(assignments.begin(), assignments.end(),
                     [](const auto& a, const auto& b) { return rank(a) < rank(b); });
    return assignments;
}

} // namespace

Assignment Assignment::parse(const QString& text)
{
    const auto equals = text.indexOf(QLatin1Char('='));
    if (equals < 1)
        throw Fault{Diagnosis::tr("\"%1\": expected SETTING=VALUE").arg(text)};
    return {text.left(equals), text.mid(equals + 1)};
}

SettingsEdit::SettingsEdit(const ArrayFile& file)
    : m_original(file)
    , m_file(file)
{
}

SettingsEdit::Change& SettingsEdit::record(const QString& path, const QVariant& before,
                                           const QVariant& after, const QString& from)
{
    if (!m_changeOfPath.contains(path)) {
        m_changeOfPath.insert(path, int(m_changes.size()));
        m_changes += Change{path, before, {}, {}};
    }
    Change& change = m_changes[m_changeOfPath.value(path)];
    change.after = after;
    change.from = from;
    return change;
}

QList<SettingsEdit::Change> SettingsEdit::changes() const
{
    QList<Change> real;
    std::copy_if(m_changes.begin(), m_changes.end(), std::back_inserter(real),
                 [](const Change& change) {
                     return change.wasDoubled || change.before != change.after
                         || change.before.isValid() != change.after.isValid();
                 });
    return real;
}

void SettingsEdit::set(const QList<Assignment>& assignments)
{
    for (const Assignment& assignment : ranked(assignments)) {
        const ServiceSetting setting = ServiceSetting::require(assignment.path);
        const std::optional<int> device = setting.device();
        const SettingsList before = list();
        const bool isModel = device && setting.group() == deviceGroup(*device, S::DEVICE_SECTION)
            && setting.key() == S::DEVICE_ID;
        if (isModel && *device == before.nextDevice()) {
            makeDevice(*device, requireModel(assignment.value), {});
            continue;
        }
        if (device)
            requireDevice(*device);
        const std::optional<int> model = isModel ? modelOf(assignment.value) : std::nullopt;
        setValue(setting, model ? QString::number(*model) : assignment.value);
        if (isModel || setting.key() == S::INTERFACE_TYPE)
            setUp(*device, before);
    }
}

void SettingsEdit::requireDevice(int device) const
{
    const SettingsList now = list();
    if (now.devices().contains(device))
        return;
    throw Fault{Diagnosis::tr("%1: there is no %2; velmo settings add-device makes %3")
                    .arg(m_file.name(), deviceGroup(device), deviceGroup(now.nextDevice()))};
}

void SettingsEdit::setValue(const ServiceSetting& asked, const QString& value)
{
    const SettingsList now = list();
    const SettingsList::Used used = now.used(asked);
    const QString text = asked.accepts(value) ? asked.readAs(value) : value;
    if (used.isListed())
        setElement(now, used.element, used.setting, text);
    else
        insert(used.setting, {text, {}});
}

void SettingsEdit::setElement(const SettingsList& list, int element, const ServiceSetting& setting,
                              const QString& value)
{
    const QString old = list.elements().at(element).text();
    // As it is read, it may be so already; of doubled values only the last one is.
    const bool isDoubled = m_file.isDoubled(element, valueKey);
    const bool isSame = old == value || (setting.accepts(old) && setting.readAs(old) == value);
    if (isSame && !isDoubled)
        return;
    const QByteArray text = m_file.text();
    // Of its own type where the value means the same in it.
    const int type = list.elements().at(element).value.userType();
    m_file.setMember(element, valueKey, jsonOfType(type, value).value_or(setting.listValue(value)));
    record(setting.path(), old, value).wasDoubled |= isDoubled && m_file.text() != text;
}

void SettingsEdit::insert(const ServiceSetting& setting, const Start& start)
{
    m_file.insert(positionFor(setting), elementOf(setting, start.value));
    record(setting.path(), {}, start.value, start.from);
}

// Where AcceptorSettings would write it: behind what stands before it in a device's settings or in
// the service's, else behind the devices before its own.
int SettingsEdit::positionFor(const ServiceSetting& setting) const
{
    const auto subgroup = [](const QString& group) { return group.section(QLatin1Char('/'), 1); };
    QStringList groups{QString()}; // a device without sub-group
    for (const ServiceSetting& row : ServiceSetting::listed(setting.device()))
        groups += setting.device() ? subgroup(row.group()) : row.group();
    const auto rank = [&](const QString& group) {
        const auto known = groups.indexOf(setting.device() ? subgroup(group) : group);
        return known < 0 ? groups.size() : known;
    };
    const SettingsList now = list();
    int behind = -1; // what stands before it
    int before = -1; // what stands behind it
    int others = -1;
    for (int i = 0; i < now.elements().size(); ++i) {
        const SettingsList::Element& element = now.elements().at(i);
        if (element.device == setting.device() && (element.device || element.setting.isValid())) {
            if (rank(element.group) <= rank(setting.group()))
                behind = i;
            else if (before < 0)
                before = i;
        } else if (!element.device || (setting.device() && *element.device < *setting.device())) {
            others = i;
        }
    }
    if (behind >= 0)
        return behind + 1;
    return before >= 0 ? before : others + 1;
}

void SettingsEdit::remove(const SettingsList& list, const QVector<int>& elements)
{
    QMap<QString, QVector<int>> elementsOfPath;
    const auto pathOf = [&list](int i) {
        const SettingsList::Element& element = list.elements().at(i);
        return element.setting.isValid() ? element.setting.path() : element.path();
    };
    for (const int element : elements)
        elementsOfPath[pathOf(element)] += element;
    for (const int element : elements) {
        const QString path = pathOf(element);
        const QVector<int> same = elementsOfPath.value(path);
        const QString counted = list.elements().at(same.constLast()).text(); // the last one
        record(path, counted, {}).elements = int(same.size());
    }
    std::for_each(elements.rbegin(), elements.rend(), [this](int i) { m_file.remove(i); });
}

// Gives a device what its model and interface need, and takes what they do not know.
void SettingsEdit::setUp(int device, const SettingsList& before)
{
    const SettingsList now = list();
    const int model = now.model(device);
    const QString interfaceType = now.interfaceType(device);
    const auto wasNeeded = [&](const ServiceSetting& setting) {
        return setting.appliesTo(before.model(device), before.interfaceType(device));
    };
    const QList<ServiceSetting> needed = ServiceSetting::ofDevice(device, model, interfaceType);
    QHash<QString, QString> pathOfPlace;
    for (const ServiceSetting& setting : needed)
        pathOfPlace.insert(setting.place(), setting.path());
    QVector<int> needless;
    for (int i = 0; i < now.elements().size(); ++i) {
        const ServiceSetting& setting = now.elements().at(i).setting;
        if (setting.device() != device)
            continue;
        // Kept in the place of what is needed, it would be read in its stead.
        const QString path = setting.path();
        const bool isInTheWay = pathOfPlace.value(setting.place(), path) != path;
        if (isInTheWay || (wasNeeded(setting) && !setting.appliesTo(model, interfaceType)))
            needless += i;
    }
    remove(now, needless);
    for (const ServiceSetting& setting : needed) {
        if (!wasNeeded(setting) && !list().used(setting).isListed())
            insert(setting, startOf(setting, before));
    }
}

// What a setting that a device gets begins with: the value that the device had under the same key,
// or the built-in default, if need be that of another protocol.
SettingsEdit::Start SettingsEdit::startOf(const ServiceSetting& setting, const SettingsList& before)
{
    QList<ServiceSetting> namesakes;
    for (const ServiceSetting& other : ServiceSetting::listed(setting.device())) {
        if (other.key() == setting.key())
            namesakes += other;
    }
    for (const ServiceSetting& namesake : std::as_const(namesakes)) {
        const SettingsList::Used used = before.used(namesake);
        if (used.isListed() && used.isForDevice && used.setting.key() == setting.key())
            return {used.value.toString(), used.setting.path()};
    }
    if (setting.defaultValue().isValid())
        return {setting.defaultValue().toString(), {}};
    for (const ServiceSetting& namesake : std::as_const(namesakes)) {
        if (!namesake.defaultValue().isValid())
            continue;
        m_remarks += Diagnosis::tr("%1 has no built-in default and gets that of %2")
                         .arg(setting.path(), namesake.path());
        return {namesake.defaultValue().toString(), {}};
    }
    return {};
}

void SettingsEdit::unset(const QString& path)
{
    const ServiceSetting setting = ServiceSetting::require(path);
    const SettingsList now = list();
    QVector<int> elements;
    for (int i = 0; i < now.elements().size(); ++i) {
        const ServiceSetting& listed = now.elements().at(i).setting;
        if (listed.isValid() && listed.place() == setting.place())
            elements += i;
    }
    remove(now, elements);
    if (elements.isEmpty())
        m_remarks += Diagnosis::tr("%1 is not in the list").arg(setting.path());
}

void SettingsEdit::addDevice(const QString& model, const QList<Assignment>& assignments)
{
    makeDevice(list().nextDevice(), requireModel(model), assignments);
}

void SettingsEdit::makeDevice(int device, int model, const QList<Assignment>& assignments)
{
    const SettingsList before = list();
    const QString id = QString::number(model);
    QString interfaceType =
        ServiceSetting::find(deviceGroup(device, S::HARDWARE_SECTION), S::INTERFACE_TYPE)
            .defaultValue()
            .toString();
    for (const Assignment& assignment : assignments) {
        if (settingOfDevice(device, assignment.path).key() == S::INTERFACE_TYPE)
            interfaceType = assignment.value;
    }
    int position = -1;
    for (const ServiceSetting& setting : ServiceSetting::ofDevice(device, model, interfaceType)) {
        QString value = setting.key() == S::DEVICE_ID ? id : startOf(setting, before).value;
        if (position < 0)
            position = positionFor(setting);
        m_file.insert(position++, elementOf(setting, value));
        record(setting.path(), {}, value);
    }
    for (const Assignment& assignment : ranked(assignments))
        setValue(settingOfDevice(device, assignment.path), assignment.value);
    if (before.deviceCount() <= device) {
        setValue(ServiceSetting::find(S::SERVICE_SECTION, S::DEVICE_COUNT),
                 QString::number(device + 1));
    }
}

// KEY or SUB-GROUP/KEY of a device.
ServiceSetting SettingsEdit::settingOfDevice(int device, const QString& key) const
{
    if (key.contains(QLatin1Char('/')))
        return ServiceSetting::require(deviceGroup(device, key));
    const SettingsList now = list();
    const bool isThere = now.devices().contains(device);
    QStringList known;
    const int model = now.model(device);
    const QString interfaceType = now.interfaceType(device);
    for (const ServiceSetting& row : ServiceSetting::listed(device)) {
        const ServiceSetting setting = ServiceSetting::find(row.group(), key);
        const bool isFor = !isThere || setting.appliesTo(model, interfaceType);
        if (setting.isValid() && setting.group() == row.group() && isFor)
            return setting;
        if (row.appliesTo(model, interfaceType))
            known += row.key();
    }
    throw Fault{Diagnosis::tr("a device of this model has no \"%1\"").arg(key)
                + nearestKnown(key, known)};
}

void SettingsEdit::requireListed(const SettingsList& list, int device) const
{
    if (!list.devices().contains(device))
        throw Fault{Diagnosis::tr("%1: there is no %2").arg(m_file.name(), deviceGroup(device))};
}

void SettingsEdit::renumber(const SettingsList& list, const DeviceNumbering& numbering)
{
    m_numbering.then(numbering);
    QMap<int, ArrayFile::Member> groups;
    for (int i = 0; i < list.elements().size(); ++i) {
        const SettingsList::Element& element = list.elements().at(i);
        if (!element.device || numbering.now(*element.device) == *element.device)
            continue;
        const auto nameSize = element.group.section(QLatin1Char('/'), 0, 0).size();
        const QString group = deviceGroup(numbering.now(*element.device));
        groups.insert(i, {QStringLiteral("group"), group + element.group.mid(nameSize)});
    }
    m_file.setMembers(groups);
    for (auto device = list.devices().keyBegin(); device != list.devices().keyEnd(); ++device) {
        if (const int now = numbering.now(*device); now != *device)
            m_remarks += Diagnosis::tr("%1 becomes %2").arg(deviceGroup(*device), deviceGroup(now));
    }
}

void SettingsEdit::removeDevice(int device)
{
    const SettingsList now = list();
    requireListed(now, device);
    DeviceNumbering numbering;
    if (device >= 0)
        numbering.remove(device);
    renumber(now, numbering);
    QVector<int> removed;
    for (int i = 0; i < now.elements().size(); ++i) {
        if (now.elements().at(i).device == device)
            removed += i;
    }
    remove(now, removed);
    if (now.deviceCount() > device && device >= 0) {
        setValue(ServiceSetting::find(S::SERVICE_SECTION, S::DEVICE_COUNT),
                 QString::number(now.deviceCount() - 1));
    }
}

void SettingsEdit::moveDevice(int device, int to)
{
    const SettingsList now = list();
    requireListed(now, device);
    requireListed(now, to);
    const QList<int> devices = now.devices().keys();
    const auto target = devices.indexOf(to);
    DeviceNumbering numbering;
    for (auto i = devices.indexOf(device); i != target; i += i < target ? 1 : -1)
        numbering.swap(devices.at(i), devices.at(i < target ? i + 1 : i - 1));
    renumber(now, numbering);
}
