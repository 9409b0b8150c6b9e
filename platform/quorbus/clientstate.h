// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "quorbus_global.h"

#include <QDateTime>
#include <QString>

namespace quorbus {

/// The acceptor service's published state as the bus client received it.
class QUORBUS_EXPORT ClientState
{
public:
    /// @param state the service state as JSON text
    /// @param dt when the service published it
    ClientState(const QString& state, const QDateTime& dt);

    QString state() const; ///< the service state as JSON text; not checked
    QDateTime dt() const; ///< when the service published it

private:
    QString m_state;
    QDateTime m_dt;
};

} // namespace quorbus
