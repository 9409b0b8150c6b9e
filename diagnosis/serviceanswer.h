// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"
#include "jsontext.h"

#include <QMap>
#include <QStringList>

#include <vector>

// What a published service state means, for people and for programs. Texts are in the language that
// is shown.

/// Why no money may be accepted, one sentence for each reason; empty exactly when
/// AcceptorState::isAcceptingAllowed().
QStringList whyNotAccepting(const AcceptorState& state);

/// What keeps a device from taking money, whether or not that stops the others: it is disabled,
/// halted, in a critical error, without its stacker or with a full one. A sentence for each.
QStringList deviceFaults(const AcceptorStateItem& device);

/// The display name of each device of the state: the given one, else deviceName() of its model.
QMap<int, QString> deviceNames(const AcceptorState& state, const QMap<int, QString>& given);

/// Reads {"device_states": [...]}, with "time" where it is known. Throws Fault for anything else.
/// @param json a JSON object
AcceptorState readServiceState(const QString& json);

/// "time" to "devices" of the state in JSON; docs/formats.md describes them.
std::vector<JsonText::Member> jsonMembers(const AcceptorState& state,
                                          const QMap<int, QString>& names);
