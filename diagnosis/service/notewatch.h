// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/moneyformat.h"
#include "service/serviceanswer.h"

#include <QDateTime>
#include <QMap>
#include <QString>

#include <tuple>
#include <vector>

/// What becomes of each note and coin, in words for the customer who inserted it. It follows the
/// published states, each device for itself; of what was in hand before the first of them it tells
/// nothing but the incidents of the service. A piece that the device failed with, or of which
/// nobody says what became of it, stays open over sessions until its end is told.
class NoteWatch
{
public:
    enum Outcome : qint32 {
        None, ///< nothing to tell
        Checked, ///< it is in the device's hand
        Taken,
        Refused, ///< by the note filters; it comes back
        Rejected, ///< by the device
        Returned, ///< by the device
        Stuck, ///< the device failed while it had it
        Lost ///< service or device went away while it was in hand, and do not say what became of it
    };

    /// A piece of money, and the newest that became of it.
    struct Note
    {
        quint64 id = 0;
        Outcome outcome = None;
        int device = -1; ///< model
        int thread = -1;
        qint64 value = 0; ///< 0 when it is not known
        QString currency = {}; ///< as the service published it
        QDateTime time = {}; ///< when it was inserted
        QString incident = {}; ///< the service's number for it
        QVariantMap refusal = {}; ///< the filter that refuses it

        /// Checked, Stuck or Lost
        bool isOpen() const;

        /// Refused or Returned
        bool isToldBack() const;
    };

    /// @param time that of the state
    /// @return what became of pieces with this state, in order
    std::vector<Note> take(const PublishedState& state, const QDateTime& time);

    /// The service cannot be heard any more; what its devices do until the next state is not known.
    void lose();

    /// The staff says that an open one is settled. One that the service has an incident for stays
    /// until the service says so.
    /// @return the incident; empty where there is none
    QString settle(quint64 id);

    /// Oldest first.
    std::vector<Note> open() const;

    /// What became of a piece last; with the next session there is nothing to tell of it.
    const Note& last() const { return m_last; }

    /// In the language that is shown; empty when there is nothing to tell.
    static QString text(const Note& note, const MoneyFormat& format);

private:
    using Key = std::tuple<int, int, int>; // model, thread, and which of twins

    // What a device says by which an untold end is known.
    struct Reading
    {
        explicit Reading(const PublishedDevice& device = PublishedDevice(QVariantMap()));

        qint64 sum;
        qint64 rejected;
        qint64 returned;
    };

    enum Phase { Entering, In, GoingOut, Out };

    struct Track
    {
        QString state = {};
        qint64 note = 0;
        Reading start = Reading(); // when the piece came, or the device failed with it
        quint64 hand = 0; // the piece that it has; 0 without one
        Phase phase = Entering; // where that is
        bool isAway = false; // it was not heard of since then
        quint64 turn = 0; // the newest state that tells of it
    };

    void follow(const PublishedDevice& device, Track& track, const QVariantList& refusals);
    bool miss(Track& track);
    Note pieceOf(const PublishedDevice& device);
    void begin(const PublishedDevice& device, Track& track);
    void look(const PublishedDevice& device, Phase phase, Note& piece,
              const QVariantList& refusals);
    void move(const PublishedDevice& device, Track& track, bool isNew);
    void rest(const PublishedDevice& device, Track& track);
    void end(Track& track, Outcome outcome);
    void release(Track& track);
    void tell(Note& piece, Outcome outcome);
    void forget(Note& piece);
    void heed(const std::vector<Incident>& incidents);
    Note* pieceOf(const Incident& incident);
    Note& add(const Note& piece);
    Note* find(quint64 id);
    void drop(quint64 id);

    std::vector<Note> m_pieces; // in a device's hand, or open
    QMap<Key, Track> m_tracks;
    std::vector<Note> m_events; // of the state that is taken
    Note m_last;
    QDateTime m_time; // this and the following of the state that is taken
    QString m_currency;
    qint64 m_sum = 0;
    bool m_isSettledByService = false;
    quint64 m_turn = 0; // its number
    quint64 m_lastId = 0;
    bool m_isFirst = true; // no state was taken yet
};
