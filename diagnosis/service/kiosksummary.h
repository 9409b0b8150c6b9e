// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/serviceanswer.h"

#include <QByteArray>
#include <QString>

#include <limits>
#include <optional>
#include <vector>

/// What is wrong with a kiosk or with one of its devices.
struct KioskFault
{
    static constexpr int noDevice = -1;

    int device = noDevice; ///< its number; noDevice where it is the kiosk
    int thread = noDevice;
    QString reason; ///< for programs, of those that docs/formats.md lists
    QString text; ///< a sentence

    JsonText cause() const; ///< an object of what is for programs

    static QStringList knownReasons(); ///< worst first
    static void sort(std::vector<KioskFault>& faults); ///< worst first
};

/// What those who watch a fleet are told of a kiosk: what its service published, and whether it
/// needs somebody. docs/formats.md describes the text.
struct KioskSummary
{
    /// Worst first.
    enum Condition {
        Unknown, ///< what it published cannot be read
        Silent, ///< nothing is heard of it
        OutOfOrder, ///< none of its devices could take money
        Faulty, ///< some device does not work
        Fine
    };

    static constexpr qint64 noTime = std::numeric_limits<qint64>::min();

    /// That of a state.
    KioskSummary(const QString& kiosk, const PublishedState& state, StateWriter& writer);

    /// That of a kiosk whose state now is not known: what its last summary says of its devices, not
    /// accepting.
    /// @param condition Unknown or Silent
    /// @param fault why
    /// @param now since when, in milliseconds since 1970; if the last one says the same of the
    /// kiosk, its own time stays
    static KioskSummary withoutState(const KioskSummary& last, const QString& kiosk,
                                     Condition condition, const KioskFault& fault, qint64 now);

    /// Reads one that was published. Throws Fault for a text that is none.
    explicit KioskSummary(const QByteArray& text);

    /// Takes devices, and faults from the last on, out of the text until it has so many bytes, and
    /// says so in a fault.
    /// @return false when even that is too long
    bool cutTo(qsizetype bytes, const QString& kiosk);

    /// Of a condition, as the text has it.
    static const char* name(Condition condition);

    /// Unknown for a name that is none.
    static Condition conditionOf(const QString& name);

    /// A moment as JSON has it; null without one, and for noTime.
    static JsonText momentText(std::optional<qint64> time);

    QByteArray text; ///< JSON
    qint64 time = noTime; ///< the state's own, in milliseconds since 1970
    qint64 since = noTime; ///< how long it is silent or unknown
    Condition condition = Fine;
    std::vector<KioskFault> faults; ///< empty when it is fine
    qint64 inserted = 0; ///< notes and coins that its devices counted
    qint64 rejected = 0;
    qint64 returned = 0;

private:
    KioskSummary() = default;
};
