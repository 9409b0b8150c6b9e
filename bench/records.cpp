// Records as maps, against the same entries put into and read from a map by plain code.

#include "benching.h"
#include "devicestateworker.h"

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

QVariantMap libraryToMap(const DeviceState& state)
{
    return state.toMap();
}

bool libraryFromMap(DeviceState& state, const QVariantMap& map)
{
    return state.fromMap(map);
}

QVariantMap plainRowToMap(const DispenserRegistryItem& row)
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

QVariantMap libraryRowToMap(const DispenserRegistryItem& row)
{
    return row.toMap();
}

template <auto ToMap>
void toMap(benchmark::State& bench)
{
    const DeviceState state = sampleState(0);
    mustBeEqual(ToMap(state) == state.toMap(), "toMap");
    for (auto _ : bench)
        benchmark::DoNotOptimize(ToMap(state));
}

template <auto FromMap>
void fromMap(benchmark::State& bench)
{
    const QVariantMap map = sampleState(0).toMap();
    DeviceState state;
    mustBeEqual(FromMap(state, map) && state == sampleState(0), "fromMap");
    for (auto _ : bench)
        benchmark::DoNotOptimize(FromMap(state, map));
}

template <auto ToMap>
void rowToMap(benchmark::State& bench)
{
    const DispenserRegistryItem row = sampleState(1).dispenserRegistry.constFirst();
    mustBeEqual(ToMap(row) == row.toMap(), "row toMap");
    for (auto _ : bench)
        benchmark::DoNotOptimize(ToMap(row));
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

BENCHMARK(toMap<libraryToMap>)->Name("state_to_map/library");
BENCHMARK(toMap<plainToMap>)->Name("state_to_map/plain");
BENCHMARK(fromMap<libraryFromMap>)->Name("state_from_map/library");
BENCHMARK(fromMap<plainFromMap>)->Name("state_from_map/plain");
BENCHMARK(rowToMap<libraryRowToMap>)->Name("row_to_map/library");
BENCHMARK(rowToMap<plainRowToMap>)->Name("row_to_map/plain");
BENCHMARK(checkUnchanged)->Name("check_state/library");
BENCHMARK(comparePlain)->Name("check_state/plain");
