// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "brokeroptions.h"
#include "kiosks.h"
#include "kiosktopic.h"
#include "metrics.h"
#include "testtable.h"
#include "text/fault.h"
#include "text/textinput.h"

using std::chrono::seconds;

namespace {

// Of a kiosk with one validator, whose entry has these members besides.
KioskSummary summary(const QString& members = {}, const QString& time = {})
{
    StateWriter writer;
    const QString device = R"({"device_id":1,"thread_id":1,"enabled":true,"state":"idling"%1})"_s;
    const QString json = R"({%1"device_states":[%2]})"_s;
    return KioskSummary(
        "k1"_s,
        readServiceState(
            json.arg(time.isEmpty() ? time : "\"time\":"_s + time + ","_s, device.arg(members))),
        writer);
}

// So many seconds from now; without a time for no number.
KioskSummary summaryAt(const QString& offset)
{
    bool isNumber = false;
    const qint64 milliseconds = 1000 * offset.toLongLong(&isNumber);
    return summary({},
                   isNumber ? QString::number(QDateTime::currentMSecsSinceEpoch() + milliseconds)
                            : QString());
}

QString shown(const KioskSummary& summary)
{
    return "%1 %2/%3/%4 %5"_s.arg(QLatin1String(KioskSummary::name(summary.condition)))
        .arg(summary.inserted)
        .arg(summary.rejected)
        .arg(summary.returned)
        .arg(summary.faults.join(QLatin1Char(' ')))
        .trimmed();
}

} // namespace

class tst_Fleet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // Seconds from now of the summary that is known and of the one that arrives; which one stands.
    void olderSummaryDoesNotReplaceANewerOne_data()
    {
        addRows(R"(
            0    | -1   | known
            0    | 0    | arriving
            0    | 1    | arriving
            60   | 50   | known
            290  | 280  | known
            310  | 0    | arriving
            0    | 310  | arriving
            none | -9   | arriving
            0    | none | arriving)"_s);
    }

    void olderSummaryDoesNotReplaceANewerOne()
    {
        const auto [first, second, stands] = cells<3>();
        Metrics metrics({});
        Kiosks kiosks(metrics);
        const KioskSummary known = summaryAt(first);
        KioskSummary arriving = summaryAt(second);
        if (second == first)
            arriving.time = known.time;
        QVERIFY(kiosks.take("k1"_s, known));
        QCOMPARE(kiosks.take("k1"_s, arriving), stands == "arriving"_s);
        QCOMPARE(kiosks.find("k1"_s)->newest.time,
                 stands == "known"_s ? known.time : arriving.time);
    }

    void eachKioskIsCountedOnce()
    {
        Metrics metrics({});
        Kiosks kiosks(metrics);
        const auto counted = [&] {
            QStringList texts;
            for (int condition = 0; condition <= KioskSummary::Fine; ++condition)
                texts +=
                    QString::number(metrics.kiosks(KioskSummary::Condition(condition)).Value());
            for (const prometheus::Gauge* notes :
                 {&metrics.inserted, &metrics.rejected, &metrics.returned})
                texts += QString::number(notes->Value());
            return texts.join(QLatin1Char(' '));
        };
        const QString notes = R"(,"notes_inserted":%1,"notes_rejected":%2,"notes_returned":%3)"_s;
        const KioskSummary fine = summary(notes.arg(10).arg(2).arg(3), "1790000000000"_s);
        kiosks.take("k1"_s, fine);
        kiosks.take("k2"_s, summary(R"(,"halt":true)"_s + notes.arg(1).arg(1).arg(1)));
        QCOMPARE(counted(), "0 1 0 1 11 3 4"_s);
        kiosks.take("k1"_s, summary(notes.arg(9).arg(9).arg(9), "1780000000000"_s));
        QCOMPARE(counted(), "0 1 0 1 11 3 4"_s);
        kiosks.take("k1"_s, KioskSummary::silent(fine, "k1"_s, "Gone."_s));
        QCOMPARE(counted(), "1 1 0 0 11 3 4"_s);
        kiosks.take("k2"_s, summary(notes.arg(2).arg(0).arg(0)));
        QCOMPARE(counted(), "1 0 0 1 12 2 3"_s);
        kiosks.forget("k1"_s);
        kiosks.forget("k3"_s);
        QCOMPARE(counted(), "0 0 0 1 2 0 0"_s);
        QVERIFY(!kiosks.find("k1"_s));
    }

    void onlyWordOfItselfEndsAKiosksSilence()
    {
        Metrics metrics({});
        Kiosks kiosks(metrics);
        const std::vector<QString> none;
        kiosks.take("k1"_s, summary());
        const Kiosks::Clock::time_point heardOf = kiosks.find("k1"_s)->heardOf;
        QVERIFY(kiosks.silentFor(seconds(3600)) == none);
        QVERIFY(kiosks.silentFor(seconds(-3600)) == std::vector{"k1"_s}); // in an hour
        QTest::qSleep(1);
        kiosks.take("k1"_s, KioskSummary::silent(summary(), "k1"_s, "Gone."_s));
        QVERIFY(kiosks.find("k1"_s)->heardOf == heardOf);
        QVERIFY(kiosks.silentFor(seconds(-3600)) == none); // which is told already
        kiosks.take("k1"_s, summary());
        QVERIFY(kiosks.find("k1"_s)->heardOf > heardOf);
        QVERIFY(kiosks.silentFor(seconds(-3600)) == std::vector{"k1"_s});
    }

    // The devices of a state; condition, notes inserted, rejected, returned, and faults.
    void summarySaysTheSameWhenItIsRead_data()
    {
        addRows(R"(
            {"device_id":1,"enabled":true,"state":"idling","notes_inserted":7,"notes_rejected":2,"notes_returned":1} | fine 7/2/1
            {"device_id":1,"enabled":true,"state":"idling","notes_inserted":7},{"device_id":100,"enabled":true,"state":"jammed","notes_inserted":5} | faulty 12/0/0 Coin acceptor (CCTalk): The device does not work; its state: jamming.
            {"device_id":1,"enabled":true,"state":"idling","halt":true} | out_of_order 0/0/0 Bill validator (CCNet): The device is halted.
            {"device_id":99,"enabled":true,"state":"idling"},{"device_id":1,"enabled":true,"state":"idling","halt":true} | faulty 0/0/0 Bill validator (CCNet): The device is halted.
            {"device_id":199,"enabled":true,"state":"idling"},{"device_id":1,"enabled":true,"state":"idling","halt":true} | faulty 0/0/0 Bill validator (CCNet): The device is halted.
            {"device_id":200,"enabled":true,"state":"idling"},{"device_id":1,"enabled":true,"state":"idling","halt":true} | faulty 0/0/0 Bill validator (CCNet): The device is halted.
            | out_of_order 0/0/0 The service tells of no device.)"_s);
    }

    void summarySaysTheSameWhenItIsRead()
    {
        const auto [devices, expected] = cells<2>();
        StateWriter writer;
        const QString json = R"({"time":1790000000123,"device_states":[%1]})"_s;
        const KioskSummary made("k\"1"_s, readServiceState(json.arg(devices)), writer);
        QCOMPARE(shown(made), expected);
        const KioskSummary silent = KioskSummary::silent(made, "k\"1"_s, "Gone."_s);
        QCOMPARE(shown(silent),
                 expected.section(QLatin1Char(' '), 1, 1).prepend("silent "_s).append(" Gone."_s));
        for (const KioskSummary& told : {made, silent}) {
            const KioskSummary read(told.text);
            QCOMPARE(shown(read), shown(told));
            QCOMPARE(read.time, 1790000000123);
            const QJsonObject object = QJsonDocument::fromJson(told.text).object();
            QCOMPARE(object["kiosk"_s].toString(), "k\"1"_s);
        }
        QCOMPARE(KioskSummary(KioskSummary::silent(summary(), "k1"_s, {}).text).time,
                 KioskSummary::noTime);
    }

    void whatIsNoSummaryIsRefused_data()
    {
        addRows(R"(
            null
            []
            {}
            {"devices":[]}
            {"condition":"fine"}
            {"devices":[],"condition":"dancing"}
            {"devices":{},"condition":"fine"}
            {"devices":[1],"condition":"fine"}
            {"devices":[],"condition":"fine"
            {"devices":[],"condition":"fine"} {}
            {"devices":[{"notes_inserted":}],"condition":"fine"})"_s);
    }

    void whatIsNoSummaryIsRefused()
    {
        QVERIFY_EXCEPTION_THROWN(KioskSummary(cells<1>()[0].toUtf8()), Fault);
        KioskSummary(R"({"devices":[{"more":1}],"condition":"fine","more":[]})");
    }

    // A pattern, "refused" or what to subscribe to, a topic and its kiosk.
    void topicSaysWhichKiosk_data()
    {
        addRows(R"(
            kiosks/+/state  | kiosks/+/state | kiosks/k1/state   | k1
            kiosks/%1/state | kiosks/+/state | kiosks/k1/state   | k1
            +               | +              | k1                | k1
            +/state         | +/state        | k1/state          | k1
            kiosks/+        | kiosks/+       | kiosks/k1         | k1
            kiosks/+/state  | kiosks/+/state | kiosks//state     |
            kiosks/+/state  | kiosks/+/state | kiosks/state      |
            kiosks/+/state  | kiosks/+/state | kiosks/k/1/state  |
            kiosks/+/state  | kiosks/+/state | kiosks/k1/summary |
            kiosks/+/state  | kiosks/+/state | others/k1/state   |
            kiosks/k+/state | refused
            kiosks/+k/state | refused
            kiosks/state    | refused
            kiosks/+/+      | refused
            kiosks/+/#      | refused
            $SYS/+/state    | refused
                            | refused)"_s);
    }

    void topicSaysWhichKiosk()
    {
        const auto [pattern, filter, topic, kiosk] = cells<4>();
        if (filter == "refused"_s) {
            QVERIFY_EXCEPTION_THROWN(KioskTopic{pattern}, Fault);
            return;
        }
        const KioskTopic topics(pattern);
        QCOMPARE(topics.filter(), filter);
        QCOMPARE(topics.kioskOf(topic), kiosk);
        if (!kiosk.isEmpty())
            QCOMPARE(topics.of(kiosk), topic);
    }

    void addressIsHostAndPort_data()
    {
        addRows(R"(
            broker.example       | broker.example 1883
            broker.example:1     | broker.example 1
            10.0.0.1:65535       | 10.0.0.1 65535
            [2001:db8::1]        | 2001:db8::1 1883
            [2001:db8::1]:8883   | 2001:db8::1 8883
            broker.example:0     | refused
            broker.example:65536 | refused
            broker.example:      | refused
            2001:db8::1          | refused
            :1883                | refused
            a b                  | refused)"_s);
    }

    void addressIsHostAndPort()
    {
        const auto [address, expected] = cells<2>();
        BrokerOptions options;
        if (expected == "refused"_s) {
            QVERIFY_EXCEPTION_THROWN(options.take(address, {}, {}, {}, {}), Fault);
            return;
        }
        options.take(address, {}, {}, {}, {});
        QCOMPARE("%1 %2"_s.arg(options.host).arg(options.port), expected);
    }

    // The password file's text; certificates to trust, own, key: "x" for one that is there.
    void credentialsAreWholeOrRefused_data()
    {
        addRows(R"(
            me:pass:word |   |   |   | me pass:word
            :word        |   |   |   | refused
            word         |   |   |   | refused
            me:          | x | x | x | me
            me:          | x |   |   | me
            me:          | x | x |   | refused
            me:          | x |   | x | refused
            me:          |   | x | x | refused
            me:          | y |   |   | refused)"_s);
    }

    void credentialsAreWholeOrRefused()
    {
        auto [password, ca, certificate, key, expected] = cells<5>();
        QTemporaryDir folder;
        for (const QString& name : {"x"_s, "password"_s}) {
            QFile file(folder.filePath(name));
            QVERIFY(file.open(QIODevice::WriteOnly));
            file.write(password.toUtf8() + "\nmore\n");
        }
        for (QString* name : {&ca, &certificate, &key})
            *name = name->isEmpty() ? QString() : folder.filePath(*name);
        BrokerOptions options;
        const auto take = [&, ca = ca, certificate = certificate, key = key] {
            options.take({}, folder.filePath("password"_s), ca, certificate, key);
        };
        if (expected == "refused"_s) {
            QVERIFY_EXCEPTION_THROWN(take(), Fault);
            return;
        }
        take();
        QCOMPARE("%1 %2"_s.arg(options.user, options.password).trimmed(), expected);
        QCOMPARE(options.caFile, ca);
    }
};

QTEST_GUILESS_MAIN(tst_Fleet)
#include "tst_fleet.moc"
