// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "servicestate.h"

#include "service/customeranswer.h"
#include "text/conditions.h"
#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/fault.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

QVariantMap lamp(const char* name, const QString& label, bool isLit, bool isAlarm)
{
    return {{QStringLiteral("name"), QLatin1String(name)},
            {QStringLiteral("label"), label},
            {QStringLiteral("lit"), isLit},
            {QStringLiteral("alarm"), isAlarm}};
}

// Only what takes notes has a stacker, and only what takes money can be accepting.
QVariantList lampsOf(const PublishedDevice& device, bool isAccepting)
{
    const Money money = moneyOf(device.deviceId());
    QVariantList lamps;
    if (money != Money::None)
        lamps += lamp("accepting", Diagnosis::tr("Accepting"), isAccepting, false);
    for (const Condition::Kind kind : Condition::lampOrder) {
        const bool isOfStacker =
            kind == Condition::StackerMissing || kind == Condition::StackerFull;
        if (isOfStacker && money != Money::Note)
            continue;
        const Condition& condition = Condition::table[kind];
        const bool isAlarm = kind != Condition::StackerMissing; // lit while it is there
        lamps += lamp(condition.lamp, Diagnosis::tr(condition.lampLabel),
                      condition.holds(device) == isAlarm, isAlarm);
    }
    return lamps;
}

QVector<RowModel::Row> registryRows(const QVariantMap& registry)
{
    QVector<RowModel::Row> rows;
    for (auto entry = registry.begin(); entry != registry.end(); ++entry) {
        // "<bill type>_<channel>_<denomination>_<currency>"; the row itself has no channel.
        const int channel = entry.key().section(QLatin1Char('_'), 1, 1).toInt();
        const QVariantMap row = entry.value().toMap();
        const auto number = [&row](const char* key) {
            return row.value(QLatin1String(key)).toInt();
        };
        rows += RowModel::Row{entry.key(),
                              {channel, number("bill_type") == 1, number("denomination"),
                               row.value(QStringLiteral("currency")).toString(), number("count"),
                               number("rejected")}};
    }
    return rows;
}

} // namespace

ServiceState::ServiceState(QObject* parent)
    : QObject(parent)
    , m_devices({"deviceId", "threadId", "modelName", "kind", "name", "idText", "enabled", "status",
                 "statusText", "description", "wrong", "accepting", "lamps", "notesInserted",
                 "notesRejected", "notesReturned", "registry"})
{
    // A view must not think that it owns what a property returns.
    QQmlEngine::setObjectOwnership(&m_devices, QQmlEngine::CppOwnership);
    QCoreApplication::instance()->installEventFilter(this);
    show();
}

void ServiceState::take(const QString& text, const QDateTime& timestamp)
{
    const bool isNewText = text != m_text;
    const bool isNewTime = timestamp != m_timestamp;
    if (!isNewText && !isNewTime)
        return;
    m_text = text;
    m_timestamp = timestamp;
    if (isNewText)
        read();
    m_state.service.setDt(timestamp);
    show();
    if (isNewText)
        Q_EMIT textChanged();
    if (isNewTime)
        Q_EMIT timestampChanged();
}

void ServiceState::read()
{
    m_fault.clear();
    m_state = PublishedState();
    if (m_text.isEmpty())
        return;
    try {
        m_state = readServiceState(m_text);
        m_sessionSum = double(m_state.sessionSum());
        m_lastNote.take(m_state);
    } catch (const Fault& fault) {
        m_fault = fault.message;
    }
}

void ServiceState::setAvailable(bool available)
{
    if (available == m_available)
        return;
    m_available = available;
    show();
    Q_EMIT availableChanged();
}

void ServiceState::setNames(const QVariantMap& names)
{
    if (names == m_names)
        return;
    m_names = names;
    show();
    Q_EMIT namesChanged();
}

bool ServiceState::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance())
        show();
    return QObject::eventFilter(watched, event);
}

void ServiceState::show()
{
    const CustomerAnswer customer(m_state);
    QMap<int, QString> given;
    for (auto name = m_names.begin(); name != m_names.end(); ++name)
        given.insert(name.key().toInt(), name.value().toString());
    const QMap<int, QString> names = deviceNames(m_state, given);
    Shown shown;
    shown.sessionSum = m_sessionSum;
    shown.lastNoteText = m_lastNote.text();
    shown.lastNoteOutcome = NoteOutcome(m_lastNote.outcome());
    shown.report = m_state.service.systemStatusDescr(names);
    shown.fault = m_fault;
    if (!m_available) {
        shown.paymentText = shown.customerText = outOfServiceText();
        shown.reasons = QStringList{Diagnosis::tr("The service does not answer.")};
    } else {
        shown.paymentText = m_state.service.paymentStateDescr();
        shown.customerText = customer.text;
        shown.acceptingAllowed = m_state.service.isAcceptingAllowed();
        shown.reasons = m_fault.isEmpty()
            ? whyNotAccepting(m_state)
            : QStringList{Diagnosis::tr("The service's state cannot be read: %1.").arg(m_fault)};
        shown.noteAccepted = customer.note;
        shown.coinAccepted = customer.coin;
        shown.cardAccepted = customer.card;
        shown.inService = customer.inService;
    }
    showDevices(names);

    const Shown before = std::exchange(m_shown, shown);
    const auto tell = [&](auto field, void (ServiceState::*changed)()) {
        if (before.*field != shown.*field)
            Q_EMIT(this->*changed)();
    };
    tell(&Shown::paymentText, &ServiceState::paymentTextChanged);
    tell(&Shown::customerText, &ServiceState::customerTextChanged);
    tell(&Shown::acceptingAllowed, &ServiceState::acceptingAllowedChanged);
    tell(&Shown::reasons, &ServiceState::reasonsChanged);
    tell(&Shown::noteAccepted, &ServiceState::noteAcceptedChanged);
    tell(&Shown::coinAccepted, &ServiceState::coinAcceptedChanged);
    tell(&Shown::cardAccepted, &ServiceState::cardAcceptedChanged);
    tell(&Shown::inService, &ServiceState::inServiceChanged);
    tell(&Shown::sessionSum, &ServiceState::sessionSumChanged);
    tell(&Shown::lastNoteText, &ServiceState::lastNoteTextChanged);
    tell(&Shown::lastNoteOutcome, &ServiceState::lastNoteOutcomeChanged);
    tell(&Shown::report, &ServiceState::reportChanged);
    tell(&Shown::fault, &ServiceState::faultChanged);
}

void ServiceState::showDevices(const QMap<int, QString>& names)
{
    QVector<RowModel::Row> rows;
    QHash<QString, int> seen;
    QHash<QString, RowModel*> gone = m_registries;
    for (const PublishedDevice& device : m_state.devices) {
        const bool isAccepting = m_available && takesMoney(device);
        const int model = device.deviceId();
        QString key = QStringLiteral("%1/%2").arg(model).arg(device.threadId());
        key += QStringLiteral("/%1").arg(seen[key]++); // the same device may be told of twice
        gone.remove(key);
        rows += RowModel::Row{
            key,
            {model, device.threadId(), modelName(model), kindName(model), names.value(model),
             device.idString(), device.enabled(), device.state(),
             AcceptorState::stateDescr(device.state()), device.stateText(), deviceFaults(device),
             isAccepting, lampsOf(device, isAccepting), device.insertedInFull,
             device.rejectedInFull, device.returnedInFull, registryOf(key, device)}};
    }
    m_devices.setRows(rows);
    for (auto registry = gone.begin(); registry != gone.end(); ++registry) {
        m_registries.remove(registry.key());
        registry.value()->deleteLater(); // a view may be at it
    }
}

QVariant ServiceState::registryOf(const QString& key, const AcceptorStateItem& device)
{
    RowModel*& registry = m_registries[key];
    if (!registry) {
        registry = new RowModel(
            {"channel", "isCoin", "denomination", "currency", "stock", "rejects"}, this);
        QQmlEngine::setObjectOwnership(registry, QQmlEngine::CppOwnership);
    }
    registry->setRows(registryRows(device.dispRegistry()));
    return QVariant::fromValue(registry);
}
