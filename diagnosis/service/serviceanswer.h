// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"
#include "text/publisheddevice.h"
#include "json/jsontext.h"

#include <QHash>
#include <QMap>
#include <QStringList>
#include <QVariant>

#include <vector>

// What a published service state means, for people and for programs. Texts are in the language that
// is shown.

/// A published service state.
struct PublishedState
{
    AcceptorState service; ///< what the library answers about all devices
    std::vector<PublishedDevice> devices; ///< in published order

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
