// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorportsettingsconsts.h"
#include "acceptorsettings.h"
#include "testtable.h"

#include <climits>
#include <random>
#include <thread>

namespace {

QVariantMap setting(const QString& group, const QString& key, const QVariant& value)
{
    return {{"group"_s, group}, {"key"_s, key}, {"value"_s, value}};
}

AcceptorInfo info(int type, const QString& description = {}, const QString& port = {})
{
    AcceptorInfo i;
    i.type = static_cast<quint16>(type);
    i.description = description;
    i.portName = port;
    return i;
}

// How many settings of the service a list begins with.
int serviceSettings()
{
    const QList<SettingDescription> all = AcceptorSettings::settingDescriptions();
    return int(std::count_if(all.begin(), all.end(), [](const SettingDescription& setting) {
        return !setting.group().contains(QLatin1Char('#'));
    }));
}

// What the list form has under a group and a key.
QString carried(const QString& group, const QString& key)
{
    QStringList values;
    for (const QVariant& element : AcceptorSettings().toList()) {
        const QVariantMap map = element.toMap();
        if (map.value("group"_s) == group && map.value("key"_s) == key)
            values += map.value("value"_s).toString();
    }
    return values.join("|"_s);
}

// Index, type and name of each device.
QString devices()
{
    QStringList texts;
    for (auto d = AcceptorSettings::devices.begin(); d != AcceptorSettings::devices.end(); ++d)
        texts += "%1:%2%3"_s.arg(d.key()).arg(d.value()->type()).arg(d.value()->name());
    return texts.join(QLatin1Char(' '));
}

// A device that is counted while it lives.
class CountedDevice : public AcceptorDeviceSettings
{
public:
    explicit CountedDevice(int type)
    {
        setType(type);
        ++s_living;
    }
    ~CountedDevice() override { --s_living; }
    inline static int s_living = 0;
};

class Random
{
public:
    explicit Random(unsigned seed)
        : m_engine(seed)
    {
    }
    int upTo(int max) { return std::uniform_int_distribution<int>(0, max)(m_engine); }
    int number() { return static_cast<int>(m_engine()); }
    template <typename T>
    T oneOf(std::initializer_list<T> values)
    {
        return values.begin()[upTo(static_cast<int>(values.size()) - 1)];
    }
    QString text() { return oneOf({QString(), "tty \"S0\"\n"_s, "прибор"_s, "7"_s}); }

private:
    std::mt19937 m_engine;
};

bool isSame(const QVariant& a, const QVariant& b)
{
    return a.userType() == b.userType() && a == b;
}

const auto models = {-1, 0, 1, 3, 5, 6, 7, 51, 150, 200, 201, 65535};

void randomise(AcceptorDeviceSettings& d, Random& random)
{
    d.setType(random.oneOf(models));
    d.setName(random.text());
    d.setCardReaderQuorId(random.text());
    d.setInterfaceType(random.oneOf({"rs232"_s, "tcp"_s, "TCP"_s}));
    d.setPortName(random.text());
    d.setTcpHost(random.text());
    d.setTcpPort(random.text());
    d.setResponse_time(random.number());
    d.setPolling_interval(random.number());
    d.setBill_table_interval(random.number());
    d.setReset_interval(random.number());
    d.setRest_interval(random.number());
    d.setBaudrate(random.oneOf({QSerialPort::Baud1200, QSerialPort::Baud115200}));
    d.setFlowControl(static_cast<QSerialPort::FlowControl>(random.upTo(2)));
    d.setParityType(static_cast<QSerialPort::Parity>(random.oneOf({0, 2, 3, 4, 5})));
    d.setDataBitsType(static_cast<QSerialPort::DataBits>(5 + random.upTo(3)));
    d.setStopBits(static_cast<QSerialPort::StopBits>(1 + random.upTo(2)));
}

// Devices in no order and a configuration around them.
void randomiseSettings(Random& random)
{
    AcceptorSettings settings;
    settings.setList({});
    for (int i = random.upTo(4); i > 0; --i)
        randomise(*(AcceptorSettings::devices[i * 3 - 4] = new AcceptorDeviceSettings), random);
    AcceptorSettings::setDeviceCount(random.upTo(12));
    AcceptorSettings::setAcceptAll(random.upTo(1) == 0);
    AcceptorSettings::setPortLogs(random.upTo(1) == 0);
    AcceptorSettings::setMaxSumm(qint64(random.number()) * INT_MAX);
    AcceptorSettings::setResetIdleTimeout(qint64(random.number()) * INT_MAX);
    AcceptorSettings::setCleanStatistics(
        static_cast<AcceptorSettings::ECleanStatistics>(random.upTo(4)));
    AcceptorSettings::setRouteMap(random.text());
    AcceptorSettings::setAttemptsFilter({});
    for (int i = random.upTo(3); i > 0; --i)
        AcceptorSettings::addAttemptsFilter(random.number(), random.number());
}

} // namespace

class tst_Settings : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    // The fresh model, before any test changes it.
    void initTestCase()
    {
        const AcceptorSettings settings;
        const QVariantList list = settings.toList();
        for (int i = 0; i < list.size(); ++i) {
            const SettingDescription d = AcceptorSettings::settingDescriptions().at(i);
            QVERIFY2(isSame(d.unsetValue(), list.at(i).toMap()["value"_s]), qPrintable(d.path()));
        }
        QVERIFY(AcceptorSettings::isEmpty() && AcceptorSettings::acceptAll()
                && !AcceptorSettings::portLogs());
        QCOMPARE(settings.toList().size(), serviceSettings());
        QCOMPARE(carried("acceptor_common"_s, "attempts_filter_settings"_s), "[]"_s);
        QCOMPARE(carried("service"_s, "devices_count"_s), "0"_s);
        QCOMPARE(AcceptorSettings::maxSumm(), qint64(0));
        const QVariantMap map = settings.toFormattedMap();
        QCOMPARE(map.keys(), QStringList({"acceptor_common"_s, "dispenser"_s, "service"_s}));
        const QVariantMap service = map.value("service"_s).toMap();
        QCOMPARE(service["devices_count"_s], QVariant(-1));
        QCOMPARE(service["reset_idle_timeout"_s], QVariant(qlonglong(3600000)));
    }

    void init()
    {
        AcceptorSettings().setList({});
        AcceptorSettings::setAttemptsFilter({});
        AcceptorSettings::setAcceptAll(true);
    }

    void cleanupTestCase() { AcceptorSettings().setList({}); }

    // Baud rate, flow control, parity, data bits and stop bits: texts, then what they are read as.
    void textsOfTheRecordParse_data()
    {
        addRows(R"(
            921600 | xonxoff  | even  | 5 | 2   | 921600 2 2 5 2
            300    | hardware | odd   | 7 | 1.5 | 300 1 3 7 1
            abc    | XONXOFF  | EVEN  | 9 | 3   | 9600 0 0 8 1
                   |          | space |   |     | 9600 0 0 8 1)"_s);
    }

    void textsOfTheRecordParse()
    {
        const auto [baudrate, flowControl, parity, dataBits, stopBits, read] = cells<6>();
        AcceptorDeviceSettings d;
        d.setBaudrateStr(baudrate);
        d.setFlowControlStr(flowControl);
        d.setParityTypeStr(parity);
        d.setDataBitsTypeStr(dataBits);
        d.setStopBitsStr(stopBits);
        QCOMPARE("%1 %2 %3 %4 %5"_s.arg(int(d.baudrate()))
                     .arg(d.flowControl())
                     .arg(d.parityType())
                     .arg(d.dataBits())
                     .arg(d.stopBits()),
                 read);
    }

    void nameIsCutFromTheDescription_data()
    {
        addRows(R"(
            Model A S/N 41A001 Firmware 1.21 | Model A_
            Model B firmware 4.1 s/n 99      | Model B_
            s/n 5 firmware 2                 | s/n 5 firmware 2
            Validator s/n 123                | Validator_
            Validator FIRMWARE 2             | Validator_
            firmware                         | firmware
            Validator                        | Validator)"_s);
    }

    void nameIsCutFromTheDescription()
    {
        const auto [description, name] = cells<2>();
        QCOMPARE(AcceptorDeviceSettings(info(1, description)).name(),
                 QString(name).replace(QLatin1Char('_'), QLatin1Char(' ')));
    }

    void recordCarriesThePortOnly()
    {
        using namespace acceptorportsettingsconsts;
        AcceptorDeviceSettings d;
        QCOMPARE(d.toAcceptorInfo().type, quint16(65535));
        d.setMaxNakCount(3);
        d.setReset_interval(3000);
        QCOMPARE(d.bill_table_interval() + d.maxPackageSize(), 3003);
        d.setInterfaceType("tcp"_s);
        d.setTcpHost("host"_s);
        d.setPortName("ttyS1"_s);
        d.setBaudrate(QSerialPort::Baud19200);
        d.setParityType(QSerialPort::MarkParity);
        d.setStopBits(QSerialPort::OneAndHalfStop);
        int unknown = -1; // Qt 6 has no enumerator for it
        d.setDataBitsType(static_cast<QSerialPort::DataBits>(unknown));
        d.setFlowControl(static_cast<QSerialPort::FlowControl>(3));
        AcceptorInfo record = d.toAcceptorInfo();
        QCOMPARE(record.portSettings,
                 QVariantMap({{MAP_BAUDRATE, "19200"_s},
                              {MAP_PORTNAME, "ttyS1"_s},
                              {MAP_FLOWCONTROL, ""_s},
                              {MAP_PARITY, "none"_s},
                              {MAP_DATABITS, "8"_s},
                              {MAP_STOPBITS, "1"_s}}));
        record.portName.clear();
        record.portSettings.remove(MAP_BAUDRATE);
        d.setAcceptorInfo(record);
        QCOMPARE(d.interfaceType() + d.portName() + d.tcpHost(), "rs232host"_s);
        QCOMPARE(d.type(), 65535);
        QCOMPARE(d.baudrate(), QSerialPort::Baud19200);
        QCOMPARE(d.maxNakCount(), 3);
    }

    void recordReadsBack()
    {
        Random random(3);
        for (int round = 0; round < 50; ++round) {
            AcceptorDeviceSettings written;
            randomise(written, random);
            const AcceptorInfo record = written.toAcceptorInfo();
            const AcceptorInfo read = AcceptorDeviceSettings(record).toAcceptorInfo();
            // Space and mark parity and one and a half stop bits are lost in writing.
            QCOMPARE(read.portSettings, record.portSettings);
            QCOMPARE(read.portName, written.portName());
            QCOMPARE(read.type, record.type);
        }
    }

    void singleValuesAreApplied_data()
    {
        // Group path, key, value, result, the value carried; further what else it is read from.
        addRows(R"(
            acceptor_common      | acceptAll          | 1           | true  | 1
            acceptor_common      | acceptAll          | true        | true  | 0
            acceptor_common      | maxSumm            | 5000000000  | true  | 5000000000
            acceptor_common      | maxSumm            | much        | true  | 0
            acceptor_common      | reset_stats        | 4           | true  | 4
            acceptor_common      | reset_stats        | -1          | true  | 0
            acceptor_common      | port_logging       | 1           | true  | 1
            acceptor_common/x    | reset_stats        | 2           | true  | 2
            acceptor_common      | attempts_filter_settings | [{"denom":"9"},{},7,{"attempts":3}] | true | [{"attempts":"1","denom":"9"},{"attempts":"3","denom":"1"}]
            acceptor_common      | attempts_filter_settings | {} | true | []
            service              | reset_idle_timeout | -1          | true  | -1
            dispenser            | route_map          | x           | true  | x
            other                | acceptAll          | 0           | false |
            device0/hw_interface | interface_type     | tcp         | true  | tcp
            device0/hw_interface | portname           | COM1        | true  | COM1
            device0/hw_interface | baudrate           | 230400      | true  | 230400
            device0/hw_interface | BaudRate           | 300         | true  | | baudrate | 9600
            device0/hw_interface | PortName           | COM1        | true  | | portname | COM1
            device0/hw_interface | FlowControl        | dtr/str     | true  | | flowcontrol | hardware
            device0/hw_interface | flowcontrol        | xon/xoff    | true  | xonxoff
            device0/hw_interface | flowcontrol        | off         | true  | none
            device0/hw_interface | parity             | Space       | true  | space
            device0/hw_interface | parity             | mark        | true  | none
            device0/hw_interface | Parity             | odd         | true  | | parity | none
            device0/hw_interface | DataBits           | 7           | true  | | databits | 7
            device0/hw_interface | stopbits           | 6           | true  | 2
            device0/hw_interface | StopBit            | 3           | true  | | stopbits | 3
            device0/device       | device_name        | A           | true  | A
            device0/device       | device_id          | 200         | true  | 200
            device0/device/x     | device_id          | 5           | true  | 5
            device0/debug        | port_logging       | 1           | false | false
            device-7/device      | device_id          | 3           | true  | 3
            mydevice             | x                  | 3           | false |)"_s);
    }

    void singleValuesAreApplied()
    {
        const auto [group, key, value, result, carriedValue, otherKey, otherValue] = cells<7>();
        AcceptorSettings settings;
        AcceptorSettings::setPortLogs(false);
        const bool known = settings.setValue(setting(group, key, value));
        QCOMPARE(known ? "true"_s : "false"_s, result);
        QCOMPARE(carried(QString(group).remove("/x"_s), key), carriedValue);
        if (!otherKey.isEmpty())
            QCOMPARE(carried(group, otherKey), otherValue);
        QCOMPARE(AcceptorSettings::devices.size(), group.contains("device"_s) ? 1 : 0);
    }

    void commonValuesAreResetAndLimitsReplaced()
    {
        AcceptorSettings::setMaxSumm(5);
        AcceptorSettings::setDeviceCount(5);
        AcceptorSettings::addAttemptsFilter(100, 3);
        AcceptorSettings::addAttemptsFilter(200, 1);
        AcceptorSettings().setList({setting("device0/device"_s, "device_id"_s, 5)});
        AcceptorSettings::addAttemptsFilter(200, 9);
        QCOMPARE(carried("acceptor_common"_s, "attempts_filter_settings"_s),
                 R"([{"attempts":"3","denom":"100"},{"attempts":"9","denom":"200"}])"_s);
        QCOMPARE(AcceptorSettings::maxSumm() + AcceptorSettings::deviceCount(), qint64(0));
        QCOMPARE(carried("device0/id003"_s, "rest_interval"_s), "0"_s);
        QVERIFY(AcceptorSettings::isEmpty());
        AcceptorSettings::setDeviceCount(1);
        QVERIFY(!AcceptorSettings::isEmpty());
    }

    void protocolParametersReachTheirDevice()
    {
        AcceptorSettings settings;
        QVERIFY(!settings.setValue({{"key"_s, "maxSumm"_s}, {"value"_s, 5}}));
        QVERIFY(settings.setValue(setting("service"_s, "devices_count"_s, 3)));
        QCOMPARE(AcceptorSettings::deviceCount(), 3);
        for (const QString& key : {"response_time"_s, "polling_interval"_s, "rest_interval"_s,
                                   "bill_table_interval"_s, "reset_interval"_s})
            QVERIFY(!settings.updateValue("device4"_s, "any"_s, key, QString::number(key.size())));
        const AcceptorDeviceSettings& d = *AcceptorSettings::devices.value(4);
        QCOMPARE(QList<int>({d.response_time(), d.polling_interval(), d.bill_table_interval(),
                             d.reset_interval(), d.rest_interval()}),
                 QList<int>({13, 16, 19, 14, 13}));
        for (const QString& key :
             {"timeout_ack"_s, "timeout_packet"_s, "count_nak"_s, "packet_size"_s, "terminal_id"_s})
            QVERIFY(!settings.updateValue("device4"_s, "posd200"_s, key, "77"_s));
        QCOMPARE(d.timeOutAck() + d.packetTimeout() + d.maxNakCount() + d.maxPackageSize(), 308);
        QCOMPARE(d.cardReaderQuorId(), "77"_s);
        QVERIFY(!settings.updateValue("device4"_s, "uniteller_service"_s, "terminal_id"_s, "x"_s));
        QCOMPARE(d.cardReaderQuorId(), "x"_s);
    }

    void listKeepsItsOrder()
    {
        AcceptorSettings settings;
        settings.updateValue("device0"_s, "device"_s, "device_id"_s, "1"_s);
        settings.updateValue("device2"_s, "device"_s, "device_id"_s, "201"_s);
        settings.updateValue("device2"_s, "hw_interface"_s, "interface_type"_s, "tcp"_s);
        QStringList order;
        QString types;
        for (const QVariant& element : settings.toList().mid(serviceSettings())) {
            const QVariantMap map = element.toMap();
            order += map.value("group"_s).toString().mid(6) + "."_s + map.value("key"_s).toString();
            types += QLatin1Char(*map.value("value"_s).typeName());
        }
        QCOMPARE(order.join(QLatin1Char(' ')),
                 "0/debug.port_logging 0/ccnet.response_time 0/ccnet.polling_interval "
                 "0/ccnet.bill_table_interval 0/ccnet.reset_interval 0/ccnet.rest_interval "
                 "0/device.device_id 0/device.device_name 0/hw_interface.interface_type "
                 "0/hw_interface.portname 0/hw_interface.baudrate 0/hw_interface.flowcontrol "
                 "0/hw_interface.parity 0/hw_interface.databits 0/hw_interface.stopbits "
                 "2/debug.port_logging 2/device.device_id 2/device.device_name "
                 "2/posd200.terminal_id 2/posd200.timeout_ack 2/posd200.timeout_packet "
                 "2/posd200.count_nak 2/posd200.packet_size 2/hw_interface.interface_type "
                 "2/hw_interface.tcp_host 2/hw_interface.tcp_port 2/hw_interface.baudrate "
                 "2/hw_interface.flowcontrol 2/hw_interface.parity 2/hw_interface.databits "
                 "2/hw_interface.stopbits"_s);
        // bool, int and QString, by their first letter.
        QCOMPARE(types, "biiiiiiQQQQQQQQbiQQiiiiQQQQQQQQ"_s);
    }

    void formattedMapShowsAndKeepsDevicesBelowTheCount()
    {
        AcceptorSettings settings;
        settings.fromAcceptorInfoList({info(3, "A"_s, "ttyS0"_s), info(1)});
        QCOMPARE(devices(), "0:1 1:3A"_s);
        AcceptorSettings::devices.value(1)->setFlowControl(QSerialPort::SoftwareControl);
        QCOMPARE(settings.toFormattedMap().value("device1/hw_interface"_s).toMap(),
                 QVariantMap({{"interface_type"_s, "rs232"_s},
                              {"portName"_s, "ttyS0"_s},
                              {"baudrate"_s, 9600},
                              {"flowControl"_s, "XON/XOFF"_s},
                              {"key"_s, "parity"_s},
                              {"parity"_s, "NONE"_s},
                              {"dataBits"_s, 8},
                              {"stopBit"_s, 1}}));
        AcceptorSettings::setDeviceCount(1);
        QCOMPARE(settings.toFormattedMap().size(), 3 + 3);
        settings.setFotmattedMap(
            {{"device7/debug"_s, QVariantMap{{"port_logging"_s, true}}}, {"device0/device"_s, 7}});
        QCOMPARE(devices(), "0:1"_s);
        AcceptorSettings::setDeviceCount(-1);
        settings.setFotmattedMap({});
        QCOMPARE(devices(), QString());
    }

    void devicesFollowWhatWasFound()
    {
        AcceptorSettings settings;
        settings.fromAcceptorInfoList({info(1, "a"_s), info(201), info(51), info(1, "b"_s)});
        QCOMPARE(devices(), "0:1b 1:1a 2:51"_s);
        settings.fromAcceptorInfoList({info(51, "c"_s), info(1, "d"_s)});
        QCOMPARE(devices(), "0:1d 1:51c"_s);
        QCOMPARE(AcceptorSettings::deviceCount(), 2);

        settings.setList({setting("device0/device"_s, "device_id"_s, 1),
                          setting("device1/device"_s, "device_id"_s, 200),
                          setting("device2/device"_s, "device_id"_s, 3)});
        settings.fromAcceptorInfoList({info(3, "e"_s), info(51), info(200, "f"_s)});
        QCOMPARE(devices(), "0:200 1:3e 2:51"_s);
        QCOMPARE(settings.fixedDevices().size(), 1);
        QCOMPARE(settings.fixedDeviceTypes(), QSet<int>({200, 201}));
        settings.removeDeviceByIndex(0);
        settings.removeDeviceByIndex(2);
        settings.removeDeviceByIndex(-1);
        QCOMPARE(devices(), "1:3e 2:51"_s);
        QCOMPARE(AcceptorSettings::deviceCount(), 2);
        settings.fromAcceptorInfoList({info(3), info(51)});
        QCOMPARE(devices(), "0:3 1:51"_s);

        settings.setList({setting("device-2/device"_s, "device_id"_s, 200),
                          setting("device3/device"_s, "device_id"_s, 201)});
        settings.fromAcceptorInfoList({info(1)});
        QCOMPARE(devices(), "0:200 1:201 2:1"_s);

        // Indexes at the ends of their range, and an entry without a device.
        settings.setList({setting("device2147483647/device"_s, "device_id"_s, 201),
                          setting("device0/device"_s, "device_id"_s, 200),
                          setting("device-2147483648/device"_s, "device_id"_s, 201)});
        settings.fromAcceptorInfoList({info(1)});
        QCOMPARE(devices(), "-2147483648:201 -2147483647:1 0:200 2147483647:201"_s);
        const auto size = settings.toList().size();
        AcceptorSettings::devices[5] = nullptr;
        QCOMPARE(settings.fixedDevices().size(), 3);
        QCOMPARE(settings.toList().size(), size);
        settings.fromAcceptorInfoList({info(1)});
        QCOMPARE(devices(), "0:201 1:1 2:200 3:201"_s);
    }

    void settingsAreFoundInEverySpelling_data()
    {
        // Group path, key, path of the description.
        addRows(R"(
            acceptor_common        | maxSumm        | acceptor_common/maxSumm
            acceptor_common/x      | maxSumm        | acceptor_common/maxSumm
            acceptor_common        | maxsumm        |
            service                | maxSumm        |
            other                  | maxSumm        |
            device2/hw_interface   | PortName       | device2/hw_interface/portname
            device2/hw_interface/x | StopBit        | device2/hw_interface/stopbits
            device2/hw_interface   | STOPBITS       | device2/hw_interface/stopbits
            device2/hw_interface   | BaudRate       |
            device2/hw_interface   | key            |
            device2/hw_interface   |                |
            device2/id003          | rest_interval  | device2/id003/rest_interval
            device2/id003          | reset_interval | device2/ccnet/reset_interval
            device-7               | reset_interval | device-7/ccnet/reset_interval
            device2/posd200        | terminal_id    | device2/posd200/terminal_id
            device2/device         | terminal_id    |
            mydevice/device        | device_name    | device0/device/device_name
            device2/debug          | port_logging   | device2/debug/port_logging)"_s);
    }

    void settingsAreFoundInEverySpelling()
    {
        const auto [group, key, path] = cells<3>();
        const SettingDescription d = AcceptorSettings::settingDescription(group, key);
        QCOMPARE(d.path(), path);
        QCOMPARE(d.isValid(), !path.isEmpty());
        QCOMPARE(d.isRead(), d.isValid() && key != "port_logging"_s);
        QCOMPARE(d.appliesTo(7, "rs232"_s),
                 d.isValid()
                     && !QRegularExpression("id003|ccnet|posd"_s).match(d.path()).hasMatch());
        if (!d.isValid()) {
            QVERIFY(!d.accepts("1"_s) && d.kind() == SettingDescription::NoSetting);
            QVERIFY(!d.defaultValue().isValid() && !d.minimum().isValid());
            QCOMPARE(d.readAs("1"_s) + d.key() + d.label() + d.help() + d.choices().join("|"_s),
                     QString());
        }
    }

    void valuesAreAccepted_data()
    {
        // Group path, key, values that are accepted, values that are not.
        addRows(R"(
            acceptor_common | acceptAll | 0 1 01 | true false 2 -1
            acceptor_common | maxSumm | 0 9223372036854775807 | -1 9223372036854775808 1e3
            acceptor_common | reset_stats | 0 4 | 5 -1 x
            acceptor_common | attempts_filter_settings | [] [{"denom":1,"attempts":"2"}] | {} x [7] [{"denom":0,"attempts":"2"}] [{"denom":"1"}] [{"denom":1,"attempts":1},{}] [],
            service | devices_count | 0 32767 | -1 32768
            service | reset_idle_timeout | 0 3600000 | -1
            dispenser | route_map | [] [{"currency":"RUB","denomination":5,"bill_type":0,"count":1,"route":1}] | x {} [{"currency":"RUB"}] [7] [],
            device1/debug | port_logging | 0 1 true false | on 2
            device1/ccnet | rest_interval | 0 2147483647 | -1 2147483648
            device1/posd200 | packet_size | 1 | 0
            device1/posd200 | terminal_id | x -1 |
            device1/device | device_id | 1 201 | 0 8 x
            device1/hw_interface | interface_type | tcp rs232 | TCP usb
            device1/hw_interface | PORTNAME | ttyS0 |
            device1/hw_interface | tcp_port | 1 65535 | http 0 65536
            device1/hw_interface | baudrate | 9600 1 4000000 | fast 0 4000001
            device1/hw_interface | FlowControl | none OFF xon/xoff Hardware dtr/str XonXoff | soft
            device1/hw_interface | parity | none EVEN odd space | mark
            device1/hw_interface | databits | 5 8 | 4 9
            device1/hw_interface | stopbits | 1 3 | 0 4 5 x)"_s);
    }

    void valuesAreAccepted()
    {
        const auto [group, key, good, bad] = cells<4>();
        const SettingDescription d = AcceptorSettings::settingDescription(group, key);
        for (const QString& value : good.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            QVERIFY2(d.accepts(value), qPrintable(value));
        for (const QString& value : bad.split(QLatin1Char(' '), Qt::SkipEmptyParts))
            QVERIFY2(!d.accepts(value), qPrintable(value));
        const bool mayBeEmpty = key == "terminal_id"_s || key == "route_map"_s;
        QCOMPARE(d.accepts({}), mayBeEmpty);
    }

    // Which settings the list has for each model and interface, and what it has after any text.
    void descriptionsAreTrue()
    {
        const QStringList texts{"1"_s, "0"_s,          "-1"_s,  "7"_s,    "x"_s,
                                {},    "5000000000"_s, "OFF"_s, "Even"_s, R"([{"denom":9}])"_s};
        const QSet<QString> decidesOnOthers{"device_id"_s, "interface_type"_s, "devices_count"_s};
        AcceptorSettings settings;
        for (const int model : models) {
            for (const QString& interface : {"rs232"_s, "tcp"_s, "TCP"_s}) {
                settings.setList(
                    {setting("device3/device"_s, "device_id"_s, model),
                     setting("device3/hw_interface"_s, "interface_type"_s, interface)});
                const QVariantList list = settings.toList();
                auto element = list.begin();
                for (const SettingDescription& listed : AcceptorSettings::settingDescriptions()) {
                    if (!listed.appliesTo(model, interface))
                        continue;
                    const QString group =
                        listed.group().replace(QLatin1Char('#'), QLatin1Char('3'));
                    QVERIFY(element != list.end());
                    const QVariantMap written = (element++)->toMap();
                    QCOMPARE(written, setting(group, listed.key(), written["value"_s]));
                    const SettingDescription d =
                        AcceptorSettings::settingDescription(group, listed.key());
                    QCOMPARE(listed.forDevice(3).path(), d.path());
                    if (d.device() && d.isRead() && !decidesOnOthers.contains(d.key()))
                        QVERIFY2(isSame(d.unsetValue(), written["value"_s]), qPrintable(d.path()));
                    QCOMPARE(d.group() + d.key() + d.help(), group + listed.key() + listed.help());
                    for (const QString& text : texts) {
                        if (!d.isRead() || decidesOnOthers.contains(d.key()))
                            continue;
                        settings.setValue(setting(group, d.key(), text));
                        QCOMPARE(carried(group, d.key()), d.readAs(text));
                    }
                }
                QVERIFY(element == list.end());
            }
        }
        const auto readAs = [](const QString& group, const QString& key, const QString& value) {
            return AcceptorSettings::settingDescription(group, key).readAs(value);
        };
        QCOMPARE(readAs("device3/device"_s, "device_id"_s, "1.5"_s), "0"_s);
        QCOMPARE(readAs("service"_s, "devices_count"_s, "7"_s), "7"_s);
        QCOMPARE(readAs("device3/hw_interface"_s, "interface_type"_s, "TCP"_s), "TCP"_s);
        QCOMPARE(readAs("device3/debug"_s, "port_logging"_s, "1"_s), "true"_s);
    }

    // A setting changes what is kept in its place and nothing else.
    void placesAreTrue()
    {
        QList<SettingDescription> ofDevice{
            SettingDescription::find("device3/ssp"_s, "response_time"_s),
            SettingDescription::find("device3/ssp"_s, "rest_interval"_s)};
        const QSet<QString> decidesOnOthers{"device_id"_s, "interface_type"_s};
        for (const SettingDescription& d : AcceptorSettings::settingDescriptions()) {
            if (d.group().startsWith("device#"_s) && d.isRead()
                && !decidesOnOthers.contains(d.key()))
                ofDevice += d.forDevice(3);
        }
        AcceptorSettings settings;
        int changesOfOthers = 0;
        for (const int model : models) {
            for (const SettingDescription& d : std::as_const(ofDevice)) {
                const QString interface = d.key().startsWith("tcp"_s) ? "tcp"_s : "rs232"_s;
                settings.setList(
                    {setting("device3/device"_s, "device_id"_s, model),
                     setting("device3/hw_interface"_s, "interface_type"_s, interface)});
                const QVariantList before = settings.toList();
                const bool isChoice = d.kind() == SettingDescription::Choice;
                const QString other = isChoice ? d.choices().at(1) : "7"_s;
                settings.setValue(setting(d.group(), d.key(), other));
                const QVariantList after = settings.toList();
                for (int i = 0; i < before.size(); ++i) {
                    const QVariantMap element = before.at(i).toMap();
                    const SettingDescription listed = AcceptorSettings::settingDescription(
                        element["group"_s].toString(), element["key"_s].toString());
                    const bool isChanged = before.at(i) != after.at(i);
                    QVERIFY2(isChanged == (listed.place() == d.place()),
                             qPrintable(d.path() + " and "_s + listed.path()));
                    changesOfOthers += isChanged && listed.path() != d.path();
                }
            }
        }
        QVERIFY(changesOfOthers > 0);
    }

    void whatOnlyTheServiceKnowsIsFound_data()
    {
        // Group, key, path, place and default.
        addRows(R"(
            service       | reset_after_empty_sessions | service/reset_after_empty_sessions | service/reset_after_empty_sessions | 3
            service/x     | reset_after_empty_sessions | | |
            device2       | reset_after_empty_sessions | | |
            device2/service | devices_count            | | |
            device2/device | accept_on_jam             | device2/device/accept_on_jam | device2/device/accept_on_jam | 0
            device02/device | accept_on_jam            | | |
            device        | accept_on_jam              | | |
            device2/ict   | reset_timeout              | device2/ict/reset_timeout | device2/ict/reset_timeout | 0
            device2/ssp   | log_decrypted_msg          | device2/ssp/log_decrypted_msg | device2/ssp/log_decrypted_msg | false
            device2/ssp   | response_time              | device2/ssp/response_time | device2/ccnet/response_time | 5000
            device2/other | response_time              | device2/ccnet/response_time | device2/ccnet/response_time | 1000)"_s);
    }

    void whatOnlyTheServiceKnowsIsFound()
    {
        const auto [group, key, path, place, defaultValue] = cells<5>();
        const SettingDescription d = SettingDescription::find(group, key);
        QCOMPARE(d.path(), path);
        QCOMPARE(d.place(), place);
        QCOMPARE(d.defaultValue().toString(), defaultValue);
        QCOMPARE(d.label().isEmpty(), !d.isWritten());
        if (d.isWritten())
            return;
        QCOMPARE(d.unsetValue(), d.defaultValue());
        QCOMPARE(d.device().has_value(), path.startsWith("device"_s));
        QCOMPARE(d.accepts("7"_s) && d.appliesTo(1, "tcp"_s), d.isValid());
        QCOMPARE(d.accepts("x"_s), d.isValid() && !d.isRead());
        QVERIFY(AcceptorSettings::settingDescription(group, key).path() != path || path.isEmpty());
    }

    // What the list does not carry: the parameters of the other protocols, the TCP endpoint of a
    // serial device and the port name of a TCP device, mark parity, and a device count of its own.
    void listReadsBack()
    {
        Random random(1);
        for (int round = 0; round < 100; ++round) {
            randomiseSettings(random);
            AcceptorSettings settings;
            const QVariantList list = settings.toList();
            AcceptorSettings::setAttemptsFilter({});
            AcceptorSettings::setRouteMap("x"_s);
            settings.setList(list);
            QCOMPARE(settings.toList(), list);
            QCOMPARE(AcceptorSettings::deviceCount(), AcceptorSettings::devices.size());
        }
    }

    // What the map does not carry: devices not below the count, TCP endpoints, protocol
    // parameters and mark parity.
    void formattedMapReadsBack()
    {
        Random random(2);
        for (int round = 0; round < 100; ++round) {
            randomiseSettings(random);
            AcceptorSettings settings;
            const QVariantMap map = settings.toFormattedMap();
            settings.setList({});
            AcceptorSettings::setAttemptsFilter({});
            settings.setFotmattedMap(map);
            QCOMPARE(settings.toFormattedMap(), map);
        }
    }

    void devicesAreDeletedOnce()
    {
        Random random(4);
        AcceptorSettings settings;
        for (int step = 0; step < 2000; ++step) {
            AcceptorDeviceSettings*& d = AcceptorSettings::devices[random.upTo(20)];
            if (!d)
                d = new CountedDevice(random.oneOf(models));
            AcceptorSettings::setDeviceCount(random.upTo(20));
            switch (random.upTo(6)) {
            case 0:
                settings.removeDeviceByIndex(random.upTo(20) - 2);
                break;
            case 1:
                settings.setFotmattedMap(settings.toFormattedMap());
                break;
            case 2:
                settings.fromAcceptorInfoList({info(random.oneOf(models)), info(7)});
                break;
            case 3:
                settings.setList(random.upTo(3) == 0 ? QVariantList() : settings.toList());
                break;
            default:
                break;
            }
        }
        settings.setList({});
        QCOMPARE(CountedDevice::s_living, 0);
        QVERIFY(AcceptorSettings::devices.isEmpty());
    }

    // Each thread loads a configuration of its own number again and again; an interleaved load
    // would leave a mixture.
    void bulkLoadsDoNotInterleave()
    {
        const auto load = [](int number) {
            AcceptorSettings settings;
            QVariantList list{setting("service"_s, "devices_count"_s, number),
                              setting("service"_s, "reset_idle_timeout"_s, number),
                              setting("acceptor_common"_s, "maxSumm"_s, number)};
            for (int i = 0; i < number; ++i)
                list += setting("device%1/device"_s.arg(i), "device_id"_s, number);
            const QVariantMap map{{"device0/device"_s, QVariantMap{{"device_id"_s, number}}}};
            for (int round = 0; round < 200; ++round) {
                settings.setList(list);
                settings.setValue(setting("device0/device"_s, "device_id"_s, number));
                settings.setFotmattedMap(map);
                settings.setList(list);
            }
        };
        std::thread threads[] = {std::thread(load, 2), std::thread(load, 3), std::thread(load, 4)};
        for (std::thread& thread : threads)
            thread.join();
        AcceptorSettings().setValue(setting("service"_s, "unknown"_s, 0)); // not locked for good
        const int number = AcceptorSettings::deviceCount();
        QCOMPARE(AcceptorSettings::resetIdleTimeout(), qint64(number));
        QCOMPARE(AcceptorSettings::maxSumm(), qint64(number));
        QCOMPARE(AcceptorSettings::devices.size(), number);
    }
};

QTEST_APPLESS_MAIN(tst_Settings)
#include "tst_settings.moc"
