// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/contradiction.h"
#include "log/devicechannels.h"
#include "log/logplayer.h"
#include "log/moneyact.h"
#include "log/outcome.h"

#include <optional>
#include <vector>

/// A payout, a float or an emptying of which the log does not tell all: its end, or what the
/// channels held before.
struct UnfinishedAct
{
    MoneyAct kind;
    int collections; ///< of the cassette when it began
    int collectionsAtEnd; ///< when the device idled or was at something else
    bool isEnded;
    bool isCounted; ///< the channels told what they held before
    bool areCounted; ///< the channels have told all that left them
    int channel; ///< at work last; 0 when not known
    std::vector<ChannelChange> moved; ///< what the registry told of it
};

/// Where a piece of money is, once no more is told of it. Its place in the log is where it was
/// offered.
struct PieceEnd : LogPlace
{
    int note = 0; ///< 0 for one of unknown value
    std::optional<int> otherNote; ///< it may be of this value as well
    Outcome end = Outcome::Unknown;
    bool isInChannel = false;
    bool isSure = true; ///< no line was skipped meanwhile
    bool isPlaceKnown = true; ///< the registry tells whether it is in a channel
    int collections = 0; ///< of the cassette when it was offered
    int collectionsAtEnd = 0; ///< when it was clear where it is
    qint64 skippedBefore = 0; ///< lines of the log, when it was offered
    bool isOnItsWay = false; ///< the log goes on, and may tell yet where it is
};

class MoneyTrail;

/// Who is told where money goes.
class MoneyWatcher
{
public:
    virtual ~MoneyWatcher() = default;

    /// Told for every line of the device, before what it leads to.
    virtual void takeReport(const MoneyTrail& /*trail*/, const LogStep& /*step*/) { }

    virtual void takeContradiction(const MoneyTrail& /*trail*/, const Contradiction& /*found*/) { }
    virtual void takePiece(const MoneyTrail& /*trail*/, const PieceEnd& /*piece*/) { }
    virtual void takeChange(const MoneyTrail& /*trail*/, MoneyAct /*act*/,
                            const ChannelChange& /*change*/)
    {
    }

    /// A channel that was not told before: so much is in it.
    virtual void takeChannel(const MoneyTrail& /*trail*/, size_t /*channel*/) { }

    /// Whether the cassette is in, as it is told.
    virtual void takeCassette(const MoneyTrail& /*trail*/, bool /*isIn*/) { }

    virtual void takeUnfinished(const MoneyTrail& /*trail*/, const UnfinishedAct& /*act*/) { }
};
