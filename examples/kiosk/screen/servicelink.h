// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QObject>
#include <QString>

class QDBusPendingCallWatcher;

/// The acceptor service on the session bus, as a source for ServiceState: it follows the service
/// and comes back when the service does.
class ServiceLink : public QObject
{
    Q_OBJECT
    Q_PROPERTY(bool available READ isAvailable NOTIFY availableChanged)

    /// The incident that the service would not take as settled; empty when it took the last one.
    Q_PROPERTY(QString refused READ refused NOTIFY refusedChanged)

public:
    explicit ServiceLink(QObject* parent = nullptr);

    /// Whether the service is on the bus and has told its state.
    bool isAvailable() const { return m_available; }

    QString refused() const { return m_refused; }

    /// Begins to follow the service; stateReceived() tells of its state from then on.
    Q_INVOKABLE void follow();

    /// Tells the service that somebody found out where the piece of money of an incident is.
    Q_INVOKABLE void settle(const QString& incident);

Q_SIGNALS:
    void stateReceived(const QString& text, const QDateTime& timestamp);
    void availableChanged();
    void refusedChanged();

private Q_SLOTS:
    void takeState(const QString& text, const QString& timestamp);
    void askForState();
    void loseService();

private:
    void setAvailable(bool available);

    bool m_available = false;
    QString m_refused;
    const QDBusPendingCallWatcher* m_awaited = nullptr; // the answer that is not outdated
};
