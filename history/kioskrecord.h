// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/kiosksummary.h"

#include <QString>

#include <vector>

/// What is remembered of a kiosk at one moment. Times are in milliseconds since 1970, by the clock
/// of the worker: those of kiosks may be wrong.
struct KioskRecord
{
    /// What one channel of a device holds of one kind of money.
    struct Level
    {
        int channel;
        int denomination;
        QString currency;
        int billType;
        qint64 count;
    };

    struct Device
    {
        int device;
        int thread;
        qint64 inserted; ///< its counters
        qint64 rejected;
        qint64 returned;
        bool isStackerPresent;
        bool isStackerFull;
        std::vector<Level> levels; ///< empty where the service tells of no channels
    };

    QString kiosk;
    qint64 time; ///< when the state arrived, or the silence was noticed

    /// Of the message that says so, the same for all workers that get it: a change that two of them
    /// see is remembered once.
    quint64 message;

    KioskSummary::Condition condition;
    std::vector<KioskFault> faults;
    std::vector<Device> devices;
};
