// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptorstate.h"

/// A device of a published service state: the library's entry, and what that does not keep.
struct PublishedDevice : AcceptorStateItem
{
    using AcceptorStateItem::AcceptorStateItem;

    bool online() const { return isOnline; }

    bool isOnline = true; ///< false when it says of itself that it is not connected
    qint64 sessionSum = 0; ///< taken in the current session
    qint64 currentNote = 0; ///< face value of the note or coin in hand
    qint64 insertedInFull = 0; ///< the counters, of which the entry keeps 32 bits
    qint64 rejectedInFull = 0;
    qint64 returnedInFull = 0;
};
