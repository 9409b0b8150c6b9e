// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptordevicesettings.h"

#include "acceptorportsettingsconsts.h"
#include "serialporttexts_p.h"
#include "json/variants.h"

using namespace acceptorportsettingsconsts;

namespace {

const QString serialInterface = QStringLiteral("rs232");
constexpr int unknown = -1; // Qt 6 has no enumerators for it

// The description without serial number and firmware version.
QString nameFrom(const QString& description)
{
    const QString lower = description.toLower();
    const auto serial = lower.indexOf(QLatin1String("s/n"));
    const auto firmware = lower.indexOf(QLatin1String("firmware"));
    const auto cut = serial < 0 || firmware < 0 ? qMax(serial, firmware) : qMin(serial, firmware);
    return cut > 0 && cut < description.size() ? description.left(cut) : description;
}

QString flowControlText(QSerialPort::FlowControl flowControl)
{
    // Unlike the other forms, the record has no text for a number that is no flow control.
    const bool known = flowControl >= unknown && flowControl <= QSerialPort::SoftwareControl;
    using namespace SerialPortTexts;
    return known ? text(flowControls, FlatRecord, flowControl) : QString();
}

} // namespace

AbstractSettings::~AbstractSettings() = default;

TcpSettings::~TcpSettings() = default;

AcceptorDeviceSettings::AcceptorDeviceSettings()
    : palx::RS232Settings(QString())
    , m_interfaceType(serialInterface)
{
}

AcceptorDeviceSettings::AcceptorDeviceSettings(AcceptorInfo info)
    : AcceptorDeviceSettings()
{
    setAcceptorInfo(info);
}

AcceptorDeviceSettings::~AcceptorDeviceSettings() = default;

AcceptorInfo AcceptorDeviceSettings::toAcceptorInfo() const
{
    using namespace SerialPortTexts;
    const palx::Rs232PortSettings port = RS232Settings::portSettings();
    const int dataBits = port.dataBits() == unknown ? QSerialPort::Data8 : port.dataBits();
    AcceptorInfo info;
    info.type = static_cast<quint16>(type());
    info.portName = portName();
    info.portSettings = {
        {MAP_BAUDRATE, QString::number(port.baudRate())},
        {MAP_PORTNAME, portName()},
        {MAP_FLOWCONTROL, flowControlText(port.flowControl())},
        {MAP_PARITY, text(parities, FlatRecord, port.parity())},
        {MAP_DATABITS, QString::number(dataBits)},
        {MAP_STOPBITS, QString::number(port.stopBits() == QSerialPort::TwoStop ? 2 : 1)},
    };
    return info;
}

void AcceptorDeviceSettings::setAcceptorInfo(const AcceptorInfo& info)
{
    const auto parameter = [&info](const QString& key) {
        return Variants::toString(info.portSettings.value(key));
    };
    setInterfaceType(serialInterface);
    setPortName(info.portName);
    setBaudrateStr(parameter(MAP_BAUDRATE));
    setFlowControlStr(parameter(MAP_FLOWCONTROL));
    setParityTypeStr(parameter(MAP_PARITY));
    setStopBitsStr(parameter(MAP_STOPBITS));
    setDataBitsTypeStr(parameter(MAP_DATABITS));
    setName(nameFrom(info.description));
    setType(info.type);
}

QString AcceptorDeviceSettings::interfaceType() const
{
    return m_interfaceType;
}

void AcceptorDeviceSettings::setInterfaceType(const QString& interfaceType)
{
    m_interfaceType = interfaceType;
}

QString AcceptorDeviceSettings::name() const
{
    return m_name;
}

void AcceptorDeviceSettings::setName(const QString& name)
{
    m_name = name;
}

int AcceptorDeviceSettings::type() const
{
    return m_type;
}

void AcceptorDeviceSettings::setType(int type)
{
    m_type = type;
}

QString AcceptorDeviceSettings::cardReaderQuorId() const
{
    return m_cardReaderQuorId;
}

void AcceptorDeviceSettings::setCardReaderQuorId(const QString& id)
{
    m_cardReaderQuorId = id;
}

QString AcceptorDeviceSettings::tcpHost() const
{
    return m_tcpHost;
}

void AcceptorDeviceSettings::setTcpHost(const QString& host)
{
    m_tcpHost = host;
}

QString AcceptorDeviceSettings::tcpPort() const
{
    return m_tcpPort;
}

void AcceptorDeviceSettings::setTcpPort(const QString& port)
{
    m_tcpPort = port;
}

int AcceptorDeviceSettings::response_time() const
{
    return m_responseTime;
}

void AcceptorDeviceSettings::setResponse_time(int value)
{
    m_responseTime = value;
}

int AcceptorDeviceSettings::timeOutAck() const
{
    return m_responseTime;
}

void AcceptorDeviceSettings::setTimeoutAck(int value)
{
    m_responseTime = value;
}

int AcceptorDeviceSettings::polling_interval() const
{
    return m_pollingInterval;
}

void AcceptorDeviceSettings::setPolling_interval(int value)
{
    m_pollingInterval = value;
}

int AcceptorDeviceSettings::packetTimeout() const
{
    return m_pollingInterval;
}

void AcceptorDeviceSettings::setPacketTimeout(int value)
{
    m_pollingInterval = value;
}

int AcceptorDeviceSettings::bill_table_interval() const
{
    return m_billTableInterval;
}

void AcceptorDeviceSettings::setBill_table_interval(int value)
{
    m_billTableInterval = value;
}

int AcceptorDeviceSettings::maxNakCount() const
{
    return m_billTableInterval;
}

void AcceptorDeviceSettings::setMaxNakCount(int value)
{
    m_billTableInterval = value;
}

int AcceptorDeviceSettings::reset_interval() const
{
    return m_resetInterval;
}

void AcceptorDeviceSettings::setReset_interval(int value)
{
    m_resetInterval = value;
}

int AcceptorDeviceSettings::maxPackageSize() const
{
    return m_resetInterval;
}

void AcceptorDeviceSettings::setMaxPackageSize(int value)
{
    m_resetInterval = value;
}

int AcceptorDeviceSettings::rest_interval() const
{
    return m_restInterval;
}

void AcceptorDeviceSettings::setRest_interval(int value)
{
    m_restInterval = value;
}

void AcceptorDeviceSettings::setBaudrateStr(const QString& text)
{
    bool isNumber = false;
    const uint rate = Variants::number(text).toUInt(&isNumber);
    if (isNumber)
        setBaudrate(static_cast<QSerialPort::BaudRate>(rate));
}

void AcceptorDeviceSettings::setFlowControlStr(const QString& text)
{
    setFlowControl(SerialPortTexts::valueInRecord(SerialPortTexts::flowControls, text));
}

void AcceptorDeviceSettings::setParityTypeStr(const QString& text)
{
    setParityType(SerialPortTexts::valueInRecord(SerialPortTexts::parities, text));
}

void AcceptorDeviceSettings::setDataBitsTypeStr(const QString& text)
{
    for (const auto bits : {QSerialPort::Data5, QSerialPort::Data6, QSerialPort::Data7}) {
        if (text == QString::number(bits))
            return setDataBitsType(bits);
    }
    setDataBitsType(QSerialPort::Data8);
}

void AcceptorDeviceSettings::setStopBitsStr(const QString& text)
{
    setStopBits(text == QLatin1String("2") ? QSerialPort::TwoStop : QSerialPort::OneStop);
}
