// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "velmolib.h"

#include <palx/appversionmanager.h>

#include <QDateTime>
#include <QLocale>

namespace {

// The compiler's stamps, "Sep  6 2019" and "13:44:33", in ISO 8601 form.
QString buildTime()
{
    const QString stamp =
        QStringLiteral("%1 %2").arg(QStringLiteral(__DATE__), QStringLiteral(__TIME__));
    return QLocale(QStringLiteral("en"))
        .toDateTime(stamp.simplified(), QStringLiteral("MMM d yyyy hh:mm:ss"))
        .toString(Qt::ISODate);
}

} // namespace

// In this order: the registration of the instance reads and sets the version. It is what the
// loading of the library is to bring about. clazy:excludeall=non-pod-global-static
palx::AppVersion VelmoLib::_version;
static VelmoLib velmoLib;

VelmoLib::VelmoLib()
{
    const QString component = QStringLiteral("velmolib");
    if (!_version.isValid()) {
        _version = palx::AppVersionManager::addVersion(
            component, palx::AppVersion(QStringLiteral(VELMOLIB_VERSION), buildTime()));
    }
    palx::AppVersionManager::addLocalisation(component);
}

VelmoLib::~VelmoLib() = default;

palx::AppVersion VelmoLib::version()
{
    return _version;
}
