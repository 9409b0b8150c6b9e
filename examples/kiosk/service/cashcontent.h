// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#ifdef WITH_LEDGER
#include "log/cashledger.h"
#endif

#include <QByteArray>
#include <QVariant>

/// What lies in each device now, by the ledger of what the devices reported. The ledger is part of
/// velmolib's tree and not installed: without it, there is nothing to tell.
class CashContent
{
public:
#ifdef WITH_LEDGER
    /// @param line of a session log
    void take(const QByteArray& line);

    /// {"device_id", "thread_id", "places": [{"place", "channel", "denomination", "currency",
    /// "min", "max"}], "pieces": [{"denomination", "count", "stuck", "since"}]} of each device. A
    /// place is "cassette", "channel" or "reject"; without "max" there is no limit. Pieces are
    /// those that are on their way or got stuck, the first one since a time. Of unknown value,
    /// their denomination is 0; one that is of either of two values is told of for both.
    QVariantList toList() const;

private:
    CashLedger m_ledger{{}, {}, [](const Contradiction&) {}};
    qint64 m_lines = 0;
#else
    void take(const QByteArray&) { }
    QVariantList toList() const
    {
        return {};
    }
#endif
};
