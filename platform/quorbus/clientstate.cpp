// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "clientstate.h"

namespace quorbus {

ClientState::ClientState(const QString& state, const QDateTime& dt)
    : m_state(state)
    , m_dt(dt)
{
}

QString ClientState::state() const
{
    return m_state;
}

QDateTime ClientState::dt() const
{
    return m_dt;
}

} // namespace quorbus
