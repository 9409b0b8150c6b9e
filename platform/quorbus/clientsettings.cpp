// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "clientsettings.h"

namespace quorbus {

ClientSettings::ClientSettings(const QList<QVariant>& settings)
    : m_settings(settings)
{
}

QList<QVariant> ClientSettings::settings() const
{
    return m_settings;
}

} // namespace quorbus
