// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "palx_global.h"

#include <QSerialPort>
#include <QString>
#include <QVariant>

namespace palx {

/// The five parameters of a serial port; a new value is 9600 baud, 8 data bits, no parity, one
/// stop bit, no flow control. Any number is kept, also one without an enumerator.
class Rs232PortSettings
{
public:
    /// In bits per second.
    QSerialPort::BaudRate baudRate() const
    {
        return static_cast<QSerialPort::BaudRate>(m_baudRate);
    }
    void setBaudRate(QSerialPort::BaudRate baudRate) { m_baudRate = baudRate; }

    /// Data bits of a character.
    QSerialPort::DataBits dataBits() const
    {
        return static_cast<QSerialPort::DataBits>(m_dataBits);
    }
    void setDataBits(QSerialPort::DataBits dataBits) { m_dataBits = dataBits; }

    /// What the parity bit of a character is; without one by default.
    QSerialPort::Parity parity() const { return static_cast<QSerialPort::Parity>(m_parity); }
    void setParity(QSerialPort::Parity parity) { m_parity = parity; }

    /// Stop bits of a character, as Qt's enumerators: OneAndHalfStop is the number 3.
    QSerialPort::StopBits stopBits() const
    {
        return static_cast<QSerialPort::StopBits>(m_stopBits);
    }
    void setStopBits(QSerialPort::StopBits stopBits) { m_stopBits = stopBits; }

    /// How either side makes the other one wait.
    QSerialPort::FlowControl flowControl() const
    {
        return static_cast<QSerialPort::FlowControl>(m_flowControl);
    }
    void setFlowControl(QSerialPort::FlowControl flowControl) { m_flowControl = flowControl; }

private:
    // Numbers: 921600 baud is beyond what a variable of the enumeration's type must hold.
    qint32 m_baudRate = QSerialPort::Baud9600;
    qint32 m_dataBits = QSerialPort::Data8;
    qint32 m_parity = QSerialPort::NoParity;
    qint32 m_stopBits = QSerialPort::OneStop;
    qint32 m_flowControl = QSerialPort::NoFlowControl;
};

/// The settings of one serial port under a section name. Setters store what they are given.
class PALX_EXPORT RS232Settings
{
public:
    /// @param section name of the section that the settings belong to
    RS232Settings(const QString& section);
    virtual ~RS232Settings();

    /// The port, for example "ttyS0"; empty until set.
    virtual QString portName() const;
    virtual void setPortName(const QString& portName);

    /// One of the five port parameters; that of a new Rs232PortSettings until set.
    virtual QSerialPort::BaudRate baudrate() const;
    virtual void setBaudrate(QSerialPort::BaudRate baudRate);
    virtual QSerialPort::FlowControl flowControl() const;
    virtual void setFlowControl(QSerialPort::FlowControl flowControl);
    virtual QSerialPort::Parity parityType() const;
    virtual void setParityType(QSerialPort::Parity parity);
    virtual QSerialPort::DataBits dataBits() const;
    virtual void setDataBitsType(QSerialPort::DataBits dataBits);
    virtual QSerialPort::StopBits stopBits() const;
    virtual void setStopBits(QSerialPort::StopBits stopBits);

    /// The five port parameters as one value, without the other accessors being called.
    virtual Rs232PortSettings portSettings() const;
    virtual void setPortSettings(const Rs232PortSettings& settings);

    /// The section that the settings belong to: the "group" of the list.
    virtual QString section() const;
    virtual void setSection(const QString& section);

    /// One map {"group", "key", "value"} for each setting: the section, the setting's name, its
    /// text or number, as the virtual accessors have it.
    virtual QList<QVariant> toList() const;

    /// Takes every element of this section with setValue().
    virtual void setList(const QList<QVariant>& list);

    /// Takes one setting; another section's, or one with an unknown name, is ignored.
    virtual void setValue(const QVariantMap& setting);

private:
    QString m_section;
    QString m_portName;
    Rs232PortSettings m_portSettings;
};

} // namespace palx
