// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QString>
#include <QVariant>

/// A device's identity and serial connection, as service and settings exchange them; see
/// AcceptorDeviceSettings::toAcceptorInfo() and setAcceptorInfo(). The library only carries text,
/// number and flag.
struct VELMOLIB_EXPORT AcceptorInfo
{
    QString text; ///< the programs' own
    qint32 number = -1; ///< the programs' own
    quint16 type = 0; ///< Acceptors::Supported
    QString description; ///< descriptive text, from which the device's name is cut
    QString portName; ///< the serial port; it counts, not the one of portSettings
    bool flag = false; ///< the programs' own
    QVariantMap portSettings; ///< texts under the keys of acceptorportsettingsconsts
};
