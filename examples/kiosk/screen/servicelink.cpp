// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "servicelink.h"

#include "../acceptorbus.h"

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

namespace {

QDBusPendingCall callService(const QString& method, const QVariantList& arguments = {})
{
    QDBusMessage call = QDBusMessage::createMethodCall(acceptorBus::SERVICE, acceptorBus::PATH,
                                                       acceptorBus::INTERFACE, method);
    call.setArguments(arguments);
    return QDBusConnection::sessionBus().asyncCall(call);
}

} // namespace

ServiceLink::ServiceLink(QObject* parent)
    : QObject(parent)
{
}

void ServiceLink::follow()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* const watcher = new QDBusServiceWatcher(acceptorBus::SERVICE, bus,
                                                  QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &ServiceLink::askForState);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this, &ServiceLink::loseService);
    // Whoever loses the bus loses the service, and no watcher says so.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SLOT(loseService()));
    // The signal first, then the state so far: nothing is missed in between.
    bus.connect(acceptorBus::SERVICE, acceptorBus::PATH, acceptorBus::INTERFACE,
                QStringLiteral("stateChanged"), this, SLOT(takeState(QString, QString)));
    askForState();
}

void ServiceLink::askForState()
{
    auto* const call =
        new QDBusPendingCallWatcher(callService(QStringLiteral("currentState")), this);
    m_awaited = call;
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        // An answer may be delivered after a signal that was sent later: the signal stands.
        if (call != m_awaited)
            return;
        const QDBusPendingReply<QString, QString> reply = *call;
        if (reply.isError())
            loseService();
        else
            takeState(reply.argumentAt<0>(), reply.argumentAt<1>());
    });
}

void ServiceLink::settle(const QString& incident)
{
    auto* const call =
        new QDBusPendingCallWatcher(callService(QStringLiteral("settle"), {incident}), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call, incident] {
        call->deleteLater();
        const QDBusPendingReply<bool> reply = *call;
        m_refused = reply.isError() || !reply.value() ? incident : QString();
        Q_EMIT refusedChanged();
    });
}

void ServiceLink::takeState(const QString& text, const QString& timestamp)
{
    m_awaited = nullptr;
    setAvailable(
        true); // first: a state of a service that is lost counts as one from before the loss
    Q_EMIT stateReceived(text, QDateTime::fromString(timestamp, Qt::ISODateWithMs).toLocalTime());
}

void ServiceLink::loseService()
{
    m_awaited = nullptr;
    setAvailable(false);
}

void ServiceLink::setAvailable(bool available)
{
    if (available == m_available)
        return;
    m_available = available;
    Q_EMIT availableChanged();
}
