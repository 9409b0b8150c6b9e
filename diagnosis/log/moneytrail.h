// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/contradiction.h"
#include "log/logplayer.h"
#include "log/noteanswer.h"

#include <optional>
#include <utility>
#include <vector>

/// What moves money in a device: of what a log tells, a credit or a change of the registry belongs
/// to the one that began last.
enum class MoneyAct {
    None, ///< nothing since the session began
    Unseen, ///< the log begins in the middle of it
    Piece, ///< a note or coin
    Payout,
    Float,
    Emptying
};

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

    /// Whether a row of the registry is of it: a currency may be left out.
    bool isOf(const DispenserRegistryItem& row) const;
};

/// A change of a channel's row.
struct ChannelChange
{
    size_t channel; ///< its index
    qint64 count;
    qint64 rejected;
    int collections; ///< of the cassette before it
};

/// A payout, a float or an emptying of which the log does not tell all: its end, or what the
/// channels held before.
struct UnfinishedAct
{
    MoneyAct kind;
    int collections; ///< of the cassette when it began
    int collectionsAtEnd; ///< when the device idled or was at something else
    bool isEnded;
    bool isCounted; ///< the channels told what they held before
    bool areCounted; ///< the channels have told all that left them
    int channel; ///< at work last; 0 when not known
    std::vector<ChannelChange> moved; ///< what the registry told of it
};

/// Where a piece of money is, once no more is told of it. Its place in the log is where it was
/// offered.
struct PieceEnd : LogPlace
{
    int note = 0; ///< 0 for one of unknown value
    std::optional<int> otherNote; ///< it may be of this value as well
    Outcome end = Outcome::Unknown;
    bool isInChannel = false;
    bool isSure = true; ///< no line was skipped meanwhile
    bool isPlaceKnown = true; ///< the registry tells whether it is in a channel
    int collections = 0; ///< of the cassette when it was offered
    int collectionsAtEnd = 0; ///< when it was clear where it is
    qint64 skippedBefore = 0; ///< lines of the log, when it was offered
    bool isOnItsWay = false; ///< the log goes on, and may tell yet where it is
};

class MoneyTrail;

/// Who is told where money goes.
class MoneyWatcher
{
public:
    virtual ~MoneyWatcher() = default;

    /// Told for every line of the device, before what it leads to.
    virtual void takeReport(const MoneyTrail& /*trail*/, const LogStep& /*step*/) { }

    virtual void takeContradiction(const MoneyTrail& /*trail*/, const Contradiction& /*found*/) { }
    virtual void takePiece(const MoneyTrail& /*trail*/, const PieceEnd& /*piece*/) { }
    virtual void takeChange(const MoneyTrail& /*trail*/, MoneyAct /*act*/,
                            const ChannelChange& /*change*/)
    {
    }

    /// A channel that was not told before: so much is in it.
    virtual void takeChannel(const MoneyTrail& /*trail*/, size_t /*channel*/) { }

    /// Whether the cassette is in, as it is told.
    virtual void takeCassette(const MoneyTrail& /*trail*/, bool /*isIn*/) { }

    virtual void takeUnfinished(const MoneyTrail& /*trail*/, const UnfinishedAct& /*act*/) { }
};

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
    const std::vector<CashChannel>& channels() const { return m_channels; }

    /// How many times the cassette was taken out so far.
    int collections() const { return m_collections; }

    /// Whether no line was skipped since the registry was told.
    bool areChannelsKnown() const { return m_areChannelsKnown; }

    void skipLine();

    // The note of the following is the one that is open; null without one.

    /// A session begins: what was on ends.
    void startSession(const NoteAnswer* note);

    void see(const LogStep& step, const SessionLine& line, qint64 lineNumber);

    /// Returns whether the registry tells that the note is in a channel.
    bool giveToLast(const NoteAnswer* note);
    bool giveRest(const NoteAnswer* note);

    /// Takes a new state.
    void follow(const NoteAnswer* note);

    /// What was on ends.
    void endAct(const NoteAnswer* note);

    /// @param isSame it is the note that began last, of which only the value was new
    void beginNote(const NoteAnswer& note, bool isSame);

    /// A session began while the device had the note, and now it tells of it.
    void resumeNote(const NoteAnswer& note);

    /// What was begun turned out to be a note.
    void countNote();

    /// Whether the note that began last was counted, perhaps by its device alone.
    bool isNoteCounted() const { return !m_isUncounted; }

    /// Nothing more is told of a note.
    void closeNote(const NoteAnswer& note, const PieceEnd& end);

    /// Tells what is on, as things stand.
    /// @param open the piece that the device has in hand; null without one
    void foresee(const PieceEnd* open, MoneyWatcher& watcher) const;

private:
    struct Act
    {
        MoneyAct kind = MoneyAct::None;
        LogPlace begin;
        bool isEnded = false; // as its device told
        bool isCalm = false; // its device idled since
        bool isStopped = false; // its device jammed or the like
        bool hasGap = false; // lines were skipped
        bool isTold = false; // that it is unfinished
        qint64 credit = 0;
        QVector<qint64> lines; // of credits, or of what was paid
        bool isCreditKnown = true;
        int collections = 0; // of the cassette when it began
        int collectionsAtEnd = 0; // when it was calm
        int channel = 0; // at work
        qint64 paid = 0;
        bool isPaidKnown = true;
        std::vector<ChannelChange> moved;
        bool isInChannel = false; // of a piece
        bool isRegistryNew = false; // it was told for the first time
        std::optional<PieceEnd> piece; // once its note is closed
        NoteAnswer note; // likewise
    };

    void seeSums(const LogStep& step);
    void seeRegistry();
    bool seeCounter(qint64 counter);
    const NoteAnswer* noteOfAct(const NoteAnswer* open) const;
    bool hasChannelOf(const NoteAnswer& note) const;
    bool takeGrowth(const NoteAnswer& note);
    void takeCredit();
    void takeLoneCredit();
    void takeChanges();
    void begin(MoneyAct kind, const NoteAnswer* note);
    void tellUnfinished(MoneyWatcher& watcher) const;
    void judgeNote(const NoteAnswer& note);
    qint64 lostOfAct() const;
    void judgePayout();
    void tell(Rule rule, const LogPlace& place, QVector<qint64> lines, const QString& sentence,
              quint32 fields = 0, qint64 missing = 0);
    LogPlace here() const;

    const LogDevice& m_device;
    MoneyWatcher& m_watcher;
    Act m_act;
    bool m_isFirst = true; // line of the device
    bool m_isRegistryNew = false; // the line tells it for the first time
    bool m_isAfterGap = false; // its first line after some that were skipped
    State m_state = STATE_BUSY;
    qint64 m_line = 0; // that is seen
    LogTime m_time;
    std::optional<qint64> m_sum; // of the session, as told last
    qint64 m_sumLine = 0;
    std::optional<qint64> m_paid;
    int m_judgedNote = 0; // its value
    qint64 m_newCredit = 0; // of this line, not yet given away; so are the following
    qint64 m_newPaid = 0;
    std::vector<ChannelChange> m_changes;
    std::vector<CashChannel> m_channels;
    size_t m_knownChannels = 0; // of them, before this line
    bool m_areChannelsKnown = true; // no line was skipped since they were told
    int m_collections = 0;
    bool m_isCassetteIn = true;
    bool m_isUncounted = false; // the note that was begun last
    qint64 m_notes = 0; // that the counter may not have yet
    std::optional<qint64> m_counter; // as told last
    std::optional<qint64> m_newCounter; // of this line
    bool m_isNoteMissing = false; // as the counter of this line seems to tell
    qint64 m_counterLine = 0;
    int m_counterCollections = 0;
    std::vector<std::pair<quint32, Contradiction>> m_withheld; // until the fields are told
};
