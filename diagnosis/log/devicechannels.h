// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "dispenserregistryitem.h"
#include "log/cashperiod.h"

#include <QList>
#include <QString>

#include <vector>

/// A channel of a device, of one kind of money.
struct CashChannel
{
    int number = 0;
    int denomination = 0;
    int billType = 0;
    QString currency; ///< empty while it is not told
    qint64 count = 0;
    qint64 rejected = 0;
    bool isTold = true; ///< in the registry that was told last

    CashKind kind() const { return {denomination, currency, billType}; }

    /// Whether a row of the registry is of it: a currency may be left out.
    bool isOf(const DispenserRegistryItem& row) const;
};

/// A change of a channel's row.
struct ChannelChange
{
    size_t channel; ///< its index
    qint64 count;
    qint64 rejected;
    int first; ///< how many collections of the cassette there were before it, at least
    int last; ///< and at most
};

/// The channels of a device, as its registry tells of them.
class DeviceChannels
{
public:
    /// What was told for the first time, and what differs from what was told before.
    struct News
    {
        std::vector<size_t> added;
        std::vector<ChannelChange> changes;
        bool isRegistryNew = false; ///< nothing was known of the channels
        bool areLinesMissing = false; ///< some were skipped since it was told
    };

    /// @param collections of the cassette so far
    News take(const QList<DispenserRegistryItem>& rows, int collections);

    void skipLine() { m_areKnown = false; }

    const std::vector<CashChannel>& all() const { return m_all; }

    /// Whether no line was skipped since they were told.
    bool areKnown() const { return m_areKnown; }

    /// Whether there is one of a value, 0 for any.
    bool haveValue(int value) const;

    /// The sum of what left them without being rejected.
    qint64 sumLost(const std::vector<ChannelChange>& changes) const;

    /// What a change was, for people; perhaps two things.
    QStringList told(const ChannelChange& change) const;

private:
    std::vector<CashChannel> m_all;
    bool m_areKnown = true;
};
