// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "dispenserregistrymodel.h"
#include "statitem.h"
#include "testtable.h"

#include <climits>

namespace {

DispenserRegistryItem row(quint16 channel, qint32 denomination, qint32 type, qint32 count = 0)
{
    const auto billType = static_cast<Acceptors::billTypes>(type);
    return {3, 7, channel, billType, "RUB"_s, quint32(denomination), quint32(count), 0};
}

QString channels(const QList<DispenserRegistryItem>& rows)
{
    QStringList texts;
    for (const DispenserRegistryItem& r : rows)
        texts += QString::number(r.channel);
    return texts.join(QLatin1Char(' '));
}

// Adds something of its own to the counters.
class StateItem : public StatItem
{
public:
    void addToMap(QVariantMap& map) override
    {
        StatItem::addToMap(map);
        map.insert("state"_s, "counted"_s);
    }
};

// Takes one key after the other out of a complete map: the fields before it are read, those after
// it keep their defaults, and its bare text is reported.
template <typename Record>
void checkReadingOrder(const QString& keyList, const QString& optionalKey = {})
{
    const QStringList keys = keyList.split(QLatin1Char(' '));
    const QVariantMap defaults = Record().toMap();
    QCOMPARE(defaults.size(), keys.size() + (optionalKey.isEmpty() ? 0 : 1));
    QVariantMap complete = defaults;
    int value = 40;
    for (QVariant& entry : complete)
        entry = ++value;

    for (int missing = 0; missing < keys.size(); ++missing) {
        QVariantMap map = complete;
        map.remove(keys.at(missing));
        Record record;
        QString error;
        QVERIFY(!record.fromMap(map, &error));
        QCOMPARE(error, keys.at(missing));
        QVERIFY(!record.fromMap(map, nullptr));
        const QVariantMap read = record.toMap();
        for (int i = 0; i < keys.size(); ++i) {
            QCOMPARE(read.value(keys.at(i)).toString(),
                     (i < missing ? complete : defaults).value(keys.at(i)).toString());
        }
    }
    complete.remove(optionalKey);
    Record record;
    QVERIFY(record.fromMap(complete));
    for (const QString& key : keys) {
        QVariantMap other = record.toMap();
        other[key] = 1000;
        Record changed;
        changed.fromMap(other);
        QVERIFY2(changed != record && !(changed == record), qPrintable(key));
    }
}

} // namespace

class tst_Records : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readingStopsAtFirstMissingKey()
    {
        checkReadingOrder<BasicNoteItem>("currency denomination bill_type"_s);
        checkReadingOrder<NoteItem>("currency denomination bill_type count"_s);
        checkReadingOrder<DispenserRegistryItem>(
            "currency denomination bill_type count thread_id device_id channel"_s, "rejected"_s);
        checkReadingOrder<DevAndThreadItem>("device_id thread_id"_s);
        checkReadingOrder<StatItem>(
            "device_id thread_id notes_inserted notes_rejected notes_returned"_s);
    }

    void oddValuesConvert()
    {
        DevAndThreadItem device;
        QCOMPARE(device.toMap().value("thread_id"_s), QVariant(-1));
        QVERIFY(device.fromMap({{"device_id"_s, 1}, {"thread_id"_s, 70000}}));
        QCOMPARE(device.threadId, qint16(4464));

        QVariantMap map = row(1, 500, 77, 3).toMap();
        map.insert({{"denomination"_s, "500"_s}, {"count"_s, "abc"_s}, {"bill_type"_s, 77}});
        map.insert({{"thread_id"_s, -1}, {"channel"_s, 65537}});
        const DispenserRegistryItem r = DispenserRegistryItem::createFromMap(map);
        QCOMPARE(r.denomination, 500);
        QCOMPARE(r.count, 0);
        QCOMPARE(r.channel, quint16(1));
        QCOMPARE(r.toMap().value("bill_type"_s), QVariant(77));
        QCOMPARE(r.toMap().value("thread_id"_s), QVariant(65535));
    }

    void countersKeepTheirFullWidth()
    {
        StateItem counted;
        StatItem& stat = counted;
        stat.notesInserted = ULLONG_MAX;
        stat.notesReturned = 1ULL << 40;
        StatItem read;
        QVERIFY(read.fromMap(stat.toMap()));
        QCOMPARE(read, stat);

        QVariantMap state{{"notes_inserted"_s, 5}, {"state"_s, "idling"_s}};
        stat.addToMap(state);
        QCOMPARE(state.keys().join(QLatin1Char(' ')),
                 "notes_inserted notes_rejected notes_returned state"_s);
        QCOMPARE(state.value("notes_inserted"_s), QVariant(qulonglong(ULLONG_MAX)));
        QCOMPARE(state.value("state"_s), QVariant("counted"_s));

        read.notesRejected = 1;
        QVERIFY(stat.eqDev(read));
        read.threadId = 0;
        QVERIFY(!stat.eqDev(read));
    }

    void rowsKeepUnsignedBitsAndSubtractCountsOnly()
    {
        DispenserRegistryItem a(1, 2, 3, Acceptors::Coin, "RUB"_s, UINT_MAX, 0x80000000U, 4);
        QCOMPARE(a.denomination, -1);
        QCOMPARE(a.count, INT_MIN);
        QCOMPARE(QList<int>({a.threadId, a.deviceId, a.channel, a.rejected}),
                 QList<int>({1, 2, 3, 4}));
        QCOMPARE((a - row(2, 100, 1, 1)).count, INT_MAX);
        a.count = 3;
        QCOMPARE((a - row(2, 100, 1, 5)).count, -2);
        QCOMPARE((a - row(2, 100, 1, 5)).rejected, quint16(4));
    }

    void rowsAndDevicesSort()
    {
        QList<DispenserRegistryItem> rows{row(1, 500, 0), row(2, 100, 0), row(3, 500, 1),
                                          row(4, 100, 0), row(5, -1, 0),  row(6, 200, 2),
                                          row(7, 200, 0)};
        DRListRoutines::sort(rows);
        QCOMPARE(channels(rows), "5 2 4 6 7 3 1"_s);

        const QList<DispenserRegistryItem> empty;
        // A negative face value counts as a very large one.
        QList<QList<DispenserRegistryItem>> devices{{row(1, -1, 0)},
                                                    {row(2, 500, 0)},
                                                    {row(3, 1000, 0), row(4, 50, 0)},
                                                    empty,
                                                    {row(5, 500, 1)}};
        QVERIFY(!DRListRoutines::devLess(devices.at(1), empty));
        QVERIFY(!DRListRoutines::devLess(empty, empty));
        DRListRoutines::sortDevices(devices);
        QStringList order;
        for (const auto& device : qAsConst(devices))
            order += channels(device);
        QCOMPARE(order.join(QLatin1Char('|')), "|2|5|4 3|1"_s);
    }

    void registryUpdatesTheFirstAlikeRow()
    {
        DispenserRegistryModel registry;
        registry.assign({row(1, 100, 0, 10), row(2, 100, 0, 20)});
        QVERIFY(registry.insert(row(2, 100, 0, 30)));
        bool inserted = true;
        DispenserRegistryItem update = row(2, 100, 0, 19);
        update.rejected = 1;
        QCOMPARE(*registry.ui(update, &inserted), update);
        QVERIFY(!inserted);
        QCOMPARE(registry.items().at(1), update);
        QCOMPARE(registry.items().at(2).count, 30);
        QCOMPARE(registry.find(row(2, 100, 0)), &registry[1]);
        QCOMPARE(registry.find(row(2, 100, 1)), nullptr);

        QCOMPARE(registry.ui(row(3, 100, 0, 40))->count, 40);
        registry.ui(row(4, 100, 0), &inserted);
        QVERIFY(inserted);
        QCOMPARE(channels(registry.items()), "1 2 2 3 4"_s);
    }

    void registryMapsKeepEveryRow()
    {
        DispenserRegistryModel registry;
        QCOMPARE(registry.toMap(), QVariantMap({{"dispenser_registry"_s, QVariantList()}}));
        registry.assign({row(2, 100, 0, 8), row(1, 100, 0, 9)});
        DispenserRegistryModel read;
        QVERIFY(read.fromMap(registry.toMap()) && !read.fromMap({}));
        QCOMPARE(read.items(), registry.items());
        QCOMPARE(read.toMap(3), QVariantMap({{"dispenser_registry"_s, row(2, 100, 0, 8).toMap()}}));
        QVERIFY(read.toMap(9).isEmpty());

        QVariantMap withoutChannel = row(4, 100, 0, 5).toMap();
        withoutChannel.remove("channel"_s);
        QVERIFY(read.fromMap({{"dispenser_registry"_s, QVariantList{withoutChannel, 42}}}));
        QCOMPARE(read.items(), QList<DispenserRegistryItem>({row(0, 100, 0, 5), {}}));
        QVERIFY(read.fromMap({{"dispenser_registry"_s, row(1, 1, 1).toMap()}}));
        QVERIFY(read.items().isEmpty());
    }
};

QTEST_APPLESS_MAIN(tst_Records)
#include "tst_records.moc"
