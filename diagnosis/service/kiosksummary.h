// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/serviceanswer.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <limits>

/// What those who watch a fleet are told of a kiosk: what its service published, and whether it
/// needs somebody. docs/formats.md describes the text.
struct KioskSummary
{
    /// Worst first.
    enum Condition {
        Silent, ///< nothing is heard of it
        OutOfOrder, ///< none of its devices could take money
        Faulty, ///< some device does not work
        Fine
    };

    /// That of a state.
    KioskSummary(const QString& kiosk, const PublishedState& state, StateWriter& writer);

    /// That of a kiosk of which nothing is heard: what its last summary says of its devices, not
    /// accepting, for the reason that is given.
    static KioskSummary silent(const KioskSummary& last, const QString& kiosk,
                               const QString& reason);

    /// Reads one that was published. Throws Fault for a text that is none.
    explicit KioskSummary(const QByteArray& text);

    /// Of a condition, as the text has it.
    static const char* name(Condition condition);

    static constexpr qint64 noTime = std::numeric_limits<qint64>::min();

    QByteArray text; ///< JSON
    qint64 time = noTime; ///< the state's own, in milliseconds since 1970
    Condition condition = Fine;
    QStringList faults; ///< a sentence for each; empty when it is fine
    qint64 inserted = 0; ///< notes and coins that its devices counted
    qint64 rejected = 0;
    qint64 returned = 0;

private:
    KioskSummary() = default;
};
