// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "rs232settings.h"

namespace palx {

namespace {

const QLatin1String groupKey("group");
const QLatin1String nameKey("key");
const QLatin1String valueKey("value");

// The numeric settings by name, each read and written through the virtual accessors.
struct PortParameter
{
    QLatin1String name;
    int (*get)(const RS232Settings& settings);
    void (*set)(RS232Settings& settings, int value);
};

template <typename T, T (RS232Settings::*Get)() const, void (RS232Settings::*Set)(T)>
PortParameter portParameter(QLatin1String name)
{
    return {name, [](const RS232Settings& settings) { return static_cast<int>((settings.*Get)()); },
            [](RS232Settings& settings, int value) { (settings.*Set)(static_cast<T>(value)); }};
}

using S = RS232Settings;
const PortParameter portParameters[] = {
    portParameter<QSerialPort::BaudRate, &S::baudrate, &S::setBaudrate>(QLatin1String("baudrate")),
    portParameter<QSerialPort::DataBits, &S::dataBits, &S::setDataBitsType>(
        QLatin1String("databits")),
    portParameter<QSerialPort::Parity, &S::parityType, &S::setParityType>(QLatin1String("parity")),
    portParameter<QSerialPort::StopBits, &S::stopBits, &S::setStopBits>(QLatin1String("stopbits")),
    portParameter<QSerialPort::FlowControl, &S::flowControl, &S::setFlowControl>(
        QLatin1String("flowcontrol")),
};
const QLatin1String portNameKey("portname");

} // namespace

RS232Settings::RS232Settings(const QString& section)
    : m_section(section)
{
}

RS232Settings::~RS232Settings() = default;

QString RS232Settings::portName() const
{
    return m_portName;
}

void RS232Settings::setPortName(const QString& portName)
{
    m_portName = portName;
}

QSerialPort::BaudRate RS232Settings::baudrate() const
{
    return m_portSettings.baudRate();
}

void RS232Settings::setBaudrate(QSerialPort::BaudRate baudRate)
{
    m_portSettings.setBaudRate(baudRate);
}

QSerialPort::FlowControl RS232Settings::flowControl() const
{
    return m_portSettings.flowControl();
}

void RS232Settings::setFlowControl(QSerialPort::FlowControl flowControl)
{
    m_portSettings.setFlowControl(flowControl);
}

QSerialPort::Parity RS232Settings::parityType() const
{
    return m_portSettings.parity();
}

void RS232Settings::setParityType(QSerialPort::Parity parity)
{
    m_portSettings.setParity(parity);
}

QSerialPort::DataBits RS232Settings::dataBits() const
{
    return m_portSettings.dataBits();
}

void RS232Settings::setDataBitsType(QSerialPort::DataBits dataBits)
{
    m_portSettings.setDataBits(dataBits);
}

QSerialPort::StopBits RS232Settings::stopBits() const
{
    return m_portSettings.stopBits();
}

void RS232Settings::setStopBits(QSerialPort::StopBits stopBits)
{
    m_portSettings.setStopBits(stopBits);
}

Rs232PortSettings RS232Settings::portSettings() const
{
    return m_portSettings;
}

void RS232Settings::setPortSettings(const Rs232PortSettings& settings)
{
    m_portSettings = settings;
}

QString RS232Settings::section() const
{
    return m_section;
}

void RS232Settings::setSection(const QString& section)
{
    m_section = section;
}

QList<QVariant> RS232Settings::toList() const
{
    const auto setting = [this](QLatin1String name, const QVariant& value) {
        return QVariantMap{{groupKey, section()}, {nameKey, QString(name)}, {valueKey, value}};
    };
    QList<QVariant> list{setting(portNameKey, portName())};
    for (const PortParameter& parameter : portParameters)
        list.append(setting(parameter.name, parameter.get(*this)));
    return list;
}

void RS232Settings::setList(const QList<QVariant>& list)
{
    for (const QVariant& setting : list)
        setValue(setting.toMap());
}

void RS232Settings::setValue(const QVariantMap& setting)
{
    if (setting.value(groupKey).toString() != section())
        return;
    const QString name = setting.value(nameKey).toString();
    const QVariant value = setting.value(valueKey);
    if (name == portNameKey)
        setPortName(value.toString());
    for (const PortParameter& parameter : portParameters) {
        if (name == parameter.name)
            parameter.set(*this, value.toInt());
    }
}

} // namespace palx
