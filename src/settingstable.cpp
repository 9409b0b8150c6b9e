#include "settingstable_p.h"

#include "acceptors.h"
#include "jsonreader_p.h"

#include <QJsonDocument>

namespace {

using S = AcceptorSettings;
using Row = SettingRow;
using Device = SettingRow::Device;
using SerialPortTexts::Form;
using SerialPortTexts::ListForm;

// Groups and keys that AcceptorSettings has no constant for.
const QString ccnetGroup = QStringLiteral("ccnet");
const QString id003Group = QStringLiteral("id003");
const QString tcpInterface = QStringLiteral("tcp");
const QString noKey;
const QString mapPortName = QStringLiteral("portName");
const QString mapFlowControl = QStringLiteral("flowControl");
const QString mapDataBits = QStringLiteral("dataBits");
const QString mapStopBit = QStringLiteral("stopBit");
const QString lowerStopBit = QStringLiteral("stopbit");

// How the values of a kind are read from text, and how a form writes them.

struct Number
{
    static int read(const QString& text) { return text.toInt(); }
    static QVariant written(Form /*form*/, int number) { return number; }
};

struct LongNumber
{
    static qint64 read(const QString& text) { return text.toLongLong(); }
    static QVariant written(Form /*form*/, qint64 number) { return number; }
};

struct Switch
{
    static bool read(const QString& text) { return text.toUInt() == 1; }
    static QVariant written(Form /*form*/, bool isOn) { return int(isOn); }
};

struct Text
{
    static const QString& read(const QString& text) { return text; }
    static QVariant written(Form /*form*/, const QString& text) { return text; }
};

struct StatisticsMode
{
    static S::ECleanStatistics read(const QString& text)
    {
        const int mode = text.toInt();
        const bool isMode = mode >= S::CleanStatistics0 && mode <= S::CleanStatistics4;
        return isMode ? static_cast<S::ECleanStatistics>(mode) : S::CleanStatistics0;
    }
    static QVariant written(Form /*form*/, S::ECleanStatistics mode) { return int(mode); }
};

struct Limits
{
    static QList<AcceptorAttemptFilterItem> read(const QString& text)
    {
        QList<AcceptorAttemptFilterItem> limits;
        const QVariantList elements = JsonReader::readList(text);
        for (const QVariant& element : elements) {
            const QVariantMap map = element.toMap();
            if (map.isEmpty())
                continue;
            AcceptorAttemptFilterItem limit;
            limit.loadFromMap(map);
            limits.append(limit);
        }
        return limits;
    }

    static QVariant written(Form /*form*/, const QList<AcceptorAttemptFilterItem>& limits)
    {
        QVariantList elements;
        for (const AcceptorAttemptFilterItem& limit : limits)
            elements.append(limit.toMap());
        const QJsonDocument document = QJsonDocument::fromVariant(elements);
        return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
    }
};

// The numbers of a serial port are kept as they are; the list form has them as text.
template <typename Value, uint Mask = ~0U>
struct PortNumber
{
    static Value read(const QString& text) { return static_cast<Value>(text.toUInt() & Mask); }
    static QVariant written(Form form, Value value)
    {
        const int number = value;
        return form == ListForm ? QVariant(QString::number(number)) : QVariant(number);
    }
};

using BaudRate = PortNumber<QSerialPort::BaudRate>;
using DataBits = PortNumber<QSerialPort::DataBits>;
// The two low bits are all that count: 5 is one stop bit, 4 none that the port knows.
using StopBits = PortNumber<QSerialPort::StopBits, 3U>;

template <const auto& Table>
struct PortText
{
    using Value = decltype(Table[0].value);
    static auto read(const QString& text) { return SerialPortTexts::valueInSettings(Table, text); }
    static QVariant written(Form form, decltype(read({})) value)
    {
        return SerialPortTexts::text(Table, form, value);
    }
};

using FlowControl = PortText<SerialPortTexts::flowControls>;
using Parity = PortText<SerialPortTexts::parities>;

// A member of the device, or a static one of the service's settings.
template <auto Member, typename DevicePointer, typename... Arguments>
decltype(auto) call(DevicePointer device, Arguments&&... arguments)
{
    if constexpr (std::is_member_function_pointer_v<decltype(Member)>)
        return (device->*Member)(std::forward<Arguments>(arguments)...);
    else
        return Member(std::forward<Arguments>(arguments)...);
}

template <typename Kind, auto Setter>
void set(Device* device, const QString& text)
{
    call<Setter>(device, Kind::read(text));
}

template <typename Kind, auto Getter, auto Setter>
constexpr Row::Access access{
    [](Form form, const Device* device) { return Kind::written(form, call<Getter>(device)); },
    set<Kind, Setter>};

// The list counts the devices that it holds, the map shows as many as are configured.
constexpr Row::Access deviceCount{[](Form form, const Device* /*device*/) {
                                      return QVariant(form == ListForm ? int(S::devices.size())
                                                                       : S::deviceCount());
                                  },
                                  set<Number, S::setDeviceCount>};

// Devices have no switch of their own: this is the service's.
constexpr Row::Access commonPortLogs{
    [](Form /*form*/, const Device* /*device*/) { return QVariant(S::portLogs()); }, nullptr};

constexpr Row::Devices always{};
constexpr Row::Devices ofSerialPort{{}, Row::SerialPort, false};
constexpr Row::Devices ofTcp{{}, Row::TcpPort, false};
constexpr Row::Devices ofCCNet{{Acceptors::CCNet, Acceptors::CCNet}, Row::AnyPort, true};
constexpr Row::Devices ofId003{{Acceptors::Id003, Acceptors::ArdacEliteId003}, Row::AnyPort, false};
constexpr Row::Devices ofUniteller{
    {Acceptors::Uniteller, Acceptors::Uniteller}, Row::AnyPort, false};
constexpr Row::Devices ofPosD200{{Acceptors::PosD200, Acceptors::PosD200}, Row::AnyPort, false};

constexpr Row::Keys inBoth(const QString& key)
{
    return {key, key, key, Row::ExactKey};
}

constexpr Row::Keys inList(const QString& key)
{
    return {key, noKey, key, Row::ExactKey};
}

// Which keys are read in any case, and which are not, is part of the format: programs write
// "portName" and "flowControl", but "baudrate".
constexpr Row::Keys inAnyCase(const QString& key, const QString& mapKey, const QString& other)
{
    return {key, mapKey, other, Row::KeyInAnyCase};
}

constexpr Row serviceRows[] = {
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::ACCEPT_ALL), always,
     access<Switch, S::acceptAll, S::setAcceptAll>, "1"},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::MAX_SUMM), always,
     access<LongNumber, S::maxSumm, S::setMaxSumm>, "0"},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::RESET_STATISTICS), always,
     access<StatisticsMode, S::cleanStatistics, S::setCleanStatistics>, "0"},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::ATTEMPTS_FILTER), always,
     access<Limits, S::attemptsFilter, S::setAttemptsFilter>, "[]"},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::PORT_LOGGING), always,
     access<Switch, S::portLogs, S::setPortLogs>, "0"},
    {S::SERVICE_SECTION, inBoth(S::DEVICE_COUNT), always, deviceCount, "0"},
    {S::SERVICE_SECTION, inBoth(S::RESET_IDLE_TIMEOUT), always,
     access<LongNumber, S::resetIdleTimeout, S::setResetIdleTimeout>, "3600000"},
    {S::DISPENSER_SECTION, inBoth(S::ROUTE_MAP), always, access<Text, S::routeMap, S::setRouteMap>,
     ""},
};

constexpr Row deviceRows[] = {
    {S::DEBUG_SECTION, inBoth(S::PORT_LOGGING), always, commonPortLogs, "false"},
    {ccnetGroup, inList(S::RESPONSE_TIME), ofCCNet,
     access<Number, &Device::response_time, &Device::setResponse_time>, "1000"},
    {ccnetGroup, inList(S::POLLING_INTERVAL), ofCCNet,
     access<Number, &Device::polling_interval, &Device::setPolling_interval>, "200"},
    {ccnetGroup, inList(S::BILL_TABLE_INTERVAL), ofCCNet,
     access<Number, &Device::bill_table_interval, &Device::setBill_table_interval>, "5000"},
    {ccnetGroup, inList(S::RESET_INTERVAL), ofCCNet,
     access<Number, &Device::reset_interval, &Device::setReset_interval>, "3000"},
    {ccnetGroup, inList(S::REST_INTERVAL), ofCCNet,
     access<Number, &Device::rest_interval, &Device::setRest_interval>, "100"},
    {id003Group, inList(S::RESPONSE_TIME), ofId003,
     access<Number, &Device::response_time, &Device::setResponse_time>, nullptr},
    {id003Group, inList(S::POLLING_INTERVAL), ofId003,
     access<Number, &Device::polling_interval, &Device::setPolling_interval>, nullptr},
    {id003Group, inList(S::REST_INTERVAL), ofId003,
     access<Number, &Device::rest_interval, &Device::setRest_interval>, nullptr},
    {S::DEVICE_SECTION, inBoth(S::DEVICE_ID), always,
     access<Number, &Device::type, &Device::setType>, "0"},
    {S::DEVICE_SECTION, inBoth(S::DEVICE_NAME), always,
     access<Text, &Device::name, &Device::setName>, ""},
    {S::UNITAILER_GROUP, inList(S::UNITAILER_ID), ofUniteller,
     access<Text, &Device::cardReaderQuorId, &Device::setCardReaderQuorId>, "0000000000"},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_POS_ID), ofPosD200,
     access<Text, &Device::cardReaderQuorId, &Device::setCardReaderQuorId>, "-1"},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_TIMEOUT_ACK), ofPosD200,
     access<Number, &Device::timeOutAck, &Device::setTimeoutAck>, "5000"},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_TIMEOUT_PACKET), ofPosD200,
     access<Number, &Device::packetTimeout, &Device::setPacketTimeout>, "45000"},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_COUNT_NAK), ofPosD200,
     access<Number, &Device::maxNakCount, &Device::setMaxNakCount>, "3"},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_PACKET_SIZE), ofPosD200,
     access<Number, &Device::maxPackageSize, &Device::setMaxPackageSize>, "1024"},
    {S::HARDWARE_SECTION, inBoth(S::INTERFACE_TYPE), always,
     access<Text, &Device::interfaceType, &Device::setInterfaceType>, "rs232"},
    {S::HARDWARE_SECTION, inList(S::TCP_HOST), ofTcp,
     access<Text, &Device::tcpHost, &Device::setTcpHost>, "127.0.0.1"},
    {S::HARDWARE_SECTION, inList(S::TCP_PORT), ofTcp,
     access<Text, &Device::tcpPort, &Device::setTcpPort>, "10400"},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_NAME, mapPortName, S::PORT_NAME), ofSerialPort,
     access<Text, &Device::portName, &Device::setPortName>, ""},
    {S::HARDWARE_SECTION, inBoth(S::PORT_BAUDRATE), always,
     access<BaudRate, &Device::baudrate, &Device::setBaudrate>, "115200"},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_FLOW_CONTROL, mapFlowControl, S::PORT_FLOW_CONTROL),
     always, access<FlowControl, &Device::flowControl, &Device::setFlowControl>, "none"},
    {S::HARDWARE_SECTION, inBoth(S::PORT_PARITY), always,
     access<Parity, &Device::parityType, &Device::setParityType>, "none"},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_DATABITS, mapDataBits, S::PORT_DATABITS), always,
     access<DataBits, &Device::dataBits, &Device::setDataBitsType>, "8"},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_STOPBIT, mapStopBit, lowerStopBit), always,
     access<StopBits, &Device::stopBits, &Device::setStopBits>, "1"},
};

} // namespace

bool SettingRow::isFor(int model, const QString& interfaceType) const
{
    const bool isModel =
        devices.models[0] == 0 || model == devices.models[0] || model == devices.models[1];
    return isModel
        && (devices.port == AnyPort
            || (devices.port == TcpPort) == (interfaceType == tcpInterface));
}

namespace SettingsTable {

Rows serviceSettings()
{
    return {std::begin(serviceRows), std::end(serviceRows)};
}

Rows deviceSettings()
{
    return {std::begin(deviceRows), std::end(deviceRows)};
}

bool isServiceGroup(const QString& group)
{
    return group == S::ACCEPTOR_COMMON_SECTION || group == S::SERVICE_SECTION
        || group == S::DISPENSER_SECTION;
}

const SettingRow* findServiceSetting(const QString& group, const QString& key)
{
    const auto row =
        std::find_if(std::begin(serviceRows), std::end(serviceRows),
                     [&](const Row& r) { return key == r.keys.list && group == r.group; });
    return row == std::end(serviceRows) ? nullptr : row;
}

const SettingRow* findDeviceSetting(const QString& subgroup, const QString& key)
{
    const QString lowerKey = key.toLower();
    const Row* anywhere = nullptr;
    for (const Row& row : deviceRows) {
        if (!row.isCalled(key, lowerKey))
            continue;
        if (subgroup == row.group)
            return &row;
        if (row.devices.readInAnySubgroup)
            anywhere = &row;
    }
    return anywhere;
}

} // namespace SettingsTable
