// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingstable_p.h"

#include "acceptors.h"
#include "droutemapitem.h"
#include "settingsmanager.h"
#include "json/jsonreader.h"
#include "json/variants.h"

#include <QJsonDocument>

#include <limits>

namespace {

using S = AcceptorSettings;
using SM = acceptorSettings::SettingsManager;
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

void tell(bool* isUnderstood, bool answer)
{
    if (isUnderstood)
        *isUnderstood = answer;
}

// How the values of a kind are read from text, and how a form writes them. Reading tells whether
// the value means what the text says.

template <auto ToNumber>
struct WholeNumber
{
    static auto read(const QString& text, bool* isUnderstood)
    {
        return (Variants::number(text).*ToNumber)(isUnderstood, 10);
    }
    template <typename Value>
    static QVariant written(Form /*form*/, Value number)
    {
        return number;
    }
};

using Number = WholeNumber<&QString::toInt>;
using LongNumber = WholeNumber<&QString::toLongLong>;

struct Switch
{
    static bool read(const QString& text, bool* isUnderstood)
    {
        const bool isOn = Variants::number(text).toUInt() == 1;
        tell(isUnderstood, isOn || text == QLatin1String("0"));
        return isOn;
    }
    static QVariant written(Form /*form*/, bool isOn) { return int(isOn); }
};

struct Text
{
    static const QString& read(const QString& text, bool* isUnderstood)
    {
        tell(isUnderstood, true);
        return text;
    }
    static QVariant written(Form /*form*/, const QString& text) { return text; }
};

// Without it the device is not found.
struct Address : Text
{
    static const QString& read(const QString& text, bool* isUnderstood)
    {
        tell(isUnderstood, !text.isEmpty());
        return text;
    }
};

// The service makes a number of it, the model keeps the text.
struct NumberText : Text
{
    static const QString& read(const QString& text, bool* isUnderstood)
    {
        if (isUnderstood)
            Variants::number(text).toInt(isUnderstood);
        return text;
    }
};

struct StatisticsMode
{
    static S::ECleanStatistics read(const QString& text, bool* isUnderstood)
    {
        bool isNumber = false;
        const int mode = Variants::number(text).toInt(&isNumber);
        const bool isMode = mode >= S::CleanStatistics0 && mode <= S::CleanStatistics4;
        tell(isUnderstood, isNumber && isMode);
        return isMode ? static_cast<S::ECleanStatistics>(mode) : S::CleanStatistics0;
    }
    static QVariant written(Form /*form*/, S::ECleanStatistics mode) { return int(mode); }
};

bool isArray(const QString& text)
{
    JsonReader reader(text);
    return reader.isAtArray() && reader.skipValue() && reader.isAtEnd();
}

bool isPositive(const QVariant& number)
{
    return Variants::number(Variants::toString(number)).toInt() > 0;
}

struct Limits
{
    static QList<AcceptorAttemptFilterItem> read(const QString& text, bool* isUnderstood)
    {
        QList<AcceptorAttemptFilterItem> limits;
        bool areSound = true;
        const QVariantList elements = JsonReader::readList(text);
        for (const QVariant& element : elements) {
            const QVariantMap map = Variants::toMap(element);
            areSound = areSound && isPositive(map.value(QStringLiteral("denom")))
                && isPositive(map.value(QStringLiteral("attempts")));
            if (map.isEmpty())
                continue;
            AcceptorAttemptFilterItem limit;
            limit.loadFromMap(map);
            limits.append(limit);
        }
        if (isUnderstood)
            *isUnderstood = areSound && isArray(text);
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

struct Routes : Text
{
    static const QString& read(const QString& text, bool* isUnderstood)
    {
        if (isUnderstood) {
            const bool isWhole =
                JsonReader::readList(text).size() == DRouteMap::fromJson(text).size();
            *isUnderstood = text.isEmpty() || (isArray(text) && isWhole);
        }
        return text;
    }
};

// The numbers of a serial port are kept as they are; the list form has them as text. Of stop bits
// the two low bits are all that count: 5 is one stop bit, 4 none that the port knows.
template <typename Value, uint Mask = ~0U>
struct PortNumber
{
    static Value read(const QString& text, bool* isUnderstood)
    {
        bool isNumber = false;
        const uint number = Variants::number(text).toUInt(&isNumber);
        tell(isUnderstood, isNumber && (number & Mask) == number);
        return static_cast<Value>(number & Mask);
    }
    static QVariant written(Form form, Value value)
    {
        const int number = value;
        return form == ListForm ? QVariant(QString::number(number)) : QVariant(number);
    }
};

using BaudRate = PortNumber<QSerialPort::BaudRate>;
using DataBits = PortNumber<QSerialPort::DataBits>;
using StopBits = PortNumber<QSerialPort::StopBits, 3U>;

template <const auto& Table>
struct PortText
{
    static auto read(const QString& text, bool* isUnderstood)
    {
        return SerialPortTexts::valueInSettings(Table, text, isUnderstood);
    }
    template <typename Value>
    static QVariant written(Form form, Value value)
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

template <typename Kind, auto Getter>
QVariant value(Form form, const Device* device)
{
    return Kind::written(form, call<Getter>(device));
}

template <typename Kind, auto Setter>
void set(Device* device, const QString& text)
{
    call<Setter>(device, Kind::read(text, nullptr));
}

template <typename Kind>
QVariant readAs(const QString& text, bool* isUnderstood)
{
    return Kind::written(ListForm, Kind::read(text, isUnderstood));
}

template <typename Kind, auto Getter, auto Setter>
constexpr Row::Access access{value<Kind, Getter>, set<Kind, Setter>, readAs<Kind>};

// The list counts the devices that it holds, the map shows as many as are configured.
QVariant countOfDevices(Form form, const Device* /*device*/)
{
    return form == ListForm ? int(S::devices.size()) : S::deviceCount();
}

constexpr Row::Access deviceCount{countOfDevices, set<Number, S::setDeviceCount>, readAs<Number>};

// The model writes the service's switch for each device. The service reads it as QVariant does.
struct DeviceSwitch
{
    static bool read(const QString& text, bool* isUnderstood)
    {
        tell(isUnderstood,
             text == QLatin1String("0") || text == QLatin1String("1")
                 || text == QLatin1String("false") || text == QLatin1String("true"));
        return QVariant(text).toBool();
    }
    static QVariant written(Form /*form*/, bool isOn) { return isOn; }
};

constexpr Row::Access commonPortLogs{value<DeviceSwitch, S::portLogs>, nullptr,
                                     readAs<DeviceSwitch>};

constexpr Row::Access ofService{nullptr, nullptr, readAs<Text>};

// A protocol parameter is read in any sub-group.
template <auto Setter>
constexpr Row::Access parameterOfService{nullptr, set<Number, Setter>, readAs<Number>};

// The ranges in which the service works.

constexpr qint64 intMax = std::numeric_limits<qint32>::max();
constexpr qint64 longMax = std::numeric_limits<qint64>::max();

constexpr Row::Values number(qint64 minimum, qint64 maximum)
{
    return {SettingDescription::Number, minimum, maximum};
}

constexpr Row::Values choice(QStringList (*choices)())
{
    return {SettingDescription::Choice, {}, {}, choices};
}

constexpr Row::Values interval = number(0, intMax);
constexpr Row::Values onOff{SettingDescription::Switch};
constexpr Row::Values anyText{SettingDescription::Text};
constexpr Row::Values limits{SettingDescription::AttemptsLimits};
constexpr Row::Values routes{SettingDescription::RouteMap};

QStringList models()
{
    QStringList ids;
    const QList<SupportedDevice> catalogue = Acceptors::supportedDevices();
    for (const SupportedDevice& model : catalogue)
        ids += model.value(QStringLiteral("id")).toString();
    return ids;
}

QStringList interfaceTypes()
{
    return {QStringLiteral("rs232"), tcpInterface};
}

template <const auto& Table>
QStringList portTexts()
{
    QStringList texts;
    for (const auto& row : Table)
        texts += row.texts[ListForm];
    return texts;
}

template <int First, int Last>
QStringList numbers()
{
    QStringList texts;
    for (int number = First; number <= Last; ++number)
        texts += QString::number(number);
    return texts;
}

template <auto... Models>
bool isOneOf(int model)
{
    return ((model == Models) || ...);
}

constexpr Row::Devices always{};
constexpr Row::Devices ofSerialPort{nullptr, Row::SerialPort};
constexpr Row::Devices ofTcp{nullptr, Row::TcpPort};
constexpr Row::Devices ofCCNet{isOneOf<Acceptors::CCNet>, Row::AnyPort, true};
constexpr Row::Devices ofId003{isOneOf<Acceptors::Id003, Acceptors::ArdacEliteId003>, Row::AnyPort};
constexpr Row::Devices ofUniteller{isOneOf<Acceptors::Uniteller>, Row::AnyPort};
constexpr Row::Devices ofPosD200{isOneOf<Acceptors::PosD200>, Row::AnyPort};

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
     access<Switch, S::acceptAll, S::setAcceptAll>, onOff, "1",
     QT_TRANSLATE_NOOP("SettingDescription", "Accept all"),
     QT_TRANSLATE_NOOP("SettingDescription", "Whether all notes and coins are accepted.")},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::MAX_SUMM), always,
     access<LongNumber, S::maxSumm, S::setMaxSumm>, number(0, longMax), "0",
     QT_TRANSLATE_NOOP("SettingDescription", "Maximum sum"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "The maximum sum, in the unit that the service uses.")},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::RESET_STATISTICS), always,
     access<StatisticsMode, S::cleanStatistics, S::setCleanStatistics>,
     number(S::CleanStatistics0, S::CleanStatistics4), "0",
     QT_TRANSLATE_NOOP("SettingDescription", "Statistics reset mode"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How the service resets its statistics, as the service's own number.")},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::ATTEMPTS_FILTER), always,
     access<Limits, S::attemptsFilter, S::setAttemptsFilter>, limits, "[]",
     QT_TRANSLATE_NOOP("SettingDescription", "Anti-fishing limits"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How many rejections of a denomination a session allows.")},
    {S::ACCEPTOR_COMMON_SECTION, inBoth(S::PORT_LOGGING), always,
     access<Switch, S::portLogs, S::setPortLogs>, onOff, "0",
     QT_TRANSLATE_NOOP("SettingDescription", "Port log"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Whether the traffic on the devices' ports is logged.")},
    {S::SERVICE_SECTION, inBoth(S::DEVICE_COUNT), always, deviceCount, number(0, 32767), "0",
     QT_TRANSLATE_NOOP("SettingDescription", "Number of devices"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How many devices the service drives: those with an index below it.")},
    {S::SERVICE_SECTION, inBoth(S::RESET_IDLE_TIMEOUT), always,
     access<LongNumber, S::resetIdleTimeout, S::setResetIdleTimeout>, number(0, longMax), "3600000",
     QT_TRANSLATE_NOOP("SettingDescription", "Idle reset timeout"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Idle time after which the service resets, in the service's own unit.")},
    {S::DISPENSER_SECTION, inBoth(S::ROUTE_MAP), always,
     access<Routes, S::routeMap, S::setRouteMap>, routes, "",
     QT_TRANSLATE_NOOP("SettingDescription", "Route map"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Where the service sends notes and coins of each kind.")},
};

constexpr Row deviceRows[] = {
    {S::DEBUG_SECTION, inBoth(S::PORT_LOGGING), always, commonPortLogs, onOff, "false",
     QT_TRANSLATE_NOOP("SettingDescription", "Port log of the device"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Whether the traffic on this device's port is logged; a list that is "
                       "written anew has the common switch.")},
    {ccnetGroup, inList(S::RESPONSE_TIME), ofCCNet,
     access<Number, &Device::response_time, &Device::setResponse_time>, interval, "1000",
     QT_TRANSLATE_NOOP("SettingDescription", "Response time"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How long an answer of the device may take, in the protocol's own unit.")},
    {ccnetGroup, inList(S::POLLING_INTERVAL), ofCCNet,
     access<Number, &Device::polling_interval, &Device::setPolling_interval>, interval, "200",
     QT_TRANSLATE_NOOP("SettingDescription", "Polling interval"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How often the device is asked for its state, in the protocol's own unit.")},
    {ccnetGroup, inList(S::BILL_TABLE_INTERVAL), ofCCNet,
     access<Number, &Device::bill_table_interval, &Device::setBill_table_interval>, interval,
     "5000", QT_TRANSLATE_NOOP("SettingDescription", "Bill table interval"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Pace of reading the device's table of notes, in the protocol's own unit.")},
    {ccnetGroup, inList(S::RESET_INTERVAL), ofCCNet,
     access<Number, &Device::reset_interval, &Device::setReset_interval>, interval, "3000",
     QT_TRANSLATE_NOOP("SettingDescription", "Reset interval"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Pace of resetting the device, in the protocol's own unit.")},
    {ccnetGroup, inList(S::REST_INTERVAL), ofCCNet,
     access<Number, &Device::rest_interval, &Device::setRest_interval>, interval, "100",
     QT_TRANSLATE_NOOP("SettingDescription", "Rest interval"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Rest between two messages to the device, in the protocol's own unit.")},
    {id003Group, inList(S::RESPONSE_TIME), ofId003,
     access<Number, &Device::response_time, &Device::setResponse_time>, interval, nullptr,
     QT_TRANSLATE_NOOP("SettingDescription", "Response time"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How long an answer of the device may take, in the protocol's own unit.")},
    {id003Group, inList(S::POLLING_INTERVAL), ofId003,
     access<Number, &Device::polling_interval, &Device::setPolling_interval>, interval, nullptr,
     QT_TRANSLATE_NOOP("SettingDescription", "Polling interval"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How often the device is asked for its state, in the protocol's own unit.")},
    {id003Group, inList(S::REST_INTERVAL), ofId003,
     access<Number, &Device::rest_interval, &Device::setRest_interval>, interval, nullptr,
     QT_TRANSLATE_NOOP("SettingDescription", "Rest interval"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Rest between two messages to the device, in the protocol's own unit.")},
    {S::DEVICE_SECTION, inBoth(S::DEVICE_ID), always,
     access<Number, &Device::type, &Device::setType>, choice(models), "0",
     QT_TRANSLATE_NOOP("SettingDescription", "Model"),
     QT_TRANSLATE_NOOP("SettingDescription", "The device model, as its number in the catalogue.")},
    {S::DEVICE_SECTION, inBoth(S::DEVICE_NAME), always,
     access<Text, &Device::name, &Device::setName>, anyText, "",
     QT_TRANSLATE_NOOP("SettingDescription", "Name"),
     QT_TRANSLATE_NOOP("SettingDescription", "What the device is called.")},
    {S::UNITAILER_GROUP, inList(S::UNITAILER_ID), ofUniteller,
     access<Text, &Device::cardReaderQuorId, &Device::setCardReaderQuorId>, anyText, "0000000000",
     QT_TRANSLATE_NOOP("SettingDescription", "Terminal identifier"),
     QT_TRANSLATE_NOOP("SettingDescription", "The identifier of the card terminal.")},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_POS_ID), ofPosD200,
     access<Text, &Device::cardReaderQuorId, &Device::setCardReaderQuorId>, anyText, "-1",
     QT_TRANSLATE_NOOP("SettingDescription", "Terminal identifier"),
     QT_TRANSLATE_NOOP("SettingDescription", "The identifier of the card terminal.")},
    // Of the protocol parameters this protocol has its own names.
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_TIMEOUT_ACK), ofPosD200,
     access<Number, &Device::response_time, &Device::setResponse_time>, interval, "5000",
     QT_TRANSLATE_NOOP("SettingDescription", "Acknowledgement timeout"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How long an acknowledgement may take, in the protocol's own unit.")},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_TIMEOUT_PACKET), ofPosD200,
     access<Number, &Device::polling_interval, &Device::setPolling_interval>, interval, "45000",
     QT_TRANSLATE_NOOP("SettingDescription", "Packet timeout"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How long a packet may take, in the protocol's own unit.")},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_COUNT_NAK), ofPosD200,
     access<Number, &Device::bill_table_interval, &Device::setBill_table_interval>, interval, "3",
     QT_TRANSLATE_NOOP("SettingDescription", "Negative acknowledgements"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "After how many negative acknowledgements a packet is given up.")},
    {S::SM_G_POSD2000, inList(S::SM_P_POSD2000_PACKET_SIZE), ofPosD200,
     access<Number, &Device::reset_interval, &Device::setReset_interval>, number(1, intMax), "1024",
     QT_TRANSLATE_NOOP("SettingDescription", "Packet size"),
     QT_TRANSLATE_NOOP("SettingDescription", "The largest packet, in bytes.")},
    {S::HARDWARE_SECTION, inBoth(S::INTERFACE_TYPE), always,
     access<Text, &Device::interfaceType, &Device::setInterfaceType>, choice(interfaceTypes),
     "rs232", QT_TRANSLATE_NOOP("SettingDescription", "Interface"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "How the device is connected: a serial port, or TCP.")},
    {S::HARDWARE_SECTION, inList(S::TCP_HOST), ofTcp,
     access<Address, &Device::tcpHost, &Device::setTcpHost>, anyText, "127.0.0.1",
     QT_TRANSLATE_NOOP("SettingDescription", "TCP host"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Name or address of the host that answers for the device.")},
    {S::HARDWARE_SECTION, inList(S::TCP_PORT), ofTcp,
     access<NumberText, &Device::tcpPort, &Device::setTcpPort>, number(1, 65535), "10400",
     QT_TRANSLATE_NOOP("SettingDescription", "TCP port"),
     QT_TRANSLATE_NOOP("SettingDescription", "TCP port of the device.")},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_NAME, mapPortName, S::PORT_NAME), ofSerialPort,
     access<Address, &Device::portName, &Device::setPortName>, anyText, "",
     QT_TRANSLATE_NOOP("SettingDescription", "Serial port"),
     QT_TRANSLATE_NOOP("SettingDescription", "The serial port that the device is attached to.")},
    {S::HARDWARE_SECTION, inBoth(S::PORT_BAUDRATE), always,
     access<BaudRate, &Device::baudrate, &Device::setBaudrate>, number(1, 4000000), "115200",
     QT_TRANSLATE_NOOP("SettingDescription", "Baud rate"),
     QT_TRANSLATE_NOOP("SettingDescription", "Speed of the serial port, in bits per second.")},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_FLOW_CONTROL, mapFlowControl, S::PORT_FLOW_CONTROL),
     always, access<FlowControl, &Device::flowControl, &Device::setFlowControl>,
     choice(portTexts<SerialPortTexts::flowControls>), "none",
     QT_TRANSLATE_NOOP("SettingDescription", "Flow control"),
     QT_TRANSLATE_NOOP(
         "SettingDescription",
         "Who stops the serial line: the hardware, characters in the line, or none.")},
    {S::HARDWARE_SECTION, inBoth(S::PORT_PARITY), always,
     access<Parity, &Device::parityType, &Device::setParityType>,
     choice(portTexts<SerialPortTexts::parities>), "none",
     QT_TRANSLATE_NOOP("SettingDescription", "Parity"),
     QT_TRANSLATE_NOOP("SettingDescription", "Parity of the serial line.")},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_DATABITS, mapDataBits, S::PORT_DATABITS), always,
     access<DataBits, &Device::dataBits, &Device::setDataBitsType>, choice(numbers<5, 8>), "8",
     QT_TRANSLATE_NOOP("SettingDescription", "Data bits"),
     QT_TRANSLATE_NOOP("SettingDescription", "Data bits of a character on the serial line.")},
    {S::HARDWARE_SECTION, inAnyCase(S::PORT_STOPBIT, mapStopBit, lowerStopBit), always,
     access<StopBits, &Device::stopBits, &Device::setStopBits>, choice(numbers<1, 3>), "1",
     QT_TRANSLATE_NOOP("SettingDescription", "Stop bits"),
     QT_TRANSLATE_NOOP("SettingDescription",
                       "Stop bits of a character on the serial line; 3 means one and a half.")},
};

constexpr Row storeRows[] = {
    {SM::SM_G_SERVICE, inList(SM::SM_P_RESET_AFTER_EMPTY_SESSIONS), always, ofService, anyText,
     "3"},
    {SM::SM_G_DEVICE, inList(SM::SM_P_ACCEPT_ON_JAM), always, ofService, anyText, "0"},
    {SM::SM_G_ICT, inList(SM::SM_P_ICT_RESET_TIMEOUT), always, ofService, anyText, "0"},
    {SM::SM_G_SSP, inList(SM::SM_P_SSP_RESPONSE_TIME), always,
     parameterOfService<&Device::setResponse_time>, interval, "5000"},
    {SM::SM_G_SSP, inList(SM::SM_P_SSP_REST_INTERVAL), always,
     parameterOfService<&Device::setRest_interval>, interval, "100"},
    {SM::SM_G_SSP, inList(SM::SM_P_SSP_GET_LEVELS_REST_TIME), always, ofService, anyText, "0"},
    {SM::SM_G_SSP, inList(SM::SM_P_SSP_PAYOUT_REST_TIME), always, ofService, anyText, "0"},
    {SM::SM_G_SSP, inList(SM::SM_P_SSP_LOG_DECRYPTED_MSG), always, ofService, anyText, "false"},
};

} // namespace

bool SettingRow::isFor(int model, const QString& interfaceType) const
{
    return (!devices.hasModel || devices.hasModel(model))
        && (devices.port == AnyPort
            || (devices.port == TcpPort) == (interfaceType == tcpInterface));
}

namespace SettingsTable {

const Rows serviceSettings{std::begin(serviceRows), std::end(serviceRows)};
const Rows deviceSettings{std::begin(deviceRows), std::end(deviceRows)};
const Rows storeSettings{std::begin(storeRows), std::end(storeRows)};

const SettingRow& placeOf(const SettingRow& row)
{
    for (const SettingRow& other : deviceRows) {
        if (row.access.set && other.access.set == row.access.set)
            return other;
    }
    return row;
}

} // namespace SettingsTable

SettingGroup::SettingGroup(const QString& path)
{
    const QString group = path.left(path.indexOf(QLatin1Char('/')));
    const auto begin = group.size() + 1;
    const auto end = path.indexOf(QLatin1Char('/'), begin);
    *this = SettingGroup(group, path.mid(begin, end < 0 ? -1 : end - begin));
}

SettingGroup::SettingGroup(const QString& group, const QString& subgroup)
{
    if (group == S::ACCEPTOR_COMMON_SECTION || group == S::SERVICE_SECTION
        || group == S::DISPENSER_SECTION) {
        m_kind = OfService;
        m_name = group;
    } else if (group.contains(S::DEVICE)) {
        m_kind = OfDevice;
        m_deviceIndex = Variants::number(QString(group).remove(S::DEVICE)).toInt();
        m_name = subgroup;
    }
}

const SettingRow* SettingGroup::find(const QString& key, const SettingRow* likely) const
{
    if (m_kind == OfNone)
        return nullptr;
    const SettingsTable::Rows rows =
        isOfService() ? SettingsTable::serviceSettings : SettingsTable::deviceSettings;
    if (likely && likely != rows.end() && Row::isEqual(key, likely->keys.list)
        && m_name == likely->group)
        return likely;
    const Row* anywhere = nullptr;
    for (const Row& row : rows) {
        if (!row.isCalled(key))
            continue;
        if (m_name == row.group)
            return &row;
        if (row.devices.readInAnySubgroup)
            anywhere = &row;
    }
    return anywhere;
}
