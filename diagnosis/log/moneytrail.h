// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/moneywatcher.h"
#include "log/noteanswer.h"
#include "log/notecounter.h"
#include "log/openact.h"
#include "log/withheld.h"

#include <optional>
#include <utility>
#include <vector>

/// The money of one device: what was credited and paid, what the channels hold, and what of it does
/// not add up. For each line, see() looks what is new, and the act that began last has its part of
/// it in giveToLast(); an act that begins on the line has the rest, in giveRest().
///
/// A value that was not told before, or before which a line was skipped, neither rose nor fell. A
/// session's start sets the sums to 0.
class MoneyTrail
{
public:
    MoneyTrail(const LogDevice& device, MoneyWatcher& watcher);

    const LogDevice& device() const { return m_device; }
    const std::vector<CashChannel>& channels() const { return m_channels.all(); }

    /// How many times the cassette was taken out so far.
    int collections() const { return m_collections; }

    /// How many lines were skipped since its device was known.
    qint64 skippedLines() const { return m_skippedLines; }

    /// Whether no line was skipped since the registry was told.
    bool areChannelsKnown() const { return m_channels.areKnown(); }

    void skipLine();

    // The note of the following is the one that is open; null without one.

    /// A session begins. What was on ends; of a payout, a float or an emptying its device tells.
    void startSession(const NoteAnswer* note);

    void see(const LogStep& step, const SessionLine& line, qint64 lineNumber);

    /// Returns whether the registry tells that the note is in a channel.
    bool giveToLast(const NoteAnswer* note);
    bool giveRest(const NoteAnswer* note);

    /// Takes a new state.
    void follow(const NoteAnswer* note);

    /// The log ends.
    void finish();

    /// @param isSame it is the note that began last, of which only the value was new
    void beginNote(const NoteAnswer& note, bool isSame);

    /// A session began while the device had the note, and now it tells of it.
    void resumeNote(const NoteAnswer& note);

    /// Whether it pays out, floats or empties: what it rejects then is no note that was offered.
    bool isAtWork() const { return m_act.isAtWork(); }

    /// What was begun turned out to be a note.
    void countNote() { m_counter.count(); }

    /// Whether the note that began last was counted, perhaps by its device alone.
    bool isNoteCounted() const { return m_counter.isCounted(); }

    /// Nothing more is told of a note.
    void closeNote(const NoteAnswer& note, const PieceEnd& end);

    /// Tells what is on, as things stand.
    /// @param open the piece that the device has in hand; null without one
    void foresee(const PieceEnd* open, MoneyWatcher& watcher) const;

private:
    void seeSums(const LogStep& step);
    void seeRegistry();
    void seeCounter();
    bool takeGrowth(const NoteAnswer& note);
    void takeCredit();
    void takeLoneCredit();
    void takeChanges();
    void begin(MoneyAct kind, const NoteAnswer* note);
    void endAct(const NoteAnswer* note);
    void finishPiece();
    void tellLoneCredits();
    void judge(std::optional<Contradiction> found, quint32 field);
    void tell(Contradiction found, const LogPlace& place, QVector<qint64> lines, quint32 field = 0);
    LogPlace here() const;

    const LogDevice& m_device;
    MoneyWatcher& m_watcher;
    OpenAct m_act;
    std::optional<OpenAct> m_parked; // that is over, while its note is open
    qint64 m_skippedLines = 0;
    bool m_isFirst = true; // line of the device
    bool m_isRegistryNew = false; // the line tells it for the first time
    bool m_isAfterGap = false; // its first line after some that were skipped
    State m_state = STATE_BUSY;
    qint64 m_line = 0; // that is seen
    LogTime m_time;
    std::optional<qint64> m_sum; // of the session, as told last
    qint64 m_sumLine = 0;
    std::optional<qint64> m_paid;
    qint64 m_newCredit = 0; // of this line, not yet given away; so are the following
    qint64 m_newPaid = 0;
    std::vector<ChannelChange> m_changes;
    DeviceChannels m_channels;
    int m_collections = 0;
    bool m_isCassetteIn = true;
    NoteCounter m_counter;
    bool m_isNews = false; // what the line tells differs from before
    std::optional<qint64> m_newCounter; // of this line
    qint64 m_missingNotes = 0; // of this session, of which no credit was seen yet
    std::vector<Contradiction> m_loneCredits; // until the counter tells that no note is missing
    bool m_isNoteMissing = false; // as the counter of this line seems to tell
    Withheld m_withheld;
};
