#include "devicestateworker.h"
#include "literals.h"

#include <QSignalSpy>
#include <QThread>
#include <QtTest>

class tst_DeviceStateWorker : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settersReachTheirFields();
    void checkSendsUntilSaved();
    void sendAlwaysAppendsAndEmits();
    void newSessionKeepsTheRest();
    void registryIsPartOfTheState();
    void signalCrossesThreads();
};

void tst_DeviceStateWorker::settersReachTheirFields()
{
    DeviceStateWorker worker;
    worker.setEnabled(true);
    worker.setState(STATE_STACKED);
    worker.setStackerPresent(false);
    worker.setStackerFull(true);
    worker.setCash(1);
    worker.setErrorText("error"_s);
    worker.setErrCritical(true);
    worker.setHalt(true);
    worker.setStateText("text"_s);
    worker.setThreadId(2);
    worker.setDeviceId(3);
    worker.setSessionSum(4);
    worker.setCurrentNote(5);
    worker.setCurrentChannel(6);
    worker.setDispensedSum(7);
    worker.setIdString("id"_s);
    worker.setOnline(true);
    QCOMPARE(worker.getState()->toMap(),
             QVariantMap({{"enabled"_s, true},
                          {"state"_s, "stacked"_s},
                          {"stacker_present"_s, false},
                          {"stacker_full"_s, true},
                          {"cash"_s, 1U},
                          {"error_text"_s, "error"_s},
                          {"error_critical"_s, true},
                          {"halt"_s, true},
                          {"state_text"_s, "text"_s},
                          {"thread_id"_s, 2U},
                          {"device_id"_s, 3U},
                          {"session_sum"_s, 4},
                          {"current_note"_s, 5},
                          {"current_channel"_s, 6},
                          {"dispensed_sum"_s, 7U},
                          {"id_string"_s, "id"_s},
                          {"online"_s, true}}));
    QVERIFY(worker.getStatesList()->isEmpty());
}

void tst_DeviceStateWorker::checkSendsUntilSaved()
{
    DeviceStateWorker worker;
    QSignalSpy sent(&worker, &DeviceStateWorker::deviceStateChanged);
    QVERIFY(!worker.checkState());
    worker.setSessionSum(100);
    QVERIFY(worker.checkState());
    QVERIFY(worker.checkState());
    worker.saveState();
    QVERIFY(!worker.checkState());
    worker.setSessionSum(100);
    QVERIFY(!worker.checkState());
    QCOMPARE(worker.getStatesList()->size(), 2);
    QCOMPARE(sent.size(), 2);
    QCOMPARE(sent.at(0).at(0).value<DeviceState>().sessionSum, 100);
}

void tst_DeviceStateWorker::sendAlwaysAppendsAndEmits()
{
    DeviceStateWorker worker;
    QSignalSpy sent(&worker, &DeviceStateWorker::deviceStateChanged);
    worker.sendState();
    worker.setState(STATE_JAMMED);
    worker.sendState();
    QCOMPARE(*worker.getStatesList(), StatesList({DeviceState(), *worker.getState()}));
    QCOMPARE(sent.size(), 2);
}

void tst_DeviceStateWorker::newSessionKeepsTheRest()
{
    DeviceStateWorker worker;
    worker.setEnabled(true);
    worker.setCash(10);
    DeviceState expected = *worker.getState();
    worker.setSessionSum(1);
    worker.setCurrentNote(2);
    worker.setCurrentChannel(3);
    worker.setDispensedSum(4);
    worker.sendState();
    worker.saveState();
    worker.startSession();
    QVERIFY(worker.getStatesList()->isEmpty());
    QCOMPARE(*worker.getState(), expected);
    // The saved state still has the sums.
    QVERIFY(worker.checkState());
}

void tst_DeviceStateWorker::registryIsPartOfTheState()
{
    DeviceStateWorker worker;
    worker.setDispenserRegistryList({DispenserRegistryItem()});
    QVERIFY(worker.checkState());
    QCOMPARE(worker.getStatesList()->constFirst().dispenserRegistry.size(), 1);
}

void tst_DeviceStateWorker::signalCrossesThreads()
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

QTEST_GUILESS_MAIN(tst_DeviceStateWorker)
#include "tst_devicestateworker.moc"
