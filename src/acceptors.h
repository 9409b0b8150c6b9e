// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QList>
#include <QString>
#include <QVariant>

/// One row of the catalogue of device models:
/// | key        | type   | meaning                                                    |
/// |------------|--------|------------------------------------------------------------|
/// | "id"       | int    | Acceptors::Supported                                       |
/// | "protocol" | string | the model's name, for several models that of its protocol |
/// | "class"    | string | the class name under which the service handles the model  |
/// | "type"     | int    | Acceptors::AcceptorType                                    |
using SupportedDevice = QVariantMap;

/// The catalogue of the device models that the acceptor service can drive. It keeps no state:
/// every function may be called from any thread at any time.
class VELMOLIB_EXPORT Acceptors
{
public:
    /// Catalogue identifier of a device model, the number by which settings and states name it:
    /// 1 to 99 handle banknotes, 100 to 199 coins, 200 and 201 are card terminals.
    enum Supported : qint32 {
        CCNet = 1,
        Ebds = 2,
        Ssp = 3,
        Ict = 4,
        Id003 = 5,
        ArdacEliteId003 = 6,
        JcmIproId003 = 7,
        EsspPayout = 50,
        PuloonLcdm2 = 51,
        CCTalk = 100,
        SmartHopper = 150,
        Uniteller = 200,
        PosD200 = 201
    };

    /// Kind of a device model. Kinds 4 to 7 pay out.
    enum AcceptorType : qint32 {
        NoteAcceptor = 1,
        CoinAcceptor = 2,
        CardReader = 3,
        NoteDispenser = 4,
        OtherDispenser = 5, ///< no model of the catalogue is of this kind
        NoteRecycler = 6,
        CoinHopper = 7
    };

    /// Whether a value is one of notes or of coins.
    enum billTypes : qint32 { Bill = 0, Coin = 1 };

    /// Makes a catalogue row.
    static SupportedDevice addDevice(short id, QString protocol, QString className,
                                     AcceptorType type);

    /// The whole catalogue, always in the same order.
    static QList<SupportedDevice> supportedDevices();

    /// supportedDevices() with each row in a QVariant.
    static QVariantList SupportedDevicesAsVariantList();

    /// The row of a model. An identifier that is not in the catalogue gives an empty row and a
    /// critical log line.
    static SupportedDevice search(Supported id);

    /// The model's name, or "Unknown device" after the log line of search().
    static QString devName(Supported id);

    /// The model's kind, or -1 after the log line of search().
    static AcceptorType devType(Supported id);

    /// Whether the model can pay out; false for an unknown model, after the log line of search().
    static bool canDispense(Supported id);

    /// Whether the model is one of the two smart payout devices, EsspPayout and SmartHopper.
    static bool isSmartDispenser(Supported id);
};
