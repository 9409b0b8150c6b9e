#include "acceptorsettings.h"

#include "acceptors.h"
#include "jsonreader_p.h"
#include "serialporttexts_p.h"
#include "settingslist_p.h"
#include "variants_p.h"
#include "wraparound_p.h"

#include <QJsonDocument>
#include <QMutexLocker>
#include <QPair>

const QString AcceptorSettings::SERVICE_SECTION = QStringLiteral("service");
const QString AcceptorSettings::DEVICE_SECTION = QStringLiteral("device");
const QString AcceptorSettings::DISPENSER_SECTION = QStringLiteral("dispenser");
const QString AcceptorSettings::DEVICE = QStringLiteral("device");
const QString AcceptorSettings::DEVICE_ID = QStringLiteral("device_id");
const QString AcceptorSettings::DEVICE_NAME = QStringLiteral("device_name");
const QString AcceptorSettings::HARDWARE_SECTION = QStringLiteral("hw_interface");
const QString AcceptorSettings::ACCEPTOR_COMMON_SECTION = QStringLiteral("acceptor_common");
const QString AcceptorSettings::DEBUG_SECTION = QStringLiteral("debug");
const QString AcceptorSettings::PORT_LOGGING = QStringLiteral("port_logging");
const QString AcceptorSettings::INTERFACE_TYPE = QStringLiteral("interface_type");
const QString AcceptorSettings::PORT_NAME = QStringLiteral("portname");
const QString AcceptorSettings::PORT_BAUDRATE = QStringLiteral("baudrate");
const QString AcceptorSettings::PORT_FLOW_CONTROL = QStringLiteral("flowcontrol");
const QString AcceptorSettings::PORT_PARITY = QStringLiteral("parity");
const QString AcceptorSettings::PORT_DATABITS = QStringLiteral("databits");
const QString AcceptorSettings::PORT_STOPBIT = QStringLiteral("stopbits");
const QString AcceptorSettings::ACCEPT_ALL = QStringLiteral("acceptAll");
const QString AcceptorSettings::MAX_SUMM = QStringLiteral("maxSumm");
const QString AcceptorSettings::DEVICE_COUNT = QStringLiteral("devices_count");
const QString AcceptorSettings::RESET_IDLE_TIMEOUT = QStringLiteral("reset_idle_timeout");
const QString AcceptorSettings::ATTEMPTS_FILTER = QStringLiteral("attempts_filter_settings");
const QString AcceptorSettings::RESET_STATISTICS = QStringLiteral("reset_stats");
const QString AcceptorSettings::UNITAILER_GROUP = QStringLiteral("uniteller_service");
const QString AcceptorSettings::UNITAILER_ID = QStringLiteral("terminal_id");
const QString AcceptorSettings::ROUTE_MAP = QStringLiteral("route_map");
const QString AcceptorSettings::TCP_PORT = QStringLiteral("tcp_port");
const QString AcceptorSettings::TCP_HOST = QStringLiteral("tcp_host");
const QString AcceptorSettings::SM_G_POSD2000 = QStringLiteral("posd200");
const QString AcceptorSettings::SM_P_POSD2000_TIMEOUT_ACK = QStringLiteral("timeout_ack");
const QString AcceptorSettings::SM_P_POSD2000_TIMEOUT_PACKET = QStringLiteral("timeout_packet");
const QString AcceptorSettings::SM_P_POSD2000_COUNT_NAK = QStringLiteral("count_nak");
const QString AcceptorSettings::SM_P_POSD2000_PACKET_SIZE = QStringLiteral("packet_size");
const QString AcceptorSettings::SM_P_POSD2000_POS_ID = QStringLiteral("terminal_id");
const QString AcceptorSettings::RESPONSE_TIME = QStringLiteral("response_time");
const QString AcceptorSettings::POLLING_INTERVAL = QStringLiteral("polling_interval");
const QString AcceptorSettings::BILL_TABLE_INTERVAL = QStringLiteral("bill_table_interval");
const QString AcceptorSettings::RESET_INTERVAL = QStringLiteral("reset_interval");
const QString AcceptorSettings::REST_INTERVAL = QStringLiteral("rest_interval");
const QString AcceptorSettings::MAPPED_RESET_IDDLE_TIMEOUT = QStringLiteral("RESET_IDDLE_TIMEOUT");
const QString AcceptorSettings::MAPPED_RESET_STATISTICS =
    QStringLiteral("RESET_ACCEPTORS_STATISTICS");
const QString AcceptorSettings::MAPPED_BILL_1000000_ATTEMPTS =
    QStringLiteral("BILL_1000000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_500000_ATTEMPTS =
    QStringLiteral("BILL_500000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_200000_ATTEMPTS =
    QStringLiteral("BILL_200000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_100000_ATTEMPTS =
    QStringLiteral("BILL_100000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_50000_ATTEMPTS = QStringLiteral("BILL_50000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_20000_ATTEMPTS = QStringLiteral("BILL_20000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_10000_ATTEMPTS = QStringLiteral("BILL_10000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_5000_ATTEMPTS = QStringLiteral("BILL_5000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_BILL_1000_ATTEMPTS = QStringLiteral("BILL_1000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_1000_ATTEMPTS = QStringLiteral("COIN_1000_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_500_ATTEMPTS = QStringLiteral("COIN_500_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_200_ATTEMPTS = QStringLiteral("COIN_200_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_100_ATTEMPTS = QStringLiteral("COIN_100_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_50_ATTEMPTS = QStringLiteral("COIN_50_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_10_ATTEMPTS = QStringLiteral("COIN_10_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_5_ATTEMPTS = QStringLiteral("COIN_5_ATTEMPTS");
const QString AcceptorSettings::MAPPED_COIN_1_ATTEMPTS = QStringLiteral("COIN_1_ATTEMPTS");
const QString AcceptorSettings::MAPPED_ANTIFISHING = QStringLiteral("ANTIFISHING");

QMap<int, AcceptorDeviceSettings*> AcceptorSettings::devices;
QList<AcceptorAttemptFilterItem> AcceptorSettings::attemptsFilter_;
qint64 AcceptorSettings::maxSumm_ = 0;
bool AcceptorSettings::acceptAll_ = true;
bool AcceptorSettings::portLogs_ = false;
qint64 AcceptorSettings::resetIdleTimeout_ = 3600000;
AcceptorSettings::ECleanStatistics AcceptorSettings::cleanStatistics_ = CleanStatistics0;
qint32 AcceptorSettings::deviceCount_ = -1;
QString AcceptorSettings::_routeMap;
QMutex AcceptorSettings::settingsMutex_;

namespace {

using S = AcceptorSettings;
using Device = AcceptorDeviceSettings;
using SerialPortTexts::Form;
using SerialPortTexts::FormattedMap;
using SerialPortTexts::ListForm;

const QString ccnetGroup = QStringLiteral("ccnet");
const QString id003Group = QStringLiteral("id003");
const QString tcpInterface = QStringLiteral("tcp");

// An int also where Qt's containers count with 64 bits.
int deviceObjects()
{
    return static_cast<int>(S::devices.size());
}

QString attemptsText()
{
    const QList<AcceptorAttemptFilterItem> limits = S::attemptsFilter();
    QVariantList elements;
    for (const AcceptorAttemptFilterItem& limit : limits)
        elements.append(limit.toMap());
    const QJsonDocument document = QJsonDocument::fromVariant(elements);
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

QList<AcceptorAttemptFilterItem> attemptsFromText(const QString& text)
{
    QList<AcceptorAttemptFilterItem> limits;
    const QVariantList elements = JsonReader::readList(text);
    for (const QVariant& element : elements) {
        const QVariantMap map = Variants::toMap(element);
        if (map.isEmpty())
            continue;
        AcceptorAttemptFilterItem limit;
        limit.loadFromMap(map);
        limits.append(limit);
    }
    return limits;
}

// What the service's settings carry, in the order of the list form.
const struct
{
    const QString& group;
    const QString& key;
    QVariant (*value)(Form form);
} commonSettings[] = {
    {S::ACCEPTOR_COMMON_SECTION, S::ACCEPT_ALL, [](Form) { return QVariant(int(S::acceptAll())); }},
    {S::ACCEPTOR_COMMON_SECTION, S::MAX_SUMM, [](Form) { return QVariant(S::maxSumm()); }},
    {S::ACCEPTOR_COMMON_SECTION, S::RESET_STATISTICS,
     [](Form) { return QVariant(int(S::cleanStatistics())); }},
    {S::ACCEPTOR_COMMON_SECTION, S::ATTEMPTS_FILTER, [](Form) { return QVariant(attemptsText()); }},
    {S::ACCEPTOR_COMMON_SECTION, S::PORT_LOGGING,
     [](Form) { return QVariant(int(S::portLogs())); }},
    // The list counts the devices that it holds, the map shows as many as are configured.
    {S::SERVICE_SECTION, S::DEVICE_COUNT,
     [](Form form) { return QVariant(form == ListForm ? deviceObjects() : S::deviceCount()); }},
    {S::SERVICE_SECTION, S::RESET_IDLE_TIMEOUT,
     [](Form) { return QVariant(S::resetIdleTimeout()); }},
    {S::DISPENSER_SECTION, S::ROUTE_MAP, [](Form) { return QVariant(S::routeMap()); }},
};

bool isCCNet(const Device& device)
{
    return device.type() == Acceptors::CCNet;
}

bool isId003(const Device& device)
{
    return device.type() == Acceptors::Id003 || device.type() == Acceptors::ArdacEliteId003;
}

bool isUniteller(const Device& device)
{
    return device.type() == Acceptors::Uniteller;
}

bool isPosD200(const Device& device)
{
    return device.type() == Acceptors::PosD200;
}

bool isTcp(const Device& device)
{
    return device.interfaceType() == tcpInterface;
}

bool isSerial(const Device& device)
{
    return !isTcp(device);
}

bool always(const Device& /*device*/)
{
    return true;
}

// One of a device's numbers or texts, the same in every form.
template <auto Getter>
QVariant plain(Form /*form*/, const Device& device)
{
    return (device.*Getter)();
}

// A number of the serial port: the list form has it as text.
template <auto Getter>
QVariant portNumber(Form form, const Device& device)
{
    const int number = (device.*Getter)();
    return form == ListForm ? QVariant(QString::number(number)) : QVariant(number);
}

// What a device's settings carry, in the order of the list form. A setting without a key in a
// form is not in that form. The condition is the list form's; the map shows every device alike.
const struct
{
    const QString& subgroup;
    QString listKey;
    QString mapKey;
    bool (*inList)(const Device& device);
    QVariant (*value)(Form form, const Device& device);
} deviceSettings[] = {
    // Devices have no switch of their own.
    {S::DEBUG_SECTION, S::PORT_LOGGING, S::PORT_LOGGING, always,
     [](Form, const Device&) { return QVariant(S::portLogs()); }},
    {ccnetGroup, S::RESPONSE_TIME, {}, isCCNet, plain<&Device::response_time>},
    {ccnetGroup, S::POLLING_INTERVAL, {}, isCCNet, plain<&Device::polling_interval>},
    {ccnetGroup, S::BILL_TABLE_INTERVAL, {}, isCCNet, plain<&Device::bill_table_interval>},
    {ccnetGroup, S::RESET_INTERVAL, {}, isCCNet, plain<&Device::reset_interval>},
    {ccnetGroup, S::REST_INTERVAL, {}, isCCNet, plain<&Device::rest_interval>},
    {id003Group, S::RESPONSE_TIME, {}, isId003, plain<&Device::response_time>},
    {id003Group, S::POLLING_INTERVAL, {}, isId003, plain<&Device::polling_interval>},
    {id003Group, S::REST_INTERVAL, {}, isId003, plain<&Device::rest_interval>},
    {S::DEVICE_SECTION, S::DEVICE_ID, S::DEVICE_ID, always, plain<&Device::type>},
    {S::DEVICE_SECTION, S::DEVICE_NAME, S::DEVICE_NAME, always, plain<&Device::name>},
    {S::UNITAILER_GROUP, S::UNITAILER_ID, {}, isUniteller, plain<&Device::cardReaderQuorId>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_POS_ID, {}, isPosD200, plain<&Device::cardReaderQuorId>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_TIMEOUT_ACK, {}, isPosD200, plain<&Device::timeOutAck>},
    {S::SM_G_POSD2000,
     S::SM_P_POSD2000_TIMEOUT_PACKET,
     {},
     isPosD200,
     plain<&Device::packetTimeout>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_COUNT_NAK, {}, isPosD200, plain<&Device::maxNakCount>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_PACKET_SIZE, {}, isPosD200, plain<&Device::maxPackageSize>},
    {S::HARDWARE_SECTION, S::INTERFACE_TYPE, S::INTERFACE_TYPE, always,
     plain<&Device::interfaceType>},
    {S::HARDWARE_SECTION, S::TCP_HOST, {}, isTcp, plain<&Device::tcpHost>},
    {S::HARDWARE_SECTION, S::TCP_PORT, {}, isTcp, plain<&Device::tcpPort>},
    {S::HARDWARE_SECTION, S::PORT_NAME, QStringLiteral("portName"), isSerial,
     plain<&Device::portName>},
    {S::HARDWARE_SECTION, S::PORT_BAUDRATE, S::PORT_BAUDRATE, always,
     portNumber<&Device::baudrate>},
    {S::HARDWARE_SECTION, S::PORT_FLOW_CONTROL, QStringLiteral("flowControl"), always,
     [](Form form, const Device& device) {
         return QVariant(text(SerialPortTexts::flowControls, form, device.flowControl()));
     }},
    // Programs expect this entry; it sets nothing when it is read.
    {S::HARDWARE_SECTION,
     {},
     QStringLiteral("key"),
     always,
     [](Form, const Device&) { return QVariant(S::PORT_PARITY); }},
    {S::HARDWARE_SECTION, S::PORT_PARITY, S::PORT_PARITY, always,
     [](Form form, const Device& device) {
         return QVariant(text(SerialPortTexts::parities, form, device.parityType()));
     }},
    {S::HARDWARE_SECTION, S::PORT_DATABITS, QStringLiteral("dataBits"), always,
     portNumber<&Device::dataBits>},
    {S::HARDWARE_SECTION, S::PORT_STOPBIT, QStringLiteral("stopBit"), always,
     portNumber<&Device::stopBits>},
};

// Hands every setting of a form to visit(group path, key, value): first those of the service,
// then those of each device in ascending index order.
template <typename Visitor>
void walk(Form form, Visitor visit)
{
    for (const auto& setting : commonSettings)
        visit(setting.group, setting.key, setting.value(form));
    for (auto entry = S::devices.constBegin(); entry != S::devices.constEnd(); ++entry) {
        const int index = entry.key();
        const bool shown = form == ListForm || (index >= 0 && index < S::deviceCount());
        if (!entry.value() || !shown)
            continue;
        const Device& device = *entry.value();
        for (const auto& setting : deviceSettings) {
            const QString& key = form == ListForm ? setting.listKey : setting.mapKey;
            if (key.isEmpty() || (form == ListForm && !setting.inList(device)))
                continue;
            const QString path =
                QStringLiteral("%1%2/%3").arg(S::DEVICE, QString::number(index), setting.subgroup);
            visit(path, key, setting.value(form, device));
        }
    }
}

bool isOne(const QString& value)
{
    return Variants::number(value).toUInt() == 1;
}

// How the service's settings are read.
const struct
{
    const QString& group;
    const QString& key;
    void (*set)(const QString& value);
} commonSetters[] = {
    {S::ACCEPTOR_COMMON_SECTION, S::ACCEPT_ALL,
     [](const QString& value) { S::setAcceptAll(isOne(value)); }},
    {S::ACCEPTOR_COMMON_SECTION, S::MAX_SUMM,
     [](const QString& value) { S::setMaxSumm(Variants::number(value).toLongLong()); }},
    {S::ACCEPTOR_COMMON_SECTION, S::RESET_STATISTICS,
     [](const QString& value) {
         const int mode = Variants::number(value).toInt();
         const bool known = mode >= S::CleanStatistics0 && mode <= S::CleanStatistics4;
         S::setCleanStatistics(known ? static_cast<S::ECleanStatistics>(mode)
                                     : S::CleanStatistics0);
     }},
    {S::ACCEPTOR_COMMON_SECTION, S::PORT_LOGGING,
     [](const QString& value) { S::setPortLogs(isOne(value)); }},
    {S::ACCEPTOR_COMMON_SECTION, S::ATTEMPTS_FILTER,
     [](const QString& value) { S::setAttemptsFilter(attemptsFromText(value)); }},
    {S::SERVICE_SECTION, S::DEVICE_COUNT,
     [](const QString& value) { S::setDeviceCount(Variants::number(value).toInt()); }},
    {S::SERVICE_SECTION, S::RESET_IDLE_TIMEOUT,
     [](const QString& value) { S::setResetIdleTimeout(Variants::number(value).toLongLong()); }},
    {S::DISPENSER_SECTION, S::ROUTE_MAP, [](const QString& value) { S::setRouteMap(value); }},
};

template <auto Setter>
void setText(Device& device, const QString& value)
{
    (device.*Setter)(value);
}

template <auto Setter>
void setNumber(Device& device, const QString& value)
{
    (device.*Setter)(Variants::number(value).toInt());
}

void setStopBits(Device& device, const QString& value)
{
    // The two low bits are all that count: 5 is one stop bit, 4 none that the port knows.
    device.setStopBits(static_cast<QSerialPort::StopBits>(Variants::number(value).toUInt() & 3U));
}

enum KeyMatch : qint32 { ExactKey, KeyInAnyCase };

// How a device's settings are read. Which keys are known in any case, and which are not, is part
// of the format: programs write "portName" and "flowControl", but "baudrate".
const struct
{
    QString subgroup; ///< empty: any
    QString key;
    KeyMatch match;
    void (*set)(Device& device, const QString& value);
} deviceSetters[] = {
    {{}, S::RESPONSE_TIME, ExactKey, setNumber<&Device::setResponse_time>},
    {{}, S::POLLING_INTERVAL, ExactKey, setNumber<&Device::setPolling_interval>},
    {{}, S::BILL_TABLE_INTERVAL, ExactKey, setNumber<&Device::setBill_table_interval>},
    {{}, S::RESET_INTERVAL, ExactKey, setNumber<&Device::setReset_interval>},
    {{}, S::REST_INTERVAL, ExactKey, setNumber<&Device::setRest_interval>},
    {S::UNITAILER_GROUP, S::UNITAILER_ID, ExactKey, setText<&Device::setCardReaderQuorId>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_POS_ID, ExactKey, setText<&Device::setCardReaderQuorId>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_TIMEOUT_ACK, ExactKey, setNumber<&Device::setTimeoutAck>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_TIMEOUT_PACKET, ExactKey,
     setNumber<&Device::setPacketTimeout>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_COUNT_NAK, ExactKey, setNumber<&Device::setMaxNakCount>},
    {S::SM_G_POSD2000, S::SM_P_POSD2000_PACKET_SIZE, ExactKey,
     setNumber<&Device::setMaxPackageSize>},
    {S::HARDWARE_SECTION, S::INTERFACE_TYPE, ExactKey, setText<&Device::setInterfaceType>},
    {S::HARDWARE_SECTION, S::TCP_PORT, ExactKey, setText<&Device::setTcpPort>},
    {S::HARDWARE_SECTION, S::TCP_HOST, ExactKey, setText<&Device::setTcpHost>},
    {S::HARDWARE_SECTION, S::PORT_NAME, KeyInAnyCase, setText<&Device::setPortName>},
    {S::HARDWARE_SECTION, S::PORT_BAUDRATE, ExactKey,
     [](Device& device, const QString& value) {
         device.setBaudrate(static_cast<QSerialPort::BaudRate>(Variants::number(value).toUInt()));
     }},
    {S::HARDWARE_SECTION, S::PORT_FLOW_CONTROL, KeyInAnyCase,
     [](Device& device, const QString& value) {
         device.setFlowControl(
             SerialPortTexts::valueInSettings(SerialPortTexts::flowControls, value));
     }},
    {S::HARDWARE_SECTION, S::PORT_PARITY, ExactKey,
     [](Device& device, const QString& value) {
         device.setParityType(SerialPortTexts::valueInSettings(SerialPortTexts::parities, value));
     }},
    {S::HARDWARE_SECTION, S::PORT_DATABITS, KeyInAnyCase,
     [](Device& device, const QString& value) {
         device.setDataBitsType(
             static_cast<QSerialPort::DataBits>(Variants::number(value).toUInt()));
     }},
    {S::HARDWARE_SECTION, S::PORT_STOPBIT, KeyInAnyCase, setStopBits},
    // The formatted map writes this key.
    {S::HARDWARE_SECTION, QStringLiteral("stopbit"), KeyInAnyCase, setStopBits},
    {S::DEVICE_SECTION, S::DEVICE_ID, ExactKey, setNumber<&Device::setType>},
    {S::DEVICE_SECTION, S::DEVICE_NAME, ExactKey, setText<&Device::setName>},
};

// The two parts of a group path; a part that is missing is empty, further parts do not count.
struct GroupPath
{
    explicit GroupPath(const QString& path)
        : group(path.section(QLatin1Char('/'), 0, 0))
        , subgroup(path.section(QLatin1Char('/'), 1, 1))
    {
    }

    QString group;
    QString subgroup;
};

bool updateCommonSetting(const QString& group, const QString& key, const QString& value)
{
    bool known = false;
    for (const auto& setting : commonSetters) {
        if (group != setting.group)
            continue;
        known = true;
        if (key == setting.key)
            setting.set(value);
    }
    return known;
}

void updateDeviceSetting(Device& device, const QString& subgroup, const QString& key,
                         const QString& value)
{
    const QString lowerKey = key.toLower();
    for (const auto& setting : deviceSetters) {
        const bool inGroup = setting.subgroup.isEmpty() || subgroup == setting.subgroup;
        if (inGroup && (setting.match == ExactKey ? key : lowerKey) == setting.key)
            setting.set(device, value);
    }
}

bool applySetting(AcceptorSettings& settings, const QVariantMap& setting)
{
    if (!setting.contains(SettingsList::groupKey))
        return false;
    const GroupPath path(Variants::toString(setting.value(SettingsList::groupKey)));
    return settings.updateValue(path.group, path.subgroup,
                                Variants::toString(setting.value(SettingsList::nameKey)),
                                Variants::toString(setting.value(SettingsList::valueKey)));
}

Device& deviceAt(int index)
{
    Device*& device = S::devices[index];
    if (!device)
        device = new Device;
    return *device;
}

} // namespace

int AcceptorAttemptFilterItem::attempts() const
{
    return m_attempts;
}

void AcceptorAttemptFilterItem::setAttempts(int attempts)
{
    m_attempts = attempts;
}

int AcceptorAttemptFilterItem::denom() const
{
    return m_denom;
}

void AcceptorAttemptFilterItem::setDenom(int denom)
{
    m_denom = denom;
}

void AcceptorAttemptFilterItem::loadFromMap(QVariantMap map)
{
    m_denom = Variants::number(Variants::toString(map.value(QStringLiteral("denom"), 1))).toInt();
    m_attempts =
        Variants::number(Variants::toString(map.value(QStringLiteral("attempts"), 1))).toInt();
}

QVariantMap AcceptorAttemptFilterItem::toMap() const
{
    return {{QStringLiteral("denom"), QString::number(m_denom)},
            {QStringLiteral("attempts"), QString::number(m_attempts)}};
}

AcceptorSettings::~AcceptorSettings() = default;

QString AcceptorSettings::routeMap()
{
    return _routeMap;
}

void AcceptorSettings::setRouteMap(const QString& routeMap)
{
    _routeMap = routeMap;
}

int AcceptorSettings::deviceCount()
{
    return deviceCount_;
}

void AcceptorSettings::setDeviceCount(int count)
{
    deviceCount_ = count;
}

qint64 AcceptorSettings::resetIdleTimeout()
{
    return resetIdleTimeout_;
}

void AcceptorSettings::setResetIdleTimeout(qint64 timeout)
{
    resetIdleTimeout_ = timeout;
}

AcceptorSettings::ECleanStatistics AcceptorSettings::cleanStatistics()
{
    return cleanStatistics_;
}

void AcceptorSettings::setCleanStatistics(const ECleanStatistics& mode)
{
    cleanStatistics_ = mode;
}

qint64 AcceptorSettings::maxSumm()
{
    return maxSumm_;
}

void AcceptorSettings::setMaxSumm(const qint64& sum)
{
    maxSumm_ = sum;
}

bool AcceptorSettings::acceptAll()
{
    return acceptAll_;
}

void AcceptorSettings::setAcceptAll(bool acceptAll)
{
    acceptAll_ = acceptAll;
}

bool AcceptorSettings::portLogs()
{
    return portLogs_;
}

void AcceptorSettings::setPortLogs(bool portLogs)
{
    portLogs_ = portLogs;
}

QList<AcceptorAttemptFilterItem> AcceptorSettings::attemptsFilter()
{
    return attemptsFilter_;
}

void AcceptorSettings::setAttemptsFilter(const QList<AcceptorAttemptFilterItem>& limits)
{
    attemptsFilter_ = limits;
}

void AcceptorSettings::addAttemptsFilter(int denom, int attempts)
{
    for (AcceptorAttemptFilterItem& limit : attemptsFilter_) {
        if (limit.denom() == denom)
            return limit.setAttempts(attempts);
    }
    AcceptorAttemptFilterItem limit;
    limit.setDenom(denom);
    limit.setAttempts(attempts);
    attemptsFilter_.append(limit);
}

bool AcceptorSettings::isEmpty()
{
    return devices.isEmpty() || deviceCount_ < 1;
}

QVariantList AcceptorSettings::toList() const
{
    QVariantList list;
    walk(ListForm, [&list](const QString& group, const QString& key, const QVariant& value) {
        list.append(SettingsList::element(group, key, value));
    });
    return list;
}

void AcceptorSettings::setList(const QVariantList& list)
{
    const QMutexLocker locker(&settingsMutex_);
    qDeleteAll(devices);
    devices.clear();
    maxSumm_ = 0;
    deviceCount_ = 0;
    cleanStatistics_ = CleanStatistics0;
    for (const QVariant& element : list)
        applySetting(*this, Variants::toMap(element));
}

QVariantMap AcceptorSettings::toFormattedMap() const
{
    QMap<QString, QVariantMap> groups;
    walk(FormattedMap, [&groups](const QString& group, const QString& key, const QVariant& value) {
        groups[group].insert(key, value);
    });
    QVariantMap map;
    for (auto group = groups.constBegin(); group != groups.constEnd(); ++group)
        map.insert(group.key(), group.value());
    return map;
}

void AcceptorSettings::setFotmattedMap(const QVariantMap& map)
{
    const QMutexLocker locker(&settingsMutex_);
    for (auto entry = map.constBegin(); entry != map.constEnd(); ++entry) {
        const GroupPath path(entry.key());
        const QVariantMap settings = Variants::toMap(entry.value());
        for (auto setting = settings.constBegin(); setting != settings.constEnd(); ++setting)
            updateValue(path.group, path.subgroup, setting.key(),
                        Variants::toString(setting.value()));
    }
    for (auto entry = devices.lowerBound(deviceCount_); entry != devices.end();) {
        delete entry.value();
        entry = devices.erase(entry);
    }
}

bool AcceptorSettings::setValue(const QVariantMap& setting)
{
    const QMutexLocker locker(&settingsMutex_);
    return applySetting(*this, setting);
}

bool AcceptorSettings::updateValue(QString group, QString subgroup, QString key, QString value)
{
    if (updateCommonSetting(group, key, value))
        return true;
    if (!group.contains(DEVICE))
        return false;
    const int index = Variants::number(group.remove(DEVICE)).toInt();
    updateDeviceSetting(deviceAt(index), subgroup, key, value);
    return subgroup == HARDWARE_SECTION || subgroup == DEVICE_SECTION;
}

void AcceptorSettings::removeDeviceByIndex(int position)
{
    if (position < 0 || position >= devices.size())
        return;
    const auto entry = std::next(devices.begin(), position);
    delete entry.value();
    devices.erase(entry);
    deviceCount_ = wrappingDifference(deviceCount_, 1);
}

// It changes the settings, though they are not the object's. NOLINTNEXTLINE(readability-make-*)
void AcceptorSettings::fromAcceptorInfoList(const QList<AcceptorInfo>& infos)
{
    const QSet<int> fixedTypes = fixedDeviceTypes();
    // Of one type, the description that was inserted last comes first.
    QMultiMap<int, AcceptorInfo> infoByType;
    for (const AcceptorInfo& info : infos) {
        if (!fixedTypes.contains(info.type))
            infoByType.insert(info.type, info);
    }

    int firstIndex = devices.isEmpty() ? -1 : devices.firstKey();
    bool dropped = false;
    QList<QPair<int, AcceptorDeviceSettings*>> kept;
    for (auto entry = devices.constBegin(); entry != devices.constEnd(); ++entry) {
        AcceptorDeviceSettings* const device = entry.value();
        const bool fixed = device && fixedTypes.contains(device->type());
        if (!device || (!fixed && !infoByType.contains(device->type()))) {
            delete device;
            dropped = true;
            continue;
        }
        if (!fixed)
            device->setAcceptorInfo(infoByType.value(device->type()));
        kept.append({entry.key(), device});
        infoByType.remove(device->type());
        // A negative index counts as none: the next device that is kept takes its place.
        if (firstIndex < 0 || entry.key() < firstIndex)
            firstIndex = entry.key();
    }

    const bool renumber = firstIndex > 0 || dropped;
    devices.clear();
    for (const auto& [index, device] : std::as_const(kept))
        devices.insert(renumber ? deviceObjects() : index, device);
    int index = devices.isEmpty() ? -1 : devices.lastKey();
    for (const AcceptorInfo& info : std::as_const(infoByType)) {
        do
            index = wrappingSum(index, 1);
        while (devices.contains(index));
        devices.insert(index, new AcceptorDeviceSettings(info));
    }
    deviceCount_ = deviceObjects();
}

QSet<int> AcceptorSettings::fixedDeviceTypes() const
{
    static const QSet<int> fixedtypes{Acceptors::PosD200, Acceptors::Uniteller};
    return fixedtypes;
}

QList<AcceptorInfo> AcceptorSettings::fixedDevices() const
{
    QList<AcceptorInfo> infos;
    for (const AcceptorDeviceSettings* const device : std::as_const(devices)) {
        if (device && fixedDeviceTypes().contains(device->type()))
            infos.append(device->toAcceptorInfo());
    }
    return infos;
}
