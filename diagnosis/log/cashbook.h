// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashperiod.h"
#include "log/moneytrail.h"

#include <deque>
#include <map>
#include <optional>
#include <vector>

/// A line that is being taken.
struct LogMoment
{
    qint64 position = 0; ///< a LogPosition
    LogTime time;
    qint64 skipped = 0; ///< lines before it
};

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
    using Flows = std::map<CashKind, CashFlow>;

    struct Period
    {
        CashPeriod told; // but for its rows
        int collections = 0;
        int session = 0; // the newest
        PieceRange opening; // of every kind of which nothing is known
        qint64 extra = 0; // pieces of any kind may have come
        bool isUnbounded = false;
        Flows cassette;
        Flows rejects;
        std::vector<CashFlow> channels;
        std::vector<PieceRange> channelsNow; // of one that is over, like the following
        bool areRejectsKnown = true;
    };

    Period& openPeriod(const PieceRange& opening);
    Period* period();
    Period* periodOf(const PieceEnd& piece);
    CashFlow& cassette(Period& period, const CashKind& kind) const;
    CashFlow& rejects(Period& period, const CashChannel& channel) const;
    CashKind kindOf(const CashChannel& channel) const;
    CashKind kindOf(int note) const;
    PieceRange cassetteNow(const Period& period, const CashFlow& flow) const;
    PieceRange unseen(const Period& period) const;
    PieceRange channelNow(size_t channel) const;
    PieceRange& inflow(Period& period, int note, const PieceEnd& piece) const;
    void takeDoubtful(Period& period, const PieceEnd& piece);
    void mayBeCollected(Period& period);
    static void addDoubt(Period& period, const LogPlace& where, const char* reason, qint64 pieces,
                         std::optional<CashPlace> place, int denomination, int channel = 0);
    void addContent(Period& period, LogMoment at) const;
    void close(Period& period);
    CashPeriod told(const Period& period) const;
    Flows merged(const Flows& flows) const;
    QStringList whyOf(const Period& period, const CashRow& row) const;
    QString placesOf(const CashDoubt& doubt) const;
    LogPlace here() const;

    const MoneyTrail& m_trail;
    const LogMoment& m_now;
    const QStringList& m_logs;
    std::deque<Period> m_periods;
    bool m_isOut = false; // the cassette
    std::optional<LogMoment> m_beginning; // of the time that is asked for
    qint64 m_emptiedAfter = 0; // so many lines were skipped when it may have been emptied at last
    int m_skipped = 0; // lines since it was told whether it is in
    std::vector<qint64> m_fewer; // that a channel may hold less than its row says
    std::vector<PieceEnd> m_waiting; // of unknown place since the cassette was taken out
};
