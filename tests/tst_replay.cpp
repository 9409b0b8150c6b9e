#include "literals.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>
#include <QTemporaryDir>
#include <QtTest>

namespace {

struct Run
{
    int exitCode;
    QString out;
    QString err;
};

Run velmo(const QStringList& arguments, const QByteArray& input = {})
{
    QProcess process;
    process.start(QStringLiteral(VELMO), arguments);
    process.write(input);
    process.closeWriteChannel();
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

QString sample(const QString& name)
{
    return QStringLiteral(SAMPLES "/") + name;
}

QStringList linesOf(const QString& text)
{
    return text.split(QLatin1Char('\n'), Qt::SkipEmptyParts);
}

} // namespace

class tst_Replay : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void sampleGivesItsVerdicts_data();
    void sampleGivesItsVerdicts();
    void tableNamesTheRefusingFilter();
    void badSessionLineIsNamed_data();
    void badSessionLineIsNamed();
    void badFiltersAreNamed_data();
    void badFiltersAreNamed();
    void badCommandLinesAreNamed();
    void keepGoingCountsWhatItSkips();

private:
    QString file(const QString& name, const QString& content);

    QTemporaryDir m_folder;
};

QString tst_Replay::file(const QString& name, const QString& content)
{
    QFile f(m_folder.filePath(name));
    const QByteArray bytes = content.toUtf8();
    const bool written = f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size();
    return written ? f.fileName() : QString();
}

void tst_Replay::sampleGivesItsVerdicts_data()
{
    QTest::addColumn<QString>("expectedFile");
    const QDir expected(QStringLiteral(EXPECTED));
    for (const QString& name : expected.entryList({"*.expected"_s}))
        QTest::newRow(qPrintable(name.chopped(9))) << expected.filePath(name);
    QCOMPARE(QDir(QStringLiteral(SAMPLES)).entryList({"*.jsonl"_s}).size(),
             int(expected.entryList({"*.expected"_s}).size()));
}

void tst_Replay::sampleGivesItsVerdicts()
{
    QFETCH(QString, expectedFile);
    QFile file(expectedFile);
    QVERIFY(file.open(QIODevice::ReadOnly));
    QStringList expected = linesOf(QString::fromUtf8(file.readAll()));
    expected = expected.filter(QRegularExpression("^[^#]"_s));

    const QString session = sample(QString::fromUtf8(QTest::currentDataTag()) + ".jsonl"_s);
    const Run run =
        velmo({"replay"_s, session, "--filters"_s, sample("filters.json"_s), "--json"_s});
    QCOMPARE(run.err, QString());
    QCOMPARE(run.exitCode, 0);
    QStringList actual;
    for (const QString& line : linesOf(run.out)) {
        const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
        const QJsonObject refusedBy = o["refused_by"_s].toObject();
        actual += QStringList{QString::number(o["line"_s].toInt()),
                              o["state"_s].toString(),
                              QString::number(o["note"_s].toInt()),
                              QString::number(o["session_sum"_s].toInt()),
                              o["sent"_s].toBool() ? "sent"_s : "-"_s,
                              o["verdict"_s].toString(),
                              refusedBy.value("name"_s).toString("-"_s),
                              o["accepting_allowed"_s].toBool() ? "yes"_s : "no"_s,
                              o["payment_text"_s].toString()}
                      .join(QLatin1Char(' '));
    }
    QCOMPARE(actual, expected);
}

void tst_Replay::tableNamesTheRefusingFilter()
{
    const QByteArray session = R"({"session":"start","enabled":true,"device_id":1}
{"state":"rejected","current_note":1000}
{"state":"accepting"})";
    const QString filters = file("one.json"_s,
                                 R"([{"name":"AttemptsFilter",)"
                                 R"("params":{"denom":"1000","attempts":1}}])"_s);
    const Run run = velmo({"replay"_s, "-"_s, "--filters"_s, filters}, session);
    QCOMPARE(run.exitCode, 0);
    const QStringList rows =
        linesOf(run.out.simplified().replace(" 2 "_s, "\n2 "_s).replace(" 3 "_s, "\n3 "_s));
    QVERIFY(rows.at(0).endsWith("-- session -- 1 busy 0 0 yes accept yes Wait..."_s));
    QCOMPARE(rows.at(2),
             "3 accepting 1000 0 yes reject no Wait... AttemptsFilter attempts=1 denom=1000"_s);
}

void tst_Replay::badSessionLineIsNamed_data()
{
    QTest::addColumn<QString>("line");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* line, const char* fault) {
        QTest::newRow(line) << QString::fromUtf8(line) << QString::fromUtf8(fault);
    };
    row(R"({"state":)", "not JSON");
    row(R"([1])", "expected a JSON object");
    row(R"({"stat":"busy"})", "unknown key \"stat\"");
    row(R"({"state":"Busy"})", "\"state\": unknown state name \"Busy\"");
    row(R"({"enabled":1})", "\"enabled\": expected true or false");
    row(R"({"id_string":1})", "\"id_string\": expected a text");
    row(R"({"current_note":1.5})", "\"current_note\": expected a whole number");
    row(R"({"current_channel":40000})", "\"current_channel\": expected a whole number from -32768");
    row(R"({"session":"end"})", "\"session\": expected \"start\"");
    row(R"({"dispenser_registry":[{"currency":"RUB"}]})", "row 1: key \"denomination\" is missing");
    row(R"({"dispenser_registry":{}})", "expected a list of registry rows");
}

void tst_Replay::badSessionLineIsNamed()
{
    QFETCH(QString, line);
    QFETCH(QString, fault);
    const QString session = file("bad.jsonl"_s, "{\"state\":\"idling\"}\n"_s + line + "\n{}\n"_s);
    const Run run =
        velmo({"replay"_s, session, "--filters"_s, sample("filters.json"_s), "--json"_s});
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.startsWith("velmo: "_s + session + ":2: "_s) && run.err.contains(fault),
             qPrintable(run.err));
    QCOMPARE(linesOf(run.out).size(), 1);
}

void tst_Replay::badFiltersAreNamed_data()
{
    QTest::addColumn<QString>("second");
    QTest::addColumn<QString>("fault");
    const auto row = [](const char* second, const char* fault) {
        QTest::newRow(second) << QString::fromUtf8(second) << QString::fromUtf8(fault);
    };
    row(R"({"name":"acceptFilter"})", "unknown filter \"acceptFilter\"");
    row(R"({"name":"AcceptFilter","params":{"all":1}})", "unknown parameter \"all\"");
    row(R"({"name":"AttemptsFilter","params":{"attempts":128}})", "\"attempts\" cannot hold");
    row(R"({"name":"DenomCountFilter","params":{"count":"x"}})", "\"count\" cannot hold");
    row(R"({"name":"AcceptFilter","parms":{}})", "unknown key \"parms\"");
    row(R"({"name":"AcceptFilter","params":[]})", "expected an object");
    row(R"(})", "not JSON");
}

void tst_Replay::badFiltersAreNamed()
{
    QFETCH(QString, second);
    QFETCH(QString, fault);
    const QString filters =
        file("bad.json"_s, "[{\"name\":\"AcceptFilter\"},\n"_s + second + "\n]"_s);
    const Run run = velmo({"replay"_s, sample("jam.jsonl"_s), "--filters"_s, filters});
    QCOMPARE(run.exitCode, 2);
    QVERIFY2(run.err.startsWith("velmo: "_s + filters + ":2: "_s) && run.err.contains(fault),
             qPrintable(run.err));
    QCOMPARE(run.out, QString());
}

void tst_Replay::badCommandLinesAreNamed()
{
    const QVector<std::pair<QStringList, QString>> faults{
        {{}, "no command given"_s},
        {{"play"_s}, "unknown command \"play\""_s},
        {{"replay"_s, "x.jsonl"_s}, "usage: velmo replay"_s},
        {{"replay"_s, "x.jsonl"_s, "--filter"_s, "y"_s}, "Unknown option 'filter'"_s},
        {{"replay"_s, "missing.jsonl"_s, "--filters"_s, sample("filters.json"_s)},
         "missing.jsonl: No such file"_s}};
    for (const auto& [arguments, fault] : faults) {
        const Run run = velmo(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(fault), qPrintable(run.err));
        QCOMPARE(run.out, QString());
    }
    QVERIFY(velmo({"replay"_s, "--help"_s}).out.contains("--filters"_s));
    QVERIFY(velmo({"--version"_s}).out.startsWith("velmo 5.0.6 "_s));
}

void tst_Replay::keepGoingCountsWhatItSkips()
{
    const Run run = velmo(
        {"replay"_s, "-"_s, "--filters"_s, sample("filters.json"_s), "--json"_s, "--keep-going"_s},
        "{}\nx\n\n{\"a\":1}\n{}\n");
    QCOMPARE(run.exitCode, 2);
    QCOMPARE(linesOf(run.out).size(), 2);
    const QStringList faults = linesOf(run.err);
    QCOMPARE(faults.size(), 3);
    QVERIFY(faults.at(1).startsWith("velmo: standard input:4: "_s));
    QCOMPARE(faults.at(2), "velmo: 2 bad lines skipped"_s);
}

QTEST_GUILESS_MAIN(tst_Replay)
#include "tst_replay.moc"
