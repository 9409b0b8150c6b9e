// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "appversionmanager.h"

#include <QHash>
#include <QMutex>
#include <QMutexLocker>

namespace palx {

namespace {

struct Register
{
    QMutex mutex;
    QHash<QString, AppVersion> versions;
    QStringList localisations;
};

// Made on first use: components register from their static initialisers, in no known order.
Register& theRegister()
{
    static Register instance;
    return instance;
}

} // namespace

AppVersion AppVersionManager::addVersion(const QString& component, const AppVersion& version)
{
    Register& components = theRegister();
    const QMutexLocker locker(&components.mutex);
    components.versions.insert(component, version);
    return version;
}

void AppVersionManager::addLocalisation(const QString& component)
{
    Register& components = theRegister();
    const QMutexLocker locker(&components.mutex);
    components.localisations.append(component);
}

AppVersion AppVersionManager::version(const QString& component)
{
    Register& components = theRegister();
    const QMutexLocker locker(&components.mutex);
    return components.versions.value(component);
}

QStringList AppVersionManager::localisations()
{
    Register& components = theRegister();
    const QMutexLocker locker(&components.mutex);
    return components.localisations;
}

} // namespace palx
