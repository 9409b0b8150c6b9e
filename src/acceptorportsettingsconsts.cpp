// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorportsettingsconsts.h"

namespace acceptorportsettingsconsts {

const QString MAP_PORTNAME = QStringLiteral("portname");
const QString MAP_BAUDRATE = QStringLiteral("baudrate");
const QString MAP_DATABITS = QStringLiteral("databits");
const QString MAP_PARITY = QStringLiteral("parity");
const QString MAP_STOPBITS = QStringLiteral("stopbits");
const QString MAP_FLOWCONTROL = QStringLiteral("flowcontrol");

} // namespace acceptorportsettingsconsts
