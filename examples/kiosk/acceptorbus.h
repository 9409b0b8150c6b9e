// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

// A macro, because Q_CLASSINFO takes nothing else.
#define ACCEPTOR_BUS_INTERFACE "org.velmolib.Acceptor"

/// Where the acceptor service is found on the session bus.
namespace acceptorBus {

inline const QString SERVICE = QStringLiteral("org.velmolib.Acceptor");
inline const QString PATH = QStringLiteral("/acceptor");
inline const QString INTERFACE = QStringLiteral(ACCEPTOR_BUS_INTERFACE);

} // namespace acceptorBus
