// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/logplayer.h"
#include "log/moneytrail.h"
#include "log/noteanswer.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <unordered_map>

/// Explains a session log. A note is offered by an event in state accepting with a note above 0,
/// unless the device's event before it was the same. It is refused when a filter objects then;
/// otherwise what follows decides, up to the device's next note, or to a session that begins when
/// the device has no note in hand: a stacked, rejected or returned event; or else an accepted or
/// stacking one, when the device idles or its next note comes and it did not stop in between. That
/// a channel of its value grew, tells that it was taken, too. One that is on its way when the log
/// ends is stuck. A note whose value comes after it was accepting, or with the end, is followed
/// likewise; the filters are not asked about it.
class LogExplainer
{
public:
    using Receiver = std::function<void(const NoteAnswer& answer)>;

    /// @param receiver is given each answer, in the order of their lines, once it is clear
    /// @param watcher is told where the money goes; null for none
    LogExplainer(const FilterSet& filters, Receiver receiver, MoneyWatcher* watcher = nullptr);

    void take(const SessionLine& line, qint64 lineNumber);

    /// Tells that a line could not be read.
    void skipLine();

    /// Gives away what is still open at the end of the log.
    void finish();

    /// Tells where the money that is not settled yet is, as things stand. A piece that is in hand
    /// is on its way.
    void foresee(MoneyWatcher& watcher) const;

    int sessions() const { return m_player.sessions(); }

    /// The lowest number of a session that a device is in, or of which an answer is not given away
    /// yet; 0 before a device reported.
    int firstOpenSession() const;

    const LogPlayer& player() const { return m_player; }

private:
    enum Phase {
        InHand, // of the device
        Ended, // stacked, rejected or returned
        Idle // the device idles, and the log did not say
    };

    struct Note
    {
        NoteAnswer answer; // its end: so far
        PieceEnd piece; // where it is, likewise
        qint64 seenLine = 0; // on which its device told something of it last
        qint64 stoppedLine = 0; // on which the device stopped with it; 0 while it works
        int sumBefore = 0; // of the session
        Phase phase = InHand;
        bool isOpen = true;
        bool isValuePresumed = false; // the log did not tell it of this note
        bool startSeen = false; // of the session
        bool isInterrupted = false; // by a session that began, or the end of the log
        qint64 skippedBefore = 0; // the session
    };

    // How a device stood after its last event, of whatever session, and its open note.
    struct Trail
    {
        Note* note = nullptr;
        std::unique_ptr<MoneyTrail> money;
        std::optional<State> state;
        int value = 0;
        bool isValueNew = false; // and not yet that of a note

        const NoteAnswer* answer() const { return note ? &note->answer : nullptr; }
    };

    Trail& trailOf(const LogDevice& device);
    static void keepInChannel(Trail& trail, qint64 lineNumber);
    static void count(Trail& trail);

    void takeStep(const LogStep& step, const SessionLine& line, qint64 lineNumber);
    void takeEvent(const LogStep& step, const SessionLine& line, qint64 lineNumber);
    void addNote(const LogDevice& device, const SessionLine& line, qint64 lineNumber,
                 bool isSame = false);
    static bool beginsNote(const DeviceState& event, const Note* open);
    static void judge(const LogDevice& device, Note& note);
    static void watch(const LogDevice& device, Note& note, qint64 lineNumber);
    void follow(const LogDevice& device, Note& note, bool isNewState, qint64 lineNumber);
    void close(const LogDevice& device);
    static PieceEnd pieceOf(const Note& note, const MoneyTrail& money);
    void giveAway();

    LogPlayer m_player;
    const Receiver m_receiver;
    MoneyWatcher m_nobody;
    MoneyWatcher& m_watcher;
    std::deque<Note> m_notes; // from the oldest open one on
    std::unordered_map<const LogDevice*, Trail> m_trails;
};
