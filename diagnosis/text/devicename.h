// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// The name of a model's protocol in the catalogue, for example "CCNet"; null for a number that is
/// no model.
QString modelName(int model);

/// Its Acceptors::AcceptorType; -1 for a number that is no model.
int modelKind(int model);

/// Whether a device is a banknote validator for AcceptorState, which asks no other whether money
/// may be accepted.
bool isValidator(int model);

/// Whether it is a coin device, one that pays out among them.
bool isCoinDevice(int model);

/// What a customer takes a device for. Dispensers and numbers outside of the catalogue's ranges
/// take no money.
enum class Money { None, Note, Coin, Card };

Money moneyOf(int model);

/// What a model is, in the language that is shown, for example "Bill validator".
QString kindName(int model);

/// What people call a device, for example "Bill validator (CCNet)".
/// @param givenName in place of the kind, unless it is empty
QString deviceName(int model, const QString& givenName = {});
