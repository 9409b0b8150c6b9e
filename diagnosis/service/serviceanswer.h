// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"
#include "text/publisheddevice.h"
#include "json/jsontext.h"

#include <QDateTime>
#include <QHash>
#include <QMap>
#include <QStringList>
#include <QVariant>

#include <optional>
#include <vector>

// What a published service state means, for people and for programs. Texts are in the language that
// is shown.

/// What a service publishes about its money. What is not as it must be counts as not published.
struct PublishedMoney
{
    QString currency = {}; ///< a code of ISO 4217; empty when not known
    int digits = 0; ///< of an amount, stand after the point
    std::optional<qint64> recorded = {}; ///< so much of the session's sum outlives the service
    QString change = {}; ///< "none", "paid" or "credited"; empty when not known
};

/// A piece of money whose end is open, as the service sees it.
struct Incident
{
    QString number; ///< that the service's log has
    int device;
    int thread;
    qint64 denomination; ///< 0 when not known
    QString currency; ///< empty when not known
    QDateTime time; ///< invalid when not known
};

/// A published service state.
struct PublishedState
{
    AcceptorState service; ///< what the library answers about all devices
    std::vector<PublishedDevice> devices; ///< in published order

    /// The note filters that refuse what a device has in hand, where the service tells it:
    /// {"device_id": ..., "thread_id": ..., "name": ..., "params": {...}}.
    QVariantList refusals;

    PublishedMoney money;

    /// Those that are not settled; nothing where the service does not publish such a list.
    std::optional<std::vector<Incident>> incidents;

    /// Taken by all devices in the current session.
    qint64 sessionSum() const;
};

/// A text from outside as a screen can show it: control characters become spaces, marks that turn
/// the direction of writing are left out, and what is longer than anybody reads is cut.
QString plainText(const QString& text);

/// Makes the texts of a state that plainText().
void makePlain(PublishedState& state);

/// A whole number as it was published; nothing for anything else, or what a screen has no exact
/// number for.
std::optional<qint64> wholeNumber(const QVariant& published);

/// A counter as it was published; of what is beyond 64 bits the nearest number within.
qint64 counterOf(const QVariant& published);

/// Why no money may be accepted, one sentence for each reason; empty exactly when
/// AcceptorState::isAcceptingAllowed().
QStringList whyNotAccepting(const PublishedState& state);

/// What keeps a device from taking money, whether or not that stops the others: it is disabled,
/// offline, halted, in a critical error, without its stacker or with a full one. A sentence for
/// each.
QStringList deviceFaults(const PublishedDevice& device);

/// The display name of each device of the state: the given one, else deviceName() of its model.
QMap<int, QString> deviceNames(const PublishedState& state, const QMap<int, QString>& given);

/// Reads {"device_states": [...]}, with "time" where it is known. Throws Fault for anything else.
/// @param json a JSON object
PublishedState readServiceState(const QString& json);

/// Writes states as JSON; docs/formats.md describes it. It remembers words: the language must stay
/// as long as it is used.
class StateWriter
{
public:
    /// @param names display names by device identifier, as deviceNames() takes them
    explicit StateWriter(const QMap<int, QString>& names = {});

    /// "time" to "devices" of the state, members of an object without its braces.
    QByteArray members(const PublishedState& state);

private:
    void write(JsonBuffer& json, const PublishedDevice& device);
    const QByteArray& model(int number);
    const QByteArray& state(const QString& name);

    const QMap<int, QString> m_names;
    QHash<int, QByteArray> m_models; // what is said of each
    QHash<QString, QByteArray> m_states; // the same, of a state's name
};
