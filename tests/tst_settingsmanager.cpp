// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "droutemapitem.h"
#include "logcapture.h"
#include "settingsmanager.h"
#include "testtable.h"

using acceptorSettings::SettingsManager;

class tst_SettingsManager : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void lookupsFindTheFirstEntry()
    {
        SettingsManager manager;
        manager.addItem("ccnet"_s, "response_time"_s, 1);
        manager.addItem("ccnet"_s, "response_time"_s, 2);
        manager.insUpdItem("ccnet"_s, "response_time"_s, 3);
        manager.insUpdItem(2, "ccnet"_s, "response_time"_s, QVariant());
        manager.insUpdItem(2, "ccnet"_s, "response_time"_s, QVariant());
        QCOMPARE(manager.count(), 3);
        bool usedDefault = true;
        QCOMPARE(manager.getValue("ccnet"_s, "response_time"_s, &usedDefault), QVariant(3));
        QVERIFY(!usedDefault);
        QCOMPARE(manager.getValue(2, "ccnet"_s, "response_time"_s), QVariant());
        QVERIFY(manager.isExists("device2/ccnet"_s, "response_time"_s));
        QVERIFY(!manager.isExists(-1, "ccnet"_s, "response_time"_s));
        QVERIFY(!manager.find("CCNet"_s, "response_time"_s));
        // A device without an entry has the default, not the plain group's entry.
        QCOMPARE(manager.getValue(3, "ccnet"_s, "response_time"_s, &usedDefault),
                 QVariant("1000"_s));
        QVERIFY(usedDefault);
        QCOMPARE(manager.addItem(-1, QString(), "a"_s, 0)->group, "device-1/"_s);
        manager.clear();
        QCOMPARE(manager.count(), 0);
        QVERIFY(!manager.isLoaded() && !SettingsManager::_instance);
    }

    void defaultsAreTexts_data()
    {
        addRows(R"(
            hw_interface      | baudrate                   | 115200
            hw_interface      | tcp_port                   | 10400
            hw_interface      | portname                   |
            debug             | port_logging               | false
            service           | reset_after_empty_sessions | 3
            service           | reset_idle_timeout         | 3600000
            uniteller_service | terminal_id                | 0000000000
            posd200           | terminal_id                | -1
            posd200           | timeout_packet             | 45000
            ccnet             | bill_table_interval        | 5000
            ssp               | response_time              | 5000
            ssp               | rest_interval              | 100
            ssp               | get_levels_rest_time       | 0
            ssp               | payout_rest_time           | 0
            ssp               | log_decrypted_msg          | false
            ict               | reset_timeout              | 0
            device            | accept_on_jam              | 0
            dispenser         | route_map                  |
            id003             | response_time              | none
            device2/ccnet     | response_time              | none
            ccnet             | %2                         | none)"_s);
    }

    void defaultsAreTexts()
    {
        const auto [group, name, expected] = cells<3>();
        const LogCapture log;
        const QVariant value = SettingsManager().getDefault(group, name);
        if (expected != "none"_s) {
            QCOMPARE(value, QVariant(expected));
            QVERIFY(log.texts().isEmpty());
            return;
        }
        QCOMPARE(value, QVariant(false));
        QCOMPARE(log.texts(),
                 QStringList("critical: Default settings not found for param "_s + name
                             + " in group "_s + group));
        QVERIFY(log.places().at(0).startsWith("default src/settings/settingsmanager.cpp"_s));
    }

    void listLoadsAsItIs()
    {
        const auto element = [](const QString& key, const QVariant& value) {
            return QVariantMap{{"group"_s, "ccnet"_s}, {"key"_s, key}, {"value"_s, value}};
        };
        const QVariantList list{element("a"_s, 1500), element("a"_s, QVariantList{1}),
                                element("%1"_s, true), element("b"_s, QVariant())};
        const LogCapture log;
        SettingsManager manager;
        manager.addItem("old"_s, "old"_s, 0);
        QVERIFY(manager.load(quorbus::ClientSettings(list)));
        QCOMPARE(manager.toList(), list);
        QCOMPARE(log.texts(),
                 QStringList({"debug: Parsing settings list..."_s,
                              "debug: Added [ccnet/a = 1500]"_s, "debug: Added [ccnet/a = ]"_s,
                              "debug: Added [ccnet/%1 = true]"_s, "debug: Added [ccnet/b = ]"_s}));
        QVERIFY(manager.load(quorbus::ClientSettings({7, QVariantMap{{"group"_s, "g"_s}}})));
        QCOMPARE(manager.count(), 2);
        QVERIFY(manager.isExists(QString(), QString()) && manager.isExists("g"_s, QString()));
        QVERIFY(manager.load(quorbus::ClientSettings({})) && manager.isLoaded());
        QVERIFY(manager.toList().isEmpty());
    }

    void routeMapKeepsCompleteRows()
    {
        const QList<DRouteMapItem> rows{DRouteMapItem(),
                                        DRouteMapItem(5000, "EUR"_s, Acceptors::Coin,
                                                      static_cast<DRouteMapItem::Route>(-7),
                                                      0xFFFFFFFFU)};
        const QString json = DRouteMap::toJson(rows);
        QVERIFY(json.startsWith("[\n    {\n        \"bill_type\": 0,\n        \"count\": 0,\n"
                                "        \"currency\": \"RUB\",\n"_s));
        QCOMPARE(DRouteMap::fromJson(json), rows);
        QVERIFY(rows.at(0) != rows.at(1) && rows.at(1).count == -1);
        const QString complete =
            R"({"currency":"RUB","denomination":100.0,"bill_type":0,"count":1,"route":2})"_s;
        const QString lacking = QString(complete).remove(R"(,"route":2)"_s);
        const QString mixed = "[7, %1, %2, []]"_s.arg(complete, lacking);
        QCOMPARE(DRouteMap::fromJson(mixed).size(), 1);
        QCOMPARE(DRouteMap::fromJson(mixed).at(0).denomination, 100);
        for (const QString& text : {QString(), "["_s, complete, mixed + "x"_s})
            QVERIFY(DRouteMap::fromJson(text).isEmpty());
        QCOMPARE(DRouteMap::toJson({}), "[\n]\n"_s);
        QString error;
        QVERIFY(!DRouteMapItem().fromMap(NoteItem().toMap(), &error));
        QCOMPARE(error, "route"_s);
    }
};

QTEST_APPLESS_MAIN(tst_SettingsManager)
#include "tst_settingsmanager.moc"
