#include "dispenserregistryitem.h"
#include "literals.h"
#include "statitem.h"

#include <QtTest>

#include <climits>

namespace {

const QVariantMap noteMap{
    {"currency"_s, "RUB"_s}, {"denomination"_s, 500}, {"bill_type"_s, 1}, {"count"_s, 3}};

DispenserRegistryItem row(quint16 channel, qint32 denomination, Acceptors::billTypes type,
                          qint32 count = 0)
{
    DispenserRegistryItem r;
    r.channel = channel;
    r.denomination = denomination;
    r.billType = type;
    r.count = count;
    return r;
}

QString channels(const QList<DispenserRegistryItem>& rows)
{
    QStringList texts;
    for (const DispenserRegistryItem& r : rows)
        texts += QString::number(r.channel);
    return texts.join(QLatin1Char(' '));
}

} // namespace

class tst_Records : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void readingStopsAtFirstMissingKey();
    void valuesThatDoNotConvertReadAsZero();
    void narrowFieldsTakeTheLowBits();
    void countersKeepTheirFullWidth();
    void comparisonSeesEveryField();
    void constructorKeepsUnsignedBits();
    void subtractionTakesOnlyTheCount();
    void rowsSortByFaceValueThenType();
    void devicesSortByLargestFaceValue();

private:
    template <typename Record>
    void checkReadingOrder(const QStringList& keys, const QStringList& optionalKeys = {});
};

// Takes one key after the other out of a complete map: the fields before it are read, those after
// it keep their defaults, and its bare text is reported.
template <typename Record>
void tst_Records::checkReadingOrder(const QStringList& keys, const QStringList& optionalKeys)
{
    const QVariantMap defaults = Record().toMap();
    QCOMPARE(defaults.size(), keys.size() + optionalKeys.size());
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
            const QString& key = keys.at(i);
            QCOMPARE(read.value(key).toString(),
                     (i < missing ? complete : defaults).value(key).toString());
        }
    }

    for (const QString& key : optionalKeys)
        complete.remove(key);
    Record record;
    QString error = "untouched"_s;
    QVERIFY(record.fromMap(complete, &error));
    QCOMPARE(error, "untouched"_s);
}

void tst_Records::readingStopsAtFirstMissingKey()
{
    const QStringList note{"currency"_s, "denomination"_s, "bill_type"_s};
    checkReadingOrder<BasicNoteItem>(note);
    checkReadingOrder<NoteItem>(note + QStringList{"count"_s});
    checkReadingOrder<DispenserRegistryItem>(
        note + QStringList{"count"_s, "thread_id"_s, "device_id"_s, "channel"_s}, {"rejected"_s});
    checkReadingOrder<DevAndThreadItem>({"device_id"_s, "thread_id"_s});
    checkReadingOrder<StatItem>(
        {"device_id"_s, "thread_id"_s, "notes_inserted"_s, "notes_rejected"_s, "notes_returned"_s});
}

void tst_Records::valuesThatDoNotConvertReadAsZero()
{
    QVariantMap map = noteMap;
    map["denomination"_s] = "500"_s;
    map["count"_s] = "abc"_s;
    map["bill_type"_s] = 77;
    NoteItem note;
    note.count = 9;
    QVERIFY(note.fromMap(map));
    QCOMPARE(note.denomination, 500);
    QCOMPARE(note.count, 0);
    QCOMPARE(note.toMap().value("bill_type"_s), QVariant(77));
}

void tst_Records::narrowFieldsTakeTheLowBits()
{
    DevAndThreadItem device;
    QCOMPARE(device.toMap().value("thread_id"_s), QVariant(-1));
    QVERIFY(device.fromMap({{"device_id"_s, 1}, {"thread_id"_s, 70000}}));
    QCOMPARE(device.threadId, qint16(4464));

    QVariantMap map = noteMap;
    map.insert({{"thread_id"_s, -1}, {"device_id"_s, 2}, {"channel"_s, 65537}});
    const DispenserRegistryItem r = DispenserRegistryItem::createFromMap(map);
    QCOMPARE(r.toMap().value("thread_id"_s), QVariant(65535));
    QCOMPARE(r.channel, quint16(1));
}

void tst_Records::countersKeepTheirFullWidth()
{
    StatItem stat;
    stat.notesInserted = ULLONG_MAX;
    stat.notesReturned = 1ULL << 40;
    StatItem read;
    QVERIFY(read.fromMap(stat.toMap()));
    QCOMPARE(read, stat);

    QVariantMap state{{"notes_inserted"_s, 5}, {"state"_s, "idling"_s}};
    stat.addToMap(state);
    QCOMPARE(state.keys(),
             QStringList({"notes_inserted"_s, "notes_rejected"_s, "notes_returned"_s, "state"_s}));
    QCOMPARE(state.value("notes_inserted"_s), QVariant(qulonglong(ULLONG_MAX)));
}

void tst_Records::comparisonSeesEveryField()
{
    const auto differs = [](const QVariantMap& map, auto record) {
        record.fromMap(map);
        for (const QString& key : map.keys()) {
            QVariantMap other = map;
            other[key] = 1000;
            auto changed = record;
            changed.fromMap(other);
            if (changed == record || !(changed != record))
                return key;
        }
        return QString();
    };
    QCOMPARE(differs(DispenserRegistryItem().toMap(), DispenserRegistryItem()), QString());
    QCOMPARE(differs(StatItem().toMap(), StatItem()), QString());
    QCOMPARE(differs(noteMap, NoteItem()), QString());

    StatItem a;
    StatItem b;
    b.notesRejected = 1;
    QVERIFY(a.eqDev(b));
    b.threadId = 0;
    QVERIFY(!a.eqDev(b));

    const DispenserRegistryItem stored = row(1, 500, Acceptors::Bill, 3);
    QVERIFY(stored.like(row(1, 500, Acceptors::Bill, 8)));
    QVERIFY(!stored.like(row(2, 500, Acceptors::Bill, 3)));
    QVERIFY(!stored.like(row(1, 500, Acceptors::Coin, 3)));
}

void tst_Records::constructorKeepsUnsignedBits()
{
    const DispenserRegistryItem r(1, 2, 3, Acceptors::Coin, "RUB"_s, UINT_MAX, 0x80000000U, 4);
    QCOMPARE(r.denomination, -1);
    QCOMPARE(r.count, INT_MIN);
    QCOMPARE(QList<int>({r.threadId, r.deviceId, r.channel, r.rejected}), QList<int>({1, 2, 3, 4}));
}

void tst_Records::subtractionTakesOnlyTheCount()
{
    DispenserRegistryItem a = row(1, 500, Acceptors::Bill, 3);
    a.rejected = 7;
    QCOMPARE((a - row(2, 100, Acceptors::Coin, 5)).count, -2);
    QCOMPARE((a - row(2, 100, Acceptors::Coin, 5)).rejected, quint16(7));
    QCOMPARE((a - row(1, 500, Acceptors::Bill, INT_MIN)).count, INT_MIN + 3);
}

void tst_Records::rowsSortByFaceValueThenType()
{
    const auto other = static_cast<Acceptors::billTypes>(2);
    QList<DispenserRegistryItem> rows{row(1, 500, Acceptors::Bill), row(2, 100, Acceptors::Bill),
                                      row(3, 500, Acceptors::Coin), row(4, 100, Acceptors::Bill),
                                      row(5, -1, Acceptors::Bill),  row(6, 200, other),
                                      row(7, 200, Acceptors::Bill)};
    DRListRoutines::sort(rows);
    QCOMPARE(channels(rows), "5 2 4 6 7 3 1"_s);
}

void tst_Records::devicesSortByLargestFaceValue()
{
    const QList<DispenserRegistryItem> empty;
    // A negative face value counts as a very large one.
    QList<QList<DispenserRegistryItem>> devices{
        {row(1, -1, Acceptors::Bill)},
        {row(2, 500, Acceptors::Bill)},
        {row(3, 1000, Acceptors::Bill), row(4, 50, Acceptors::Bill)},
        empty,
        {row(5, 500, Acceptors::Coin)}};
    QVERIFY(DRListRoutines::devLess(empty, devices.at(1)));
    QVERIFY(!DRListRoutines::devLess(devices.at(1), empty));
    QVERIFY(!DRListRoutines::devLess(empty, empty));

    DRListRoutines::sortDevices(devices);
    QStringList order;
    for (const auto& rows : qAsConst(devices))
        order += channels(rows);
    QCOMPARE(order.join(QLatin1Char('|')), "|2|5|4 3|1"_s);
}

QTEST_APPLESS_MAIN(tst_Records)
#include "tst_records.moc"
