// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashbook.h"
#include "log/explanation.h"

#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

/// The ledger of one kiosk: what lies where, told by what its devices logged. Of every place it
/// tells what lay in it, what came, went and moved, and within which range that is known.
///
/// A channel holds what the registry says. The cassette holds the pieces that were taken and are in
/// no channel, and what was floated and emptied into it; whenever it is taken out, it is taken to
/// come back empty. What it held before the log begins is not known.
class CashLedger : private MoneyWatcher
{
public:
    using Receiver = std::function<void(const Contradiction& found)>;

    /// @param logs their names
    /// @param device the only one that is asked for
    /// @param receiver is given the contradictions, their lines as LogPosition
    CashLedger(const QStringList& logs, std::optional<quint32> device, Receiver receiver);

    /// @param position a LogPosition, where each is greater than those before of its log
    void take(const SessionLine& line, qint64 position);

    /// Tells that a line could not be read.
    void skipLine(qint64 position);

    /// Begins to count anew: what lies where becomes the opening, and of what began before no more
    /// is told.
    /// @param position of the line from which on, which is not taken yet; 0 for behind all lines
    void beginHere(qint64 position, const LogTime& time);

    /// To be called once, when all lines are taken.
    void finish();

    /// By device and thread, from the first period to the last.
    /// @param isLogMissing a log could not be read at all
    std::vector<CashPeriod> periods(bool isLogMissing) const;

    /// What lies in each device now, before the log is over: by device and thread, a period each.
    std::vector<CashPeriod> now() const;

    const Summary& summary() const { return m_summary; }

    /// How many there are of those that are asked for.
    int devices() const;

private:
    void takeReport(const MoneyTrail& trail, const LogStep& step) override;
    void takeContradiction(const MoneyTrail& trail, const Contradiction& found) override;
    void takePiece(const MoneyTrail& trail, const PieceEnd& piece) override;
    void takeChange(const MoneyTrail& trail, MoneyAct act, const ChannelChange& change) override;
    void takeChannel(const MoneyTrail& trail, size_t channel) override;
    void takeCassette(const MoneyTrail& trail, bool isIn) override;
    void takeUnfinished(const MoneyTrail& trail, const UnfinishedAct& act) override;
    bool isAsked(quint32 device) const { return !m_device || device == *m_device; }
    bool isAsked(const LogPlace& place) const;
    CashBook& bookOf(const MoneyTrail& trail);

    const QStringList m_logs;
    const std::optional<quint32> m_device;
    const Receiver m_receiver;
    Summary m_summary;
    int m_sessionsBefore = 0; // the counting began
    std::optional<LogMoment> m_beginning; // of the counting
    std::map<std::pair<quint32, quint32>, std::unique_ptr<CashBook>>
        m_books; // by device and thread
    LogMoment m_now;
    LogExplainer m_explainer;
};
