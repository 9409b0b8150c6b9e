#include "acceptors.h"
#include "literals.h"
#include "logcapture.h"

#include <QtTest>

class tst_Catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsHoldTheirFourEntriesInFixedOrder();
    void paysOutByKind_data();
    void paysOutByKind();
    void unknownModelFallsBackAndIsLogged();
};

void tst_Catalogue::rowsHoldTheirFourEntriesInFixedOrder()
{
    QList<int> ids;
    const QVariantList rows = Acceptors::SupportedDevicesAsVariantList();
    for (const QVariant& row : rows) {
        const QVariantMap map = row.toMap();
        QCOMPARE(map.keys(), QStringList({"class"_s, "id"_s, "protocol"_s, "type"_s}));
        QCOMPARE(map.value("id"_s).type(), QVariant::Int);
        QCOMPARE(map.value("type"_s).type(), QVariant::Int);
        ids.append(map.value("id"_s).toInt());
    }
    QCOMPARE(ids, QList<int>({6, 7, 5, 1, 2, 50, 3, 4, 51, 100, 150, 200, 201}));
    QCOMPARE(Acceptors::search(Acceptors::JcmIproId003).value("class"_s).toString(),
             "NaJcmIproId003"_s);
}

void tst_Catalogue::paysOutByKind_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<int>("kind");
    QTest::addColumn<bool>("paysOut");
    QTest::addColumn<bool>("smart");
    QTest::addColumn<QString>("name");

    QTest::newRow("validator") << 5 << 1 << false << false << "ID 003"_s;
    QTest::newRow("recycler") << 7 << 6 << true << false << "JCM iPRO ID003"_s;
    QTest::newRow("smart payout") << 50 << 6 << true << true << "eSSP with Payout module"_s;
    QTest::newRow("dispenser") << 51 << 4 << true << false << "Puloon LCDM2"_s;
    QTest::newRow("coin acceptor") << 100 << 2 << false << false << "CCTalk"_s;
    QTest::newRow("hopper") << 150 << 7 << true << true << "eSSP, Smart Hopper"_s;
    QTest::newRow("card terminal") << 201 << 3 << false << false << "PosD200"_s;
    QTest::newRow("unknown") << 8 << -1 << false << false << "Unknown device"_s;
}

void tst_Catalogue::paysOutByKind()
{
    QFETCH(int, id);
    const LogCapture log;
    const auto model = static_cast<Acceptors::Supported>(id);
    QTEST(static_cast<int>(Acceptors::devType(model)), "kind");
    QTEST(Acceptors::canDispense(model), "paysOut");
    QTEST(Acceptors::isSmartDispenser(model), "smart");
    QTEST(Acceptors::devName(model), "name");
}

void tst_Catalogue::unknownModelFallsBackAndIsLogged()
{
    const LogCapture log;
    const auto unknown = static_cast<Acceptors::Supported>(-70000);
    QVERIFY(!Acceptors::isSmartDispenser(unknown));
    QVERIFY(log.lines().isEmpty());

    QVERIFY(Acceptors::search(unknown).isEmpty());
    QCOMPARE(log.texts(), QStringList("critical: -70000 - unknown device."_s));
    QCOMPARE(log.lines().constFirst().category, "default"_s);
    QCOMPARE(log.lines().constFirst().file, "src/acceptors.cpp"_s);
}

QTEST_APPLESS_MAIN(tst_Catalogue)
#include "tst_catalogue.moc"
