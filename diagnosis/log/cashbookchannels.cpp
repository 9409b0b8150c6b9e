// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashbook.h"

#include <utility>

// What a book does with the channels of its device.

// So many pieces may have left a channel that its row does not tell of.
qint64 CashBook::untoldOf(size_t channel) const
{
    return channel < m_untold.size() ? m_untold.at(channel).pieces : 0;
}

PieceRange CashBook::channelNow(size_t channel) const
{
    const CashChannel& row = m_trail.channels().at(channel);
    if (!m_trail.areChannelsKnown() || !row.isTold)
        return PieceRange::atLeast(0);
    return {qMax<qint64>(0, row.count - untoldOf(channel)), qMax<qint64>(0, row.count)};
}

void CashBook::takeChannel(size_t channel)
{
    CashAccount* const now = period();
    if (!now)
        return;
    const CashChannel& row = m_trail.channels().at(channel);
    now->channels.resize(qMax(now->channels.size(), channel + 1));
    now->channels.at(channel).opening = PieceRange::exactly(row.count);
    now->rejects[row.kind()].opening += PieceRange::exactly(row.rejected);
}

void CashBook::takeChange(MoneyAct act, const ChannelChange& change)
{
    period();
    forgetUntold(change.channel); // it is counted anew
    const CashChannel& channel = m_trail.channels().at(change.channel);
    std::vector<CashAccount*> periods; // in one of which it was
    for (CashAccount& period : m_periods) {
        if (period.collections >= change.first && period.collections <= change.last
            && change.channel < period.channels.size())
            periods.push_back(&period);
    }
    if (periods.empty()) {
        if (!m_periods.empty())
            m_periods.back().addDoubt(here(), DoubtReason::CassetteOut, qAbs(change.count),
                                      CashPlace::Channel, channel.denomination, channel.number);
        return;
    }
    CashAccount& at = *periods.back();
    shiftAfter(at, change);
    CashFlow& flow = at.channels.at(change.channel);
    flow.in += PieceRange::exactly(qMax<qint64>(0, change.count));
    if (act != MoneyAct::Piece)
        flow.filled += qMax<qint64>(0, change.count);
    const qint64 lost = qMax<qint64>(0, -change.count);
    const qint64 rejected = qMax<qint64>(0, change.rejected);
    const qint64 fromChannel = qMin(lost, rejected);
    const qint64 rest = lost - fromChannel;
    flow.moved -= PieceRange::exactly(fromChannel);
    CashFlow& rejects = at.rejects[channel.kind()];
    rejects.moved += PieceRange::exactly(rejected);
    rejects.out += PieceRange::exactly(qMax<qint64>(0, -change.rejected));
    if (rest == 0)
        return;
    if (act == MoneyAct::Payout) {
        flow.out += PieceRange::exactly(rest);
        return;
    }
    const bool isIntoCassette = act == MoneyAct::Float || act == MoneyAct::Emptying;
    flow.moved -= PieceRange::exactly(rest);
    if (!isIntoCassette) {
        flow.out.widen(0, rest);
        flow.moved.widen(0, rest);
    }
    for (CashAccount* const period : periods) {
        PieceRange& into = period->cassetteOf(channel.kind()).moved;
        if (isIntoCassette && periods.size() == 1 && change.first == change.last) {
            into += PieceRange::exactly(rest);
        } else {
            into.widen(0, rest);
            period->addDoubt(
                here(), isIntoCassette ? DoubtReason::EndMissing : DoubtReason::ChannelUnexplained,
                rest, {}, channel.denomination, channel.number);
        }
        period->addContent(m_now);
    }
}

// A change that is told after the cassette was taken out: it was before.
void CashBook::shiftAfter(CashAccount& at, const ChannelChange& change)
{
    const CashKind kind = m_trail.channels().at(change.channel).kind();
    if (!at.isOpen)
        at.channelsNow.at(change.channel) += PieceRange::exactly(change.count);
    bool isLater = false;
    for (CashAccount& period : m_periods) {
        if (isLater && change.channel < period.channels.size()) {
            period.channels.at(change.channel).opening += PieceRange::exactly(change.count);
            period.rejects[kind].opening += PieceRange::exactly(change.rejected);
            if (!period.isOpen)
                period.channelsNow.at(change.channel) += PieceRange::exactly(change.count);
        }
        isLater = isLater || &period == &at;
    }
}

// What may have left a channel unseen is told now.
void CashBook::forgetUntold(size_t channel)
{
    if (untoldOf(channel) == 0)
        return;
    const Untold untold = std::exchange(m_untold.at(channel), Untold());
    for (CashAccount& period : m_periods) {
        if (period.collections < untold.first || period.collections > untold.last
            || channel >= period.channels.size())
            continue;
        CashFlow& flow = period.channels.at(channel);
        flow.moved.widen(-untold.pieces, 0);
        flow.out.widen(0, untold.isPayout ? -untold.pieces : 0);
        period.cassetteOf(m_trail.channels().at(channel).kind()).moved.widen(0, -untold.pieces);
    }
}

void CashBook::takeUnfinished(const UnfinishedAct& act)
{
    std::vector<CashAccount*> periods; // in which it may have been at work
    for (CashAccount& period : m_periods) {
        if (period.collections >= act.collections && period.collections <= act.collectionsAtEnd)
            periods.push_back(&period);
    }
    for (CashAccount* const period : periods) {
        if (act.isCounted)
            break;
        period->isUnbounded = true;
        period->addDoubt(here(), DoubtReason::RegistryNew, 1, CashPlace::Cassette, 0);
        period->addContent(m_now);
    }
    m_untold.resize(m_trail.channels().size());
    for (size_t i = 0; i < m_untold.size() && !act.isEnded; ++i) {
        const CashChannel& row = m_trail.channels().at(i);
        const auto lost = [&](const CashAccount* period) {
            qint64 sum = 0;
            for (const ChannelChange& change : act.moved) {
                if (change.channel == i && (!period || change.last == period->collections))
                    sum += qMax<qint64>(0, -change.count);
            }
            return sum;
        };
        // Where nothing was told, all may have left it; else the next piece.
        const bool isAtWork = act.channel <= 0 || row.number == act.channel;
        const qint64 most = act.moved.empty() ? row.count : 1;
        const qint64 untold = act.areCounted || !isAtWork ? 0 : qMin(most, row.count);
        const bool isPayout = act.kind == MoneyAct::Payout;
        forgetUntold(i);
        m_untold.at(i) = {untold, act.collections, act.collectionsAtEnd, isPayout};
        const qint64 left = lost(nullptr);
        for (CashAccount* const period : periods) {
            if (left + untold == 0)
                break;
            // What left it for the cassette may not have come there, what was to be paid may have.
            const qint64 counted = isPayout ? 0 : lost(period);
            CashFlow& flow = period->channels.at(i);
            flow.moved.widen(untold + (isPayout ? left : 0), 0);
            flow.out.widen(isPayout ? left : 0, isPayout ? untold : 0);
            period->cassetteOf(row.kind()).moved.widen(counted, untold + left - counted);
            period->addDoubt(here(), DoubtReason::EndMissing, left + untold, {}, row.denomination,
                             row.number);
            period->addContent(m_now);
        }
    }
}

// What the channels hold now.
void CashBook::lookAtChannels(CashAccount& period) const
{
    for (size_t i = 0; i < period.channels.size(); ++i) {
        period.channelsNow.push_back(channelNow(i));
        period.channelsTold.push_back(m_trail.channels().at(i).isTold);
    }
    period.areRejectsKnown = m_trail.areChannelsKnown();
}
