// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "quorbus_global.h"

#include <QList>
#include <QVariant>

namespace quorbus {

/// The acceptor service's settings as the bus client received them.
class QUORBUS_EXPORT ClientSettings
{
public:
    /// @param settings maps {"group", "key", "value"}, in the order of the service
    ClientSettings(const QList<QVariant>& settings);

    /// The maps, as they came.
    QList<QVariant> settings() const;

private:
    QList<QVariant> m_settings;
};

} // namespace quorbus
