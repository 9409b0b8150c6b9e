// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashperiod.h"
#include "log/moneytrail.h"

#include <map>
#include <optional>
#include <vector>

/// A period of a device while it is counted. Its rows are made when it is told.
struct CashAccount : CashPeriod
{
    using Flows = std::map<CashKind, CashFlow>;

    int collections = 0; ///< of the cassette before it
    int session = 0; ///< the newest
    PieceRange opening; ///< of every kind of which nothing is known
    bool isUnbounded = false; ///< any number of pieces may have come
    Flows cassette;
    Flows rejects;
    std::vector<CashFlow> channels; ///< by their index
    std::vector<PieceRange> channelsNow; ///< likewise, like the following known when it is told
    std::vector<bool> channelsTold;
    bool areRejectsKnown = true;

    CashFlow& cassetteOf(const CashKind& kind);

    /// What the cassette holds by a flow of it.
    PieceRange now(const CashFlow& flow) const;

    /// Of each kind that it was not seen to hold.
    PieceRange unseen() const;

    void addDoubt(const LogPlace& where, DoubtReason reason, qint64 pieces,
                  std::optional<CashPlace> place, int denomination, int channel = 0);

    /// What the cassette holds has changed at a moment, which may be before what the course ends
    /// with, or after the end of the period.
    void addContent(LogMoment at);

    /// @param known the channels, by their index
    /// @param logs the names of the logs
    CashPeriod told(const std::vector<CashChannel>& known, const QStringList& logs) const;

private:
    QStringList whyOf(const CashRow& row, const std::vector<CashChannel>& known,
                      const QStringList& logs) const;
};
