// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptors.h"
#include "acceptorsettings.h"
#include "settings/settingscheck.h"
#include "settings/settingsedit.h"
#include "text/nearest.h"
#include "velmorun.h"

#include <QBuffer>
#include <QFileInfo>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRandomGenerator>

#include <algorithm>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A path of this test's table: a file of the samples or of tests/settings.
QString located(const QString& name)
{
    const QString own = QStringLiteral(SETTINGS "/") + name;
    return QFileInfo::exists(own) ? own : sample(name);
}

ArrayFile arrayFile(const QByteArray& text)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(text);
    buffer->open(QIODevice::ReadOnly);
    TextInput input(std::move(buffer), "list"_s);
    return readSettingsFile(input);
}

// What the model has of a list. Each device's port log is not its own there.
QMap<QString, QString> modelValues(const QVariantList& list)
{
    AcceptorSettings().setList(list);
    QMap<QString, QString> values;
    const QVariantList written = AcceptorSettings().toList();
    for (const QVariant& element : written) {
        const QVariantMap map = element.toMap();
        const QString path = map["group"_s].toString() + "/"_s + map["key"_s].toString();
        if (!path.endsWith("/debug/port_logging"_s))
            values.insert(path, map["value"_s].toString());
    }
    values["service/devices_count"_s] = QString::number(AcceptorSettings::deviceCount());
    return values;
}

// The lines of a list, each without its comma.
class Lines : public QStringList
{
public:
    explicit Lines(const QByteArray& text)
        : QStringList(QString::fromUtf8(text).replace("},\n"_s, "}\n"_s).split("\n"_s))
    {
    }

    Lines without(const Lines& others) const
    {
        Lines rest = *this;
        for (const QString& line : others)
            rest.removeOne(line);
        return rest;
    }

    // "PATH=VALUE" for each.
    QString elements() const
    {
        QStringList texts;
        for (const QString& line : *this) {
            const QJsonObject element = QJsonDocument::fromJson(line.toUtf8()).object();
            texts += element["group"_s].toString() + "/"_s + element["key"_s].toString() + "="_s
                + element["value"_s].toVariant().toString();
        }
        return texts.join(QLatin1Char(' '));
    }
};

int commonBegin(const QByteArray& a, const QByteArray& b)
{
    return int(std::mismatch(a.begin(), a.end(), b.begin(), b.end()).first - a.begin());
}

// Whether two texts are the same before and behind one value.
bool differOnlyIn(const QByteArray& before, const QByteArray& after,
                  const SettingsEdit::Change& change)
{
    const int begin = commonBegin(before, after);
    const auto reversed = [begin](QByteArray text) {
        std::reverse(text.begin(), text.end());
        return text.chopped(begin);
    };
    const int end = commonBegin(reversed(before), reversed(after));
    const auto room = [](const QVariant& value) {
        return QJsonDocument(QJsonArray{value.toString()}).toJson(QJsonDocument::Compact).size();
    };
    return before.size() - begin - end < room(change.before)
        && after.size() - begin - end < room(change.after);
}

class Random : public QRandomGenerator
{
public:
    using QRandomGenerator::QRandomGenerator;

    int below(int limit) { return int(bounded(limit)); }

    template <typename List>
    auto of(const List& list)
    {
        return list.at(below(int(list.size())));
    }

    QString valueFor(const SettingDescription& setting)
    {
        switch (setting.kind()) {
        case SettingDescription::Number:
            return QString::number(setting.minimum().toInt() + below(5));
        case SettingDescription::Switch:
            return QString::number(below(2));
        case SettingDescription::Choice:
            return of(setting.choices());
        case SettingDescription::AttemptsLimits:
            return R"([{"attempts":"%1","denom":"100"}])"_s.arg(1 + below(3));
        case SettingDescription::RouteMap:
            return QString();
        default:
            return "text %1, \"quoted\""_s.arg(generate());
        }
    }

    // A configuration in which everything is set and no two devices have one address.
    QVariantList completeList()
    {
        AcceptorSettings settings;
        settings.setList({});
        const int count = 1 + below(4);
        for (int device = 0; device < count; ++device) {
            for (const SettingDescription& setting : AcceptorSettings::settingDescriptions()) {
                const QStringList group = setting.group().split(QLatin1Char('/'));
                const QString subgroup = group.value(1);
                if (setting.isRead())
                    settings.updateValue(subgroup.isEmpty() ? group.at(0)
                                                            : "device"_s + QString::number(device),
                                         subgroup, setting.key(), valueFor(setting));
            }
        }
        return settings.toList();
    }

    QByteArray textOf(const QVariantList& list)
    {
        const QJsonDocument document = QJsonDocument::fromVariant(list);
        if (below(2) == 0)
            return document.toJson();
        return document.toJson(QJsonDocument::Compact).replace("},", "},\r\n\t");
    }
};

} // namespace

class tst_SettingsTool : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_list = m_folder.filePath("list.json"_s);
        QFile::remove(m_list);
        QVERIFY(QFile::copy(sample("settings.json"_s), m_list));
    }

    // What was asked of which list, the exit code and what the answer has; of several things, "&"
    // stands between them.
    void whatTheServiceWouldUseIsSaid_data()
    {
        addRows(R"(
            check settings.json                                              | 0 |
            check sound.json                                                 | 0 |
            check stopbits-twice.json                                        | 1 | stopbits-twice.json:13: error: device0/hw_interface/stopbits: does not count
            get stopbits-twice.json device0/hw_interface/stopBit --source    | 0 | 2\tlist ( & stopbits-twice.json:14)
            set stopbits-twice.json device0/hw_interface/stopbits=1 -n       | 0 | -    {"group": "device0/hw_interface", "key": "stopBit", "value": "2"} & +    {"group": "device0/hw_interface", "key": "stopBit", "value": "1"}
            get port-name-for-number.json device1/hw_interface/tcp_port      | 0 | http\n
            check port-name-for-number.json                                  | 1 | :17: error: device1/hw_interface/tcp_port: "http" is no whole number
            get count-without-devices.json service/devices_count             | 0 | 7\n
            show count-without-devices.json                                  | 0 | 7\n
            check count-without-devices.json                                 | 1 | error: device0: is missing, but below the device count & error: device6: is
            get device-port-log.json device0/debug/port_logging              | 0 | true\n
            show device-port-log.json --json                                 | 0 | {"default":false,"path":"device0/debug/port_logging","source":"list","value":true}
            set device-port-log.json device0/debug/port_logging=0 -n         | 0 | "key": "port_logging", "value": false}
            check device-port-log.json                                       | 1 | :5: warning: device0/debug/port_logging: differs
            check no-ccnet.json                                              | 1 | device0/ccnet/response_time: is missing: the built-in default is "1000" & rest_interval
            get no-ccnet.json device0/ccnet/response_time --source           | 0 | 1000\tdefault & AcceptorSettings has "0"
            check no-model.json                                              | 1 | error: device1/device/device_id: is missing
            check gap.json                                                   | 1 | error: device1: is missing, but below the device count
            check same-port.json                                             | 1 | :15: error: device1/hw_interface/portname: "ttyS0" is where device0 is too
            check same-host.json                                             | 1 | error: device1/hw_interface/tcp_port: "127.0.0.1:10400" is where device0 is too
            check count-above-devices.json                                   | 1 | error: device2: is missing
            check empty-port.json                                            | 1 | :11: error: device0/hw_interface/portname: "" is no address
            check out-of-range.json                                          | 1 | maxSumm: "-5" is out of its range 0 to & devices_count: "1000000" is out & tcp_port: "99999" is out of its range 1 to 65535 & response_time: "-1"
            set settings.json device5/device/device_id=1                     | 2 | error: device5/hw_interface/portname: "" is no address & not written
            add-device settings.json ccnet portname=ttyS9 -n                 | 0 | "device5/ccnet", "key": "response_time", "value": 1000} & "value": 6}
            add-device gap.json 1 portname=ttyS9 -n                          | 0 | "device1/ccnet", "key": "bill_table_interval", "value": 5000}
            add-device settings.json 6 portname=a -n                         | 0 | "device5/id003", "key": "polling_interval", "value": 200} & device5/id003/polling_interval has no built-in default and gets that of device5/ccnet/polling_interval
            add-device settings.json CCNot                                   | 2 | "CCNot" is no model of the catalogue (nearest known: CCNet)
            add-device settings.json 1 port=x                                | 2 | has no "port" (nearest known:
            set settings.json device7/device/device_id=1                     | 2 | there is no device7; velmo settings add-device makes device5
            set settings.json acceptor_common/maxSumm=-5                     | 2 | maxSumm: "-5" is out of its range
            set settings.json acceptor_common/maxSumm=much                   | 2 | "much" is no whole number: reads as "0"
            set settings.json acceptor_common/reset_stats=7                  | 2 | "7" is out of its range 0 to 4: reads as "0"
            set settings.json device0/device/device_id=8                     | 2 | "8" is none of 6, 7, 5
            set settings.json device0/hw_interface/parity=mark               | 2 | "mark" is none of even, odd, space, none: reads as "none"
            set settings.json service/devices_count=4                        | 2 | error: device4: is not below the device count
            set settings.json device3/hw_interface/interface_type=rs232      | 2 | device3/hw_interface/portname: "" is no address
            set settings.json acceptor_common/acceptal=1                     | 2 | nearest known: acceptor_common/acceptAll
            set settings.json acceptor_common/acceptAll                      | 2 | expected SETTING=VALUE
            unset settings.json device0/ccnet/rest_interval                  | 2 | error: device0/ccnet/rest_interval: is missing
            remove-device settings.json 5                                    | 2 | there is no device5
            check filters.json                                               | 2 | not a settings list: looks like a filters file
            show jam.jsonl                                                   | 2 | not a settings list: looks like a session log
            get settings.json device0/ccnet/response_tim                     | 2 | nearest known: device0/ccnet/response_time
            get settings.json device1/id003/response_time                    | 2 | not for a device of this model
            get settings.json device0/posd200/count_nak --source             | 2 | device0/posd200/count_nak is not set: not for a device of this model
            get id003.json device0/ccnet/response_time                       | 2 | not for a device of this model
            get id003.json device0/ccnet/reset_interval --source             | 0 | 100\tlist ( & id003.json:5
            get id003.json device0/response_time --source                    | 0 | 1000\tlist ( & id003.json:3
            get settings.json devices_count                                  | 2 | expected GROUP/KEY
            get settings.json device2/hw_interface/PortName                  | 0 | ttyS2\n
            get settings.json device0/ict/reset_timeout --source             | 0 | 0\tdefault
            filters settings.json --json                                     | 0 | {"name":"AttemptsFilter","params":{"attempts":2,"denom":5000}}, & {"sessionSum":15000}
            show settings.json                                               | 0 | Device 0: CCNet (1) "Bill validator", rs232 ttyS0\n & "Card terminal", tcp 192.168.10.5:10400\n & \n  RUB              500  note      1     20\n
            show settings.json --formatted                                   | 0 | "parity": "EVEN"
            complete settings set settings.json device1/hw_interface/parity= | 0 | device1/hw_interface/parity=even\n
            complete settings get settings.json device4/dev                  | 0 | device4/device/device_id\ndevice4/device/device_name\n
            complete settings add-device settings.json CC                    | 0 | CCNet\nCCTalk\n)"_s);
    }

    void whatTheServiceWouldUseIsSaid()
    {
        const auto [command, exitCode, parts] = cells<3>();
        QStringList words = command.split(QLatin1Char(' '));
        const bool completes = words.at(0) == "complete"_s;
        for (QString& word : words) {
            if (word.contains(".json"_s))
                word = located(word);
        }
        const QByteArray sampleBefore = contentOf(sample("settings.json"_s));
        const VelmoRun run = completes ? velmo(QStringList("complete"_s) << "--"_s << words.mid(1))
                                       : velmo(QStringList("settings"_s) + words);
        const QString answer = run.out + run.err;
        QVERIFY2(run.exitCode == exitCode.toInt(), qPrintable(answer));
        QString expected = parts;
        expected.replace("\\n"_s, "\n"_s).replace("\\t"_s, "\t"_s);
        for (const QString& part : expected.split(" & "_s))
            QVERIFY2(answer.contains(part), qPrintable(answer));
        QCOMPARE(answer.isEmpty(), expected.isEmpty());
        QCOMPARE(contentOf(sample("settings.json"_s)), sampleBefore);
    }

    // The edit, then the elements that the sample has more and those that it has no more.
    void editChangesNothingElse_data()
    {
        addRows(R"(
            set acceptor_common/maxSumm=20000              | acceptor_common/maxSumm=20000 | acceptor_common/maxSumm=15000
            set acceptor_common/maxSumm=15000              | |
            set device0/hw_interface/flowControl=XON/XOFF  | device0/hw_interface/flowcontrol=xonxoff | device0/hw_interface/flowcontrol=none
            set device0/hw_interface/flowControl=OFF       | |
            set device2/ict/reset_timeout=7                | device2/ict/reset_timeout=7 |
            set device3/device/device_id=200               | device3/device/device_id=200 device3/uniteller_service/terminal_id=10204417 | device3/device/device_id=201 device3/posd200/terminal_id=10204417 device3/posd200/timeout_ack=5000 device3/posd200/timeout_packet=45000 device3/posd200/count_nak=3 device3/posd200/packet_size=1024
            set device0/device/device_id=6                 | device0/id003/response_time=1000 device0/id003/polling_interval=200 device0/id003/rest_interval=100 device0/device/device_id=6 | device0/ccnet/response_time=1000 device0/ccnet/polling_interval=200 device0/ccnet/bill_table_interval=5000 device0/ccnet/reset_interval=4000 device0/ccnet/rest_interval=100 device0/device/device_id=1
            set device4/hw_interface/interface_type=tcp    | device4/hw_interface/interface_type=tcp device4/hw_interface/tcp_host=127.0.0.1 device4/hw_interface/tcp_port=10400 | device4/hw_interface/interface_type=rs232 device4/hw_interface/portname=ttyUSB0
            set device3/hw_interface/portname=ttyS7 device3/hw_interface/interface_type=rs232 | device3/hw_interface/interface_type=rs232 device3/hw_interface/portname=ttyS7 | device3/hw_interface/interface_type=tcp device3/hw_interface/tcp_host=192.168.10.5 device3/hw_interface/tcp_port=10400
            unset acceptor_common/reset_stats              | | acceptor_common/reset_stats=2
            set -f service/devices_count=4                 | service/devices_count=4 | service/devices_count=5
            add-device 2 tcp_host=h interface_type=tcp     | service/devices_count=6 device5/debug/port_logging=false device5/device/device_id=2 device5/device/device_name= device5/hw_interface/interface_type=tcp device5/hw_interface/tcp_host=h device5/hw_interface/tcp_port=10400 device5/hw_interface/baudrate=115200 device5/hw_interface/flowcontrol=none device5/hw_interface/parity=none device5/hw_interface/databits=8 device5/hw_interface/stopbits=1 | service/devices_count=5)"_s);
    }

    void editChangesNothingElse()
    {
        const auto [edit, added, removed] = cells<3>();
        const QByteArray sampleText = contentOf(m_list);
        QStringList words = edit.split(QLatin1Char(' '));
        words.insert(1, m_list);
        const VelmoRun run = velmo(QStringList("settings"_s) + words);
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        const Lines after(contentOf(m_list));
        const Lines before(sampleText);
        QCOMPARE(after.without(before).elements(), added);
        QCOMPARE(before.without(after).elements(), removed);
        QCOMPARE(before.without(before.without(after)), after.without(after.without(before)));
        QCOMPARE(contentOf(m_list) == sampleText, added.isEmpty() && removed.isEmpty());
    }

    // A device that gets the index of another: which index each then has.
    void movingDevicesChangesTheirIndexesOnly_data()
    {
        addRows(R"(
            0 1 2 3 4 | 0 | 4 | 4 0 1 2 3
            0 1 2 3 4 | 3 | 1 | 0 2 3 1 4
            0 1 2 3 4 | 2 | 2 | 0 1 2 3 4
            0 2 7     | 7 | 0 | 2 7 0)"_s);
    }

    void movingDevicesChangesTheirIndexesOnly()
    {
        const auto [devices, from, to, expected] = cells<4>();
        const QStringList before = devices.split(QLatin1Char(' '));
        const QStringList after = expected.split(QLatin1Char(' '));
        const auto listOf = [](const QStringList& indexes) {
            QByteArray text =
                R"([{"group":"service","key":"devices_count","value":8},{"group":"other","key":"device0"})";
            for (int i = 0; i < indexes.size(); ++i) {
                text += R"(,
 {"key":"port_logging" , "group":"device%1/debug", "value":%2}, {"group":"device%1","key":"x"},
 {"group": "device%1/hw_interface", "value":"tty%2", "key":"portname"})"_s
                            .arg(indexes.at(i), QString::number(i))
                            .toUtf8();
            }
            return text + "]";
        };
        SettingsEdit edit(arrayFile(listOf(before)));
        edit.moveDevice(from.toInt(), to.toInt());
        QCOMPARE(edit.file().text(), listOf(after));
        // What was wrong with a device is still known where it is now.
        QCOMPARE(edit.newFindings().size(), 0);
        edit.moveDevice(to.toInt(), from.toInt());
        QCOMPARE(edit.file().text(), listOf(before));
        QVERIFY_EXCEPTION_THROWN(edit.moveDevice(from.toInt(), 5), Fault);
        QVERIFY_EXCEPTION_THROWN(edit.moveDevice(9, to.toInt()), Fault);
        QCOMPARE(edit.file().text(), listOf(before));
    }

    // A value in the list as JSON, what it is set to, the value then.
    void wholeNumbersAreExact_data()
    {
        addRows(R"(
            acceptor_common/maxSumm    | 1                   | 9007199254740993    | 9007199254740993
            acceptor_common/maxSumm    | 9223372036854775807 | 9223372036854775806 | 9223372036854775806
            acceptor_common/maxSumm    | 9007199254740992    | 9007199254740993    | 9007199254740993
            acceptor_common/maxSumm    | "1"                 | 9223372036854775807 | "9223372036854775807"
            acceptor_common/maxSumm    |                     | 9223372036854775807 | 9223372036854775807
            service/reset_idle_timeout | 2                   | 9007199254740993    | 9007199254740993
            service/reset_idle_timeout |                     | 9007199254740993    | 9007199254740993)"_s);
    }

    void wholeNumbersAreExact()
    {
        const auto [path, old, value, expected] = cells<4>();
        const QString element = R"({"group":"%1","key":"%2","value":)"_s.arg(
            path.section(QLatin1Char('/'), 0, 0), path.section(QLatin1Char('/'), 1));
        const QString rest = R"({"group":"service","key":"devices_count","value":0}])"_s;
        writeFile(m_list, "["_s + (old.isEmpty() ? QString() : element + old + "},"_s) + rest);
        const VelmoRun run = velmo({"settings"_s, "set"_s, m_list, path + "="_s + value});
        QVERIFY2(run.exitCode == 0, qPrintable(run.err));
        const QString list = QString::fromUtf8(contentOf(m_list));
        QVERIFY2(list.contains(element + expected + "}"_s), qPrintable(list));
        QCOMPARE(velmo({"settings"_s, "get"_s, m_list, path}).out, value + "\n"_s);
        const QString json = velmo({"settings"_s, "show"_s, m_list, "--json"_s}).out;
        QVERIFY2(json.contains(value), qPrintable(json));
        const QString map = velmo({"settings"_s, "show"_s, m_list, "--formatted"_s}).out;
        QVERIFY2(path.startsWith("service"_s) || map.contains("\"maxSumm\": "_s + value),
                 qPrintable(map));
    }

    void editsAtOnceLoseNothing()
    {
        const QStringList edits{"acceptor_common/maxSumm=1"_s, "acceptor_common/acceptAll=0"_s,
                                "device0/ccnet/response_time=7"_s,
                                "acceptor_common/reset_stats=1"_s,
                                "device0/device/device_name=x"_s};
        for (int round = 0; round < 5; ++round) {
            init();
            std::array<QProcess, 5> runs;
            for (int i = 0; i < edits.size(); ++i)
                runs[size_t(i)].start(QStringLiteral(VELMO),
                                      {"settings"_s, "set"_s, m_list, edits.at(i)});
            for (QProcess& run : runs)
                QVERIFY(run.waitForFinished() && run.exitCode() == 0);
            const QString list = QString::fromUtf8(contentOf(m_list));
            QCOMPARE(
                Lines(list.toUtf8()).without(Lines(contentOf(sample("settings.json"_s)))).size(),
                edits.size());
        }
    }

    void replacedFileKeepsItsMode()
    {
        const QByteArray name = QFile::encodeName(m_list);
        for (const mode_t mode : {0640U, 02640U, 04755U, 0400U, 0444U, 070U}) {
            if (geteuid() != 0 && (mode & S_IWUSR) == 0)
                continue; // which others than root may not change
            init();
            QCOMPARE(chmod(name.constData(), mode), 0);
            QCOMPARE(velmo({"settings"_s, "set"_s, m_list, "acceptor_common/maxSumm=1"_s}).exitCode,
                     0);
            struct stat found = {};
            QCOMPARE(stat(name.constData(), &found), 0);
            QCOMPARE(found.st_mode & 07777, mode);
        }
    }

    void whatIsNoPlainFileIsNotReplaced()
    {
        const auto set = [](const QStringList& words) {
            return velmo(QStringList{"settings"_s, "set"_s} + words
                         + QStringList("acceptor_common/maxSumm=1"_s));
        };
        const QString pipe = m_folder.filePath("pipe"_s);
        QCOMPARE(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        QVERIFY(set({pipe}).err.contains("is no regular file"_s));
        const VelmoRun piped = set({m_list, "-o"_s, "/dev/stdout"_s});
        QVERIFY(piped.out.startsWith("["_s) && piped.out.endsWith("]\n"_s));
        QCOMPARE(piped.err, "changed acceptor_common/maxSumm: 15000 -> 1\n"_s);

        const QString loop = m_folder.filePath("loop"_s);
        QVERIFY(QFile::link(loop, loop));
        const VelmoRun looped = set({m_list, "-o"_s, loop});
        QCOMPARE(looped.err, "velmo: %1: Too many levels of symbolic links\n"_s.arg(loop));
        QCOMPARE(looped.exitCode, 2);
        QVERIFY(QFileInfo(loop).isSymLink());

        const QByteArray before = contentOf(m_list);
        const QString twin = m_folder.filePath("twin.json"_s);
        QCOMPARE(::link(QFile::encodeName(m_list).constData(), QFile::encodeName(twin).constData()),
                 0);
        QVERIFY(set({m_list}).err.contains("hard links"_s));
        QCOMPARE(contentOf(m_list), before);
        QFile::remove(twin);
        QCOMPARE(set({m_list, "-o"_s, m_list}).exitCode, 0);
        QCOMPARE(velmo({"settings"_s, "get"_s, m_list, "acceptor_common/maxSumm"_s}).out, "1\n"_s);
    }

    // An edit, what stands before the device count, what is told, what stands there then.
    void doubledValuesAreToldAsTheyCounted_data()
    {
        addRows(R"(
            set acceptor_common/maxSumm=2   | {"group":"acceptor_common","key":"maxSumm","value":1,"value":2}, | changed acceptor_common/maxSumm: 2 in each "value" | {"group":"acceptor_common","key":"maxSumm","value":2,"value":2},
            set acceptor_common/maxSumm=1   | {"group":"acceptor_common","key":"maxSumm","value":1,"value":2}, | changed acceptor_common/maxSumm: 2 -> 1 | {"group":"acceptor_common","key":"maxSumm","value":1,"value":1},
            set acceptor_common/maxSumm=2   | {"group":"acceptor_common","key":"maxSumm","value":2,"value":2}, | nothing to change | {"group":"acceptor_common","key":"maxSumm","value":2,"value":2},
            unset acceptor_common/maxSumm   | {"group":"acceptor_common","key":"maxSumm","value":1},{"group":"acceptor_common","key":"maxSumm","value":2}, | removed acceptor_common/maxSumm: 2 (2 elements) |
            unset acceptor_common/maxSumm   | {"group":"acceptor_common","key":"maxSumm","value":1}, | removed acceptor_common/maxSumm: 1 |)"_s);
    }

    void doubledValuesAreToldAsTheyCounted()
    {
        const auto [edit, before, told, after] = cells<4>();
        const QString count = R"({"group":"service","key":"devices_count","value":0}])"_s;
        writeFile(m_list, "["_s + before + count);
        QStringList words = edit.split(QLatin1Char(' '));
        words.insert(1, m_list);
        QCOMPARE(velmo(QStringList("settings"_s) + words).out, told + "\n"_s);
        QCOMPARE(QString::fromUtf8(contentOf(m_list)), "["_s + after + count);
    }

    // What is done with a list whose texts are commands to a terminal, a part of what is told.
    void textsAreNoCommands_data()
    {
        addRows(R"(
            check LIST                                      | error: device0/\u001b[2Ja\u000ab\u202e
            show LIST                                       | \u001b[2Ja\u000ab\u202e
            show LIST                                       | \u001b[2Ja b\u202e
            routes LIST                                     | R\u001b[2J
            get LIST device0/device/device_name             | \u001b[2Ja\nb\u202e\n
            diff LIST OTHER                                 | \u001b[2Ja b\u202e
            set LIST -f device0/device/device_name=x        | device_name: \u001b[2Ja b\u202e -> x
            unset LIST device0/device/device_name           | device_name: \u001b[2Ja b\u202e\n
            remove-device LIST 0                            | removed device0/\u001b[2Ja\u000ab\u202e: 1\n)"_s);
    }

    void textsAreNoCommands()
    {
        const auto [command, part] = cells<2>();
        QByteArray list = contentOf(m_list);
        const QByteArray commands = "\\u001b[2Ja\\nb\\u202e";
        list.replace("Bill validator", commands);
        list.replace("\"ttyS0\"", "\"" + commands + "\"");
        list.replace("RUB", "R\\\\u001b[2J");
        list.replace("[\n",
                     "[\n{\"group\":\"device0\",\"key\":\"" + commands + "\",\"value\":1},\n");
        writeFile(m_list, QString::fromUtf8(list));
        QStringList words = command.split(QLatin1Char(' '));
        words.replaceInStrings("LIST"_s, m_list);
        words.replaceInStrings("OTHER"_s, sample("settings.json"_s));
        const QString out = velmo(QStringList("settings"_s) + words).out;
        QVERIFY2(out.contains(QString(part).replace("\\n"_s, "\n"_s)), qPrintable(out));
        QVERIFY(!out.contains(QChar(0x1b)) && !out.contains(QChar(0x202e)));
    }

    void carriedOverValuesAreSaidToBe()
    {
        const VelmoRun run = velmo({"settings"_s, "set"_s, m_list, "device0/device/device_id=6"_s,
                                    "device0/id003/rest_interval=5"_s});
        QVERIFY2(run.out.contains("\ncarried over device0/id003/response_time: 1000 (from "
                                  "device0/ccnet/response_time)\n"_s),
                 qPrintable(run.out));
        QVERIFY(run.out.contains("\nadded device0/id003/rest_interval: 5\n"_s));
    }

    // A word, those that are known, the one that is told.
    void nearestWordIsTheFirstThatIsAlike_data()
    {
        addRows(R"(
            bat   | cat,rat | cat
            bat   | rat,cat | rat
            bat   | bats,bat,bar | bat
            abcd  | abxx    | abxx
            abcd  | axxx    |
            abcd  |         |)"_s);
    }

    void nearestWordIsTheFirstThatIsAlike()
    {
        const auto [word, known, nearest] = cells<3>();
        QCOMPARE(nearestKnown(word, known.split(QLatin1Char(','))),
                 nearest.isEmpty() ? QString() : " (nearest known: %1)"_s.arg(nearest));
    }

    void missingDevicesAreCounted()
    {
        for (const int missing : {16, 17, 20}) {
            const QByteArray list = R"([{"group":"service","key":"devices_count","value":)"
                + QByteArray::number(missing) + "}]";
            const VelmoRun run = velmo({"settings"_s, "check"_s, "-"_s}, list);
            QCOMPARE(run.out.count("is missing, but below"_s), 16);
            QCOMPARE(run.out.contains(
                         "device16: and more up to device%1 are missing"_s.arg(missing - 1)),
                     missing > 16);
        }
    }

    void removedDeviceLeavesNoGap()
    {
        const VelmoRun run = velmo({"settings"_s, "remove-device"_s, m_list, "1"_s});
        QVERIFY(run.out.startsWith("removed device1/debug/port_logging: false\n"_s));
        QVERIFY(run.out.endsWith("changed service/devices_count: 5 -> 4\n"_s));
        QCOMPARE(run.errLines().at(0), "velmo: device2 becomes device1"_s);
        QCOMPARE(velmo({"settings"_s, "check"_s, m_list}).exitCode, 0);
        QCOMPARE(velmo({"settings"_s, "get"_s, m_list, "device3/device/device_name"_s}).out,
                 "Coin hopper\n"_s);
        // Every other byte is that of the sample.
        const QByteArray text = contentOf(sample("settings.json"_s));
        const int begin = int(text.indexOf("    {\"group\": \"device1"));
        const int end = int(text.indexOf("\n    {\"group\": \"device2"));
        QByteArray expected = text.left(begin) + text.mid(end + 1);
        expected.replace("devices_count\", \"value\": 5", "devices_count\", \"value\": 4");
        for (int device = 2; device < 5; ++device) {
            expected.replace("\"device" + QByteArray::number(device),
                             "\"device" + QByteArray::number(device - 1));
        }
        QCOMPARE(contentOf(m_list), expected);
    }

    // Also where a text names another device, or a host that is called like one.
    void faultsOfRenumberedDevicesAreKnown()
    {
        QByteArray list = contentOf(located("same-host.json"_s));
        list.replace("127.0.0.1", "device3").replace("localhost", "device3");
        list.replace("device1/", "device2/").replace("device0/", "device1/");
        list.replace("devices_count\", \"value\": 2", "devices_count\", \"value\": 3");
        list.replace("[\n", R"([{"group":"device0/device","key":"device_id","value":3},)");
        const VelmoRun before = velmo({"settings"_s, "check"_s, "-"_s}, list);
        QVERIFY2(before.out.contains("\"device3:10400\" is where device1 is too"_s),
                 qPrintable(before.out));
        const VelmoRun run = velmo({"settings"_s, "remove-device"_s, "-"_s, "0"_s, "-q"_s}, list);
        QCOMPARE(run.err, QString());
        QCOMPARE(run.exitCode, 0);
        const VelmoRun after = velmo({"settings"_s, "check"_s, "-"_s}, run.out.toUtf8());
        QVERIFY2(after.out.contains("\"device3:10400\" is where device0 is too"_s),
                 qPrintable(after.out));
    }

    void filesAreWrittenOnlyWhenTold()
    {
        const QString link = m_folder.filePath("link.json"_s);
        QFile::remove(link);
        QVERIFY(QFile::link(m_list, link));
        const auto mode = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup;
        QFile list(m_list);
        QVERIFY(list.open(QIODevice::ReadWrite) && list.setPermissions(mode));
        const QDateTime longAgo = QDateTime::fromSecsSinceEpoch(1000);
        QVERIFY(list.setFileTime(longAgo, QFileDevice::FileModificationTime));
        list.close();
        const QString copy = m_folder.filePath("copy.json"_s);
        const QString sum = "acceptor_common/maxSumm=1"_s;
        const auto set = [](const QStringList& words) {
            return velmo(QStringList{"settings"_s, "set"_s} + words);
        };
        QCOMPARE(set({link, "acceptor_common/maxSumm=15000"_s}).out, "nothing to change\n"_s);
        QVERIFY(set({link, sum, "--dry-run"_s}).out.startsWith("--- "_s));
        QCOMPARE(set({link, sum, "-o"_s, copy, "-q"_s}).out, QString());
        QCOMPARE(set({link, sum, "-o"_s, m_folder.filePath("no/list.json"_s)}).exitCode, 2);
        QCOMPARE(QFileInfo(m_list).lastModified(), longAgo);
        QVERIFY(contentOf(copy).contains("\"maxSumm\", \"value\": 1}"));

        QCOMPARE(set({link, sum}).out, "changed acceptor_common/maxSumm: 15000 -> 1\n"_s);
        QCOMPARE(contentOf(m_list), contentOf(copy));
        QVERIFY(QFileInfo(link).isSymLink());
        QCOMPARE(QFileInfo(m_list).permissions() & ~(QFile::ReadUser | QFile::WriteUser),
                 QFile::Permissions(mode));
    }

    void setKeepsWhatTheModelIgnores()
    {
        const QByteArray list = R"([
    {"group":"x","key":"y","value":[1]},
    7,
    {"group":"service","key":"devices_count","value":1},
    {"group":"device0/ict","key":"reset_timeout","value":5}
]
)";
        const VelmoRun run =
            velmo({"settings"_s, "set"_s, "-"_s, "acceptor_common/acceptAll=0"_s, "-f"_s}, list);
        const QByteArray added = R"({"group":"acceptor_common","key":"acceptAll","value":0},)";
        const QByteArray next = R"({"group":"service")";
        QCOMPARE(run.out.toUtf8(), QByteArray(list).replace(next, added + "\n    " + next));
        // What a device has without a sub-group stays before its other settings.
        const VelmoRun behind = velmo(
            {"settings"_s, "set"_s, "-"_s, "device0/debug/port_logging=0"_s, "-f"_s},
            R"([{"group":"device0","key":"x"},{"group":"device0/device","key":"device_id","value":1}])");
        QVERIFY2(behind.out.indexOf("port_logging"_s) > behind.out.indexOf("\"x\""_s),
                 qPrintable(behind.out));
    }

    // An element behind a sound list, the level and the text of what is found.
    void checkFindsWhatTheModelWouldNotTake_data()
    {
        addRows(R"(
            7                                                                        | warning: is skipped: no "group"
            {"key":"a","value":1}                                                    | error: a: is skipped: no "group"
            {"group":"other","key":"a","value":1}                                    | warning: other/a: is ignored
            {"group":"device0/hw_interface","key":"BaudRate","value":1}              | error: device0/hw_interface/BaudRate: is ignored (nearest known: device0/hw_interface/baudrate)
            {"group":"device0","key":"x","value":1}                                  | error: device0/x: is ignored
            {"group":"device0/ict","key":"reset_timeout","value":1}                  |
            {"group":"service","key":"reset_after_empty_sessions","value":1}         |
            {"group":"device2/ict","key":"reset_timeout","value":1}                  | error: device2: is not below the device count
            {"group":"device/debug","key":"port_logging","value":0}                  | warning: device/debug/port_logging: is read as device0/debug/port_logging
            {"group":"acceptor_common","key":"port_logging","value":true}            | error: acceptor_common/port_logging: "true" is neither 0 nor 1: reads as "0"
            {"group":"acceptor_common","key":"reset_stats","value":null}             | error: acceptor_common/reset_stats: has no text or number: reads as "0"
            {"group":"acceptor_common","key":"attempts_filter_settings","value":"x"} | error: acceptor_common/attempts_filter_settings: "x" is no JSON array of limits
            {"group":"acceptor_common","key":"attempts_filter_settings","value":"[{\u0022denom\u0022:1}]"} | reads as "[{"attempts":"1","denom":"1"}]"
            {"group":"acceptor_common","key":"attempts_filter_settings","value":"[{\u0022denom\u0022:1,\u0022attempts\u0022:127}]"} |
            {"group":"acceptor_common","key":"attempts_filter_settings","value":"[{\u0022denom\u0022:5,\u0022attempts\u0022:128}]"} | error: acceptor_common/attempts_filter_settings: the filter cannot hold 128 attempts ("denom" 5): it takes 127
            {"group":"acceptor_common","key":"attempts_filter_settings","value":"[{\u0022denom\u0022:5,\u0022attempts\u0022:128},{}]"} | the filter cannot hold 128 attempts
            {"group":"acceptor_common","key":"maxSumm","value":5000000000}           | warning: acceptor_common/maxSumm: the filter cannot hold the sum 5000000000: it takes 2147483647
            {"group":"acceptor_common","key":"maxSumm","value":5,"value":3}          | error: acceptor_common/maxSumm: has "value" more than once
            {"group":"acceptor_common","key":"maxSumm","\u0076alue":5,"value":5}     | error: acceptor_common/maxSumm: has "value" more than once
            {"group":"dispenser","key":"route_map","value":"[{}]"}                   | "[{}]" is no JSON array of whole routes; 0 can be read
            {"group":"device0/device","key":"device_name","value":{}}                | error: device0/device/device_name: has no text or number: reads as ""
            {"group":"device0/hw_interface","key":"flowcontrol","value":"rts"}       | "rts" is none of hardware, xonxoff, none: reads as "none"
            {"group":"device1/hw_interface","key":"stopbits","value":6}              | "6" is none of 1, 2, 3: reads as "2"
            {"group":"device0/posd200","key":"packet_size","value":0}                | warning: device0/posd200/packet_size: is read as device0/ccnet/reset_interval
            {"group":"device0/hw_interface","key":"stopBits","value":1}              | warning: device0/hw_interface/stopbits: is set again by a later element, to the same)"_s);
    }

    void checkFindsWhatTheModelWouldNotTake()
    {
        const auto [element, finding] = cells<2>();
        QByteArray list = contentOf(located("sound.json"_s)).trimmed();
        list.chop(2);
        list += ",\n" + element.toUtf8() + "]";
        const VelmoRun run = velmo({"settings"_s, "check"_s, "-"_s}, list);
        QCOMPARE(run.exitCode, finding.isEmpty() ? 0 : 1);
        QVERIFY2(run.out.contains(finding), qPrintable(run.out));
        QCOMPARE(velmo({"settings"_s, "check"_s, "-"_s}, "{}").exitCode, 2);
    }

    void differencesAreThoseOfTheService()
    {
        const auto diff = [this](const QStringList& edits) {
            velmo(QStringList{"settings"_s, "set"_s, m_list, "-q"_s} + edits);
            return velmo({"settings"_s, "diff"_s, sample("settings.json"_s), m_list});
        };
        QCOMPARE(diff({}).exitCode, 0);
        const VelmoRun changed = diff(
            {"device0/hw_interface/flowControl=OFF"_s, "device0/hw_interface/baudrate=19200"_s});
        QCOMPARE(changed.out, "device0/hw_interface/baudrate: \"9600\" -> \"19200\"\n"_s);
        QCOMPARE(changed.exitCode, 1);
        // What is not said twice is no difference, unless the default is in doubt.
        velmo({"settings"_s, "unset"_s, m_list, "device0/hw_interface/parity"_s, "-f"_s,
               "device0/hw_interface/baudrate"_s});
        QCOMPARE(velmo({"settings"_s, "diff"_s, sample("settings.json"_s), m_list, "--json"_s}).out,
                 "[\n"_s
                 R"(    {"a":"9600","b":null,"path":"device0/hw_interface/baudrate"})"_s
                 "\n]\n"_s);
    }

    void completeListHasNoErrors()
    {
        Random random(1);
        for (int i = 0; i < 100; ++i) {
            const QByteArray text = random.textOf(random.completeList());
            const ArrayFile file = arrayFile(text);
            for (const SettingsFinding& finding : checkSettings(file))
                QVERIFY2(finding.level != SettingsFinding::Error, qPrintable(finding.line(file)));
        }
    }

    // Also in lists that say things twice, under other names and in disorder.
    void editChangesInTheModelWhatItSays()
    {
        Random random(2);
        for (int i = 0; i < 300; ++i) {
            const bool isTidy = random.below(2) == 0;
            QVariantList list = random.completeList();
            for (int doubled = isTidy ? 0 : 8; doubled > 0; --doubled) {
                QVariantMap element = random.of(list).toMap();
                const QString key = element["key"_s].toString();
                element["key"_s] = key == "stopbits"_s ? "stopBit"_s : key.toUpper();
                element["group"_s] = element["group"_s].toString().replace("id003"_s, "ccnet"_s);
                list.insert(random.below(int(list.size())),
                            doubled % 2 ? random.of(list) : element);
            }
            const ArrayFile file = arrayFile(random.textOf(list));
            SettingsEdit edit(file);
            const SettingsList::Used used = random.of(SettingsList(file).used());
            const QString path = used.setting.path();
            if (!used.setting.isRead())
                continue;
            const int devices = SettingsList(file).devices().lastKey() + 1;
            const int action = isTidy ? random.below(4) : 3;
            if (action == 0)
                edit.addDevice(random.of(used.setting.kind() == SettingDescription::Choice
                                             ? QStringList{"1"_s, "5"_s, "201"_s}
                                             : QStringList{"200"_s, "2"_s}),
                               {});
            else if (action == 1)
                edit.removeDevice(devices - 1);
            else
                edit.set({{path, random.valueFor(used.setting)}});
            const QMap<QString, QString> before = modelValues(file.values());
            const QMap<QString, QString> after = modelValues(edit.file().values());
            QStringList said;
            for (const SettingsEdit::Change& change : edit.changes()) {
                if (!change.path.endsWith("/debug/port_logging"_s))
                    said += change.path + "="_s + change.after.toString();
            }
            QStringList done;
            QStringList keys = before.keys() + after.keys();
            keys.removeDuplicates();
            for (const QString& key : std::as_const(keys)) {
                if (before.value(key) != after.value(key)
                    || before.contains(key) != after.contains(key))
                    done += key + "="_s + after.value(key);
            }
            said.sort();
            done.sort();
            QVERIFY2(said == done,
                     qPrintable(path + ":\n"_s + said.join("\n"_s) + "\n\n"_s + done.join("\n"_s)
                                + QString::fromUtf8(edit.file().text())));
            const QList<SettingsEdit::Change> changes = edit.changes();
            if (changes.isEmpty())
                QCOMPARE(edit.file().text(), file.text());
            if (changes.size() == 1 && changes.at(0).before.isValid() && action > 1)
                QVERIFY(differOnlyIn(file.text(), edit.file().text(), changes.at(0)));
        }
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
        velmo({"settings"_s, "set"_s, m_list, "-f"_s,
               R"(acceptor_common/attempts_filter_settings=[{"denom":1,"attempts":200}])"_s});
        const VelmoRun tooMany = velmo(arguments, session);
        QVERIFY(tooMany.err.startsWith("velmo: "_s + m_list + ":5: error: "_s));
        // What the service would use instead is said where its filters are shown.
        velmo({"settings"_s, "set"_s, m_list, "acceptor_common/maxSumm=5000000000"_s});
        const VelmoRun shown = velmo({"settings"_s, "filters"_s, m_list, "--json"_s});
        QCOMPARE(shown.exitCode, 0);
        QCOMPARE(QJsonDocument::fromJson(shown.out.toUtf8())[1]["params"_s]["attempts"_s].toInt(),
                 127);
        QVERIFY2(shown.err.contains("200 attempts (\"denom\" 1): it takes 127"_s)
                     && shown.err.contains("the sum 5000000000: it takes 2147483647"_s),
                 qPrintable(shown.err));
        // One that is not above 0 refuses the note whatever happened before.
        velmo({"settings"_s, "set"_s, m_list, "-f"_s,
               R"(acceptor_common/attempts_filter_settings=[{"denom":1,"attempts":-3}])"_s});
        QVERIFY(velmo({"settings"_s, "filters"_s, m_list})
                    .out.contains("No attempts at all are allowed for 1.\n"_s));
    }

private:
    QTemporaryDir m_folder;
    QString m_list;
};

QTEST_GUILESS_MAIN(tst_SettingsTool)
#include "tst_settingstool.moc"
