// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include <palx/appversionmanager.h>

#include <QDebug>
#include <QTranslator>

#include <acceptorstate.h>

// Succeeds when libvelmolib has registered with this program's own version manager, and its texts
// are where they are looked for.
int main()
{
    AcceptorState state;
    AcceptorState::loadFromClientState(quorbus::ClientState(QStringLiteral("{}"), {}), state);
    qInfo() << palx::AppVersionManager::localisations() << state.paymentStateDescr();
    QTranslator russian;
    const bool isFound = russian.load(QStringLiteral("velmolib_ru"), QStringLiteral(TRANSLATIONS))
        && !russian.translate("QObject", "Wait...").isEmpty();
    return isFound && palx::AppVersionManager::version(QStringLiteral("velmolib")).isValid() ? 0
                                                                                             : 1;
}
