// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingsedit.h"

#include "acceptorsettings.h"
#include "fault.h"
#include "knownsettings.h"

#include <QHash>
#include <QJsonObject>
#include <QStringList>

namespace {

const QString groupKey = QStringLiteral("group");
const QString nameKey = QStringLiteral("key");
const QString valueKey = QStringLiteral("value");

// The path by which a list's element is found, whatever the case of its key.
QString pathOf(const QJsonObject& element)
{
    const QString group = element.value(groupKey).toString();
    const QString key = element.value(nameKey).toString();
    const std::optional<KnownSetting> known = knownSetting(group, key);
    return known ? known->path : group + QLatin1Char('/') + key;
}

QHash<QString, QJsonObject> byPath(const QJsonArray& list)
{
    QHash<QString, QJsonObject> elements;
    for (const QJsonValue& element : list)
        elements.insert(pathOf(element.toObject()), element.toObject());
    return elements;
}

void insertBesideItsGroup(QJsonArray& list, const QJsonObject& element)
{
    auto position = list.size();
    while (position > 0 && list.at(position - 1).toObject()[groupKey] != element[groupKey])
        --position;
    list.insert(position == 0 ? list.size() : position, element);
}

void setElement(QJsonArray& list, const QJsonObject& element)
{
    bool found = false;
    for (int i = 0; i < list.size(); ++i) {
        QJsonObject listed = list.at(i).toObject();
        if (pathOf(listed) != pathOf(element))
            continue;
        found = true;
        listed.insert(valueKey, element.value(valueKey));
        list.replace(i, listed);
    }
    if (!found)
        insertBesideItsGroup(list, element);
}

void removeElements(QJsonArray& list, const QString& path)
{
    for (auto i = list.size() - 1; i >= 0; --i) {
        if (pathOf(list.at(i).toObject()) == path)
            list.removeAt(i);
    }
}

KnownSetting checked(const Assignment& assignment)
{
    const KnownSetting known = requireKnownSetting(assignment.group, assignment.key);
    const QString complaint = known.complaint(assignment.value);
    if (!complaint.isEmpty()) {
        throw Fault{QStringLiteral("%1/%2 = %3 %4")
                        .arg(assignment.group, assignment.key, assignment.value, complaint)};
    }
    return known;
}

} // namespace

QJsonArray editSettings(const QJsonArray& list, const QList<Assignment>& assignments)
{
    AcceptorSettings settings;
    settings.setList(list.toVariantList());
    const QJsonArray carriedBefore = QJsonArray::fromVariantList(settings.toList());
    QList<QJsonObject> assigned;
    for (const Assignment& assignment : assignments) {
        const QString path = checked(assignment).path;
        const auto keyBegin = path.lastIndexOf(QLatin1Char('/')) + 1;
        assigned += QJsonObject{{groupKey, path.left(keyBegin - 1)},
                                {nameKey, path.mid(keyBegin)},
                                {valueKey, assignment.value}};
        settings.setValue(assigned.constLast().toVariantMap());
    }
    const QJsonArray carriedAfter = QJsonArray::fromVariantList(settings.toList());

    QJsonArray edited = list;
    const QHash<QString, QJsonObject> before = byPath(carriedBefore);
    const QHash<QString, QJsonObject> after = byPath(carriedAfter);
    for (const QJsonValue& element : carriedBefore) {
        const QString path = pathOf(element.toObject());
        if (!after.contains(path))
            removeElements(edited, path);
    }
    for (const QJsonValue& element : carriedAfter) {
        const QString path = pathOf(element.toObject());
        if (before.value(path) != element.toObject())
            setElement(edited, element.toObject());
    }
    // What the model reads, but does not carry for this device or in this form.
    for (const QJsonObject& element : std::as_const(assigned)) {
        const QString path = pathOf(element);
        const bool isDeviceCount = path == QLatin1String("service/devices_count");
        if (!after.contains(path) || isDeviceCount)
            setElement(edited, element);
    }
    return edited;
}
