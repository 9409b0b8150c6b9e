// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/serviceanswer.h"

#include <QString>

#include <vector>

/// Why a device could not take money at all.
struct DeviceFault
{
    const char* reason; ///< as answers for programs name it; "state" for what it is in
    QString text; ///< a sentence
};

/// Of a device that is told of so: its deviceFaults(), or that it is jammed, in error, or in a
/// state that nobody knows.
std::vector<DeviceFault> whyNotWorking(const PublishedDevice& device);

/// Whether there is no such reason.
bool isWorking(const PublishedDevice& device);

/// Whether it takes money at this moment. A device for notes or coins idles then; a terminal takes
/// cards while it works.
bool takesMoney(const PublishedDevice& device);

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
