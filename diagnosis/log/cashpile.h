// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/kioskcash.h"

/// What is told of a kiosk, with its name where it has one.
QString ofKiosk(const KioskCash& kiosk, const QString& text);

/// A device of a kiosk, with its periods from the first to the last.
struct CashDevice
{
    const KioskCash* kiosk = nullptr;
    std::vector<CashPeriod> periods;
    QStringList currencies; ///< by which sums are told apart; one, which may be empty, for all

    const CashPeriod& now() const { return periods.back(); }
    QString name() const;

    static std::vector<CashDevice> of(const CashAnswer& answer);
};

/// What lies in a place at the end of a period.
struct CashPile
{
    CashPlace place = CashPlace::Cassette;
    int channel = 0; ///< 0 for all of them
    QString name;
    QString currency; ///< empty where it is not told
    PieceRange sum;

    /// The sum with its currency.
    QString text() const;

    /// @param isWhole all channels as one
    static std::vector<CashPile> of(const CashDevice& device, const CashPeriod& period,
                                    bool isWhole);
};
