// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/moneywatcher.h"
#include "log/noteanswer.h"

#include <QVector>

#include <optional>
#include <vector>

/// What moves money in a device, and what a log tells of it until the next one begins.
struct OpenAct
{
    MoneyAct kind = MoneyAct::None;
    LogPlace begin;
    bool isEnded = false; ///< as its device told
    bool isCalm = false; ///< its device idled since
    bool isStopped = false; ///< its device jammed or the like
    bool isCut = false; ///< a session began meanwhile
    bool hasGap = false; ///< lines were skipped
    qint64 credit = 0;
    qint64 fallen = 0; ///< of it, and did not come back
    QVector<qint64> lines; ///< of credits, or of what was paid
    bool isCreditKnown = true;
    int collections = 0; ///< of the cassette when it began
    int collectionsAtEnd = 0; ///< when it was done
    int channel = 0; ///< at work
    qint64 paid = 0;
    bool isPaidKnown = true;
    std::vector<ChannelChange> moved;
    bool isInChannel = false; ///< of a piece
    bool isRegistryNew = false; ///< it was told for the first time
    std::optional<PieceEnd> piece; ///< once its note is closed
    NoteAnswer note; ///< likewise

    /// Whether it moves nothing any more.
    bool isDone() const { return isEnded || isCalm; }

    /// Between how many collections it moved what is told of it now.
    int firstCollections() const { return isDone() ? collectionsAtEnd : collections; }
    int lastCollections(int now) const { return isDone() ? collectionsAtEnd : now; }

    bool isAtWork() const { return isOperation(kind) && !isEnded && !isCalm; }

    /// Whether it is the beginning of a note.
    bool isOf(const NoteAnswer& answer) const
    {
        return kind == MoneyAct::Piece && begin.line == answer.line;
    }

    /// The note that it is: the one that is @p open, or that was; null for none.
    const NoteAnswer* noteOf(const NoteAnswer* open) const;

    /// Where its note is, which is closed.
    PieceEnd pieceEnd(const DeviceChannels& channels) const;

    /// What the log does not tell of it, if it ended now.
    /// @param now how many collections there were
    std::optional<UnfinishedAct> unfinished(const DeviceChannels& channels, int now) const;
};
