#include "dispenserregistrymodel.h"
#include "literals.h"

#include <QtTest>

namespace {

DispenserRegistryItem row(quint16 thread, quint16 channel, quint32 count)
{
    return {thread, 7, channel, Acceptors::Bill, "RUB"_s, 100, count, 0};
}

} // namespace

class tst_DispenserRegistry : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void updateReplacesTheFirstAlikeRow();
    void updateAppendsAnUnknownRow();
    void malformedMapsStillGiveRows();
    void mapOfAThreadHoldsItsFirstRow();
    void mapReadsBack();
};

void tst_DispenserRegistry::updateReplacesTheFirstAlikeRow()
{
    DispenserRegistryModel registry;
    registry.assign({row(1, 1, 10), row(1, 2, 20)});
    QVERIFY(registry.insert(row(1, 2, 30)));

    bool inserted = true;
    DispenserRegistryItem update = row(1, 2, 19);
    update.rejected = 1;
    QCOMPARE(*registry.ui(update, &inserted), update);
    QVERIFY(!inserted);
    QCOMPARE(registry.items(),
             QList<DispenserRegistryItem>({row(1, 1, 10), update, row(1, 2, 30)}));
    QCOMPARE(registry.find(row(1, 2, 0)), &registry[1]);
    QCOMPARE(registry.find(row(1, 3, 0)), nullptr);
}

void tst_DispenserRegistry::updateAppendsAnUnknownRow()
{
    DispenserRegistryModel registry;
    bool inserted = false;
    registry.ui(row(1, 1, 10), &inserted);
    QVERIFY(inserted);
    QCOMPARE(registry.ui(row(1, 2, 20))->count, 20);
    QCOMPARE(registry.items().size(), 2);
    registry.clear();
    QVERIFY(registry.items().isEmpty());
}

void tst_DispenserRegistry::malformedMapsStillGiveRows()
{
    DispenserRegistryModel registry;
    registry.insert(row(1, 1, 10));
    QVERIFY(!registry.fromMap({}));
    QCOMPARE(registry.items().size(), 1);

    QVariantMap withoutChannel = row(3, 4, 5).toMap();
    withoutChannel.remove("channel"_s);
    QVERIFY(registry.fromMap({{"dispenser_registry"_s, QVariantList{withoutChannel, 42}}}));
    QCOMPARE(registry.items(), QList<DispenserRegistryItem>({row(3, 0, 5), {}}));

    QVERIFY(registry.fromMap({{"dispenser_registry"_s, row(1, 1, 1).toMap()}}));
    QVERIFY(registry.items().isEmpty());
}

void tst_DispenserRegistry::mapOfAThreadHoldsItsFirstRow()
{
    DispenserRegistryModel registry;
    registry.assign({row(3, 1, 0), row(7, 2, 0), row(7, 3, 0)});
    QCOMPARE(registry.toMap(7), QVariantMap({{"dispenser_registry"_s, row(7, 2, 0).toMap()}}));
    QVERIFY(registry.toMap(9).isEmpty());
}

void tst_DispenserRegistry::mapReadsBack()
{
    DispenserRegistryModel registry;
    QCOMPARE(registry.toMap(), QVariantMap({{"dispenser_registry"_s, QVariantList()}}));
    registry.assign({row(2, 2, 8), row(2, 1, 9)});
    DispenserRegistryModel read;
    QVERIFY(read.fromMap(registry.toMap()));
    QCOMPARE(read.items(), registry.items());
}

QTEST_APPLESS_MAIN(tst_DispenserRegistry)
#include "tst_dispenserregistry.moc"
