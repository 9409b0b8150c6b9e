// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "brokeroptions.h"
#include "kiosks.h"
#include "kiosktopic.h"
#include "logcapture.h"
#include "loglimit.h"
#include "metrics.h"
#include "partition.h"
#include "testtable.h"
#include "text/fault.h"
#include "text/textinput.h"

using std::chrono::milliseconds;
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

QString shown(const KioskSummary& summary)
{
    QString faults;
    for (const KioskFault& fault : summary.faults) {
        faults += " %1 %2/%3 %4"_s.arg(fault.reason, QString::number(fault.device),
                                       QString::number(fault.thread), fault.text);
    }
    return "%1 %2/%3/%4"_s.arg(QLatin1String(KioskSummary::name(summary.condition)))
               .arg(summary.inserted)
               .arg(summary.rejected)
               .arg(summary.returned)
        + faults;
}

KioskSummary silent(const KioskSummary& last, qint64 now)
{
    return KioskSummary::withoutState(last, "k1"_s, KioskSummary::Silent,
                                      {-1, -1, "gone"_s, "Gone."_s}, now);
}

} // namespace

class tst_Fleet : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void eachKioskIsCountedOnce()
    {
        Metrics metrics("1/1"_s);
        Kiosks kiosks(metrics);
        const auto counted = [&] {
            QStringList texts;
            for (int condition = 0; condition <= KioskSummary::Fine; ++condition)
                texts +=
                    QString::number(metrics.kiosks(KioskSummary::Condition(condition)).Value());
            for (const prometheus::Gauge* gauge :
                 {&metrics.inserted, &metrics.rejected, &metrics.returned,
                  &metrics.faults("halted"_s), &metrics.faults("gone"_s), &metrics.wrongClocks})
                texts += QString::number(gauge->Value());
            return texts.join(QLatin1Char(' '));
        };
        const QString notes = R"(,"notes_inserted":%1,"notes_rejected":%2,"notes_returned":%3)"_s;
        const KioskSummary fine = summary(notes.arg(10).arg(2).arg(3), "1790000000000"_s);
        kiosks.set("k1"_s, fine);
        kiosks.set("k2"_s, summary(R"(,"halt":true)"_s + notes.arg(1).arg(1).arg(1)));
        QCOMPARE(counted(), "0 0 1 0 1 11 3 4 1 0 0"_s);
        kiosks.set("k1"_s, silent(fine, 1));
        kiosks.setClockWrong(*kiosks.find("k1"_s), true);
        kiosks.setClockWrong(*kiosks.find("k1"_s), true);
        QCOMPARE(counted(), "0 1 1 0 0 11 3 4 1 1 1"_s);
        const QJsonObject told = QJsonDocument::fromJson('{' + kiosks.json(false) + '}').object();
        QCOMPARE(told["counts"_s].toObject()["silent"_s].toInt(), 1);
        QCOMPARE(told["kiosks"_s].toArray().size(), 2);
        kiosks.set("k2"_s, summary(notes.arg(2).arg(0).arg(0)));
        QCOMPARE(counted(), "0 1 0 0 1 12 2 3 0 1 1"_s);
        kiosks.remove("k1"_s);
        kiosks.remove("k3"_s);
        QCOMPARE(counted(), "0 0 0 0 1 2 0 0 0 0 0"_s);
        QVERIFY(!kiosks.find("k1"_s));
    }

    // What is not listened to, what a stopped program did not hear and what a broker that stands
    // still holds back do not count.
    void silenceCountsOnlyWhereKiosksCouldBeHeard()
    {
        SilenceWatch watch(seconds(20));
        auto now = SilenceWatch::Clock::now();
        const auto pass = [&](int time, bool isListening = true) {
            for (int i = 0; i < time; ++i)
                watch.turn(now += seconds(1), isListening);
        };
        watch.turn(now, false);
        const SilenceWatch::Duration heardOf = watch.now();
        pass(19);
        QVERIFY(!watch.mayBeSilent(heardOf));
        pass(100, /*isListening=*/false);
        watch.turn(now += seconds(100), true);
        QVERIFY(!watch.mayBeSilent(heardOf));
        pass(2);
        QVERIFY(watch.mayBeSilent(heardOf));
        QVERIFY(!watch.isSilent(heardOf)); // the broker may be dead

        watch.sendProbe(1);
        QVERIFY(!watch.mayBeSilent(heardOf)); // one is enough
        pass(5);
        watch.acknowledge(2);
        watch.acknowledge(1);
        QVERIFY(!watch.isSilent(heardOf)); // it stood still
        QVERIFY(!watch.mayBeSilent(heardOf));
        pass(21);
        QVERIFY(watch.mayBeSilent(heardOf));
        watch.sendProbe(1); // on a connection that is lost
        watch.turn(now, false);
        watch.acknowledge(1); // of another message
        QVERIFY(!watch.isSilent(heardOf));
        watch.sendProbe(3);
        pass(4); // it is slow
        watch.acknowledge(3);
        QVERIFY(watch.isSilent(heardOf));
        QVERIFY(!watch.isSilent(watch.now()));
        watch.restart();
        QVERIFY(!watch.isSilent(heardOf));
        pass(14);
        QVERIFY(!watch.mayBeSilent(heardOf));
    }

    void logHasOneLineAMinuteForEachReason()
    {
        LogCapture log;
        LogLimit limit;
        const LogLimit::Clock::time_point begin{};
        for (int i = 0; i < 100; ++i)
            limit.warn("bad"_s, "k%1: bad\033[2J"_s.arg(i), begin + seconds(i));
        limit.warn("worse"_s, "k1: worse"_s, begin + seconds(5));
        QCOMPARE(
            log.texts(),
            (QStringList{"warning: k0: bad\\u001b[2J"_s,
                         "warning: k60: bad\\u001b[2J (and 59 more since the last such line)"_s,
                         "warning: k1: worse"_s}));
    }

    // A name, the number of parts and the part that it is of.
    void eachKioskIsOfOnePart()
    {
        QVector<int> counts(9);
        int moved = 0;
        constexpr int all = 9000;
        for (int i = 0; i < all; ++i) {
            const QString name = "kiosk-%1"_s.arg(i);
            const int part = Partition::of(name, 9);
            QVERIFY(part >= 1 && part <= 9);
            ++counts[part - 1];
            QCOMPARE(Partition("%1/9"_s.arg(part)).has(name), true);
            QCOMPARE(Partition("%1/9"_s.arg(part % 9 + 1)).has(name), false);
            const int after = Partition::of(name, 10);
            QVERIFY(after == part || after == 10); // nothing moves between those that were there
            moved += after != part;
        }
        for (const int count : counts)
            QVERIFY(std::abs(count - 1000) < 150);
        QVERIFY(std::abs(moved - all / 10) < 150);
        // Kiosks find their part by the same formula: it may not change.
        QCOMPARE(Partition::of("k1"_s, 4), 3);
        QCOMPARE(Partition::of("север/к17"_s, 1000), 897);
        for (const char* text : {"", "0/4", "5/4", "1/0", "1/1001", "1/2/3", "a/4", "-1/4"})
            QVERIFY_EXCEPTION_THROWN(Partition{QLatin1String(text)}, Fault);
    }

    // The devices of a state; condition, notes inserted, rejected, returned, and faults.
    void summarySaysTheSameWhenItIsRead_data()
    {
        addRows(R"(
            {"device_id":1,"enabled":true,"state":"idling","notes_inserted":7,"notes_rejected":2,"notes_returned":1} | fine 7/2/1
            {"device_id":1,"enabled":true,"state":"idling","notes_inserted":7},{"device_id":100,"enabled":true,"state":"jammed","notes_inserted":5} | faulty 12/0/0 state 100/-1 Coin acceptor (CCTalk): The device does not work; its state: jamming.
            {"device_id":1,"enabled":true,"state":"idling","halt":true} | out_of_order 0/0/0 halted 1/-1 Bill validator (CCNet): The device is halted.
            {"device_id":99,"enabled":true,"state":"idling"},{"device_id":1,"enabled":true,"state":"idling","halt":true} | faulty 0/0/0 halted 1/-1 Bill validator (CCNet): The device is halted.
            {"device_id":199,"enabled":true,"state":"idling"},{"device_id":1,"enabled":true,"state":"idling","halt":true} | faulty 0/0/0 halted 1/-1 Bill validator (CCNet): The device is halted.
            {"device_id":200,"enabled":true,"state":"idling"},{"device_id":1,"enabled":true,"state":"idling","halt":true} | faulty 0/0/0 halted 1/-1 Bill validator (CCNet): The device is halted.
            | out_of_order 0/0/0 no_devices -1/-1 The service tells of no device.)"_s);
    }

    void summarySaysTheSameWhenItIsRead()
    {
        const auto [devices, expected] = cells<2>();
        StateWriter writer;
        const QString json = R"({"time":1790000000123,"device_states":[%1]})"_s;
        const KioskSummary made("k\"1"_s, readServiceState(json.arg(devices)), writer);
        QCOMPARE(shown(made), expected);
        const KioskSummary gone = silent(made, 1790000000999);
        QCOMPARE(shown(gone),
                 "silent %1 gone -1/-1 Gone."_s.arg(expected.section(QLatin1Char(' '), 1, 1)));
        QCOMPARE(silent(gone, 1800000000000).text, gone.text); // the same silence
        QCOMPARE(silent(gone, 1780000000000).since, 1780000000000); // of a clock that was ahead
        for (const KioskSummary& told : {made, gone}) {
            const KioskSummary read(told.text);
            QCOMPARE(shown(read), shown(told));
            QCOMPARE(read.time, 1790000000123);
            QCOMPARE(read.since, told.since);
            const QJsonObject object = QJsonDocument::fromJson(told.text).object();
            QCOMPARE(object["condition"_s].toString(),
                     QLatin1String(KioskSummary::name(told.condition)));
        }
        QCOMPARE(KioskSummary(silent(summary(), 1).text).time, KioskSummary::noTime);
    }

    void summaryIsCutToWhatTheBrokerTakes()
    {
        StateWriter writer;
        QStringList devices;
        for (int i = 0; i < 60; ++i)
            devices +=
                R"({"device_id":1,"thread_id":%1,"error_critical":true,"error_text":"%2"})"_s.arg(
                    QString::number(i), QString(200, QLatin1Char('x')));
        KioskSummary summary(
            "k1"_s,
            readServiceState(R"({"device_states":[%1]})"_s.arg(devices.join(QLatin1Char(',')))),
            writer);
        const qsizetype whole = summary.text.size();
        for (const qsizetype most : {whole - 1, whole / 2, qsizetype(1000)}) {
            QVERIFY(summary.cutTo(most, "k1"_s));
            QVERIFY(summary.text.size() <= most);
            const KioskSummary read(summary.text);
            QCOMPARE(read.faults.back().reason, "too_large"_s);
            QCOMPARE(read.condition, KioskSummary::OutOfOrder);
        }
        QVERIFY(!summary.cutTo(100, "k1"_s));
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

    // A pattern, "refused" or what to subscribe to for part 3, a topic and its kiosk.
    void topicSaysWhichKiosk_data()
    {
        addRows(R"(
            kiosks/+/state            | kiosks/+/state   | kiosks/k1/state      | k1
            kiosks/%1/state           | kiosks/+/state   | kiosks/k1/state      | k1
            kiosks/%kiosk/state       | kiosks/+/state   | kiosks/k1/state      | k1
            +                         | +                | k1                   | k1
            +/state                   | +/state          | k1/state             | k1
            kiosks/+                  | kiosks/+         | kiosks/k1            | k1
            kiosks/+/state            | kiosks/+/state   | kiosks//state        |
            kiosks/+/state            | kiosks/+/state   | kiosks/state         |
            kiosks/+/state            | kiosks/+/state   | kiosks/k/1/state     |
            kiosks/+/state            | kiosks/+/state   | kiosks/k1/summary    |
            kiosks/+/state            | kiosks/+/state   | others/k1/state      |
            kiosks/+/+/state          | kiosks/+/+/state | kiosks/north/k1/state | north/k1
            +/kiosks/+                | +/kiosks/+       | north/kiosks/k1      | north/k1
            kiosks/%part/%kiosk/state | kiosks/3/+/state | kiosks/3/k1/state    | k1
            %part/+/+                 | 3/+/+            | 3/north/k1           | north/k1
            kiosks/+/+/state          | kiosks/+/+/state | kiosks/north//state  |
            kiosks/k+/state           | refused
            kiosks/+k/state           | refused
            kiosks/state              | refused
            kiosks/+/+/+              | refused
            kiosks/%part/state        | refused
            %part/%part/+             | refused
            kiosks/%partly/+          | refused
            kiosks/+/#                | refused
            $SYS/+/state              | refused
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
        QCOMPARE(topics.filter(3), filter);
        QCOMPARE(topics.kioskOf(topic), kiosk);
        if (!kiosk.isEmpty())
            QCOMPARE(topics.of(kiosk, 3), topic);
        QCOMPARE(topics.partOf(topic), topics.hasPart() ? 3 : 0);
    }

    void regionIsTheBeginningOfTheName()
    {
        for (const char* name : {"north/k1", "north-k1", "north_k-1", "north.k1"})
            QCOMPARE(regionOf(QLatin1String(name)), "north"_s);
        QCOMPARE(regionOf("k17"_s), QString());
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
