// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "servicestate.h"

#include "service/customeranswer.h"
#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/fault.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int frame = 16; // milliseconds

} // namespace

ServiceState::ServiceState(QObject* parent)
    : QObject(parent)
    , m_openNotes({"noteId", "outcome", "value", "amountText", "deviceName", "deviceId", "threadId",
                   "time", "timeText", "incident", "text"})
    , m_worstFaults({"deviceName", "deviceId", "threadId", "reason", "text", "severity"})
    , m_language([this] { show(); })
{
    // A view must not think that it owns what a property returns.
    for (RowModel* const model : {static_cast<RowModel*>(&m_devices), &m_openNotes, &m_worstFaults})
        QQmlEngine::setObjectOwnership(model, QQmlEngine::CppOwnership);
    m_staleTimer.setSingleShot(true);
    connect(&m_staleTimer, &QTimer::timeout, this, [this] {
        m_isStale = true;
        lose();
        show();
        Q_EMIT staleChanged();
    });
    m_showTimer.setSingleShot(true);
    m_showTimer.setTimerType(Qt::PreciseTimer);
    connect(&m_showTimer, &QTimer::timeout, this, &ServiceState::show);
    show();
}

void ServiceState::take(const QString& text, const QDateTime& timestamp)
{
    const bool isNewText = text != m_text;
    const bool isNewTime = timestamp != m_timestamp;
    const bool wasStale = std::exchange(m_isStale, false);
    if (m_staleAfter > 0)
        m_staleTimer.start();
    m_text = text;
    m_timestamp = timestamp;
    if (isNewText || wasStale)
        read();
    m_state.service.setDt(timestamp);
    if (isNewText || isNewTime || wasStale)
        showSoon();
    if (isNewText)
        Q_EMIT textChanged();
    if (isNewTime)
        Q_EMIT timestampChanged();
    if (wasStale)
        Q_EMIT staleChanged();
}

void ServiceState::read()
{
    m_fault.clear();
    m_state = PublishedState();
    if (m_text.isEmpty())
        return lose();
    try {
        m_state = readServiceState(m_text);
    } catch (const Fault& fault) {
        m_fault = fault.message;
        return lose();
    }
    makePlain(m_state);
    const bool wasComplete = isComplete();
    m_money = m_state.money;
    const std::vector<NoteWatch::Note> events = m_notes.take(
        m_state, m_timestamp.isValid() ? m_timestamp : QDateTime::currentDateTimeUtc());
    const std::vector<NoteWatch::Note> open = m_notes.open();
    const bool isBusy = std::any_of(open.begin(), open.end(), [](const auto& note) {
        return note.outcome == NoteWatch::Checked;
    });
    m_sums.take(m_state, events, isBusy, wasComplete);
    if (!m_available)
        lose(); // a state that came late
    const QMap<int, QString> names = givenNames();
    for (const NoteWatch::Note& note : events) {
        Q_EMIT noteEvent(note.outcome, double(note.value), note.currency,
                         names.value(note.device, deviceName(note.device)),
                         NoteWatch::text(note, format()));
    }
}

void ServiceState::lose()
{
    m_notes.lose();
    m_sums.lose(isComplete());
}

void ServiceState::setAvailable(bool available)
{
    if (available == m_available)
        return;
    m_available = available;
    if (!available)
        lose();
    show();
    Q_EMIT availableChanged();
}

void ServiceState::setStaleAfter(int seconds)
{
    if (seconds == m_staleAfter)
        return;
    m_staleAfter = seconds;
    m_staleTimer.stop();
    if (seconds > 0)
        m_staleTimer.start(std::chrono::seconds(seconds));
    if (std::exchange(m_isStale, false)) {
        show();
        Q_EMIT staleChanged();
    }
    Q_EMIT staleAfterChanged();
}

void ServiceState::setLocale(const QString& locale)
{
    if (locale == m_locale)
        return;
    m_locale = locale;
    show();
    Q_EMIT localeChanged();
}

void ServiceState::setPrice(double price)
{
    if (price == m_price)
        return;
    m_price = price;
    show();
    Q_EMIT priceChanged();
}

void ServiceState::setNames(const QVariantMap& names)
{
    if (names == m_names)
        return;
    m_names = names;
    show();
    Q_EMIT namesChanged();
}

QString ServiceState::moneyText(double value) const
{
    return std::abs(value) < 9e15 ? format().text(qint64(std::round(value))) : QString();
}

void ServiceState::settle(double noteId)
{
    const QString incident = m_notes.settle(quint64(noteId));
    show();
    if (!incident.isEmpty())
        Q_EMIT settleWanted(incident);
}

void ServiceState::settleLoss()
{
    m_sums.settle();
    show();
}

// At most once in a frame's time.
void ServiceState::showSoon()
{
    const bool isSoon = m_sinceShown.isValid() && !m_sinceShown.hasExpired(frame - 1);
    if (!isSoon)
        show();
    else if (!m_showTimer.isActive())
        m_showTimer.start(frame - int(m_sinceShown.elapsed()));
    if (!isSoon)
        m_sinceShown.start();
}

void ServiceState::show()
{
    m_showTimer.stop();
    const QMap<int, QString> names = deviceNames(m_state, givenNames());
    const std::vector<NoteWatch::Note> open = m_notes.open();
    const Shown shown = shownNow(names, open);
    m_devices.show(m_state, names, isHeard());
    showNotes(names, open);

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
    tell(&Shown::paid, &ServiceState::paidChanged);
    tell(&Shown::left, &ServiceState::leftChanged);
    tell(&Shown::change, &ServiceState::changeChanged);
    tell(&Shown::changeMode, &ServiceState::changeModeChanged);
    tell(&Shown::currency, &ServiceState::currencyChanged);
    tell(&Shown::digits, &ServiceState::digitsChanged);
    tell(&Shown::sumRecorded, &ServiceState::sumRecordedChanged);
    tell(&Shown::lostSum, &ServiceState::lostSumChanged);
    tell(&Shown::lostSumRecorded, &ServiceState::lostSumRecordedChanged);
    tell(&Shown::hasStuckMoney, &ServiceState::hasStuckMoneyChanged);
    tell(&Shown::lastNoteText, &ServiceState::lastNoteTextChanged);
    tell(&Shown::lastNoteOutcome, &ServiceState::lastNoteOutcomeChanged);
    tell(&Shown::report, &ServiceState::reportChanged);
    tell(&Shown::fault, &ServiceState::faultChanged);
}

ServiceState::Shown ServiceState::shownNow(const QMap<int, QString>& names,
                                           const std::vector<NoteWatch::Note>& open) const
{
    Shown shown;
    const auto sum = double(m_sums.sum());
    shown.sessionSum = sum;
    shown.paid = isComplete();
    shown.left = qMax(m_price - sum, 0.0);
    shown.change = m_price > 0 ? qMax(sum - m_price, 0.0) : 0;
    shown.changeMode = m_money.change;
    shown.currency = m_money.currency;
    shown.digits = m_money.digits;
    shown.sumRecorded = m_sums.isRecorded();
    shown.lostSum = double(m_sums.lost());
    shown.lostSumRecorded = m_sums.isLostRecorded();
    shown.hasStuckMoney = m_sums.lost() > 0
        || std::any_of(open.begin(), open.end(),
                       [](const auto& note) { return note.outcome != NoteWatch::Checked; });
    shown.lastNoteText = NoteWatch::text(m_notes.last(), format());
    shown.lastNoteOutcome = NoteOutcome(m_notes.last().outcome);
    shown.report = m_state.service.systemStatusDescr(names);
    shown.fault = m_fault;
    if (!isHeard()) {
        shown.paymentText = shown.customerText = outOfServiceText();
        shown.reasons = QStringList{
            m_available ? Diagnosis::tr("The service has told nothing for %1 s.").arg(m_staleAfter)
                        : Diagnosis::tr("The service does not answer.")};
        return shown;
    }
    const CustomerAnswer customer(m_state);
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
    return shown;
}

void ServiceState::showNotes(const QMap<int, QString>& names,
                             const std::vector<NoteWatch::Note>& open)
{
    const MoneyFormat money = format();
    QVector<RowModel::Row> rows;
    for (const NoteWatch::Note& note : open) {
        const MoneyFormat own = money.of(note.currency);
        rows += RowModel::Row{QString::number(note.id),
                              {double(note.id), note.outcome, double(note.value),
                               note.value > 0 ? own.text(note.value) : QString(),
                               names.value(note.device, deviceName(note.device)), note.device,
                               note.thread, note.time,
                               money.locale.toString(note.time.toLocalTime(), QLocale::ShortFormat),
                               note.incident, NoteWatch::text(note, money)}};
    }
    m_openNotes.setRows(rows);
    m_worstFaults.setRows(faultRows(m_state, names, open, money));
}

QMap<int, QString> ServiceState::givenNames() const
{
    QMap<int, QString> given;
    for (auto name = m_names.begin(); name != m_names.end(); ++name)
        given.insert(name.key().toInt(), plainText(name.value().toString()));
    return given;
}

MoneyFormat ServiceState::format() const
{
    return {m_money.currency, m_money.digits, QLocale(m_locale)};
}
