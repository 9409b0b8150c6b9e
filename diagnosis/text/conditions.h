// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"
#include "text/publisheddevice.h"

#include <QString>

#include <array>

/// Something about a device's machine that may be why it takes no money.
struct Condition
{
    enum Kind : quint32 { Disabled, Offline, Halted, CriticalError, StackerMissing, StackerFull };
    static constexpr size_t count = StackerFull + 1;

    /// Those of a published device are told in this order.
    static constexpr std::array<Kind, count> publishedOrder{Disabled,    Halted,  StackerMissing,
                                                            StackerFull, Offline, CriticalError};

    /// Those that have a lamp, in the order of the lamps.
    static constexpr std::array lampOrder{StackerMissing, StackerFull, CriticalError, Halted,
                                          Offline};

    static const Condition table[count]; ///< indexed by Kind

    bool holds(const DeviceState& device) const { return device.*field == value; }
    bool holds(const PublishedDevice& device) const { return (device.*published)() == value; }

    /// What was the matter with a device of a log, a sentence.
    QString told(const DeviceState& device, qint64 sinceLine) const;

    /// What is the matter with a published device, a sentence.
    QString told(const PublishedDevice& device) const;

    const char* key; ///< as answers for programs name it
    const QString& stateKey; ///< of its field in the map of a device's state
    bool DeviceState::*field;
    bool (PublishedDevice::*published)() const;
    bool value; ///< of the field while the condition holds
    bool stopsNotes; ///< wherever they are in the device
    const char* word; ///< in short; this and the following are to be translated
    const char* was; ///< %1 is the line since when, %2 an error
    const char* is; ///< %1 is an error
    const char* lamp; ///< the name of its lamp; null without one
    const char* lampLabel;
};
