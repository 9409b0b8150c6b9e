// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "palx_global.h"

#include <QString>

namespace palx {

/// The version of one component: its number and the time of its build.
class PALX_EXPORT AppVersion
{
public:
    /// An empty version, which is not valid.
    AppVersion() = default;

    /// @param version version number, for example "1.2.3"
    /// @param buildTime time of the build in ISO 8601 form; empty when it is not known
    AppVersion(const QString& version, const QString& buildTime);

    /// Whether there is a version number.
    bool isValid() const;

    QString version() const; ///< the version number
    QString buildTime() const; ///< in ISO 8601 form; empty when it is not known

private:
    QString m_version;
    QString m_buildTime;
};

} // namespace palx
