// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptors.h"
#include "logcapture.h"
#include "testtable.h"

class tst_Catalogue : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void rowsHoldTheirFourEntriesInFixedOrder()
    {
        QList<int> ids;
        for (const QVariant& row : Acceptors::SupportedDevicesAsVariantList()) {
            const QVariantMap map = row.toMap();
            QCOMPARE(map.keys(), QStringList({"class"_s, "id"_s, "protocol"_s, "type"_s}));
            QCOMPARE(map.value("id"_s).userType(), QMetaType::Int);
            QCOMPARE(map.value("type"_s).userType(), QMetaType::Int);
            ids.append(map.value("id"_s).toInt());
        }
        QCOMPARE(ids, QList<int>({6, 7, 5, 1, 2, 50, 3, 4, 51, 100, 150, 200, 201}));
        QCOMPARE(Acceptors::search(Acceptors::JcmIproId003).value("class"_s).toString(),
                 "NaJcmIproId003"_s);
    }

    void modelsAreKnownByKind_data()
    {
        addRows(R"(
            5   | ID 003                  | 1  |
            7   | JCM iPRO ID003          | 6  | pays out
            50  | eSSP with Payout module | 6  | pays out, smart
            51  | Puloon LCDM2            | 4  | pays out
            100 | CCTalk                  | 2  |
            150 | eSSP, Smart Hopper      | 7  | pays out, smart
            201 | PosD200                 | 3  |
            8   | Unknown device          | -1 |)"_s);
    }

    void modelsAreKnownByKind()
    {
        const auto [id, name, type, abilities] = cells<4>();
        const LogCapture log;
        const auto model = static_cast<Acceptors::Supported>(id.toInt());
        QCOMPARE(Acceptors::devName(model), name);
        QCOMPARE(QString::number(Acceptors::devType(model)), type);
        QCOMPARE(Acceptors::canDispense(model), abilities.contains("pays out"_s));
        QCOMPARE(Acceptors::isSmartDispenser(model), abilities.contains("smart"_s));
    }

    void unknownModelIsLogged()
    {
        const LogCapture log;
        const auto unknown = static_cast<Acceptors::Supported>(-70000);
        QVERIFY(!Acceptors::isSmartDispenser(unknown));
        QVERIFY(Acceptors::search(unknown).isEmpty());
        QCOMPARE(log.texts(), QStringList("critical: -70000 - unknown device."_s));
        QVERIFY(log.places().constFirst().startsWith("default src/acceptors.cpp "_s));
    }
};

QTEST_APPLESS_MAIN(tst_Catalogue)
#include "tst_catalogue.moc"
