// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// Records as maps, against the same entries put into and read from a map by plain code.

#include "benching.h"
#include "devicestateworker.h"
#include "droutemapitem.h"
#include "fieldsdescription.h"
#include "statitem.h"

#include <string>

namespace {

QVariantMap plainToMap(const DeviceState& s)
{
    using namespace deviceStateDescConst;
    QVariantMap map;
    // In ascending order, which is the fastest way to fill a map.
    map.insert(map.cend(), CASH, s.cash);
    map.insert(map.cend(), CURRENT_CHANNEL, int(s.currentChannel));
    map.insert(map.cend(), CURRENT_NOTE, s.currentNote);
    map.insert(map.cend(), DEVICE_ID, s.deviceId);
    map.insert(map.cend(), DISPENSED_SUM, s.dispensedSum);
    map.insert(map.cend(), ENABLED, s.enabled);
    map.insert(map.cend(), ERROR_CRITICAL, s.errCritical);
    map.insert(map.cend(), ERROR_TEXT, s.errorText);
    map.insert(map.cend(), HALT, s.halt);
    map.insert(map.cend(), ID_STRING, s.idString);
    map.insert(map.cend(), ONLINE, s.online);
    map.insert(map.cend(), SESSION_SUM, s.sessionSum);
    map.insert(map.cend(), STACKER_FULL, s.stackerFull);
    map.insert(map.cend(), STACKER_PRESENT, s.stackerPresent);
    map.insert(map.cend(), STATE, s.stateAsString());
    map.insert(map.cend(), STATE_TEXT, s.stateText);
    map.insert(map.cend(), THREAD_ID, s.threadId);
    return map;
}

bool plainFromMap(DeviceState& s, const QVariantMap& map)
{
    using namespace deviceStateDescConst;
    s.enabled = map.constFind(ENABLED)->toBool();
    DeviceState::stateFromString(map.constFind(STATE)->toString(), s.state);
    s.stackerPresent = map.constFind(STACKER_PRESENT)->toBool();
    s.stackerFull = map.constFind(STACKER_FULL)->toBool();
    s.cash = static_cast<quint32>(map.constFind(CASH)->toInt());
    s.errorText = map.constFind(ERROR_TEXT)->toString();
    s.errCritical = map.constFind(ERROR_CRITICAL)->toBool();
    s.halt = map.constFind(HALT)->toBool();
    s.stateText = map.constFind(STATE_TEXT)->toString();
    s.threadId = static_cast<quint32>(map.constFind(THREAD_ID)->toInt());
    s.deviceId = static_cast<quint32>(map.constFind(DEVICE_ID)->toInt());
    s.sessionSum = map.constFind(SESSION_SUM)->toInt();
    s.currentNote = map.constFind(CURRENT_NOTE)->toInt();
    s.currentChannel = static_cast<qint16>(map.constFind(CURRENT_CHANNEL)->toInt());
    s.dispensedSum = static_cast<quint32>(map.constFind(DISPENSED_SUM)->toInt());
    s.idString = map.constFind(ID_STRING)->toString();
    s.online = map.constFind(ONLINE)->toBool();
    return true;
}

QVariantMap plainToMap(const BasicNoteItem& note)
{
    QVariantMap map;
    map.insert(map.cend(), BasicNoteItem::BILL_TYPE, int(note.billType));
    map.insert(map.cend(), BasicNoteItem::CURRENCY, note.currency);
    map.insert(map.cend(), BasicNoteItem::DENOMINATION, note.denomination);
    return map;
}

bool plainFromMap(BasicNoteItem& note, const QVariantMap& map)
{
    note.currency = map.constFind(BasicNoteItem::CURRENCY)->toString();
    note.denomination = map.constFind(BasicNoteItem::DENOMINATION)->toInt();
    note.billType =
        static_cast<Acceptors::billTypes>(map.constFind(BasicNoteItem::BILL_TYPE)->toInt());
    return true;
}

QVariantMap plainToMap(const NoteItem& note)
{
    QVariantMap map;
    map.insert(map.cend(), NoteItem::BILL_TYPE, int(note.billType));
    map.insert(map.cend(), NoteItem::COUNT, note.count);
    map.insert(map.cend(), NoteItem::CURRENCY, note.currency);
    map.insert(map.cend(), NoteItem::DENOMINATION, note.denomination);
    return map;
}

bool plainFromMap(NoteItem& note, const QVariantMap& map)
{
    plainFromMap(static_cast<BasicNoteItem&>(note), map);
    note.count = map.constFind(NoteItem::COUNT)->toInt();
    return true;
}

QVariantMap plainToMap(const DRouteMapItem& row)
{
    QVariantMap map = plainToMap(static_cast<const NoteItem&>(row));
    map.insert(map.cend(), DRouteMapItem::ROUTE, int(row.route));
    return map;
}

bool plainFromMap(DRouteMapItem& row, const QVariantMap& map)
{
    plainFromMap(static_cast<NoteItem&>(row), map);
    row.route = static_cast<DRouteMapItem::Route>(map.constFind(DRouteMapItem::ROUTE)->toInt());
    return true;
}

QVariantMap plainToMap(const DispenserRegistryItem& row)
{
    using Row = DispenserRegistryItem;
    QVariantMap map;
    map.insert(map.cend(), Row::BILL_TYPE, int(row.billType));
    map.insert(map.cend(), Row::CHANNEL, int(row.channel));
    map.insert(map.cend(), Row::COUNT, row.count);
    map.insert(map.cend(), Row::CURRENCY, row.currency);
    map.insert(map.cend(), Row::DENOMINATION, row.denomination);
    map.insert(map.cend(), Row::DEVICE_ID, int(row.deviceId));
    map.insert(map.cend(), Row::REJECTED, int(row.rejected));
    map.insert(map.cend(), Row::THREAD_ID, int(row.threadId));
    return map;
}

bool plainFromMap(DispenserRegistryItem& row, const QVariantMap& map)
{
    using Row = DispenserRegistryItem;
    plainFromMap(static_cast<NoteItem&>(row), map);
    row.threadId = static_cast<quint16>(map.constFind(Row::THREAD_ID)->toInt());
    row.deviceId = static_cast<quint16>(map.constFind(Row::DEVICE_ID)->toInt());
    row.channel = static_cast<quint16>(map.constFind(Row::CHANNEL)->toInt());
    row.rejected = static_cast<quint16>(map.constFind(Row::REJECTED)->toInt());
    return true;
}

QVariantMap plainToMap(const DevAndThreadItem& device)
{
    QVariantMap map;
    map.insert(map.cend(), DevAndThreadItem::DEVICE_ID, int(device.deviceId));
    map.insert(map.cend(), DevAndThreadItem::THREAD_ID, int(device.threadId));
    return map;
}

bool plainFromMap(DevAndThreadItem& device, const QVariantMap& map)
{
    device.deviceId = map.constFind(DevAndThreadItem::DEVICE_ID)->toInt();
    device.threadId = static_cast<qint16>(map.constFind(DevAndThreadItem::THREAD_ID)->toInt());
    return true;
}

QVariantMap plainToMap(const StatItem& stat)
{
    QVariantMap map;
    map.insert(map.cend(), StatItem::DEVICE_ID, int(stat.deviceId));
    map.insert(map.cend(), StatItem::NOTES_INSERTED, stat.notesInserted);
    map.insert(map.cend(), StatItem::NOTES_REJECTED, stat.notesRejected);
    map.insert(map.cend(), StatItem::NOTES_RETURNED, stat.notesReturned);
    map.insert(map.cend(), StatItem::THREAD_ID, int(stat.threadId));
    return map;
}

bool plainFromMap(StatItem& stat, const QVariantMap& map)
{
    plainFromMap(static_cast<DevAndThreadItem&>(stat), map);
    stat.notesInserted = map.constFind(StatItem::NOTES_INSERTED)->toULongLong();
    stat.notesRejected = map.constFind(StatItem::NOTES_REJECTED)->toULongLong();
    stat.notesReturned = map.constFind(StatItem::NOTES_RETURNED)->toULongLong();
    return true;
}

QVariantMap plainToMap(const FieldDescription& field)
{
    QVariantMap map;
    map.insert(map.cend(), FieldDescription::F_DESC, field.desc);
    map.insert(map.cend(), FieldDescription::F_NAME, field.name);
    map.insert(map.cend(), FieldDescription::F_REGEXP, field.regexp);
    map.insert(map.cend(), FieldDescription::F_TYPE, field.type);
    return map;
}

bool plainFromMap(FieldDescription& field, const QVariantMap& map)
{
    field.name = map.constFind(FieldDescription::F_NAME)->toString();
    field.desc = map.constFind(FieldDescription::F_DESC)->toString();
    field.type = map.constFind(FieldDescription::F_TYPE)->toString();
    field.regexp = map.constFind(FieldDescription::F_REGEXP)->toString();
    return true;
}

template <typename Record>
void measureMaps(const char* name, const Record& record)
{
    const QVariantMap map = record.toMap();
    Record copy;
    mustBeEqual(plainToMap(record) == map && plainFromMap(copy, map) && copy == record, name);

    const auto add = [name](const char* work, auto run) {
        benchmark::RegisterBenchmark((name + std::string(work)).c_str(),
                                     [run](benchmark::State& bench) mutable {
                                         for (auto _ : bench)
                                             benchmark::DoNotOptimize(run());
                                     });
    };
    add("_to_map/library", [record] { return record.toMap(); });
    add("_to_map/plain", [record] { return plainToMap(record); });
    add("_from_map/library", [map, copy]() mutable { return copy.fromMap(map); });
    add("_from_map/plain", [map, copy]() mutable { return plainFromMap(copy, map); });
}

struct Plain
{
    bool flags[6];
    qint32 numbers[9];
    QString texts[3];
    QList<DispenserRegistryItem> rows;

    bool operator!=(const Plain& other) const
    {
        return !(std::equal(flags, flags + 6, other.flags)
                 && std::equal(numbers, numbers + 9, other.numbers)
                 && std::equal(texts, texts + 3, other.texts) && rows == other.rows);
    }
};

void checkUnchanged(benchmark::State& bench)
{
    DeviceStateWorker worker;
    *worker.getState() = sampleState(0);
    worker.saveState();
    mustBeEqual(!worker.checkState(), "checkState");
    const CountAllocations count(bench);
    for (auto _ : bench)
        benchmark::DoNotOptimize(worker.checkState());
}

void comparePlain(benchmark::State& bench)
{
    const DeviceState s = sampleState(0);
    const Plain a{{true}, {3, 7, 1500}, {s.stateText, s.idString}, {}};
    const Plain b = a;
    for (auto _ : bench) {
        benchmark::DoNotOptimize(&a);
        benchmark::DoNotOptimize(a != b);
    }
}

} // namespace

BENCHMARK(checkUnchanged)->Name("check_state/library");
BENCHMARK(comparePlain)->Name("check_state/plain");

void measureRecords()
{
    const DispenserRegistryItem row = sampleState(1).dispenserRegistry.constFirst();
    StatItem stat;
    stat.deviceId = 7;
    stat.notesInserted = 12;
    measureMaps("state", sampleState(0));
    measureMaps("registry_row", row);
    measureMaps("note_kind", BasicNoteItem(row));
    measureMaps("note", NoteItem(row));
    measureMaps(
        "route",
        DRouteMapItem(500, QStringLiteral("RUB"), Acceptors::Bill, DRouteMapItem::RouteDefault, 3));
    measureMaps("device", DevAndThreadItem(stat));
    measureMaps("statistics", stat);
    measureMaps("field",
                FieldDescription(QStringLiteral("name"), QStringLiteral("Name of the device"),
                                 QStringLiteral("string"), QStringLiteral("^.+$")));
}
