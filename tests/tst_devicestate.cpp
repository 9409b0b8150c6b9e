// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devicestateworker.h"
#include "testtable.h"

#include <QJsonDocument>
#include <QSignalSpy>
#include <QThread>

#include <climits>

namespace {

const QStringList keys =
    "enabled state stacker_present stacker_full cash error_text error_critical halt state_text "
    "thread_id device_id session_sum current_note current_channel dispensed_sum id_string "
    "online"_s.split(QLatin1Char(' '));

// Differs from a new record in every field.
DeviceState everyFieldSet()
{
    DeviceStateWorker worker;
    worker.setEnabled(true);
    worker.setState(STATE_EMPTIED);
    worker.setStackerPresent(false);
    worker.setStackerFull(true);
    worker.setCash(UINT_MAX);
    worker.setErrorText("jam\tA\n"_s);
    worker.setErrCritical(true);
    worker.setHalt(true);
    worker.setStateText("принято"_s);
    worker.setThreadId(UINT_MAX - 1);
    worker.setDeviceId(UINT_MAX - 2);
    worker.setSessionSum(INT_MIN);
    worker.setCurrentNote(INT_MAX);
    worker.setCurrentChannel(-1);
    worker.setDispensedSum(UINT_MAX - 3);
    worker.setIdString("x"_s);
    worker.setOnline(true);
    return *worker.getState();
}

DispenserRegistryItem row(unsigned count)
{
    return {1, 7, 2, Acceptors::Bill, "RUB"_s, 100, count, 0};
}

} // namespace

class tst_DeviceState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void recordsSerializeToTheirExactText()
    {
        QCOMPARE(
            DeviceState().serialize(),
            R"({"cash":0,"current_channel":0,"current_note":0,"device_id":0,"dispensed_sum":0,)"
            R"("enabled":false,"error_critical":false,"error_text":"","halt":false,)"
            R"("id_string":"","online":false,"session_sum":0,"stacker_full":false,)"
            R"("stacker_present":true,"state":"busy","state_text":"","thread_id":0})"_s);
    }

    void statesAndNamesMatch()
    {
        const QStringList names =
            "idling accepting accepted rejected stacking stacked returning returned jammed busy "
            "error updating dispensing dispensed floating floated emptying emptied"_s.split(
                QLatin1Char(' '));
        for (int value = -1; value <= names.size(); ++value) {
            DeviceState s;
            s.state = static_cast<State>(value);
            QCOMPARE(s.stateAsString(), names.value(value));
            QCOMPARE(DeviceState().fromMap(s.toMap()), value >= 0 && value < names.size());
            State read = STATE_JAMMED;
            QCOMPARE(DeviceState::stateFromString(names.value(value), read),
                     value >= 0 && value < names.size());
            QCOMPARE(int(read), names.value(value).isNull() ? int(STATE_JAMMED) : value);
        }
        State state = STATE_JAMMED;
        QVERIFY(!DeviceState::stateFromString("Idling"_s, state));
    }

    void readingStopsAtFirstMissingKey()
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
                QCOMPARE(read[keys.at(i)], (i < missing ? complete : defaults)[keys.at(i)]);
        }
        QVariantMap map = complete;
        map["state"_s] = "BUSY"_s;
        DeviceState s;
        DeviceState expected;
        expected.enabled = true;
        QVERIFY(!s.fromMap(map));
        QCOMPARE(s, expected);
    }

    void registryTravelsOnlyOutwards()
    {
        DeviceState s = everyFieldSet();
        s.setDispenserRegistry({row(5), row(6)});
        QCOMPARE(s.toMap().value("dispenser_registry"_s),
                 QVariant(QVariantList{row(5).toMap(), row(6).toMap()}));
        QVERIFY(s.serialize().contains(
            R"(,"dispenser_registry":[{"bill_type":0,"channel":2,"count":5,)"_s));
        DeviceState read;
        QVERIFY(read.parse(s.serialize()));
        QCOMPARE(read, everyFieldSet());
        QVERIFY(s.parse(read.serialize()));
        QCOMPARE(s.dispenserRegistry.size(), 2);
    }

    // Each line is a value, which is put in for a text and for a number, or after "=" a document.
    void textReadsAsQtReadsIt()
    {
        QFile values(QStringLiteral(JSONVALUES));
        QVERIFY(values.open(QIODevice::ReadOnly));
        QString state = DeviceState().serialize();
        state.replace(R"("state_text":"")"_s, R"("state_text":%1)"_s);
        state.replace(R"("session_sum":0)"_s, R"("session_sum":%1)"_s);
        QStringList lines = QString::fromUtf8(values.readAll()).split(QLatin1Char('\n'));
        for (const QString& half : {QString(QChar(0xd800)), QString(QChar(0xdc00))})
            lines += {R"("a%1")"_s.arg(half), R"("\%1")"_s.arg(half), R"("\%1%1")"_s.arg(half)};
        for (const int depth : {1023, 1024})
            lines += "%1 %2"_s.arg("["_s.repeated(depth), "]"_s.repeated(depth));
        lines += "[%1{}]"_s.arg("{},"_s.repeated(1024));
        for (const QString& line : qAsConst(lines)) {
            const QString text = line.startsWith(QLatin1Char('=')) ? line.mid(1) : state.arg(line);
            QJsonParseError error;
            const QVariant json = QJsonDocument::fromJson(text.toUtf8(), &error).toVariant();
            DeviceState read = everyFieldSet();
            DeviceState expected = read;
            const bool isJson = error.error == QJsonParseError::NoError;
            QVERIFY2(read.parse(text) == (isJson && expected.fromMap(json.toMap())),
                     qPrintable(line));
            QVERIFY2(read == expected, qPrintable(line));
        }
    }

    void numbersTakeTheirLowBits()
    {
        QVariantMap map = DeviceState().toMap();
        map.insert({{"current_channel"_s, 98303}, {"cash"_s, -1}, {"device_id"_s, "12"_s}});
        map["session_sum"_s] = "abc"_s;
        DeviceState s = everyFieldSet();
        QVERIFY(s.fromMap(map));
        QCOMPARE(s.currentChannel, qint16(32767));
        QCOMPARE(s.cash, UINT_MAX);
        QCOMPARE(s.deviceId, 12U);
        QCOMPARE(s.sessionSum, 0);
    }

    void comparisonAndCopySeeEveryField()
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
        QCOMPARE(b, a);
        // What refers to a row may outlive the copy of an equal state.
        DeviceState equal;
        equal.setDispenserRegistry({row(5)});
        const DispenserRegistryItem* const held = &equal.dispenserRegistry.constFirst();
        equal = a;
        QCOMPARE(&equal.dispenserRegistry.constFirst(), held);
    }

    void resetsKeepWhatTheyShould()
    {
        DeviceState kept;
        kept.threadId = UINT_MAX - 1;
        kept.deviceId = UINT_MAX - 2;
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

    void workerSendsUntilSaved()
    {
        DeviceStateWorker worker;
        QSignalSpy sent(&worker, &DeviceStateWorker::deviceStateChanged);
        QVERIFY(!worker.checkState());
        worker.setSessionSum(100);
        QVERIFY(worker.checkState());
        QVERIFY(worker.checkState());
        worker.saveState();
        worker.setSessionSum(100);
        QVERIFY(!worker.checkState());
        worker.setDispenserRegistryList({row(1)});
        QVERIFY(worker.checkState());
        worker.saveState();
        worker.sendState();
        QCOMPARE(sent.size(), 4);
        QCOMPARE(sent.at(0).at(0).value<DeviceState>().sessionSum, 100);
        QCOMPARE(worker.getStatesList()->size(), 4);
        QCOMPARE(worker.getStatesList()->at(1).dispenserRegistry.size(), 0);
        QCOMPARE(worker.getStatesList()->constLast(), *worker.getState());
    }

    void newSessionKeepsTheRest()
    {
        DeviceStateWorker worker;
        *worker.getState() = everyFieldSet();
        worker.sendState();
        worker.saveState();
        worker.startSession();
        QVERIFY(worker.getStatesList()->isEmpty());
        DeviceState expected = everyFieldSet();
        expected.sessionSum = expected.currentNote = expected.currentChannel = 0;
        expected.dispensedSum = 0;
        QCOMPARE(*worker.getState(), expected);
        QVERIFY(worker.checkState());
    }

    void signalCrossesThreads()
    {
        QThread thread;
        QObject receiver;
        receiver.moveToThread(&thread);
        DeviceStateWorker worker;
        DeviceState received;
        QObject::connect(&worker, &DeviceStateWorker::deviceStateChanged, &receiver,
                         [&received, &thread](const DeviceState& state) {
                             received = state;
                             thread.quit();
                         });
        // By name as well: this form finds the type only when it is registered.
        QSignalSpy byName(&worker, SIGNAL(deviceStateChanged(DeviceState)));
        worker.setIdString("BNV"_s);
        worker.sendState();
        thread.start();
        QVERIFY(thread.wait(5000));
        QCOMPARE(received.idString, "BNV"_s);
        QCOMPARE(byName.size(), 1);
    }
};

QTEST_GUILESS_MAIN(tst_DeviceState)
#include "tst_devicestate.moc"
