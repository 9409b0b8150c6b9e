// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/devicechannels.h"

#include "text/diagnosis.h"

#include <algorithm>

bool CashChannel::isOf(const DispenserRegistryItem& row) const
{
    return row.channel == number && row.denomination == denomination && row.billType == billType
        && (currency.isEmpty() || row.currency.isEmpty() || row.currency == currency);
}

DeviceChannels::News DeviceChannels::take(const QList<DispenserRegistryItem>& rows, int collections)
{
    News news;
    news.isRegistryNew = m_all.empty() && !rows.isEmpty();
    news.areLinesMissing = !std::exchange(m_areKnown, true);
    const size_t known = m_all.size();
    std::vector<ChannelChange> told;
    for (CashChannel& channel : m_all) {
        channel.isTold = false;
        told.push_back({told.size(), -channel.count, -channel.rejected, collections, collections});
    }
    for (const DispenserRegistryItem& row : rows) {
        auto channel = std::find_if(m_all.begin(), m_all.end(),
                                    [&](const CashChannel& other) { return other.isOf(row); });
        if (channel == m_all.end()) {
            m_all.push_back({row.channel, row.denomination, row.billType, row.currency});
            channel = m_all.end() - 1;
            news.added.push_back(told.size());
            told.push_back({told.size(), 0, 0, collections, collections});
        }
        channel->isTold = true;
        if (channel->currency.isEmpty())
            channel->currency = row.currency;
        ChannelChange& change = told.at(size_t(channel - m_all.begin()));
        change.count += row.count; // two rows may be of one
        change.rejected += row.rejected;
    }
    for (const ChannelChange& change : told) {
        CashChannel& channel = m_all.at(change.channel);
        if (!channel.isTold)
            continue;
        channel.count += change.count;
        channel.rejected += change.rejected;
        if (change.channel < known && (change.count != 0 || change.rejected != 0))
            news.changes.push_back(change);
    }
    return news;
}

bool DeviceChannels::haveValue(int value) const
{
    return std::any_of(m_all.begin(), m_all.end(), [value](const CashChannel& channel) {
        return value <= 0 || channel.denomination == value;
    });
}

qint64 DeviceChannels::sumLost(const std::vector<ChannelChange>& changes) const
{
    qint64 lost = 0; // What grew was filled.
    for (const ChannelChange& change : changes) {
        lost += (qMax<qint64>(0, -change.count) - qMax<qint64>(0, change.rejected))
            * m_all.at(change.channel).denomination;
    }
    return lost;
}

QStringList DeviceChannels::told(const ChannelChange& change) const
{
    const CashChannel& channel = m_all.at(change.channel);
    const QString name =
        Diagnosis::tr("channel %1 (%2)").arg(channel.number).arg(channel.denomination);
    QStringList texts;
    if (change.count != 0) {
        texts += Diagnosis::tr("%1 went from %2 to %3")
                     .arg(name)
                     .arg(channel.count - change.count)
                     .arg(channel.count);
    }
    if (change.rejected != 0) {
        texts += Diagnosis::tr("rejects of %1 went from %2 to %3")
                     .arg(name)
                     .arg(channel.rejected - change.rejected)
                     .arg(channel.rejected);
    }
    return texts;
}
