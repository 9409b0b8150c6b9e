// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "rowmodel.h"
#include "service/lastnote.h"
#include "service/serviceanswer.h"

#include <QDateTime>
#include <QObject>
#include <QStringList>
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

    /// Display names by device identifier, for example {"1": "Note validator"}. A device without
    /// one is called after its model.
    Q_PROPERTY(QVariantMap names READ names WRITE setNames NOTIFY namesChanged)

    /// What AcceptorState::paymentStateDescr() tells the customer, "Input money", "Wait..."; "Out
    /// of service" while the service is not available.
    Q_PROPERTY(QString paymentText READ paymentText NOTIFY paymentTextChanged)

    /// The same of those devices alone that work: it invites nobody to pay at one that does not.
    /// "Pay by card" when only a terminal works, "Out of service" when nothing does.
    Q_PROPERTY(QString customerText READ customerText NOTIFY customerTextChanged)

    /// AcceptorState::isAcceptingAllowed(), and false while the service is not available.
    Q_PROPERTY(bool acceptingAllowed READ isAcceptingAllowed NOTIFY acceptingAllowedChanged)

    /// Why it is not, a sentence for each reason; empty exactly when it is.
    Q_PROPERTY(QStringList reasons READ reasons NOTIFY reasonsChanged)

    /// Whether some device takes notes, coins or cards at this moment; none of them while one is
    /// busy with money, since the customer is to wait then.
    Q_PROPERTY(bool noteAccepted READ isNoteAccepted NOTIFY noteAcceptedChanged)
    Q_PROPERTY(bool coinAccepted READ isCoinAccepted NOTIFY coinAcceptedChanged)
    Q_PROPERTY(bool cardAccepted READ isCardAccepted NOTIFY cardAcceptedChanged)

    /// Whether some device could take money: it is enabled and nothing is the matter with it.
    Q_PROPERTY(bool inService READ isInService NOTIFY inServiceChanged)

    /// What all devices took in the current session, in the unit of the service.
    Q_PROPERTY(double sessionSum READ sessionSum NOTIFY sessionSumChanged)

    /// What became of the note or coin that was inserted last, in words for the customer: empty
    /// when there is nothing to tell. The service may publish which filter refuses it.
    Q_PROPERTY(QString lastNoteText READ lastNoteText NOTIFY lastNoteTextChanged)
    Q_PROPERTY(NoteOutcome lastNoteOutcome READ lastNoteOutcome NOTIFY lastNoteOutcomeChanged)

    /// AcceptorState::systemStatusDescr(): the report for engineers.
    Q_PROPERTY(QString report READ report NOTIFY reportChanged)

    /// What is wrong with the text; empty when nothing is.
    Q_PROPERTY(QString fault READ fault NOTIFY faultChanged)

    /// The devices in published order. Roles: deviceId, threadId, modelName, kind, name, idText,
    /// enabled, status (the state's name), statusText, description, wrong (a list of sentences),
    /// accepting (takes money now), lamps (those that apply to it: a list of {"name", "label",
    /// "lit", "alarm"}), notesInserted, notesRejected, notesReturned, and registry: a model of the
    /// cassettes and hoppers with the roles channel, isCoin, denomination, currency, stock and
    /// rejects.
    Q_PROPERTY(RowModel* devices READ devices CONSTANT)

public:
    enum NoteOutcome : qint32 {
        NoNote = LastNote::None,
        NoteChecked = LastNote::Checked,
        NoteTaken = LastNote::Taken,
        NoteRefused = LastNote::Refused,
        NoteRejected = LastNote::Rejected,
        NoteReturned = LastNote::Returned,
        NoteStuck = LastNote::Stuck
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

    QString paymentText() const { return m_shown.paymentText; }
    QString customerText() const { return m_shown.customerText; }
    bool isAcceptingAllowed() const { return m_shown.acceptingAllowed; }
    QStringList reasons() const { return m_shown.reasons; }
    bool isNoteAccepted() const { return m_shown.noteAccepted; }
    bool isCoinAccepted() const { return m_shown.coinAccepted; }
    bool isCardAccepted() const { return m_shown.cardAccepted; }
    bool isInService() const { return m_shown.inService; }
    double sessionSum() const { return m_shown.sessionSum; }
    QString lastNoteText() const { return m_shown.lastNoteText; }
    NoteOutcome lastNoteOutcome() const { return m_shown.lastNoteOutcome; }
    QString report() const { return m_shown.report; }
    QString fault() const { return m_shown.fault; }
    RowModel* devices() { return &m_devices; }

    /// Takes the text and its time at once.
    Q_INVOKABLE void take(const QString& text, const QDateTime& timestamp);

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
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
        QString lastNoteText;
        NoteOutcome lastNoteOutcome = NoNote;
        QString report;
        QString fault;
    };

    void read();
    void show();
    void showDevices(const QMap<int, QString>& names);
    QVariant registryOf(const QString& key, const AcceptorStateItem& device);

    QString m_text;
    QDateTime m_timestamp;
    bool m_available = true;
    QVariantMap m_names;
    PublishedState m_state;
    QString m_fault;
    double m_sessionSum = 0; // as it was told last
    LastNote m_lastNote;
    Shown m_shown;
    RowModel m_devices;
    QHash<QString, RowModel*> m_registries; // by the key of the device's row; children
};
