// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptors.h"
#include "filterfactory.h"
#include "velmorun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <array>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QByteArray published = R"({"device_states":[{"device_id":1,"thread_id":2,"enabled":true,)"
                             R"("state":"returned","error_critical":true},{"device_id":100}]})";

} // namespace

class tst_Velmo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void devicesAndFiltersAreListed()
    {
        const VelmoRun devices = velmo({"devices"_s});
        QCOMPARE(devices.outLines().size(), Acceptors::supportedDevices().size() + 1);
        QCOMPARE(devices.outLines().at(9),
                 " 51  Puloon LCDM2               Note dispenser  yes"
                 "       NAPuloonLCDM2"_s);
        const QJsonArray rows =
            QJsonDocument::fromJson(velmo({"devices"_s, "--json"_s}).out.toUtf8()).array();
        QCOMPARE(rows.at(12)["class"_s], QJsonValue("CRPosD200"_s));

        QVERIFY(velmo({"filters"_s, "AttemptsFilter"_s})
                    .out.contains("  attempts   int   ^(0{0,1}[1-9]|0?[1-9][0])$  Accept tries"_s));
        const QString json = velmo({"filters"_s, "--json"_s}).out;
        QCOMPARE(QJsonDocument::fromJson(json.toUtf8()).array().size(),
                 FilterFactory::getFilters().size());
    }

    void reportTellsWhatStatesMean()
    {
        const QString names = writeFile(m_folder.filePath("names.json"_s), R"({"1":"BNV"})"_s);
        const VelmoRun run =
            velmo({"report"_s, "-"_s, "--names"_s, names, "--watch"_s}, published + "\n{}");
        QCOMPARE(
            run.out,
            "\033[2J\033[HWait...\nAccepting money: not allowed\n"
            "  - Bill validator (CCNet): The device has a critical error: no description.\n"
            "  - Bill validator (CCNet): The device is not ready for notes; its state: "
            "money accepting disabled or sum exceeded.\n"
            "Device faults:\n  - Coin acceptor (CCTalk): The device is disabled.\n\n"
            "DeviceId: 1,ThreadId: 2\nName: BNV\nActivity: enabled\n"
            "Critical error: no description\n"
            "Status: money accepting disabled or sum exceeded\n\n\n"
            "DeviceId: 100,ThreadId: -1\nName: Coin acceptor (CCTalk)\nActivity: disabled\n\n\n"_s);
        QCOMPARE(run.err, "velmo: standard input:2: expected a list \"device_states\"\n"_s);
        QCOMPARE(run.exitCode, 2);
    }

    void manyStatesAreToldOneByOne()
    {
        const QByteArray times =
            R"({"time":1234,"device_states":[]})"
            "\n"
            R"({"device_states":[{"device_id":9999,"enabled":true,"state":"idling","stacker_full":true,"online":"false",)"
            R"("notes_inserted":5000000000,"notes_rejected":9223372036854775807,"notes_returned":-1e19,)"
            R"("dispenser_registry":[{"bill_type":1,"channel":2,"denomination":100,"currency":643}]}]})";
        const QString file =
            writeFile(m_folder.filePath("states.jsonl"_s), QString::fromUtf8(times));
        const QString expected =
            R"({"time":"1970-01-01T00:00:01.234Z","payment_text":"Wait...","accepting":false,)"
            R"("reasons":["The service tells of no device."],"devices":[]})"
            "\n"
            R"({"time":null,"payment_text":"Error status unknown","accepting":true,"reasons":[],)"
            R"("devices":[{"device":9999,"thread":-1,"name":"Device 9999","model":null,)"
            R"("kind":"Device","enabled":true,"state":"idling","state_text":"waiting for money",)"
            R"("wrong":["The stacker is full.","The device is offline."],"notes_inserted":5000000000,)"
            R"("notes_rejected":9223372036854775807,"notes_returned":-9223372036854775808,"registry":{"1_2_100_643":{"bill_type":1,"currency":643,)"
            R"("denomination":100}}}]})"
            "\n"_s;
        QCOMPARE(velmo({"report"_s, file, "--json"_s}).out, expected);
        const QString marked =
            writeFile(m_folder.filePath("marked.jsonl"_s),
                      QString(QChar(QChar::ByteOrderMark)) + "\n"_s + QString::fromUtf8(times)
                          + "\n{\"device_states\":[{"_s);
        const VelmoRun cut = velmo({"report"_s, marked, "--json"_s});
        QCOMPARE(cut.out, expected);
        QCOMPARE(cut.errLines().constFirst(),
                 "velmo: %1:4: the file ends in the middle of a line"_s.arg(marked));
        QCOMPARE(cut.exitCode, 2);
        const VelmoRun text = velmo({"report"_s, file});
        QVERIFY(text.out.contains(
            "01.01.1970 00.00.01\n-- line 2 --\nError status unknown\nAccepting money: allowed\n"
            "Device faults:\n  - Device 9999: The stacker is full.\n"
            "  - Device 9999: The device is offline.\n\n"_s));
    }

    void faultsOfDevicesAreNamed_data()
    {
        // What is published of a device, its last fault.
        addRows(R"(
            "error_critical":true,"error_text":"jam","state_text":"Head" | The device has a critical error: jam.
            "error_critical":true,"state_text":"Head"                    | The device has a critical error: Head.
            "error_critical":true                                        | The device has a critical error: no description.
            "online":-1259366302522e7                                    | The device is halted.
            "online":false                                               | The device is offline.)"_s);
    }

    void faultsOfDevicesAreNamed()
    {
        const auto [device, fault] = cells<2>();
        const QString state =
            R"({"device_states":[{"device_id":1,"enabled":true,"halt":true,%1}]})"_s.arg(device);
        const QString json = velmo({"report"_s, "-"_s, "--json"_s}, state.toUtf8()).out;
        const QJsonValue told = QJsonDocument::fromJson(json.toUtf8())["devices"_s][0];
        QCOMPARE(told["wrong"_s].toArray().last().toString(), fault);
        const QString text = velmo({"report"_s, "-"_s}, state.toUtf8()).out;
        QVERIFY2(text.contains("  - Bill validator (CCNet): %1\n"_s.arg(fault)), qPrintable(text));
    }

    void nothingIsReadPastRawBytes()
    {
        const QByteArray lines[] = {QByteArrayLiteral("{\"device_states\":[]}\0{"),
                                    QByteArrayLiteral("{\"device_states\":[],\"x\":\"\0\"}"),
                                    QByteArrayLiteral("{\"device_states\":[],\"x\":\"\xff\"}")};
        for (const QByteArray& line : lines) {
            const VelmoRun runs[] = {
                velmo({"report"_s, "-"_s, "--json"_s}, line),
                velmo({"explain"_s, "-"_s, "--json"_s, "--filters"_s, sample("filters.json"_s)},
                      line),
                velmo({"explain"_s, sample("jam.jsonl"_s), "--filters"_s, "-"_s},
                      "[{\"name\":" + line + "}]")};
            for (const VelmoRun& run : runs) {
                QCOMPARE(run.exitCode, 2);
                QCOMPARE(run.out, QString());
                QVERIFY2(run.err.contains("standard input:1: not JSON"_s), qPrintable(run.err));
            }
        }
    }

    void textsAreNoCommands()
    {
        const QByteArray device = "{\"device_id\":1,\"enabled\":true,\"error_critical\":true,"
                                  "\"error_text\":\"\\u001b[31m\\u202e\"}";
        const VelmoRun runs[] = {
            velmo({"report"_s, "-"_s}, "{\"device_states\":[" + device + "]}"),
            velmo({"replay"_s, "-"_s, "--filters"_s, sample("filters.json"_s)}, device)};
        for (const VelmoRun& run : runs) {
            QVERIFY2(run.out.contains("\\u001b[31m\\u202e"_s), qPrintable(run.out));
            QVERIFY(!run.out.contains(QChar(0x1b)) && !run.out.contains(QChar(0x202e)));
        }
    }

    void textsAreTranslated()
    {
        const VelmoRun russian = velmo({"--lang"_s, "ru"_s, "report"_s, "-"_s}, published);
        QVERIFY(russian.out.startsWith("Подождите...\n"_s));
        QVERIFY(russian.out.contains("Критическая ошибка: без описания\n"
                                     "Состояние: приём денег отключён или превышена сумма\n"_s));
        QVERIFY(velmo({"report"_s, "-"_s, "--lang"_s, "en"_s}, published)
                    .out.contains("Status: money accepting disabled or sum exceeded\n"_s));
        const VelmoRun unknown = velmo({"report"_s, "-"_s, "--lang"_s, "xx"_s}, published);
        QCOMPARE(unknown.exitCode, 2);
        QVERIFY2(unknown.err.startsWith("velmo: no translations for language \"xx\"; there are: "_s)
                     && unknown.err.contains("en, "_s) && unknown.err.contains("ru"_s),
                 qPrintable(unknown.err));
    }

    void statesAreCheckedAndRewritten()
    {
        const QString compact =
            R"({"cash":0,"current_channel":0,"current_note":0,"device_id":0,"dispensed_sum":0,)"
            R"("enabled":false,"error_critical":false,"error_text":"","halt":false,)"
            R"("id_string":"","online":false,"session_sum":0,"stacker_full":false,)"
            R"("stacker_present":true,"state":"busy","state_text":"","thread_id":0})"_s;
        const VelmoRun map = velmo({"state"_s, "-"_s, "--map"_s}, compact.toUtf8());
        QVERIFY(map.out.startsWith("{\n    \"cash\": 0,\n"_s));
        QCOMPARE(velmo({"state"_s, "-"_s}, map.out.toUtf8()).out, compact + "\n"_s);
    }

    void helpAndCompletionKnowWhatACommandTakes_data()
    {
        // Command line, what its output has.
        addRows(R"(
            help                             | \n  settings set            Changes values
            --lang ru settings --help        | \n  settings routes
            help settings set                | Usage: velmo settings set LIST.json GROUP/KEY=VALUE... [--dry-run] [--output OUT] [--force] [--quiet]\n
            report --help                    | \n  --names NAMES.json
            complete -- se                   | settings\n
            complete -- settings sh          | show\n
            complete -- settings show -      | --json\n
            complete -- replay x --filters y | :file\n
            complete -- report --lang r      | ru\n
            complete -- explain --outcome re | refused\nrejected\nreturned\n
            complete -- filters Att          | AttemptsFilter\n)"_s);
    }

    void helpAndCompletionKnowWhatACommandTakes()
    {
        const auto [command, output] = cells<2>();
        const VelmoRun run = velmo(command.split(QLatin1Char(' ')));
        QCOMPARE(run.err, QString());
        QVERIFY2(run.out.contains(QString(output).replace("\\n"_s, "\n"_s)), qPrintable(run.out));
    }

    // What --html names, the fault, none where it is written to.
    void pageOverwritesNoInput_data()
    {
        addRows(R"(
            log.jsonl    | log.jsonl: is an input too
            link.jsonl   | link.jsonl: is an input too
            twin.jsonl   | twin.jsonl: is an input too
            filters.json | filters.json: is an input too
            page.html    | page.html: File too large
            pipe         |
            /dev/stdout  |)"_s);
    }

    void pageOverwritesNoInput()
    {
        const auto [page, fault] = cells<2>();
        const QDir folder(
            QDir(m_folder.path()).filePath(page.section(QLatin1Char('/'), -1) + "-d"_s));
        QVERIFY(QDir().mkpath(folder.path()));
        const QString log = folder.filePath("log.jsonl"_s);
        const QString filters = folder.filePath("filters.json"_s);
        QVERIFY(QFile::copy(sample("jam.jsonl"_s), log));
        QVERIFY(QFile::copy(sample("filters.json"_s), filters));
        QVERIFY(QFile::link(log, folder.filePath("link.jsonl"_s)));
        QCOMPARE(::link(QFile::encodeName(log).constData(),
                        QFile::encodeName(folder.filePath("twin.jsonl"_s)).constData()),
                 0);
        writeFile(folder.filePath("page.html"_s), "old"_s);
        // Open at both ends, the pipe takes it all.
        const QByteArray pipe = QFile::encodeName(folder.filePath("pipe"_s));
        QCOMPARE(mkfifo(pipe.constData(), 0600), 0);
        const int reader = ::open(pipe.constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
        QVERIFY(reader >= 0);
        // No file of more than some bytes can be written.
        QProcess shell;
        shell.setWorkingDirectory(folder.path());
        const QString script = R"(trap '' XFSZ
            [ $1 = page.html ] && ulimit -f 4
            exec "$0" explain log.jsonl --filters filters.json --summary --html $1)"_s;
        shell.start("sh"_s, {"-c"_s, script, QStringLiteral(VELMO), page});
        QVERIFY(shell.waitForFinished());
        const QString error = QString::fromUtf8(shell.readAllStandardError());
        QVERIFY2(fault.isEmpty() ? error.isEmpty() : error.startsWith("velmo: "_s + fault),
                 qPrintable(error));
        QCOMPARE(shell.exitCode(), fault.isEmpty() ? 0 : 2);
        QCOMPARE(shell.readAllStandardOutput().endsWith("</html>\n"), page == "/dev/stdout"_s);
        QFile piped;
        QVERIFY(piped.open(reader, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle));
        QCOMPARE(piped.readAll().endsWith("</html>\n"), page == "pipe"_s);
        const std::array<QStringList, 3> files{{{log, sample("jam.jsonl"_s)},
                                                {filters, sample("filters.json"_s)},
                                                {folder.filePath("page.html"_s), {}}}};
        for (const QStringList& pair : files) {
            QFile file(pair.at(0));
            QVERIFY(file.open(QIODevice::ReadOnly));
            QFile original(pair.at(1));
            QCOMPARE(file.readAll(),
                     original.open(QIODevice::ReadOnly) ? original.readAll() : QByteArray("old"));
        }
    }

    void wrongBytesInArgumentsAreRefused()
    {
        QProcess shell;
        const QString script = R"(exec "$0" settings set -n "$1" \
            device0/device/device_name=$(printf 'a\377'))"_s;
        shell.start("sh"_s, {"-c"_s, script, QStringLiteral(VELMO), sample("settings.json"_s)});
        QVERIFY(shell.waitForFinished());
        QCOMPARE(shell.exitCode(), 2);
        QVERIFY(shell.readAllStandardError().contains("wrong UTF-8"));
    }

    void badInputIsNamed_data()
    {
        // Command, input, fault.
        addRows(R"(
            state -             | {"state":"busy"}           | standard input: key "cash" is missing
            state -             | {"state":"Busy"}           | standard input: "state": unknown state name "Busy"
            state -             | []                         | standard input:1: expected a JSON object
            report -            | {"device_states":[],"time":253402300800000} | standard input:1: expected an ISO 8601 time
            report /dev/null    |                            | /dev/null:1: not JSON
            report -            | {"device_states":[],"time":true} | standard input:1: expected an ISO 8601 time
            report - --json --watch |                        | usage: velmo report
            report - --names -  | {"one":"x"}                | standard input: "one": expected a device number
            report              |                            | usage: velmo report
            filters x           |                            | unknown filter "x" (known: SessionSumFilter,
            reprot x            |                            | unknown command "reprot" (nearest known: report)
            settings shw x      |                            | unknown command "settings shw" (nearest known: settings show)
            setings             |                            | unknown command "setings" (nearest known: settings)
            settings            |                            | usage: velmo settings ... (known: settings show,
            report --nmes x     |                            | unknown option --nmes (nearest known: --names)
            devices --map       |                            | unknown option --map (nearest known: --
            report - --names    |                            | Missing value after '--names'.
            fleet --wait 3601   |                            | --wait: expected a number from 1 to 3600
            fleet --wait x      |                            | --wait: expected a number from 1 to 3600
            fleet --tls-ca=     |                            | --tls-ca: expected a value
            fleet 2026-11       |                            | usage: velmo fleet [MONTH]
            fleet --json --watch |                           | usage: velmo fleet
            fleet --count x     |                            | --count: expected reason or region
            fleet --condition Fine |                         | --condition: unknown: "Fine" (nearest known: fine)
            fleet --due 2       |                            | --due: expected a time, as 90m, 48h, 3d or 2w
            fleet --due 2d      |                            | --due needs --history
            fleet --availability 2026-13 |                   | "2026-13": expected a month
            fleet history k1    |                            | velmo fleet history needs --history
            fleet history k1 --history /dev/null/x |         | /dev/null/x:
            fleet forget        |                            | usage: velmo fleet forget KIOSK...
            fleet forget +      |                            | "+" is no kiosk's name at "kiosks/+/state"
            explain - --filters x --from x | | --from: expected an ISO 8601 time or date
            explain - --filters x --to 2026-02-30 | | --to: expected an ISO 8601 time or date
            explain - --filters x --from 2026-11-17 --to 2026-11-16 | | --from is after --to
            explain - --filters x --note 0 | | --note: expected a number
            explain - --filters x --outcome x | | --outcome: unknown outcome "x" (known: refused, taken, stuck, rejected, returned, unknown)
            help nothing        |                            | unknown command "nothing"
            devices x           |                            | usage: velmo devices)"_s);
    }

    void badInputIsNamed()
    {
        const auto [command, input, fault] = cells<3>();
        const VelmoRun run = velmo(command.split(QLatin1Char(' ')), input.toUtf8());
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("velmo: "_s + fault), qPrintable(run.err));
        QCOMPARE(run.out, QString());
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_Velmo)
#include "tst_velmo.moc"
