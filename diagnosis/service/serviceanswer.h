// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"
#include "json/jsontext.h"

#include <QHash>
#include <QMap>
#include <QStringList>
#include <QVariant>

#include <vector>

// What a published service state means, for people and for programs. Texts are in the language that
// is shown.

/// A published service state: what the library keeps of it, and what is told besides.
struct PublishedState
{
    /// What the entry of a device does not keep.
    struct Details
    {
        bool isOffline = false; ///< it says of itself that it is not connected
        qint32 sessionSum = 0; ///< taken in the current session
        qint32 currentNote = 0; ///< face value of the note or coin in hand
        qint64 notesInserted = 0; ///< the counters in full, of which the entry keeps 32 bits
        qint64 notesRejected = 0;
        qint64 notesReturned = 0;
    };

    AcceptorState service;
    std::vector<Details> details; ///< of each device of the service, in their order

    /// The note filters that refuse what a device has in hand, where the service tells it:
    /// {"device_id": ..., "thread_id": ..., "name": ..., "params": {...}}.
    QVariantList refusals;

    /// Taken by all devices in the current session.
    qint64 sessionSum() const;
};

/// A counter as it was published; of what is beyond 64 bits the nearest number within.
qint64 counterOf(const QVariant& published);

/// Why no money may be accepted, one sentence for each reason; empty exactly when
/// AcceptorState::isAcceptingAllowed().
QStringList whyNotAccepting(const AcceptorState& state);

/// What keeps a device from taking money, whether or not that stops the others: it is disabled,
/// offline, halted, in a critical error, without its stacker or with a full one. A sentence for
/// each.
QStringList deviceFaults(const AcceptorStateItem& device, bool isOffline);

/// The display name of each device of the state: the given one, else deviceName() of its model.
QMap<int, QString> deviceNames(const AcceptorState& state, const QMap<int, QString>& given);

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
    void append(JsonBuffer& json, const AcceptorStateItem& device,
                const PublishedState::Details& details);
    const QByteArray& model(int number);
    const QByteArray& state(const QString& name);

    const QMap<int, QString> m_names;
    QHash<int, QByteArray> m_models; // what is said of each
    QHash<QString, QByteArray> m_states; // the same, of a state's name
};
