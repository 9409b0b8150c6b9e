// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include <palx/appversionmanager.h>

#include <QDebug>

#include <acceptorstate.h>

// Succeeds when libvelmolib has registered with this program's own version manager.
int main()
{
    AcceptorState state;
    AcceptorState::loadFromClientState(quorbus::ClientState(QStringLiteral("{}"), {}), state);
    qInfo() << palx::AppVersionManager::localisations() << state.paymentStateDescr();
    return palx::AppVersionManager::version(QStringLiteral("velmolib")).isValid() ? 0 : 1;
}
