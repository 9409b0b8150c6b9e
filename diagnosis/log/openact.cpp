// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/openact.h"

const NoteAnswer* OpenAct::noteOf(const NoteAnswer* open) const
{
    if (kind != MoneyAct::Piece)
        return nullptr;
    if (piece)
        return &note;
    return open && isOf(*open) ? open : nullptr;
}

PieceEnd OpenAct::pieceEnd(const DeviceChannels& channels) const
{
    PieceEnd end = *piece;
    end.isInChannel = end.isInChannel || isInChannel;
    end.isPlaceKnown = !(isRegistryNew || hasGap) || !channels.haveValue(note.note);
    return end;
}

std::optional<UnfinishedAct> OpenAct::unfinished(const DeviceChannels& channels, int now) const
{
    if (!isOperation(kind))
        return {};
    // What it moved is told; of one that went on from another session nothing may be.
    const bool isBalanced =
        kind == MoneyAct::Payout && isPaidKnown && !isStopped && channels.sumLost(moved) == paid;
    const bool isSettled = moved.empty() ? isCut : isCalm || isBalanced;
    const bool isIntoCassette = kind != MoneyAct::Payout;
    const bool isCounted = !isIntoCassette || !isRegistryNew;
    if (isCounted && (isEnded || (isSettled && !isIntoCassette)))
        return {};
    return UnfinishedAct{kind,    collections, lastCollections(now), isEnded, isCounted, isSettled,
                         channel, moved};
}
