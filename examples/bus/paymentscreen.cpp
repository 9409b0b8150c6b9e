// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "paymentscreen.h"

#include "acceptorbus.h"

#include <velmolib/devicestatesconst.h>

#include <QDBusConnection>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>
#include <QHeaderView>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTableWidget>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

// The entries of AcceptorState do not carry the sum.
qint64 sessionSum(const QString& state)
{
    qint64 sum = 0;
    const QJsonArray devices =
        QJsonDocument::fromJson(state.toUtf8())[QStringLiteral("device_states")].toArray();
    for (const QJsonValue& device : devices)
        sum += device[deviceStateDescConst::SESSION_SUM].toInt();
    return sum;
}

// The report says it for a device that is enabled; another one has no status.
QString statusPhrase(const AcceptorState& device)
{
    const QString heading = QObject::tr("Status: ");
    for (const QString& line : device.systemStatusDescr({}).split(QLatin1Char('\n'))) {
        if (line.startsWith(heading))
            return line.mid(heading.size());
    }
    return QObject::tr("disabled");
}

QTableWidgetItem* textItem(const QString& text)
{
    auto* const item = new QTableWidgetItem(text);
    item->setFlags(Qt::ItemIsEnabled);
    return item;
}

// Full or hollow as well as coloured, for those who do not tell colours apart.
QTableWidgetItem* lampItem(bool lit, Qt::GlobalColor colour)
{
    QTableWidgetItem* const item =
        textItem(lit ? QStringLiteral("\u25cf") : QStringLiteral("\u25cb"));
    item->setTextAlignment(Qt::AlignCenter);
    item->setForeground(lit ? colour : Qt::gray);
    return item;
}

template <typename Widget>
Widget* named(const char* objectName, double fontScale)
{
    auto* const widget = new Widget;
    widget->setObjectName(QLatin1String(objectName));
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * fontScale);
    widget->setFont(font);
    return widget;
}

} // namespace

PaymentScreen::PaymentScreen(const QMap<int, QString>& names, QWidget* parent)
    : QWidget(parent)
    , m_names(names)
    , m_paymentText(named<QLabel>("paymentText", 4))
    , m_sessionSum(named<QLabel>("sessionSum", 2.5))
    , m_devices(named<QTableWidget>("devices", 1.3))
    , m_report(named<QPlainTextEdit>("serviceReport", 1.3))
    , m_serviceStatus(named<QLabel>("serviceStatus", 1.1))
{
    setObjectName(QStringLiteral("paymentScreen"));
    setWindowTitle(tr("Payment"));
    m_paymentText->setAlignment(Qt::AlignCenter);
    m_paymentText->setWordWrap(true);
    m_sessionSum->setAlignment(Qt::AlignCenter);
    m_report->setReadOnly(true);

    const QStringList columns{tr("Device"),       tr("Status"),         tr("Stacker"),
                              tr("Stacker full"), tr("Critical error"), tr("Accepting")};
    m_devices->setColumnCount(static_cast<int>(columns.size()));
    m_devices->setHorizontalHeaderLabels(columns);
    m_devices->horizontalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_devices->horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
    m_devices->verticalHeader()->setSectionResizeMode(QHeaderView::ResizeToContents);
    m_devices->verticalHeader()->hide();
    m_devices->setSelectionMode(QAbstractItemView::NoSelection);

    auto* const customerTab = new QWidget;
    auto* const customerLayout = new QVBoxLayout(customerTab);
    customerLayout->addWidget(m_paymentText, 2);
    customerLayout->addWidget(m_sessionSum, 1);
    customerLayout->addWidget(m_devices, 3);

    auto* const tabs = named<QTabWidget>("tabs", 1);
    tabs->addTab(customerTab, tr("Payment"));
    tabs->addTab(m_report, tr("Service"));

    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(tabs);
    layout->addWidget(m_serviceStatus);

    followService();
}

void PaymentScreen::followService()
{
    QDBusConnection bus = QDBusConnection::sessionBus();
    auto* const watcher = new QDBusServiceWatcher(acceptorBus::SERVICE, bus,
                                                  QDBusServiceWatcher::WatchForOwnerChange, this);
    connect(watcher, &QDBusServiceWatcher::serviceRegistered, this, &PaymentScreen::askForState);
    connect(watcher, &QDBusServiceWatcher::serviceUnregistered, this,
            &PaymentScreen::showServiceLost);
    // Whoever loses the bus loses the service, and no watcher says so.
    bus.connect(QString(), QStringLiteral("/org/freedesktop/DBus/Local"),
                QStringLiteral("org.freedesktop.DBus.Local"), QStringLiteral("Disconnected"), this,
                SLOT(showServiceLost()));
    // The signal first, then the state so far: nothing is missed in between.
    bus.connect(acceptorBus::SERVICE, acceptorBus::PATH, acceptorBus::INTERFACE,
                QStringLiteral("stateChanged"), this, SLOT(showState(QString, QString)));
    showServiceLost();
    askForState();
}

void PaymentScreen::askForState()
{
    const QDBusMessage question =
        QDBusMessage::createMethodCall(acceptorBus::SERVICE, acceptorBus::PATH,
                                       acceptorBus::INTERFACE, QStringLiteral("currentState"));
    auto* const call =
        new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
    m_awaited = call;
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        // An answer may be delivered after a signal that was sent later: the signal stands.
        if (call != m_awaited)
            return;
        const QDBusPendingReply<QString, QString> reply = *call;
        if (reply.isError())
            showServiceLost();
        else
            showState(reply.argumentAt<0>(), reply.argumentAt<1>());
    });
}

void PaymentScreen::showState(const QString& state, const QString& timestamp)
{
    m_awaited = nullptr;
    const QDateTime published = QDateTime::fromString(timestamp, Qt::ISODateWithMs).toLocalTime();
    AcceptorState acceptor;
    AcceptorState::loadFromClientState(quorbus::ClientState(state, published), acceptor);

    m_paymentText->setText(acceptor.paymentStateDescr());
    m_sessionSum->setText(tr("Session sum: %1").arg(sessionSum(state)));
    m_report->setPlainText(acceptor.systemStatusDescr(m_names));
    m_serviceStatus->setText(tr("State of %1").arg(published.time().toString()));
    const QList<AcceptorStateItem> devices = acceptor.deviceStates();
    m_devices->setRowCount(static_cast<int>(devices.size()));
    for (int row = 0; row < devices.size(); ++row)
        showDevice(row, devices.at(row));
}

void PaymentScreen::showDevice(int row, const AcceptorStateItem& device)
{
    // Asked about one device alone, the service state answers for that device.
    AcceptorState alone;
    alone.setDeviceStates({device});
    QTableWidgetItem* const cells[] = {
        textItem(m_names.value(device.deviceId(), QObject::tr("Unknown"))),
        textItem(statusPhrase(alone)),
        lampItem(device.stackerPresent(), Qt::darkGreen),
        lampItem(device.stackerFull(), Qt::red),
        lampItem(device.errorCritical(), Qt::red),
        lampItem(alone.isAcceptingAllowed(), Qt::darkGreen),
    };
    int column = 0;
    for (QTableWidgetItem* const cell : cells)
        m_devices->setItem(row, column++, cell);
}

void PaymentScreen::showServiceLost()
{
    showState(QString(), QString());
    m_serviceStatus->setText(tr("The acceptor service is not on the bus"));
}
