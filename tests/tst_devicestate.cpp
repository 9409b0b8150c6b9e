#include "devicestate.h"
#include "literals.h"

#include <QJsonDocument>
#include <QtTest>

#include <climits>

namespace {

const QStringList keys{"enabled"_s,      "state"_s,           "stacker_present"_s, "stacker_full"_s,
                       "cash"_s,         "error_text"_s,      "error_critical"_s,  "halt"_s,
                       "state_text"_s,   "thread_id"_s,       "device_id"_s,       "session_sum"_s,
                       "current_note"_s, "current_channel"_s, "dispensed_sum"_s,   "id_string"_s,
                       "online"_s};

// Differs from a new record in every field.
DeviceState everyFieldSet()
{
    DeviceState s;
    s.enabled = s.stackerFull = s.errCritical = s.halt = s.online = true;
    s.stackerPresent = false;
    s.state = STATE_EMPTIED;
    s.cash = s.threadId = s.deviceId = s.dispensedSum = UINT_MAX;
    s.sessionSum = INT_MIN;
    s.currentNote = INT_MAX;
    s.currentChannel = -1;
    s.errorText = "jam \"A\"\n"_s;
    s.stateText = u8"принято"_s;
    s.idString = "x"_s;
    return s;
}

DispenserRegistryItem row(int count)
{
    return {1, 7, 2, Acceptors::Bill, "RUB"_s, 100, static_cast<unsigned>(count), 0};
}

} // namespace

class tst_DeviceState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void newRecordSerializesToItsExactText();
    void everyStateHasOneName();
    void unknownStatesHaveNoName();
    void readingStopsAtFirstMissingKey();
    void unknownStateNameStopsReading();
    void textReadsBackAllButTheRegistry();
    void registryTravelsOnlyOutwards();
    void badTextChangesNothing_data();
    void badTextChangesNothing();
    void numbersTakeTheirLowBits();
    void comparisonSeesEveryField();
    void resetsKeepWhatTheyShould();
};

void tst_DeviceState::newRecordSerializesToItsExactText()
{
    QCOMPARE(DeviceState().serialize(),
             R"({"cash":0,"current_channel":0,"current_note":0,"device_id":0,"dispensed_sum":0,)"
             R"("enabled":false,"error_critical":false,"error_text":"","halt":false,)"
             R"("id_string":"","online":false,"session_sum":0,"stacker_full":false,)"
             R"("stacker_present":true,"state":"busy","state_text":"","thread_id":0})"_s);
}

void tst_DeviceState::everyStateHasOneName()
{
    const QStringList names =
        "idling accepting accepted rejected stacking stacked returning returned jammed busy error "
        "updating dispensing dispensed floating floated emptying emptied"_s.split(QLatin1Char(' '));
    for (int value = 0; value < 18; ++value) {
        DeviceState s;
        s.state = static_cast<State>(value);
        QCOMPARE(s.stateAsString(), names.at(value));
        State read = STATE_BUSY;
        QVERIFY(DeviceState::stateFromString(names.at(value), read));
        QCOMPARE(int(read), value);
    }
}

void tst_DeviceState::unknownStatesHaveNoName()
{
    State state = STATE_JAMMED;
    QVERIFY(!DeviceState::stateFromString("Idling"_s, state));
    QVERIFY(!DeviceState::stateFromString(QString(), state));
    QCOMPARE(state, STATE_JAMMED);
    for (const int value : {-1, 18, INT_MAX, INT_MIN}) {
        DeviceState s;
        s.state = static_cast<State>(value);
        QVERIFY(s.stateAsString().isNull());
        QVERIFY(!DeviceState().fromMap(s.toMap()));
    }
}

void tst_DeviceState::readingStopsAtFirstMissingKey()
{
    const QVariantMap complete = everyFieldSet().toMap();
    const QVariantMap defaults = DeviceState().toMap();
    QCOMPARE(complete.size(), keys.size());
    for (int missing = 0; missing < keys.size(); ++missing) {
        QVariantMap map = complete;
        map.remove(keys.at(missing));
        DeviceState s;
        QVERIFY(!s.fromMap(map));
        const QVariantMap read = s.toMap();
        for (int i = 0; i < keys.size(); ++i)
            QCOMPARE(read.value(keys.at(i)), (i < missing ? complete : defaults).value(keys.at(i)));
    }
}

void tst_DeviceState::unknownStateNameStopsReading()
{
    QVariantMap map = everyFieldSet().toMap();
    map["state"_s] = "BUSY"_s;
    DeviceState s;
    QVERIFY(!s.fromMap(map));
    DeviceState expected;
    expected.enabled = true;
    QCOMPARE(s, expected);
}

void tst_DeviceState::textReadsBackAllButTheRegistry()
{
    DeviceState written = everyFieldSet();
    written.setDispenserRegistry({row(5)});
    DeviceState read;
    QVERIFY(read.parse(written.serialize()));
    QCOMPARE(read, everyFieldSet());
    QVERIFY(QMetaType::type("DeviceState") != QMetaType::UnknownType);
}

void tst_DeviceState::registryTravelsOnlyOutwards()
{
    DeviceState s;
    QVERIFY(!s.toMap().contains("dispenser_registry"_s));
    s.setDispenserRegistry({row(5), row(6)});
    QCOMPARE(s.toMap().value("dispenser_registry"_s),
             QVariant(QVariantList{row(5).toMap(), row(6).toMap()}));
    QVERIFY(s.serialize().contains(
        R"("dispensed_sum":0,"dispenser_registry":[{"bill_type":0,"channel":2,"count":5,)"_s));
    QVERIFY(s.fromMap(everyFieldSet().toMap()));
    QCOMPARE(s.dispenserRegistry.size(), 2);
}

void tst_DeviceState::badTextChangesNothing_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("truncated") << everyFieldSet().serialize().chopped(1);
    QTest::newRow("array") << "[{\"enabled\":true}]"_s;
    QTest::newRow("trailing text") << everyFieldSet().serialize() + QLatin1Char('x');
}

void tst_DeviceState::badTextChangesNothing()
{
    QFETCH(QString, text);
    DeviceState s;
    QVERIFY(!s.parse(text));
    QCOMPARE(s, DeviceState());
}

void tst_DeviceState::numbersTakeTheirLowBits()
{
    QVariantMap map = DeviceState().toMap();
    map["current_channel"_s] = 65535;
    map["cash"_s] = -1;
    map["device_id"_s] = "12"_s;
    map["session_sum"_s] = "abc"_s;
    DeviceState s;
    s.sessionSum = 5;
    QVERIFY(s.fromMap(map));
    QCOMPARE(s.currentChannel, qint16(-1));
    QCOMPARE(s.cash, UINT_MAX);
    QCOMPARE(s.deviceId, 12U);
    QCOMPARE(s.sessionSum, 0);
    QCOMPARE(s.toMap().value("current_channel"_s), QVariant(-1));
}

void tst_DeviceState::comparisonSeesEveryField()
{
    const QVariantMap changed = everyFieldSet().toMap();
    for (const QString& key : keys) {
        QVariantMap map = DeviceState().toMap();
        map[key] = changed.value(key);
        DeviceState s;
        QVERIFY(s.fromMap(map));
        QVERIFY2(s != DeviceState(), qPrintable(key));
        DeviceState copy;
        copy = s;
        QCOMPARE(copy, s);
    }
    DeviceState a;
    DeviceState b;
    a.setDispenserRegistry({row(5)});
    b.setDispenserRegistry({row(6)});
    QVERIFY(a != b);
    b = a;
    QCOMPARE(b.dispenserRegistry, a.dispenserRegistry);
}

void tst_DeviceState::resetsKeepWhatTheyShould()
{
    DeviceState kept;
    kept.threadId = kept.deviceId = UINT_MAX;
    kept.dispenserRegistry = {row(5)};
    DeviceState whole = everyFieldSet();
    whole.dispenserRegistry = kept.dispenserRegistry;
    DeviceState oper = whole;

    whole.reset();
    QCOMPARE(whole, kept);

    kept.cash = UINT_MAX;
    kept.sessionSum = INT_MIN;
    kept.idString = "x"_s;
    kept.online = true;
    oper.resetOper();
    QCOMPARE(oper, kept);
}

QTEST_APPLESS_MAIN(tst_DeviceState)
#include "tst_devicestate.moc"
