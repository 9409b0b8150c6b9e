// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorstate.h"
#include "devicestate.h"
#include "statitem.h"
#include "testtable.h"

#include <QJsonDocument>
#include <QTranslator>

namespace {

// The services of a kiosk: "<id> <state> <what else is so>; ...".
AcceptorState serviceState(const QString& devices)
{
    QVariantList published;
    for (const QString& device : devices.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QStringList words = device.simplified().split(QLatin1Char(' '));
        QVariantMap map{{"device_id"_s, words.at(0).toUInt()},
                        {"thread_id"_s, words.at(0).toUInt() + 1},
                        {"state"_s, words.at(1)},
                        {"enabled"_s, !words.contains("off"_s)},
                        {"error_critical"_s, words.contains("error"_s)},
                        {"halt"_s, words.contains("halt"_s)},
                        {"stacker_full"_s, words.contains("full"_s)},
                        {"stacker_present"_s, !words.contains("unstacked"_s)}};
        if (words.contains("texts"_s))
            map.insert({{"error_text"_s, "E17"_s}, {"state_text"_s, "door open"_s}});
        published.append(map);
    }
    AcceptorState state;
    AcceptorState::loadFromStateMap({{"device_states"_s, published}}, state);
    return state;
}

// Marks what is looked up in the context of the library's texts.
class MarkingTranslator : public QTranslator
{
public:
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char*, int) const override
    {
        return (qstrcmp(context, "QObject") == 0 ? "~"_s : QString()) + QString::fromUtf8(text);
    }
};

} // namespace

class tst_AcceptorState : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void entryReadsWhatTheServicePublishes()
    {
        const AcceptorStateItem fromNothing{QVariantMap()};
        QCOMPARE(fromNothing.deviceId(), -1);
        QCOMPARE(fromNothing.threadId(), -1);
        QVERIFY(fromNothing.stackerPresent() && !fromNothing.enabled());
        QVERIFY(!AcceptorStateItem().stackerPresent() && AcceptorStateItem().deviceId() == 0);

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
        QCOMPARE(entry.state() + entry.errorText() + entry.stateText() + entry.idString(),
                 "jammederrortextid"_s);
    }

    void registryIsKeyedByChannelAndNote()
    {
        const DispenserRegistryItem row(9, 8, 2, Acceptors::Coin, "643"_s, 100, 5, 1);
        DispenserRegistryItem later = row;
        later.count = 4;
        DispenserRegistryItem otherChannel = row;
        otherChannel.channel = 3;
        const QVariantList rows{row.toMap(),   42,
                                QVariantMap(), otherChannel.toMap(),
                                later.toMap(), QVariantMap{{"count"_s, 1}}};
        const AcceptorStateItem entry(QVariantMap{{"dispenser_registry"_s, rows}});
        QCOMPARE(entry.dispRegistry().keys(),
                 QStringList({"1_2_100_643"_s, "1_3_100_643"_s, "___"_s}));
        QVariantMap expected = later.toMap();
        for (const QString& key : {"thread_id"_s, "device_id"_s, "channel"_s})
            expected.remove(key);
        QCOMPARE(entry.dispRegistry().value("1_2_100_643"_s).toMap(), expected);
    }

    // Devices, whether money may be accepted, what may be paid with, what the customer is told;
    // the last is the same as the one before it unless she waits.
    void answers_data()
    {
        addRows(R"(
                                    | no  | Money accepting is disabled | Wait...
            1 idling                | no  | Input money                 |
            1 busy                  | yes | Input money                 | Wait...
            99 busy                 | yes | Input money                 | Wait...
            1 busy full             | no  | Input money                 | Wait...
            1 busy unstacked        | no  | Input money                 | Wait...
            1 busy halt             | no  | Input money                 | Wait...
            1 busy error            | no  | Input money                 | Wait...
            1 BUSY                  | no  | Input money                 | Wait...
            1 busy off              | no  | Money accepting is disabled |
            1 busy; 2 busy off      | no  | Input money                 | Wait...
            2 busy off; 1 busy      | yes | Input money                 | Wait...
            1 idling; 100 idling    | no  | Input money or coin         |
            100 idling              | yes | Input coin                  |
            199 accepting           | yes | Input coin                  | Wait...
            100 idling; 1 busy off  | no  | Input coin                  |
            5 busy; 150 idling      | yes | Input money or coin         | Wait...
            200 busy                | yes | Error status unknown        |
            202 busy                | yes | Error status unknown        | Wait...
            0 idling                | yes | Error status unknown        |
            4294967295 idling       | yes | Error status unknown        |
            1 idling; 201 busy      | no  | Input money                 |
            1 idling; 100 accepting | no  | Input money or coin         | Wait...
            1 idling; 2 jammed off  | no  | Input money                 |)"_s);
    }

    void answers()
    {
        const auto [devices, accepting, status, told] = cells<4>();
        const AcceptorState state = serviceState(devices);
        QCOMPARE(state.isAcceptingAllowed() ? "yes"_s : "no"_s, accepting);
        QCOMPARE(state.paymentStatusDescr(), status);
        QCOMPARE(state.paymentStateDescr(), told.isEmpty() ? status : told);
    }

    void listAnswersKeepOrderAndRepeats()
    {
        const AcceptorState state = serviceState("5 x; 7 x off; 5 x; 3 x off unstacked"_s);
        QCOMPARE(state.enabledDeviceIds(), QList<int>({5, 5}));
        QCOMPARE(state.disabledThreads(), QList<int>({8, 4}));
        QVERIFY(state.stackerUnpresent() && !state.allEnabled() && !state.allDisabled());
        QVERIFY(serviceState("5 x"_s).allEnabled() && !AcceptorState().allEnabled());
        QVERIFY(AcceptorState().allDisabled() && !serviceState("5 x"_s).stackerUnpresent());
    }

    void reportHasABlockPerDevice()
    {
        AcceptorState state = serviceState("1 idling; 100 idling off error unstacked"_s);
        const QString report = "DeviceId: 1,ThreadId: 2\nName: Validator\nActivity: enabled\n"
                               "Status: wait money\n\n\nDeviceId: 100,ThreadId: 101\n"
                               "Name: Unknown\nActivity: disabled\n"
                               "Critical error: no description\n\n"_s;
        QCOMPARE(state.systemStatusDescr({{1, "Validator"_s}}), report);
        state.setDt(QDateTime({2026, 11, 6}, {10, 5}));
        QCOMPARE(state.systemStatusDescr({{1, "Validator"_s}}), report + "\n06.11.2026 10.05.00"_s);
        QCOMPARE(AcceptorState().systemStatusDescr({}), "Device state list is empty"_s);
    }

    void reportNamesEveryTrouble_data()
    {
        addRows(R"(
            jammed    | jamming
            accepted  | money accepted
            accepting | money accepting
            stacking  | accepting money in stacker
            stacked   | money accepted in stacker
            returning | disabled money acceptinng or summ overflow
            returned  | disabled money acceptinng or summ overflow
            rejected  | money reject
            busy      | waiting
            error     | unknown state:(error))"_s);
    }

    void reportNamesEveryTrouble()
    {
        const auto [device, status] = cells<2>();
        const AcceptorState state = serviceState("1 "_s + device + " unstacked full error texts"_s);
        QCOMPARE(state.systemStatusDescr({{1, QString()}}),
                 "DeviceId: 1,ThreadId: 2\nName: \nActivity: enabled\nCritical error: E17\n"
                 "stacker not present\nstacker is full\nStatus: "_s
                     + status + "\nstatus description:door open\n\n"_s);
    }

    void textsForPeopleAreTranslated()
    {
        MarkingTranslator translator;
        QVERIFY(QCoreApplication::installTranslator(&translator));
        QCOMPARE(AcceptorState().paymentStateDescr(), "~Wait..."_s);
        QCOMPARE(serviceState("1 jam error"_s).systemStatusDescr({}),
                 "~DeviceId: 1,ThreadId: 2\n~Name: ~Unknown\n~Activity: ~enabled\n"
                 "~Critical error: ~no description\n~Status: ~unknown state:(jam)\n\n"_s);
    }

    // The text is read without the map that it stands for in between.
    void textReadsLikeItsMap_data()
    {
        addRows(R"(
            {"device_states":[{"device_id":1,"thread_id":2,"enabled":true,"state":"busy","notes_inserted":3,"notes_rejected":4,"notes_returned":5,"id_string":"A","halt":true,"other":[1]}]}
            {"device_states":[{"state":"x","enabled":1,"state_text":7,"dispenser_registry":[{"bill_type":1,"channel":2,"count":5,"currency":"RUB","denomination":100,"device_id":7,"rejected":1,"thread_id":3},{},7,{"channel":1},{"thread_id":1},{"device_id":1,"count":9}]}]}
            {"device_states":[{"dispenser_registry":{"a":1},"state":"x"},{"dispenser_registry":[[{"a":1}]]}]}
            {"device_states":[null,7,"x",{},[1],false]}
            {"other":{"device_states":[{}]},"device_states":[{"device_id":4}]})"_s);
    }

    void textReadsLikeItsMap()
    {
        const auto [text] = cells<1>();
        AcceptorState ofText;
        AcceptorState ofMap;
        AcceptorState::loadFromClientState(quorbus::ClientState(text, {}), ofText);
        AcceptorState::loadFromStateMap(QJsonDocument::fromJson(text.toUtf8()).toVariant().toMap(),
                                        ofMap);
        QCOMPARE(ofText.deviceStates().size(), ofMap.deviceStates().size());
        QCOMPARE(ofText.systemStatusDescr({}), ofMap.systemStatusDescr({}));
        for (int i = 0; i < ofMap.deviceStates().size(); ++i) {
            const AcceptorStateItem a = ofText.deviceStates().at(i);
            const AcceptorStateItem b = ofMap.deviceStates().at(i);
            QCOMPARE(a.dispRegistry(), b.dispRegistry());
            QCOMPARE(a.idString(), b.idString());
            QCOMPARE(
                QList<int>({a.halt(), a.notesInserted(), a.notesRejected(), a.notesReturned()}),
                QList<int>({b.halt(), b.notesInserted(), b.notesRejected(), b.notesReturned()}));
        }
    }

    void badStatesEmptyTheList_data()
    {
        addRows(R"(
            {                                              | 0
            {}                                             | 0
            [{"device_states":[{}]}]                       | 0
            {"device_states":{"device_id":1}}              | 0
            {"device_states":[null,7,{"device_id":9}]}     | 2)"_s);
    }

    void badStatesEmptyTheList()
    {
        const auto [text, devices] = cells<2>();
        const quorbus::ClientState published(text, QDateTime({2026, 11, 16}, {10, 5}));
        AcceptorState state = serviceState("1 idling"_s);
        const AcceptorState copy = AcceptorState::loadFromClientState(published, state);
        QCOMPARE(QString::number(state.deviceStates().size()), devices);
        QCOMPARE(copy.deviceStates().size(), state.deviceStates().size());
        QCOMPARE(state.dt(), published.dt());
        if (!state.deviceStates().isEmpty())
            QCOMPARE(state.deviceStates().constFirst().deviceId(), -1);
    }
};

QTEST_GUILESS_MAIN(tst_AcceptorState)
#include "tst_acceptorstate.moc"
