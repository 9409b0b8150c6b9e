// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicerows.h"
#include "languagewatch.h"
#include "rowmodel.h"
#include "service/notewatch.h"
#include "service/serviceanswer.h"
#include "service/sumwatch.h"

#include <QDateTime>
#include <QElapsedTimer>
#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QtQml>

/// What the acceptor service publishes, for payment and service screens. The program hands it the
/// text and the time that the bus delivered; what that means comes back as properties, of which
/// only those that changed say so. Texts are in the language that the application has installed
/// translators for, and follow it when it changes.
class ServiceState : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    /// The published state, JSON text {"device_states": [...]}. A text that is none sets fault, and
    /// everything else is as if the service told of no device; the sums stay.
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)

    /// When the service published it; an invalid date when not known.
    Q_PROPERTY(QDateTime timestamp READ timestamp WRITE setTimestamp NOTIFY timestampChanged)

    /// False while the program cannot reach the service. Nothing is accepted then, and the texts
    /// say so; the devices and sums stay as they were told last.
    Q_PROPERTY(bool available READ isAvailable WRITE setAvailable NOTIFY availableChanged)

    /// After so many seconds without a state stale is true; 0, initially, for never. A state that
    /// says the same again is one.
    Q_PROPERTY(int staleAfter READ staleAfter WRITE setStaleAfter NOTIFY staleAfterChanged)

    /// Whether the service has told nothing for too long. As with one that is not available,
    /// nothing is accepted then.
    Q_PROPERTY(bool stale READ isStale NOTIFY staleChanged)

    /// The locale that money and times are written in, for example "ru_RU"; initially the
    /// application's.
    Q_PROPERTY(QString locale READ locale WRITE setLocale NOTIFY localeChanged)

    /// Display names by device identifier, for example {"1": "Note validator"}. A device without
    /// one is called after its model.
    Q_PROPERTY(QVariantMap names READ names WRITE setNames NOTIFY namesChanged)

    /// What AcceptorState::paymentStateDescr() tells the customer, "Input money", "Wait..."; "Out
    /// of service" while the service is not available.
    Q_PROPERTY(QString paymentText READ paymentText NOTIFY paymentTextChanged)

    /// What paymentText would be with those devices alone that work: it invites nobody to pay at
    /// one that does not. "Pay by card" when only a terminal works, "Out of service" when nothing
    /// does.
    Q_PROPERTY(QString customerText READ customerText NOTIFY customerTextChanged)

    /// AcceptorState::isAcceptingAllowed(); false while the service is not available.
    Q_PROPERTY(bool acceptingAllowed READ isAcceptingAllowed NOTIFY acceptingAllowedChanged)

    /// Why acceptingAllowed is false, a sentence for each reason; empty exactly when it is true.
    Q_PROPERTY(QStringList reasons READ reasons NOTIFY reasonsChanged)

    /// Whether some device takes notes at this moment. While one is busy with money none does,
    /// since the customer is to wait then.
    Q_PROPERTY(bool noteAccepted READ isNoteAccepted NOTIFY noteAcceptedChanged)

    /// The same of coins.
    Q_PROPERTY(bool coinAccepted READ isCoinAccepted NOTIFY coinAcceptedChanged)

    /// The same of cards.
    Q_PROPERTY(bool cardAccepted READ isCardAccepted NOTIFY cardAcceptedChanged)

    /// Whether some device could take money: it is enabled and nothing is the matter with it.
    Q_PROPERTY(bool inService READ isInService NOTIFY inServiceChanged)

    /// What all devices took in the current session, in the unit of the service; moneyText() writes
    /// it for people.
    Q_PROPERTY(double sessionSum READ sessionSum NOTIFY sessionSumChanged)

    /// What is to be paid, in the unit of the service; 0, initially, for any sum.
    Q_PROPERTY(double price READ price WRITE setPrice NOTIFY priceChanged)

    /// Whether the session's sum reaches the price; false without a price.
    Q_PROPERTY(bool paid READ isPaid NOTIFY paidChanged)

    /// What is left to pay of the price; 0 without one.
    Q_PROPERTY(double left READ left NOTIFY leftChanged)

    /// What is paid above the price; 0 without one.
    Q_PROPERTY(double change READ change NOTIFY changeChanged)

    /// What becomes of change: "none" where the kiosk gives no change, "paid" where it is paid out,
    /// "credited" where it stays on the customer's account; empty when the service does not say.
    Q_PROPERTY(QString changeMode READ changeMode NOTIFY changeModeChanged)

    /// The currency's code, such as "RUB", as the service publishes it; empty where it does not.
    Q_PROPERTY(QString currency READ currency NOTIFY currencyChanged)

    /// How many digits of an amount stand after the point, as the service publishes it: with 2, an
    /// amount of 1000 is written "10.00". 0 where the service does not say.
    Q_PROPERTY(int digits READ digits NOTIFY digitsChanged)

    /// Whether the service confirmed that all of sessionSum is stored and outlives it.
    Q_PROPERTY(bool sumRecorded READ isSumRecorded NOTIFY sumRecordedChanged)

    /// What was told as paid before the service was lost and is not in the sum that came back; 0
    /// for nothing, and where the price was paid before and the service had not said that it had
    /// stored less. It stays until the sum is back, or settleLoss().
    Q_PROPERTY(double lostSum READ lostSum NOTIFY lostSumChanged)

    /// Whether the service had confirmed that all of lostSum is stored.
    Q_PROPERTY(bool lostSumRecorded READ isLostSumRecorded NOTIFY lostSumRecordedChanged)

    /// Notes and coins whose end is not told, oldest first: in a device's hand, stuck in it, or
    /// lost sight of. Roles: noteId, outcome, value (0 when not known), amountText (empty then),
    /// deviceName, deviceId, threadId, time, timeText, incident (the number that the service's log
    /// has for it, where the service publishes one) and text. A stuck one stays, over sessions too,
    /// until the service says that it is settled, or without the service's list until the device
    /// tells its end, or settle().
    Q_PROPERTY(RowModel* openNotes READ openNotes CONSTANT)

    /// Whether one of openNotes is stuck or lost, or lostSum is not 0.
    Q_PROPERTY(bool hasStuckMoney READ hasStuckMoney NOTIFY hasStuckMoneyChanged)

    /// What became of the note or coin that was inserted last, in words for the customer: empty
    /// when there is nothing to tell. The service may publish which filter refuses it.
    Q_PROPERTY(QString lastNoteText READ lastNoteText NOTIFY lastNoteTextChanged)

    /// The same as a value, for an icon or a colour.
    Q_PROPERTY(NoteOutcome lastNoteOutcome READ lastNoteOutcome NOTIFY lastNoteOutcomeChanged)

    /// AcceptorState::systemStatusDescr(): the report for engineers.
    Q_PROPERTY(QString report READ report NOTIFY reportChanged)

    /// What is wrong with the text; empty when nothing is.
    Q_PROPERTY(QString fault READ fault NOTIFY faultChanged)

    /// The devices in published order. Roles: deviceId, threadId, modelName, kind, name, idText,
    /// enabled, status (the state's name), statusText, description, wrong (a list of sentences),
    /// accepting (takes money now), lamps (those that apply to it: a model with the roles name,
    /// label, lit and alarm), notesInserted, notesRejected, notesReturned, registry: a model of the
    /// cassettes and hoppers with the roles channel, isCoin, denomination, currency, stock and
    /// rejects, and severity: that of the worst of worstFaults that its machine and state have; -1
    /// for one that works.
    Q_PROPERTY(RowModel* devices READ devices CONSTANT)

    /// What is wrong with all devices, worst first. Roles: deviceName, deviceId, threadId, reason
    /// ("money" of a note or coin that is stuck or lost, "error", "state", "offline", "halted",
    /// "stacker_missing", "stacker_full", "disabled"; in this order), text (a sentence) and
    /// severity (3 for money, 2 for what stops a device, 1 for its stacker, 0 for one that is
    /// disabled).
    Q_PROPERTY(RowModel* worstFaults READ worstFaults CONSTANT)

public:
    /// What became of a note or coin.
    enum NoteOutcome : qint32 {
        NoNote = NoteWatch::None, ///< there is nothing to tell
        NoteChecked = NoteWatch::Checked, ///< a device has it in hand
        NoteTaken = NoteWatch::Taken, ///< it is in the sum
        NoteRefused = NoteWatch::Refused, ///< a filter of the service refuses it: it comes back
        NoteRejected = NoteWatch::Rejected, ///< the device does not take it: it comes back
        NoteReturned = NoteWatch::Returned, ///< the device gave it back
        NoteStuck = NoteWatch::Stuck, ///< the device failed while it had it in hand
        NoteLost = NoteWatch::Lost ///< service or device went away with it and do not say its end
    };
    Q_ENUM(NoteOutcome)

    explicit ServiceState(QObject* parent = nullptr);

    QString text() const { return m_text; }
    void setText(const QString& text) { take(text, m_timestamp); }
    QDateTime timestamp() const { return m_timestamp; }
    void setTimestamp(const QDateTime& timestamp) { take(m_text, timestamp); }
    bool isAvailable() const { return m_available; }
    void setAvailable(bool available);
    QVariantMap names() const { return m_names; }
    void setNames(const QVariantMap& names);
    int staleAfter() const { return m_staleAfter; }
    void setStaleAfter(int seconds);
    bool isStale() const { return m_isStale; }
    QString locale() const { return m_locale; }
    void setLocale(const QString& locale);
    double price() const { return m_price; }
    void setPrice(double price);

    QString paymentText() const { return m_shown.paymentText; }
    QString customerText() const { return m_shown.customerText; }
    bool isAcceptingAllowed() const { return m_shown.acceptingAllowed; }
    QStringList reasons() const { return m_shown.reasons; }
    bool isNoteAccepted() const { return m_shown.noteAccepted; }
    bool isCoinAccepted() const { return m_shown.coinAccepted; }
    bool isCardAccepted() const { return m_shown.cardAccepted; }
    bool isInService() const { return m_shown.inService; }
    double sessionSum() const { return m_shown.sessionSum; }
    bool isPaid() const { return m_shown.paid; }
    double left() const { return m_shown.left; }
    double change() const { return m_shown.change; }
    QString changeMode() const { return m_shown.changeMode; }
    QString currency() const { return m_shown.currency; }
    int digits() const { return m_shown.digits; }
    bool isSumRecorded() const { return m_shown.sumRecorded; }
    double lostSum() const { return m_shown.lostSum; }
    bool isLostSumRecorded() const { return m_shown.lostSumRecorded; }
    bool hasStuckMoney() const { return m_shown.hasStuckMoney; }
    QString lastNoteText() const { return m_shown.lastNoteText; }
    NoteOutcome lastNoteOutcome() const { return m_shown.lastNoteOutcome; }
    QString report() const { return m_shown.report; }
    QString fault() const { return m_shown.fault; }
    RowModel* devices() { return &m_devices; }
    RowModel* openNotes() { return &m_openNotes; }
    RowModel* worstFaults() { return &m_worstFaults; }

    /// Takes what the bus delivered: text and timestamp at once. One that says the same counts too,
    /// against stale.
    Q_INVOKABLE void take(const QString& text, const QDateTime& timestamp);

    /// An amount as people read it, with the currency where that is known.
    /// @param value in the unit of the service
    Q_INVOKABLE QString moneyText(double value) const;

    /// The staff says that a note is settled which is stuck or lost; of another one nothing
    /// changes. Of one that the service has an incident for settleWanted() tells, and it stays as
    /// long as the service says that it is open.
    /// @param noteId that of its row in openNotes
    Q_INVOKABLE void settle(double noteId);

    /// The staff says that the lost sum is settled.
    Q_INVOKABLE void settleLoss();

Q_SIGNALS:
    /// What became of a note or coin, of each and at once, also when two are alike.
    /// @param outcome a NoteOutcome
    /// @param value 0 when it is not known
    /// @param currency its code; empty when it is not known
    /// @param device its display name
    /// @param text in words for the customer
    void noteEvent(int outcome, double value, const QString& currency, const QString& device,
                   const QString& text);

    /// The program is to tell the service that an incident of its is settled.
    void settleWanted(const QString& incident);

    void staleAfterChanged();
    void staleChanged();
    void localeChanged();
    void priceChanged();
    void paidChanged();
    void leftChanged();
    void changeChanged();
    void changeModeChanged();
    void currencyChanged();
    void digitsChanged();
    void sumRecordedChanged();
    void lostSumChanged();
    void lostSumRecordedChanged();
    void hasStuckMoneyChanged();
    void textChanged();
    void timestampChanged();
    void availableChanged();
    void namesChanged();
    void paymentTextChanged();
    void customerTextChanged();
    void acceptingAllowedChanged();
    void reasonsChanged();
    void noteAcceptedChanged();
    void coinAcceptedChanged();
    void cardAcceptedChanged();
    void inServiceChanged();
    void sessionSumChanged();
    void lastNoteTextChanged();
    void lastNoteOutcomeChanged();
    void reportChanged();
    void faultChanged();

private:
    // What the properties say.
    struct Shown
    {
        QString paymentText;
        QString customerText;
        bool acceptingAllowed = false;
        QStringList reasons;
        bool noteAccepted = false;
        bool coinAccepted = false;
        bool cardAccepted = false;
        bool inService = false;
        double sessionSum = 0;
        bool paid = false;
        double left = 0;
        double change = 0;
        QString changeMode;
        QString currency;
        int digits = 0;
        bool sumRecorded = false;
        double lostSum = 0;
        bool lostSumRecorded = false;
        bool hasStuckMoney = false;
        QString lastNoteText;
        NoteOutcome lastNoteOutcome = NoNote;
        QString report;
        QString fault;
    };

    void read();
    void lose();
    void show();
    void showSoon();
    void showNotes(const QMap<int, QString>& names, const std::vector<NoteWatch::Note>& open);
    Shown shownNow(const QMap<int, QString>& names, const std::vector<NoteWatch::Note>& open) const;
    bool isHeard() const { return m_available && !m_isStale; }
    bool isComplete() const { return m_price > 0 && double(m_sums.sum()) >= m_price; }
    QMap<int, QString> givenNames() const;
    MoneyFormat format() const;

    QString m_text;
    QDateTime m_timestamp;
    bool m_available = true;
    int m_staleAfter = 0;
    bool m_isStale = false;
    QString m_locale = QLocale().name();
    double m_price = 0;
    QVariantMap m_names;
    PublishedState m_state;
    PublishedMoney m_money; // as it was told last
    QString m_fault;
    NoteWatch m_notes;
    SumWatch m_sums;
    Shown m_shown;
    DeviceRows m_devices;
    RowModel m_openNotes;
    RowModel m_worstFaults;
    QTimer m_staleTimer;
    QTimer m_showTimer;
    QElapsedTimer m_sinceShown;
    LanguageWatch m_language;
};
