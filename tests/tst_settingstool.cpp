// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "velmorun.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

QString contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace

class tst_SettingsTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_list = writeFile(m_folder.filePath("list.json"_s),
                           contentOf(sample("settings.json"_s)).remove("\n\n"_s));
    }

    void sampleIsCleanAndShown()
    {
        const VelmoRun check = velmo({"settings"_s, "check"_s, sample("settings.json"_s)});
        QCOMPARE(check.out + check.err, QString());
        QCOMPARE(check.exitCode, 0);

        const VelmoRun show = velmo({"settings"_s, "show"_s, m_list});
        QCOMPARE(show.exitCode, 0);
        const QString shown = show.out.simplified();
        QVERIFY(
            shown.startsWith("Common settings Setting Value acceptor_common/acceptAll default 1 "
                             "acceptor_common/maxSumm 15000 "_s));
        QVERIFY(shown.contains(R"(Device 0: CCNet (1) "Bill validator", rs232 ttyS0 Setting)"_s));
        QVERIFY(shown.contains("device0/ccnet/response_time default 1000 "_s));
        QVERIFY(shown.contains("device0/ccnet/reset_interval 4000 "_s));
        QVERIFY(shown.contains(R"("Card terminal", tcp 192.168.10.5:10400 )"_s));
        const VelmoRun json = velmo({"settings"_s, "show"_s, m_list, "--json"_s});
        const QJsonObject map = QJsonDocument::fromJson(json.out.toUtf8()).object();
        QCOMPARE(map["device1/hw_interface"_s].toObject()["parity"_s], QJsonValue("EVEN"_s));
        QVERIFY(velmo({"settings"_s, "routes"_s, m_list})
                    .out.contains("RUB              500  note      1     20\n"_s));
    }

    void getAnswersThroughTheModel_data()
    {
        addRows(R"(
            device0/ccnet/response_time         | 1000
            device2/hw_interface/PortName       | ttyS2
            service/devices_count               | 5
            device0/ccnet/response_tim          | nearest known: device0/ccnet/response_time
            acceptor_common/maxSum              | nearest known: acceptor_common/maxSumm
            device1/id003/response_time         | device1/id003/response_time is not set
            devices_count                       | expected GROUP/KEY)"_s);
    }

    void getAnswersThroughTheModel()
    {
        const auto [path, answer] = cells<2>();
        const VelmoRun run = velmo({"settings"_s, "get"_s, m_list, path});
        const bool isValue = run.exitCode == 0;
        QVERIFY2(isValue ? run.out == answer + "\n"_s : run.err.contains(answer),
                 qPrintable(run.out + run.err));
        QCOMPARE(isValue, !answer.contains(QLatin1Char(' ')));
    }

    // Assignments, then the elements that the list has more, and those that it has no more.
    void setChangesNothingElse_data()
    {
        addRows(R"(
            acceptor_common/maxSumm=20000                 | acceptor_common/maxSumm=20000 | acceptor_common/maxSumm=15000
            acceptor_common/maxSumm=15000                 | |
            device0/hw_interface/flowControl=XON/XOFF     | device0/hw_interface/flowcontrol=xonxoff | device0/hw_interface/flowcontrol=none
            service/devices_count=4                       | service/devices_count=4 | service/devices_count=5
            device2/ict/reset_interval=7                  | device2/ict/reset_interval=7 |
            device3/device/device_id=200                  | device3/device/device_id=200 device3/uniteller_service/terminal_id=10204417 | device3/device/device_id=201 device3/posd200/count_nak=3 device3/posd200/packet_size=1024 device3/posd200/terminal_id=10204417 device3/posd200/timeout_ack=5000 device3/posd200/timeout_packet=45000)"_s);
    }

    void setChangesNothingElse()
    {
        const auto [assignment, added, removed] = cells<3>();
        const auto elements = [this] {
            QSet<QString> texts;
            for (const QJsonValue e : QJsonDocument::fromJson(contentOf(m_list).toUtf8()).array())
                texts += e["group"_s].toString() + "/"_s + e["key"_s].toString() + "="_s
                    + e["value"_s].toVariant().toString();
            return texts;
        };
        const auto sorted = [](const QSet<QString>& texts) {
            QStringList list = texts.values();
            list.sort();
            return list.join(QLatin1Char(' '));
        };
        const QSet<QString> before = elements();
        const VelmoRun run = velmo({"settings"_s, "set"_s, m_list, assignment});
        QCOMPARE(run.err, QString());
        QCOMPARE(sorted(elements() - before), added);
        QCOMPARE(sorted(before - elements()), removed);
    }

    void setKeepsWhatTheModelIgnores()
    {
        const QString list = R"([
    {"group":"x","key":"y","value":[1]},
    7,
    {"group":"service","key":"devices_count","value":1},
    {"group":"device0/ict","key":"reset_timeout","value":5}
]
)"_s;
        const VelmoRun run =
            velmo({"settings"_s, "set"_s, "-"_s, "acceptor_common/acceptAll=0"_s}, list.toUtf8());
        QCOMPARE(run.out, QString(list).replace("5}\n"_s, R"(5},
    {"group":"acceptor_common","key":"acceptAll","value":0}
)"_s));
    }

    void badAssignmentsLeaveTheFileAlone_data()
    {
        addRows(R"(
            acceptor_common/maxSumm=much     | acceptor_common/maxSumm = much reads as 0
            acceptor_common/reset_stats=7    | the modes are 0 to 4
            device0/device/device_id=8       | is no model of the catalogue
            device0/hw_interface/parity=mark | reads as no parity
            acceptor_common/acceptal=1       | nearest known: acceptor_common/acceptAll
            acceptor_common/acceptAll        | expected GROUP/KEY=VALUE)"_s);
    }

    void badAssignmentsLeaveTheFileAlone()
    {
        const auto [assignment, fault] = cells<2>();
        const QString before = contentOf(m_list);
        const VelmoRun run =
            velmo({"settings"_s, "set"_s, m_list, "acceptor_common/maxSumm=1"_s, assignment});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.contains(fault), qPrintable(run.err));
        QCOMPARE(contentOf(m_list), before);
        QCOMPARE(velmo({"settings"_s, "set"_s, m_list, "acceptor_common/maxSumm=1"_s, "-o"_s,
                        m_folder.filePath("no/list.json"_s)})
                     .exitCode,
                 2);
    }

    void checkFindsWhatTheModelWouldNotTake_data()
    {
        addRows(R"(
            7                                                                        | is skipped: no "group"
            {"key":"a","value":1}                                                    | is skipped: no "group"
            {"group":"other","key":"a","value":1}                                    | other/a is ignored
            {"group":"device0/ict","key":"reset_timeout","value":1}                  | device0/ict/reset_timeout is ignored
            {"group":"device0/hw_interface","key":"BaudRate","value":1}              | nearest known: device0/hw_interface/baudrate
            {"group":"device1/debug","key":"port_logging","value":1}                 | device 1 is not below the device count of 1
            {"group":"device/debug","key":"port_logging","value":1}                  | has no device number and means device 0
            {"group":"acceptor_common","key":"acceptAll","value":true}               | acceptAll = true reads as off
            {"group":"acceptor_common","key":"maxSumm","value":null}                 | reads as 0
            {"group":"acceptor_common","key":"attempts_filter_settings","value":"x"} | is no JSON array
            {"group":"acceptor_common","key":"attempts_filter_settings","value":"[{\\"denom\\":1}]"} | limit 1: "attempts" reads as 1
            {"group":"dispenser","key":"route_map","value":"[{}]"}                   | 1 of its rows lack keys
            {"group":"device0/device","key":"device_id","value":8}                   | is no model of the catalogue
            {"group":"device0/device","key":"device_name","value":{}}                | reads as an empty text
            {"group":"device0/hw_interface","key":"flowcontrol","value":"rts"}       | reads as no flow control
            {"group":"device0/hw_interface","key":"stopbits","value":6}              | reads as 2
            {"group":"device0/hw_interface","key":"databits","value":"x"}            | is no number of data bits
            {"group":"service","key":"devices_count","value":1}                      | was set by element 1 already)"_s);
    }

    void checkFindsWhatTheModelWouldNotTake()
    {
        const auto [element, finding] = cells<2>();
        const QString list =
            writeFile(m_folder.filePath("check.json"_s),
                      "[{\"group\":\"service\",\"key\":\"devices_count\",\"value\":1},\n"_s
                          + QString(element).replace(R"(\\)"_s, R"(\)"_s) + "]"_s);
        const VelmoRun run = velmo({"settings"_s, "check"_s, list});
        QCOMPARE(run.exitCode, 1);
        QCOMPARE(run.outLines().size(), 1);
        QVERIFY2(run.out.startsWith(list + ":2: element 2: "_s), qPrintable(run.out));
        QVERIFY2(run.out.contains(finding), qPrintable(run.out));
        QCOMPARE(velmo({"settings"_s, "check"_s, "-"_s}, "{}").exitCode, 2);
    }

    void replayTakesTheFiltersOfTheSettings()
    {
        const QByteArray session = R"({"session":"start","state":"idling"}
{"state":"accepting","current_note":1000,"session_sum":14000}
{"session_sum":14001}
{"state":"rejected","session_sum":0}
{"state":"rejected","cash":1}
{"current_note":500})";
        const QStringList arguments{"replay"_s, "-"_s, "--json"_s, "--settings"_s, m_list};
        QStringList refusals;
        for (const QString& line : velmo(arguments, session).outLines())
            refusals += QJsonDocument::fromJson(line.toUtf8())["refused_by"_s]["name"_s].toString();
        QCOMPARE(refusals.join(","_s), ",,SessionSumFilter,,AttemptsFilter,"_s);

        velmo({"settings"_s, "set"_s, m_list, "acceptor_common/acceptAll=0"_s});
        QVERIFY(velmo(arguments, session).out.contains("AcceptFilter"_s));
        velmo({"settings"_s, "set"_s, m_list,
               R"(acceptor_common/attempts_filter_settings=[{"denom":1,"attempts":200}])"_s});
        const VelmoRun tooMany = velmo(arguments, session);
        QCOMPARE(tooMany.exitCode, 2);
        QVERIFY(tooMany.err.startsWith("velmo: "_s + m_list + ": AttemptsFilter: parameter"_s));
    }

private:
    QTemporaryDir m_folder;
    QString m_list;
};

QTEST_GUILESS_MAIN(tst_SettingsTool)
#include "tst_settingstool.moc"
