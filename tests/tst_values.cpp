// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "abstractfilter.h"
#include "acceptorsettings.h"
#include "acceptorstate.h"
#include "dispenserregistrymodel.h"
#include "logcapture.h"
#include "noteitem.h"
#include "statitem.h"
#include "testtable.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QPoint>
#include <QUuid>

namespace {

// A program's own filter with a parameter of each kind.
class OwnFilter : public AbstractFilter
{
    Q_OBJECT
    Q_PROPERTY(bool flag MEMBER m_flag)
    Q_PROPERTY(int number MEMBER m_number)
    Q_PROPERTY(QString text MEMBER m_text)

public:
    QString getFilterName() const override { return {}; }
    QList<FieldDescription> getFieldsDescription() const override { return {}; }
    QString getFilterDescription() const override { return {}; }

    bool m_flag = false;
    int m_number = 0;
    QString m_text = "-"_s;
};

AcceptorState stateOf(const QVariant& devices)
{
    AcceptorState state;
    AcceptorState::loadFromStateMap({{"device_states"_s, devices}}, state);
    return state;
}

} // namespace

// What a value from outside means is the same with every Qt.
class tst_Values : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void singleValues_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<QString>("fields"); // of a record: switch, number, large number, text
        QTest::addColumn<QString>("parameters"); // of a filter: switch, number, text

        const auto add = [](const char* name, const QVariant& value, const QString& fields,
                            const QString& parameters) {
            QTest::newRow(name) << value << fields << parameters;
        };
        add("negative half", -2.5, "true|-2|18446744073709551614|-2.5"_s, "true|-2|-2.5"_s);
        add("negative half below 1", -0.5, "false|0|0|-0.5"_s, "false|0|-0.5"_s);
        add("negative half of a float", -1.5F, "true|-1|18446744073709551615|-1.5"_s,
            "true|-1|-1.5"_s);
        add("no number", qQNaN(), "false|0|0|nan"_s, "false|0|nan"_s);
        add("below 64 bits", -1473564327E10,
            "true|-892977152|3711100803709550592|-1.473564327e+19"_s,
            "true|-892977152|-1.473564327e+19"_s);
        add("a little below 64 bits", -9223372036854777856.0,
            "true|-2047|9223372036854773761|-9223372036854778000"_s,
            "true|-2047|-9223372036854778000"_s);
        add("far below 64 bits", -1e20, "false|0|0|-1e+20"_s, "false|0|-1e+20"_s);
        add("above 64 bits", 1e19, "true|0|9223372036854775808|1e+19"_s, "true|0|1e+19"_s);
        add("float below 64 bits", -1.473564327E19F,
            "true|0|3711101332883505152|-14735642740826046000"_s, "true|0|-14735642740826046000"_s);
        add("infinite", -qInf(), "false|0|0|-inf"_s, "false|0|-inf"_s);
        add("large real", 1e5, "true|100000|100000|100000"_s, "true|100000|100000"_s);
        add("small real", 0.0001, "false|0|0|0.0001"_s, "false|0|0.0001"_s);
        add("JSON number", QJsonValue(2.7), "false|2|2|"_s, "false|2|-"_s);
        add("JSON number above 64 bits", QJsonValue(1e19), "false|0|9223372036854775808|"_s,
            "false|0|-"_s);
        add("JSON number below 64 bits", QJsonValue(-1473564327E10),
            "false|0|9223372036854775808|"_s, "false|0|-"_s);
        add("list", QVariantList{7}, "false|0|0|"_s, "false|0|-"_s);
        add("enumerator", QVariant::fromValue(Qt::Horizontal), "false|1|1|Horizontal"_s,
            "false|1|Horizontal"_s);
        add("byte", QVariant::fromValue(uchar(65)), "true|65|65|A"_s, "false|65|-"_s);
        add("bytes", QByteArray("7\0x", 3), "true|7|7|7"_s, "true|7|7"_s);
        add("spaces", "\u20037\u00a0"_s, "true|7|7|\u20037\u00A0"_s, "true|7|\u20037\u00A0"_s);
        add("minus sign", "\u22127"_s, "true|-7|0|\u22127"_s, "true|-7|\u22127"_s);
        add("zero at the end", "7\0"_s, "true|0|0|7\0"_s, "true|0|7\0"_s);
        add("zero and space", "7\0\u00a0"_s, "true|0|0|7\0\u00A0"_s, "true|0|7\0\u00A0"_s);
    }

    void singleValues()
    {
        QFETCH(QVariant, value);
        const LogCapture log;
        const AcceptorStateItem device(QVariantMap{{"enabled"_s, value}});
        StatItem counters;
        counters.fromMap({{"device_id"_s, value}, {"thread_id"_s, 0}, {"notes_inserted"_s, value}});
        NoteItem note;
        note.fromMap({{"currency"_s, value}});
        QTEST(
            QStringList({QVariant(device.enabled()).toString(), QString::number(counters.deviceId),
                         QString::number(counters.notesInserted), note.currency})
                .join(QLatin1Char('|')),
            "fields");
        OwnFilter filter;
        filter.setParams({{"flag"_s, value}, {"number"_s, value}, {"text"_s, value}});
        QTEST(QStringList({QVariant(filter.m_flag).toString(), QString::number(filter.m_number),
                           filter.m_text})
                  .join(QLatin1Char('|')),
              "parameters");
    }

    void realsInText_data()
    {
        // Number, as an unsigned 32-bit one, whether it is on.
        addRows(R"(
            -1473564327E10   | 3401990144 | true
            -1259366302522e7 | 3771361280 | true
            -1e20            | 0          | false
            1e19             | 0          | true
            -2.5             | 4294967294 | true)"_s);
    }

    void realsInText()
    {
        const auto [number, deviceId, isOn] = cells<3>();
        DeviceState state;
        QVERIFY(
            state.parse(state.serialize()
                            .replace("\"device_id\":0"_s, "\"device_id\":"_s + number)
                            .replace("\"stacker_full\":false"_s, "\"stacker_full\":"_s + number)));
        QCOMPARE(QString::number(state.deviceId), deviceId);
        QCOMPARE(QVariant(state.stackerFull).toString(), isOn);
    }

    void listsAndMaps_data()
    {
        QTest::addColumn<QVariant>("value");
        QTest::addColumn<int>("devices"); // that it has as a list of devices
        QTest::addColumn<int>("deviceId"); // that it has as a device, 0 for none

        const QVariantMap map{{"device_id"_s, 7}};
        QTest::newRow("list") << QVariant(QVariantList{map, map}) << 2 << -1;
        QTest::newRow("texts") << QVariant(QStringList{"a"_s}) << 1 << -1;
        QTest::newRow("JSON list") << QVariant(QJsonArray{1, 2}) << 2 << -1;
        QTest::newRow("list of maps") << QVariant::fromValue(QList<QVariantMap>{map}) << 0 << -1;
        QTest::newRow("numbers") << QVariant::fromValue(QVector<int>{1}) << 0 << -1;
        QTest::newRow("hash") << QVariant(QVariantHash{{"device_id"_s, 7}}) << 0 << 7;
        QTest::newRow("JSON object") << QVariant(QJsonObject{{"device_id"_s, 7}}) << 0 << 7;
        QTest::newRow("map of numbers")
            << QVariant::fromValue(QMap<QString, int>{{"device_id"_s, 7}}) << 0 << -1;
        for (const QVariant& null :
             {QVariant(QString()), QVariant(QByteArray()), QVariant(QDate()), QVariant(QPoint()),
              QVariant(QUuid()), QVariant(QChar()), QVariant(QJsonValue())})
            QTest::newRow(null.typeName()) << null << 0 << 0;
    }

    void listsAndMaps()
    {
        QFETCH(QVariant, value);
        QTEST(int(stateOf(value).deviceStates().size()), "devices");
        DispenserRegistryModel registry;
        QVERIFY(registry.fromMap({{"dispenser_registry"_s, value}}));
        QTEST(int(registry.items().size()), "devices");
        const AcceptorState state = stateOf(QVariantList{value});
        QTEST(state.deviceStates().isEmpty() ? 0 : state.deviceStates().constFirst().deviceId(),
              "deviceId");
    }

    void numbersInSettings_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<qint64>("sum");
        QTest::newRow("spaces") << "\u20037\u00a0"_s << qint64(7);
        QTest::newRow("minus sign") << "\u22127"_s << qint64(-7);
        QTest::newRow("zero and space") << "7\0\u00a0"_s << qint64(0);
    }

    void numbersInSettings()
    {
        QFETCH(QString, text);
        AcceptorSettings().updateValue("acceptor_common"_s, {}, "maxSumm"_s, text);
        QTEST(AcceptorSettings::maxSumm(), "sum");
    }
};

QTEST_APPLESS_MAIN(tst_Values)
#include "tst_values.moc"
