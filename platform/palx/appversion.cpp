// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "appversion.h"

namespace palx {

AppVersion::AppVersion(const QString& version, const QString& buildTime)
    : m_version(version)
    , m_buildTime(buildTime)
{
}

bool AppVersion::isValid() const
{
    return !m_version.isEmpty();
}

QString AppVersion::version() const
{
    return m_version;
}

QString AppVersion::buildTime() const
{
    return m_buildTime;
}

} // namespace palx
