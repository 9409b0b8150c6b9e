#include "acceptorstate.h"
#include "devicestate.h"
#include "literals.h"
#include "statitem.h"

#include <QJsonDocument>
#include <QTranslator>
#include <QtTest>

namespace {

// What a device publishes: "<id> <state>", then what is wrong with it.
QVariantMap published(const QString& text)
{
    const QStringList words = text.split(QLatin1Char(' '));
    QVariantMap map{{"device_id"_s, words.at(0).toUInt()},
                    {"state"_s, words.at(1)},
                    {"thread_id"_s, words.at(0).toUInt() + 1},
                    {"enabled"_s, !words.contains("disabled"_s)}};
    for (const QString& flag : {"error_critical"_s, "halt"_s, "stacker_full"_s})
        map[flag] = words.contains(flag);
    map["stacker_present"_s] = !words.contains("unstacked"_s);
    return map;
}

AcceptorState serviceState(const QString& devices)
{
    QVariantList list;
    for (const QString& device : devices.split(QLatin1Char(';'), Qt::SkipEmptyParts))
        list.append(published(device));
    AcceptorState state;
    AcceptorState::loadFromStateMap({{"device_states"_s, list}}, state);
    return state;
}

// Marks what passed through translation, and in which context.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*disambiguation*/,
                      int /*n*/) const override
    {
        return qstrcmp(context, "QObject") == 0 ? QLatin1Char('~') + QString::fromUtf8(text)
                                                : QString();
    }
};

} // namespace

class tst_AcceptorState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entryTakesDefaultsForWhatIsMissing();
    void entryReadsWhatTheServicePublishes();
    void registryIsKeyedByChannelAndNote();
    void answers_data();
    void answers();
    void listAnswersKeepOrderAndRepeats();
    void reportHasABlockPerDevice();
    void reportNamesEveryTrouble_data();
    void reportNamesEveryTrouble();
    void textsForPeopleAreTranslated();
    void badStatesEmptyTheList_data();
    void badStatesEmptyTheList();
};

void tst_AcceptorState::entryTakesDefaultsForWhatIsMissing()
{
    const AcceptorStateItem fromNothing{QVariantMap()};
    QCOMPARE(fromNothing.deviceId(), -1);
    QCOMPARE(fromNothing.threadId(), -1);
    QVERIFY(fromNothing.stackerPresent());
    QVERIFY(!fromNothing.enabled() && !fromNothing.stackerFull() && !fromNothing.errorCritical());
    QVERIFY(!AcceptorStateItem().stackerPresent());
    QCOMPARE(AcceptorStateItem().deviceId(), 0);
}

void tst_AcceptorState::entryReadsWhatTheServicePublishes()
{
    DeviceState device;
    device.deviceId = 3;
    device.threadId = 4;
    device.enabled = device.stackerFull = device.errCritical = device.halt = true;
    device.stackerPresent = false;
    device.state = STATE_JAMMED;
    device.errorText = "error"_s;
    device.stateText = "text"_s;
    device.idString = "id"_s;
    QVariantMap map = device.toMap();
    StatItem counters;
    counters.notesInserted = 10;
    counters.notesRejected = 11;
    counters.notesReturned = 12;
    counters.addToMap(map);

    const AcceptorStateItem entry(map);
    QCOMPARE(QList<int>({entry.deviceId(), entry.threadId(), entry.notesInserted(),
                         entry.notesRejected(), entry.notesReturned()}),
             QList<int>({3, 4, 10, 11, 12}));
    QVERIFY(entry.enabled() && entry.stackerFull() && entry.errorCritical() && entry.halt());
    QVERIFY(!entry.stackerPresent());
    QCOMPARE(QStringList({entry.state(), entry.errorText(), entry.stateText(), entry.idString()}),
             QStringList({"jammed"_s, "error"_s, "text"_s, "id"_s}));
}

void tst_AcceptorState::registryIsKeyedByChannelAndNote()
{
    const DispenserRegistryItem row(9, 8, 2, Acceptors::Coin, "643"_s, 100, 5, 1);
    DispenserRegistryItem later = row;
    later.count = 4;
    DispenserRegistryItem otherChannel = row;
    otherChannel.channel = 3;
    const AcceptorStateItem entry(
        QVariantMap{{"dispenser_registry"_s,
                     QVariantList{row.toMap(), 42, QVariantMap(), otherChannel.toMap(),
                                  later.toMap(), QVariantMap{{"count"_s, 1}}}}});
    QCOMPARE(entry.dispRegistry().keys(), QStringList({"1_2_100_643"_s, "1_3_100_643"_s, "___"_s}));
    QCOMPARE(entry.dispRegistry().value("1_2_100_643"_s).toMap(),
             QVariantMap({{"bill_type"_s, 1},
                          {"count"_s, 4},
                          {"currency"_s, "643"_s},
                          {"denomination"_s, 100},
                          {"rejected"_s, 1}}));
}

void tst_AcceptorState::answers_data()
{
    QTest::addColumn<QString>("devices");
    QTest::addColumn<bool>("allowed");
    QTest::addColumn<QString>("status");
    QTest::addColumn<QString>("payment");

    const QString off = "Money accepting is disabled"_s;
    const QString wait = "Wait..."_s;
    const QString money = "Input money"_s;
    const QString coin = "Input coin"_s;
    const QString both = "Input money or coin"_s;
    const QString unknown = "Error status unknown"_s;
    const auto row = [](const char* devices, bool allowed, const QString& status,
                        const QString& payment) {
        QTest::newRow(*devices ? devices : "none")
            << QString::fromUtf8(devices) << allowed << status << payment;
    };
    row("", false, off, wait);
    row("1 idling", false, money, money);
    row("1 busy", true, money, wait);
    row("99 busy", true, money, wait);
    row("1 busy stacker_full", false, money, wait);
    row("1 busy unstacked", false, money, wait);
    row("1 busy halt", false, money, wait);
    row("1 busy error_critical", false, money, wait);
    row("1 BUSY", false, money, wait);
    row("1 busy disabled", false, off, off);
    row("1 busy;2 busy disabled", false, money, wait);
    row("2 busy disabled;1 busy", true, money, wait);
    row("1 idling;100 idling", false, both, both);
    row("100 idling", true, coin, coin);
    row("199 accepting", true, coin, wait);
    row("100 idling;1 busy disabled", false, coin, coin);
    row("5 busy;150 idling", true, both, wait);
    row("200 busy", true, unknown, unknown);
    row("202 busy", true, unknown, wait);
    row("0 idling", true, unknown, unknown);
    row("1 idling;201 busy", false, money, money);
    row("1 idling;100 accepting", false, both, wait);
    row("1 idling;2 jammed disabled", false, money, money);
}

void tst_AcceptorState::answers()
{
    QFETCH(QString, devices);
    const AcceptorState state = serviceState(devices);
    QTEST(state.isAcceptingAllowed(), "allowed");
    QTEST(state.paymentStatusDescr(), "status");
    QTEST(state.paymentStateDescr(), "payment");
}

void tst_AcceptorState::listAnswersKeepOrderAndRepeats()
{
    const AcceptorState state =
        serviceState("5 idling;7 idling disabled;5 idling;3 idling disabled unstacked"_s);
    QCOMPARE(state.enabledDeviceIds(), QList<int>({5, 5}));
    QCOMPARE(state.disabledThreads(), QList<int>({8, 4}));
    QVERIFY(state.stackerUnpresent() && !state.allEnabled() && !state.allDisabled());
    QVERIFY(serviceState("5 idling"_s).allEnabled());
    QVERIFY(!AcceptorState().allEnabled() && AcceptorState().allDisabled());
    QVERIFY(!AcceptorState().stackerUnpresent());
}

void tst_AcceptorState::reportHasABlockPerDevice()
{
    AcceptorState state = serviceState("1 idling;100 idling disabled error_critical unstacked"_s);
    QString report = R"(DeviceId: 1,ThreadId: 2
Name: Validator
Activity: enabled
Status: wait money


DeviceId: 100,ThreadId: 101
Name: Unknown
Activity: disabled
Critical error: no description

)"_s;
    QCOMPARE(state.systemStatusDescr({{1, "Validator"_s}}), report);
    state.setDt(QDateTime({2026, 11, 6}, {10, 5}));
    QCOMPARE(state.systemStatusDescr({{1, "Validator"_s}}), report + "\n06.11.2026 10.05.00"_s);
    QCOMPARE(AcceptorState().systemStatusDescr({}), "Device state list is empty"_s);
}

void tst_AcceptorState::reportNamesEveryTrouble_data()
{
    QTest::addColumn<QString>("state");
    QTest::addColumn<QString>("phrase");
    const QString over = "disabled money acceptinng or summ overflow"_s;
    const QVector<std::pair<const char*, QString>> phrases{
        {"jammed", "jamming"_s},
        {"accepted", "money accepted"_s},
        {"accepting", "money accepting"_s},
        {"stacking", "accepting money in stacker"_s},
        {"stacked", "money accepted in stacker"_s},
        {"returning", over},
        {"returned", over},
        {"rejected", "money reject"_s},
        {"busy", "waiting"_s},
        {"error", "unknown state:(error)"_s},
        {"Busy", "unknown state:(Busy)"_s}};
    for (const auto& [state, phrase] : phrases)
        QTest::newRow(state) << QString::fromUtf8(state) << phrase;
}

void tst_AcceptorState::reportNamesEveryTrouble()
{
    QFETCH(QString, state);
    QFETCH(QString, phrase);
    QVariantMap device = published("1 "_s + state + " unstacked stacker_full error_critical"_s);
    device["error_text"_s] = "E17"_s;
    device["state_text"_s] = "door open"_s;
    AcceptorState service;
    service.setDeviceStates({AcceptorStateItem(device)});
    QCOMPARE(service.systemStatusDescr({{1, QString()}}),
             "DeviceId: 1,ThreadId: 2\nName: \nActivity: enabled\nCritical error: E17\n"
             "stacker not present\nstacker is full\nStatus: "_s
                 + phrase + "\nstatus description:door open\n\n"_s);
}

void tst_AcceptorState::textsForPeopleAreTranslated()
{
    MarkingTranslator translator;
    QVERIFY(QCoreApplication::installTranslator(&translator));
    QCOMPARE(serviceState(QString()).paymentStateDescr(), "~Wait..."_s);
    QCOMPARE(serviceState("1 error error_critical"_s).systemStatusDescr({}),
             "~DeviceId: 1,ThreadId: 2\n~Name: ~Unknown\n~Activity: ~enabled\n"
             "~Critical error: ~no description\n~Status: ~unknown state:(error)\n\n"_s);
}

void tst_AcceptorState::badStatesEmptyTheList_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QList<int>>("ids");
    QTest::newRow("not JSON") << "{"_s << QList<int>();
    QTest::newRow("no devices") << "{}"_s << QList<int>();
    QTest::newRow("a list") << "[]"_s << QList<int>();
    QTest::newRow("no list") << R"({"device_states":{"device_id":1}})"_s << QList<int>();
    QTest::newRow("elements") << R"({"device_states":[null,7,{"device_id":9}]})"_s
                              << QList<int>({-1, 9});
}

void tst_AcceptorState::badStatesEmptyTheList()
{
    QFETCH(QString, text);
    const QDateTime published({2026, 11, 16}, {10, 5});
    AcceptorState state = serviceState("1 idling"_s);
    const AcceptorState copy =
        AcceptorState::loadFromClientState(quorbus::ClientState(text, published), state);
    QList<int> ids;
    for (const AcceptorStateItem& device : copy.deviceStates())
        ids.append(device.deviceId());
    QTEST(ids, "ids");
    QCOMPARE(state.deviceStates().size(), ids.size());
    QCOMPARE(state.dt(), published);
}

QTEST_GUILESS_MAIN(tst_AcceptorState)
#include "tst_acceptorstate.moc"
