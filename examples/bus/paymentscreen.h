// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <velmolib/acceptorstate.h>

#include <QMap>
#include <QWidget>

class QDBusPendingCallWatcher;
class QLabel;
class QPlainTextEdit;
class QTableWidget;

/// What a kiosk shows of the acceptor service: the customer's tab with the payment text, the
/// session sum and the devices, and the engineer's tab with the service report. It follows the
/// service on the session bus and comes back when the service does.
///
/// Translations must be installed before it is made.
class PaymentScreen : public QWidget
{
    Q_OBJECT

public:
    /// @param names display names by device identifier
    explicit PaymentScreen(const QMap<int, QString>& names, QWidget* parent = nullptr);

private Q_SLOTS:
    void showState(const QString& state, const QString& timestamp);
    void askForState();
    void showServiceLost();

private:
    void followService();
    void showDevice(int row, const AcceptorStateItem& device);

    const QMap<int, QString> m_names;
    QLabel* m_paymentText;
    QLabel* m_sessionSum;
    QTableWidget* m_devices;
    QPlainTextEdit* m_report;
    QLabel* m_serviceStatus;
    const QDBusPendingCallWatcher* m_awaited = nullptr; // the answer that is not outdated
};
