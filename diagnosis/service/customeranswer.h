// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/serviceanswer.h"

#include <QString>

/// What a customer takes a device for. Dispensers and numbers outside of the catalogue's ranges
/// take no money.
enum class Money { None, Note, Coin, Card };

Money moneyOf(int model);

/// Why a device that is told of so could not take money at all, a sentence for each reason: its
/// deviceFaults(), or that it is jammed, in error, or in a state that nobody knows.
QStringList whyNotWorking(const AcceptorStateItem& device, bool isOffline);

/// Whether there is no such reason.
bool isWorking(const AcceptorStateItem& device, bool isOffline);

/// Whether it takes money at this moment. A device for notes or coins idles then; a terminal takes
/// cards while it works.
bool takesMoney(const AcceptorStateItem& device, bool isOffline);

/// What a customer may do now, in the language that is shown.
struct CustomerAnswer
{
    explicit CustomerAnswer(const PublishedState& state);

    // What some device takes at this moment; none of them while one is busy with money, since the
    // customer is to wait then.
    bool note = false;
    bool coin = false;
    bool card = false;
    bool inService = false; ///< some device could take money

    /// What to do. It is AcceptorState::paymentStateDescr() of the devices that work, so that it
    /// invites nobody to pay at one that does not; "Pay by card" when only a terminal is left, and
    /// "Out of service" when nothing is.
    QString text;
};

/// "Out of service"
QString outOfServiceText();
