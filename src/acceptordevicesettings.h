// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorinfo.h"
#include "velmolib_global.h"

#include <palx/rs232settings.h>

#include <QString>

/// Base of settings that are no serial port's.
class VELMOLIB_EXPORT AbstractSettings
{
public:
    virtual ~AbstractSettings();
};

/// A TCP endpoint, for programs: nothing here uses it.
class VELMOLIB_EXPORT TcpSettings : public AbstractSettings
{
public:
    ~TcpSettings() override;

    QString host; ///< name or address
    qint32 port = 0; ///< any number is kept
};

/// The settings of one device: how it is reached (serial port or TCP), what it is, and five
/// protocol parameters.
///
/// The protocol parameters are plain integers in the protocol's own units. Validators and card
/// terminals have different names for four of them: the accessors of a pair share one parameter.
/// Setters check nothing. An object is used by one thread at a time.
class VELMOLIB_EXPORT AcceptorDeviceSettings : public palx::RS232Settings
{
public:
    /// Interface "rs232", type -1, protocol parameters 0, texts empty.
    AcceptorDeviceSettings();

    /// The same, then setAcceptorInfo().
    AcceptorDeviceSettings(AcceptorInfo info);

    ~AcceptorDeviceSettings() override;

    /// The record of the device's type (its low 16 bits), port name and port parameters. Space and
    /// mark parity become none, one and a half stop bits become one, unknown data bits become 8; a
    /// flow control that is none of Qt's becomes an empty text.
    AcceptorInfo toAcceptorInfo() const;

    /// Takes interface ("rs232"), port, port parameters, name and type from a record. The name is
    /// the description up to the first "s/n" or "firmware" in any case, unless it begins so.
    /// Port parameters that are missing or unknown fall back as the parsers below do. All other
    /// settings stay.
    void setAcceptorInfo(const AcceptorInfo& info);

    /// "tcp", with case, or a serial port: "rs232" or any other text, which is kept.
    QString interfaceType() const;
    void setInterfaceType(const QString& interfaceType);

    /// What people call the device.
    QString name() const;
    void setName(const QString& name);

    /// Acceptors::Supported; -1 while it is not set. Any number is kept.
    int type() const;
    void setType(int type);

    /// The terminal identifier of a card terminal.
    QString cardReaderQuorId() const;
    void setCardReaderQuorId(const QString& id);

    /// Name or address of the device's host. The settings list has it where the interface is "tcp".
    QString tcpHost() const;
    void setTcpHost(const QString& host);

    /// The number of the TCP port as text. The settings list has it where the interface is "tcp".
    QString tcpPort() const;
    void setTcpPort(const QString& port);

    /// How long an answer of a validator, an acknowledgement of a card terminal may take.
    int response_time() const;
    void setResponse_time(int value);
    int timeOutAck() const; ///< the parameter of response_time()
    void setTimeoutAck(int value);

    /// How often a validator is asked for its state; how long a packet of a card terminal may take.
    int polling_interval() const;
    void setPolling_interval(int value);
    int packetTimeout() const; ///< the parameter of polling_interval()
    void setPacketTimeout(int value);

    /// Pace of reading a validator's table of notes; after how many negative acknowledgements a
    /// packet of a card terminal is given up.
    int bill_table_interval() const;
    void setBill_table_interval(int value);
    int maxNakCount() const; ///< the parameter of bill_table_interval()
    void setMaxNakCount(int value);

    /// Pace of resetting a validator; the largest packet of a card terminal, in bytes.
    int reset_interval() const;
    void setReset_interval(int value);
    int maxPackageSize() const; ///< the parameter of reset_interval()
    void setMaxPackageSize(int value);

    /// Rest between two messages to a validator. Card terminals have no name for it.
    int rest_interval() const;
    void setRest_interval(int value);

    // Parsers of the flat record's texts, which compare with case and call the virtual setters.

    /// Any unsigned decimal number; another text changes nothing.
    void setBaudrateStr(const QString& text);

    /// "xonxoff" or "hardware"; any other text means none.
    void setFlowControlStr(const QString& text);

    /// "even" or "odd"; any other text means none.
    void setParityTypeStr(const QString& text);

    /// "5", "6" or "7"; any other text means 8.
    void setDataBitsTypeStr(const QString& text);

    /// "2"; any other text means 1.
    void setStopBitsStr(const QString& text);

private:
    QString m_interfaceType;
    QString m_name;
    qint32 m_type = -1;
    QString m_cardReaderQuorId;
    QString m_tcpHost;
    QString m_tcpPort;
    qint32 m_responseTime = 0;
    qint32 m_pollingInterval = 0;
    qint32 m_billTableInterval = 0;
    qint32 m_resetInterval = 0;
    qint32 m_restInterval = 0;
};
