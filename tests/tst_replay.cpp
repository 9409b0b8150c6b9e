// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "velmorun.h"

#include <QJsonDocument>
#include <QJsonObject>

class tst_Replay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleGivesItsVerdicts_data()
    {
        QTest::addColumn<QString>("expectedFile");
        const QDir expected(QStringLiteral(EXPECTED));
        for (const QString& name : expected.entryList({"*.expected"_s}))
            QTest::newRow(qPrintable(name.chopped(9))) << expected.filePath(name);
    }

    void sampleGivesItsVerdicts()
    {
        QFETCH(QString, expectedFile);
        QFile file(expectedFile);
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList expected = QString::fromUtf8(file.readAll())
                                         .split(QLatin1Char('\n'))
                                         .filter(QRegularExpression("^[^#]"_s));
        const QString session = sample(QString::fromUtf8(QTest::currentDataTag()) + ".jsonl"_s);
        const VelmoRun run =
            velmo({"replay"_s, session, "--filters"_s, sample("filters.json"_s), "--json"_s});
        QCOMPARE(run.err, QString());
        QCOMPARE(run.exitCode, 0);
        QStringList actual;
        for (const QString& line : run.outLines()) {
            const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
            const QString refusedBy = o["refused_by"_s].toObject()["name"_s].toString("-"_s);
            actual +=
                "%1 %2 %3 %4 %5 %6 %7 %8 %9"_s.arg(o["line"_s].toInt())
                    .arg(o["state"_s].toString())
                    .arg(o["note"_s].toInt())
                    .arg(o["session_sum"_s].toInt())
                    .arg(o["sent"_s].toBool() ? "sent"_s : "-"_s, o["verdict"_s].toString("-"_s),
                         refusedBy, o["accepting_allowed"_s].toBool() ? "yes"_s : "no"_s,
                         o["payment_text"_s].toString());
        }
        QCOMPARE(actual, expected);
    }

    void tableNamesTheRefusingFilter()
    {
        const QString filters =
            writeFile(m_folder.filePath("one.json"_s),
                      R"([{"name":"AttemptsFilter","params":{"denom":"1000","attempts":1}}])"_s);
        const VelmoRun run = velmo({"replay"_s, "-"_s, "--filters"_s, filters},
                                   R"({"session":"start","enabled":true,"device_id":1}
{"state":"rejected","current_note":1000}
{"state":"accepting"})");
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.outLines().size(), 5);
        QCOMPARE(run.outLines().at(1), "-- session 1 --"_s);
        QCOMPARE(run.outLines().at(2).simplified(),
                 "1 1 busy 0 0 Wait...; money may be accepted"_s);
        QCOMPARE(run.outLines().at(4).simplified(),
                 "3 1 accepting 1000 0 reject Wait...; AttemptsFilter attempts=1 denom=1000"_s);
    }

    void badSessionLineIsNamed_data()
    {
        addRows(R"(
            {"state":}                                      | not JSON
            [1]                                             | expected a JSON object
            {"stat":"busy"}                                 | unknown key "stat"
            {"state":"Busy"}                                | "state": unknown state name "Busy"
            {"enabled":1}                                   | "enabled": expected true or false
            {"id_string":1}                                 | "id_string": expected a text
            {"current_note":1.5}                            | "current_note": expected a whole number
            {"current_channel":40000}                       | expected a whole number from -32768
            {"session":"end"}                               | "session": expected "start"
            {"dispenser_registry":[{"currency":"RUB"}]}     | row 1: key "denomination" is missing
            {"dispenser_registry":[{ROW},5]}                | row 2: key "currency" is missing
            {"dispenser_registry":[{ROW,"rejected":1.5}]}   | row 1: "rejected" cannot hold this value
            {"dispenser_registry":[{ROW,"d":1,"count":""}]} | row 1: "count" cannot hold this value
            {"dispenser_registry":[{ROW,"count":1,"d":1}]}  | row 1: unknown key "d"
            {"dispenser_registry":[{ROW,"count":null},}     | not JSON
            {"dispenser_registry":{}}                       | expected a list of registry rows)"_s);
    }

    void badSessionLineIsNamed()
    {
        const auto [cell, fault] = cells<2>();
        const QString row =
            R"("currency":"","denomination":5,"bill_type":1,"count":"of doubled keys the last",)"
            R"("count":1e3,"thread_id":0,"device_id":0,"channel":65535)"_s;
        const QString line = QString(cell).replace("ROW"_s, row);
        const QString session = writeFile(m_folder.filePath("bad.jsonl"_s),
                                          "{\"state\":\"idling\"}\n"_s + line + "\n{}\n"_s);
        const VelmoRun run =
            velmo({"replay"_s, session, "--filters"_s, sample("filters.json"_s), "--json"_s});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("velmo: "_s + session + ":2: "_s), qPrintable(run.err));
        QVERIFY2(run.err.contains(fault), qPrintable(run.err));
        QCOMPARE(run.outLines().size(), 1);
    }

    void badFiltersAreNamed_data()
    {
        addRows(R"(
            {"name":"acceptFilter"}                            | unknown filter "acceptFilter"
            {"name":"AcceptFilter","params":{"all":1}}         | unknown parameter "all"
            {"name":"AttemptsFilter","params":{"attempts":128}}| "attempts" cannot hold
            {"name":"DenomCountFilter","params":{"count":"x"}} | "count" cannot hold
            {"name":"DenomCountFilter","params":{"count":-1}}  | "count" cannot hold
            {"name":"AcceptFilter","parms":{}}                 | unknown key "parms"
            {"name":"AcceptFilter","params":[]}                | expected an object
            "AcceptFilter"                                     | expected an object
            {"name":["AcceptFilter",{"a":"}{\\"}]}             | expected an object
            {}]   x                                            | not JSON: garbage at the end of the document (column 7)
            {"name"}                                           | not JSON)"_s);
    }

    void badFiltersAreNamed()
    {
        const auto [filter, fault] = cells<2>();
        const QString filters = writeFile(m_folder.filePath("bad.json"_s),
                                          "[{\"name\":\"AcceptFilter\"},\n"_s + filter + "\n]"_s);
        const VelmoRun run = velmo({"replay"_s, sample("jam.jsonl"_s), "--filters"_s, filters});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("velmo: "_s + filters + ":2: "_s), qPrintable(run.err));
        QVERIFY2(run.err.contains(fault), qPrintable(run.err));
        QCOMPARE(run.out, QString());
    }

    void badCommandLinesAreNamed_data()
    {
        addRows(R"(
                                              | no command given
            play                              | unknown command "play"
            replay x.jsonl                    | usage: velmo replay
            replay x.jsonl --filter y         | unknown option --filter (nearest known: --filters)
            replay missing.jsonl --filters /dev/null | /dev/null:1: not JSON
            replay x.jsonl --filters=         | --filters: expected a value
            replay - --filters -              | cannot both come from standard input)"_s);
    }

    void badCommandLinesAreNamed()
    {
        const auto [arguments, fault] = cells<2>();
        const VelmoRun run = velmo(arguments.split(QLatin1Char(' '), Qt::SkipEmptyParts));
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(fault), qPrintable(run.err));
        QCOMPARE(run.out, QString());
    }

    void keepGoingCountsWhatItSkips()
    {
        const VelmoRun run = velmo({"replay"_s, "-"_s, "--filters"_s, sample("filters.json"_s),
                                    "--json"_s, "--keep-going"_s},
                                   QByteArrayLiteral("{}\nx\n\n{\"a\\nb\":1}\n{}\0\n{}\n"));
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.outLines().size(), 2);
        QCOMPARE(run.errLines().size(), 4);
        QCOMPARE(run.errLines().at(1), R"(velmo: standard input:4: unknown key "a\u000ab")"_s);
        QVERIFY(run.errLines().at(2).startsWith("velmo: standard input:5: not JSON"_s));
        QCOMPARE(run.errLines().at(3), "velmo: bad lines skipped: 3"_s);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_Replay)
#include "tst_replay.moc"
