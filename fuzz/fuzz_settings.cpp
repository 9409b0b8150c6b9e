// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorsettings.h"
#include "fuzzing.h"
#include "settingsmanager.h"

namespace {

void checkFixedPoints()
{
    AcceptorSettings settings;
    const QVariantList list = settings.toList();
    settings.setList(list);
    CHECK(settings.toList() == list);
    CHECK(AcceptorSettings::deviceCount() == AcceptorSettings::devices.size());
    const QVariantMap map = settings.toFormattedMap();
    settings.setFotmattedMap(map);
    CHECK(settings.toFormattedMap() == map);
}

void checkDeviceRecords()
{
    for (AcceptorDeviceSettings* const device : qAsConst(AcceptorSettings::devices)) {
        const AcceptorInfo record = device->toAcceptorInfo();
        const AcceptorInfo read = AcceptorDeviceSettings(record).toAcceptorInfo();
        const AcceptorInfo again = AcceptorDeviceSettings(read).toAcceptorInfo();
        CHECK(read.type == record.type && read.portName == record.portName);
        CHECK(again.portSettings == read.portSettings);
    }
}

AcceptorInfo info(const QVariantMap& map)
{
    AcceptorInfo record;
    record.type = static_cast<quint16>(map.value(QStringLiteral("type")).toInt());
    record.description = map.value(QStringLiteral("description")).toString();
    record.portName = map.value(QStringLiteral("port")).toString();
    record.portSettings = map.value(QStringLiteral("settings")).toMap();
    return record;
}

void checkStore(const QVariantList& list)
{
    using acceptorSettings::SettingsManager;
    SettingsManager manager;
    CHECK(manager.load(quorbus::ClientSettings(list)) && manager.isLoaded());
    CHECK(manager.count() == list.size());
    const QList<QVariant> written = manager.toList();
    CHECK(manager.load(quorbus::ClientSettings(written)) && manager.toList() == written);
    if (!list.isEmpty()) {
        const QVariantMap first = written.constFirst().toMap();
        bool usedDefault = true;
        const QVariant value =
            manager.getValue(first.value(QStringLiteral("group")).toString(),
                             first.value(QStringLiteral("key")).toString(), &usedDefault);
        CHECK(!usedDefault && value == first.value(QStringLiteral("value")));
    }
}

} // namespace

// A list of steps: a list is a settings list, a map with "group" a single setting, one with
// "infos" what the service found, any other a formatted map; a number removes a device.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    AcceptorSettings settings;
    settings.setList({});
    AcceptorSettings::setAttemptsFilter({});
    AcceptorSettings::setRouteMap({});
    const QVariantList steps = jsonInput(data, size).toList();
    checkStore(steps);
    for (const QVariant& step : steps) {
        const QVariantMap map = step.toMap();
        if (step.type() == QVariant::List) {
            settings.setList(step.toList());
        } else if (map.contains(QStringLiteral("group"))) {
            settings.setValue(map);
        } else if (map.contains(QStringLiteral("infos"))) {
            QList<AcceptorInfo> infos;
            for (const QVariant& element : map.value(QStringLiteral("infos")).toList())
                infos.append(info(element.toMap()));
            settings.fromAcceptorInfoList(infos);
            CHECK(AcceptorSettings::deviceCount() == AcceptorSettings::devices.size());
        } else if (step.type() == QVariant::Map) {
            settings.setFotmattedMap(map);
            for (const int index : AcceptorSettings::devices.keys())
                CHECK(index < AcceptorSettings::deviceCount());
        } else {
            settings.removeDeviceByIndex(step.toInt());
        }
        const QVariantList before = settings.toList();
        CHECK(settings.toList() == before);
        checkDeviceRecords();
    }
    checkFixedPoints();
    settings.setList({});
    CHECK(AcceptorSettings::devices.isEmpty());
    return 0;
}
