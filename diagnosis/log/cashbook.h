// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashaccount.h"
#include "log/moneytrail.h"

#include <deque>
#include <optional>
#include <vector>

/// What lies where in one device.
class CashBook
{
public:
    /// @param trail of the device
    /// @param now the line that is being taken
    /// @param logs the names of the logs
    CashBook(const MoneyTrail& trail, const LogMoment& now, const QStringList& logs);

    /// The device told something on this line.
    void takeReport(bool hasCash);

    void skipLine();
    void beginHere();

    void takeContradiction(const Contradiction& found);
    void takePiece(const PieceEnd& piece);
    void takeChange(MoneyAct act, const ChannelChange& change);
    void takeChannel(size_t channel);
    void takeCassette(bool isIn);
    void takeUnfinished(const UnfinishedAct& act);

    /// As things stand.
    std::vector<CashPeriod> periods() const;

    /// The period that is on; while the cassette is out, as if an empty one came in.
    CashPeriod current();

private:
    struct Untold
    {
        qint64 pieces = 0;
        int first = 0; // collections, between which they may have left
        int last = 0;
        bool isPayout = false;
    };

    CashAccount& openPeriod(const PieceRange& opening, const LogMoment& at);
    CashAccount* period();
    CashAccount* periodOf(const PieceEnd& piece);
    PieceRange channelNow(size_t channel) const;
    PieceRange& inflow(CashAccount& period, int note, const PieceEnd& piece) const;
    void takeDoubtful(CashAccount& period, const PieceEnd& piece);
    qint64 untoldOf(size_t channel) const;
    void forgetUntold(size_t channel);
    void shiftAfter(CashAccount& at, const ChannelChange& change);
    void mayBeCollected(CashAccount& period);
    void close(CashAccount& period);
    CashPeriod told(CashAccount period) const;
    void lookAtChannels(CashAccount& period) const;
    LogPlace here() const;

    const MoneyTrail& m_trail;
    const LogMoment& m_now;
    const QStringList& m_logs;
    std::deque<CashAccount> m_periods;
    bool m_isOut = false; // the cassette
    std::optional<LogMoment> m_beginning; // of the time that is asked for
    qint64 m_emptiedAfter = 0; // so many lines were skipped when it may have been emptied at last
    int m_skipped = 0; // lines since it was told whether it is in
    std::vector<Untold> m_untold; // of each channel
    std::optional<bool> m_isToldIn;
    bool m_isPrologue = false; // the log began while it was out
    std::vector<PieceEnd> m_waiting; // of unknown place since the cassette was taken out
};
