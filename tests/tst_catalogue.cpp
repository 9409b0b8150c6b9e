// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptors.h"
#include "logcapture.h"
#include "testtable.h"

namespace {

// Where a model stands in the catalogue. The compiler names one that has no case.
int placeOf(Acceptors::Supported model)
{
    switch (model) {
    case Acceptors::ArdacEliteId003:
        return 0;
    case Acceptors::JcmIproId003:
        return 1;
    case Acceptors::Id003:
        return 2;
    case Acceptors::CCNet:
        return 3;
    case Acceptors::Ebds:
        return 4;
    case Acceptors::EsspPayout:
        return 5;
    case Acceptors::Ssp:
        return 6;
    case Acceptors::Ict:
        return 7;
    case Acceptors::PuloonLcdm2:
        return 8;
    case Acceptors::CCTalk:
        return 9;
    case Acceptors::SmartHopper:
        return 10;
    case Acceptors::Uniteller:
        return 11;
    case Acceptors::PosD200:
        return 12;
    }
    return -1;
}

} // namespace

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
        for (int id = 0; id < 1000; ++id)
            QVERIFY2(ids.indexOf(id) == placeOf(Acceptors::Supported(id)),
                     qPrintable(QString::number(id)));
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
