// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/logplayer.h"
#include "log/outcome.h"
#include "text/filtermemory.h"

#include <QMap>
#include <QStringList>

#include <array>
#include <deque>
#include <functional>
#include <optional>
#include <unordered_map>

/// What happened to one note of a log, and why.
struct NoteAnswer
{
    int session = 0;
    quint32 device = 0;
    quint32 thread = 0;
    QString deviceName;
    qint64 line = 0; ///< on which it was offered, or rejected without having been
    LogTime time; ///< of that line
    int note = 0; ///< face value; 0 when the log never says
    Outcome outcome = Outcome::Unknown;
    Outcome end = Outcome::Unknown; ///< the same, but of a refused note what became of it then
    qint64 lastLine = 0; ///< on which it became clear what became of it; 0 when it did not
    QVector<Objection> objections; ///< of every filter that refused it
    /// What was the matter while the device had the note, unless it took it or the filters refused
    /// it and it did not get stuck.
    QVector<MachineCondition> machine;
    /// Of a stuck note: the line on which the session's sum rose, 0 when it did not; nothing when
    /// the log does not tell the sum.
    std::optional<qint64> creditLine;
    QStringList uncertain; ///< what may make this answer wrong

    bool isJudged = false; ///< whether the filters were asked about it

    bool isTaken() const { return end == Outcome::Taken; }
    bool hasValue() const { return note > 0; }

    /// "Session 1, line 8, 10:05:12, Bill validator (CCNet)"
    QString place() const;

    /// "note of 1000" or "coin of 10"
    QString what() const;

    /// "Session 1, line 8, 10:05:12, Bill validator (CCNet): note of 1000 refused."
    QString headline() const;

    /// What makes it uncertain, a sentence each.
    QStringList doubts() const;

    /// The reasons and doubts, a sentence or two each.
    QStringList details() const;

    /// All of it in one line.
    QString text() const;
};

/// Notes and their sum.
struct Tally
{
    qint64 count = 0;
    qint64 sum = 0;

    void add(int note);
    void add(const Tally& other);
};

/// The answers of a log together.
struct Summary
{
    struct Row
    {
        QString what;
        Tally tally;
        bool hasSum = true;
        bool isPart = false; ///< of the row before it that is none
    };

    int sessions = 0;
    Tally offered; ///< those of known value
    std::array<Tally, outcomeCount> outcomes; ///< by Outcome; of refused notes by what became of
                                              ///< them too, if they were taken or got stuck
    Tally takenAlthoughRefused;
    QMap<QString, qint64> refusedBy; ///< notes that a filter of that name refused

    void add(const NoteAnswer& answer);

    /// What people read.
    QList<Row> rows() const;

    const Tally& of(Outcome outcome) const { return outcomes.at(size_t(outcome)); }
};

/// Explains a session log. A note is offered by an event in state accepting with a note above 0,
/// unless the device's event before it was the same. It is refused when a filter objects then;
/// otherwise what follows decides, up to the device's next note, or to a session that begins when
/// the device has no note in hand: a stacked, rejected or returned event; or else an accepted or
/// stacking one, when the device idles or its next note comes and it did not stop in between. A
/// note whose value comes after it was accepting, or with the end, is followed likewise; the
/// filters are not asked about it.
class LogExplainer
{
public:
    using Receiver = std::function<void(const NoteAnswer& answer)>;

    /// @param receiver is given each answer, in the order of their lines, once it is clear
    LogExplainer(const FilterSet& filters, Receiver receiver);

    void take(const SessionLine& line, qint64 lineNumber);

    /// Tells that a line could not be read.
    void skipLine() { m_player.skipLine(); }

    /// Gives away what is still open at the end of the log.
    void finish();

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
        qint64 stoppedLine = 0; // on which the device stopped with it; 0 while it works
        int sumBefore = 0; // of the session
        Phase phase = InHand;
        bool isOpen = true;
        bool isValuePresumed = false; // the log did not tell it of this note
        bool startSeen = false; // of the session
        qint64 skippedBefore = 0; // the session
    };

    // How a device stood after its last event, of whatever session, and its open note.
    struct Trail
    {
        Note* note = nullptr;
        std::optional<State> state;
        int value = 0;
        bool isValueNew = false; // and not yet that of a note
    };

    void takeEvent(const LogStep& step, const SessionLine& line, qint64 lineNumber);
    void addNote(const LogDevice& device, const SessionLine& line, qint64 lineNumber);
    static bool beginsNote(const DeviceState& event, const Note* open);
    static void drop(Note& note);
    static void judge(const LogDevice& device, Note& note);
    static void watch(const LogDevice& device, Note& note, qint64 lineNumber);
    void follow(const LogDevice& device, Note& note, bool isNewState, qint64 lineNumber);
    void close(const LogDevice& device);
    void giveAway();

    LogPlayer m_player;
    const Receiver m_receiver;
    std::deque<Note> m_notes; // from the oldest open one on
    std::unordered_map<const LogDevice*, Trail> m_trails;
};
