// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "velmorun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QJsonObject objectOf(const QString& line)
{
    return QJsonDocument::fromJson(line.toUtf8()).object();
}

// The refused notes of a run of explain, as compare names them, with the filters' reasons.
QMap<QString, QJsonValue> refusals(const QString& filters, const QStringList& logs)
{
    QMap<QString, QJsonValue> found;
    const VelmoRun run =
        velmo(QStringList{"explain"_s} + logs
              + QStringList{"--json"_s, "--refusals"_s, "--keep-going"_s, "--filters"_s, filters});
    for (const QString& line : run.outLines()) {
        const QJsonObject o = objectOf(line);
        if (o["kind"_s] == QJsonValue("note"_s))
            found["%1:%2:%3"_s.arg(o["log"_s].toString())
                      .arg(o["line"_s].toInt())
                      .arg(o["device"_s].toInt())] = o["filters"_s];
    }
    return found;
}

} // namespace

class tst_Compare : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        m_strict = writeFile(
            m_folder.filePath("strict.json"_s),
            R"([{"name":"SessionSumFilter","params":{"sessionSum":1000}},{"name":"DenomCountFilter","params":{"denom":10,"count":0}}])"_s);
        m_none = writeFile(m_folder.filePath("none.json"_s), "[]"_s);
    }

    void differencesAreTold_data()
    {
        // A, B, log, exit code, then a line of the text each.
        addRows(R"(
            filters.json  | STRICT        | fished-note.jsonl  | 1 | fished-note.jsonl: Session 1, line 8, Bill validator (CCNet): note of 1000 refused by A, accepted by B. A: Notes were rejected 2 times since the session began (lines 3 and 6); 2 are allowed for 1000. The next stacked note or session clears this. | fished-note.jsonl: Session 1, line 14, Bill validator (CCNet): note of 1000 accepted by A, refused by B. B: 500 taken + note 1000 > limit 1000. The next session clears this. | In these 2 sessions, A refused 1 note (1000), B 1 note (1000); they differ on 2 notes (2000).
            settings.json | NONE          | fished-note.jsonl  | 1 | fished-note.jsonl: Session 1, line 8, Bill validator (CCNet): note of 1000 refused by A, accepted by B. | A refused 1 note (1000), B 0 notes (0); they differ on 1 note (1000).
            filters.json  | filters.json  | fished-note.jsonl  | 0 | In these 2 sessions, A refused 1 note (1000), B 1 note (1000); they differ on 0 notes (0).
            NONE          | settings.json | plain-payment.jsonl| 0 | B (settings.json): |   - None: every note is accepted.
            settings.json | NONE          | session-sum.jsonl  | 0 | A refused 0 notes (0), B 0 notes (0))"_s);
    }

    void differencesAreTold()
    {
        QFETCH(QStringList, row);
        const auto file = [this](const QString& name) {
            return name == "STRICT"_s ? m_strict : name == "NONE"_s ? m_none : sample(name);
        };
        const VelmoRun run =
            velmo({"compare"_s, file(row.at(0)), file(row.at(1)), sample(row.at(2))});
        QCOMPARE(run.exitCode, row.at(3).toInt());
        const QString out = QString(run.out).remove(sample({}));
        for (const QString& line : row.mid(4))
            QVERIFY2(out.contains(line), qPrintable(out));
        QCOMPARE(out.count(" accepted by "_s), int(row.mid(4).filter(" accepted by "_s).size()));
    }

    // Many logs on all cores come out in their order, and say what two runs of explain say.
    void theResultIsThatOfTwoExplanations()
    {
        QStringList logs;
        for (const QString& folder : {sample({}), QStringLiteral(EXPLANATIONS)}) {
            for (const QString& name : QDir(folder).entryList({"*.jsonl"_s}))
                logs += QDir(folder).filePath(name);
        }
        const auto a = refusals(sample("filters.json"_s), logs);
        const auto b = refusals(m_strict, logs);
        const QStringList all = logs + logs + logs + logs;
        const VelmoRun run = velmo(QStringList{"compare"_s, sample("filters.json"_s), m_strict}
                                   + all + QStringList{"--json"_s, "--keep-going"_s});
        QCOMPARE(run.exitCode, 2); // bad-lines.jsonl
        QStringList order;
        int found = 0;
        qint64 sum = 0;
        QJsonObject last;
        for (const QString& line : run.outLines()) {
            last = objectOf(line);
            if (last["kind"_s] != QJsonValue("difference"_s))
                continue;
            const QString log = last["log"_s].toString();
            const QString note =
                "%1:%2:%3"_s.arg(log).arg(last["line"_s].toInt()).arg(last["device"_s].toInt());
            const bool byA = last["a"_s] == QJsonValue("refuse"_s);
            QCOMPARE(last["b"_s], QJsonValue(byA ? "accept"_s : "refuse"_s));
            QCOMPARE(last["filters"_s], (byA ? a : b).value(note));
            QVERIFY2(a.contains(note) == byA && b.contains(note) != byA, qPrintable(note));
            if (order.isEmpty() || order.constLast() != log)
                order += log;
            ++found;
            sum += last["note"_s].toInt();
        }
        int expected = 0;
        for (const QString& note : (a.keys() + b.keys()))
            expected += a.contains(note) != b.contains(note) ? 4 : 0;
        QVERIFY(expected > 20);
        QCOMPARE(found, expected);
        QStringList inOrder;
        for (const QString& log : all) {
            if (order.contains(log))
                inOrder += log;
        }
        QCOMPARE(order, inOrder);
        const auto tally = [](const QJsonValue& value) {
            return std::pair(value["count"_s].toInt(), qint64(value["sum"_s].toDouble()));
        };
        const auto refusedBy = [&](const QString& side) {
            return tally(QJsonValue(last[side])["refused"_s]).first;
        };
        QCOMPARE(tally(last["differences"_s]), std::pair(found, sum));
        QCOMPARE(refusedBy("a"_s), 4 * int(a.size()));
        QCOMPARE(refusedBy("b"_s), 4 * int(b.size()));
    }

    // What a list lacks is not what the list that was read before it has.
    void everyFileIsReadAlone_data()
    {
        const auto list = [this](const QString& name, const QString& elements) {
            const QString sound =
                R"({"group":"service","key":"reset_idle_timeout","value":3600000})"_s;
            return writeFile(m_folder.filePath(name), "[%1,%2]"_s.arg(elements, sound));
        };
        const auto common = [&list](const QString& key, const QString& value) {
            return list(key + ".json"_s,
                        R"({"group":"acceptor_common","key":"%1","value":%2})"_s.arg(key, value));
        };
        const QString device = R"({"group":"device%1/device","key":"%2","value":"%3"},)"_s;
        const QStringList files{
            common("acceptAll"_s, "0"_s),
            common("maxSumm"_s, "1000"_s),
            common("attempts_filter_settings"_s, "\"[{\\\"denom\\\":1000,\\\"attempts\\\":2}]\""_s),
            list("named.json"_s,
                 device.arg(0).arg("device_id"_s, "1"_s) + device.arg(0).arg("device_name"_s, "N"_s)
                     + R"({"group":"service","key":"devices_count","value":1})"_s),
            sample("settings.json"_s),
            sample("filters.json"_s)};
        QTest::addColumn<QString>("a");
        QTest::addColumn<QString>("b");
        for (const QString& a : files) {
            for (const QString& b : files) {
                QTest::addRow("%s, %s", qPrintable(QFileInfo(a).fileName()),
                              qPrintable(QFileInfo(b).fileName()))
                    << a << b;
            }
        }
    }

    void everyFileIsReadAlone()
    {
        QFETCH(QString, a);
        QFETCH(QString, b);
        const QString log = sample("fished-note.jsonl"_s);
        const QJsonObject both =
            objectOf(velmo({"compare"_s, a, b, log, "--json"_s}).outLines().constLast());
        for (const QString& side : {"a"_s, "b"_s}) {
            const QString file = side == "a"_s ? a : b;
            const bool isFilters = file == sample("filters.json"_s);
            const VelmoRun alone =
                velmo({"explain"_s, log, isFilters ? "--filters"_s : "--settings"_s, file,
                       "--json"_s, "--summary"_s});
            const QJsonValue refused = objectOf(alone.outLines().constLast())["refused"_s];
            for (const QString& number : {"count"_s, "sum"_s})
                QCOMPARE(QJsonValue(both[side])["refused"_s][number], refused[number]);
        }
    }

    void badInputIsNamed_data()
    {
        // Operands, what standard error says.
        addRows(R"(
            filters.json jam.jsonl fished-note.jsonl    | jam.jsonl:2: not JSON
            filters.json - -                            | standard input can be read only once
            filters.json filters.json jam.jsonl x.jsonl | x.jsonl: No such file
            filters.json filters.json settings.json     | settings.json:1: not JSON
            filters.json filters.json                   | usage: velmo compare A.json B.json LOG.jsonl...)"_s);
    }

    void badInputIsNamed()
    {
        QFETCH(QStringList, row);
        QStringList arguments{"compare"_s};
        for (const QString& name : row.at(0).split(QLatin1Char(' ')))
            arguments += name == "-"_s ? name : sample(name);
        const VelmoRun run = velmo(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(QString(run.err).remove(sample({})).startsWith("velmo: "_s + row.at(1)),
                 qPrintable(run.err));
    }

private:
    QTemporaryDir m_folder;
    QString m_strict;
    QString m_none;
};

QTEST_GUILESS_MAIN(tst_Compare)
#include "tst_compare.moc"
