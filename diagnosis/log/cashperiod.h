// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/contradiction.h"
#include "log/piecerange.h"

#include <QString>
#include <QStringList>

#include <optional>
#include <tuple>
#include <vector>

/// Where in a device money lies.
enum class CashPlace { Cassette, Channel, Reject };
constexpr int cashPlaceCount = int(CashPlace::Reject) + 1;

/// Money of one kind.
struct CashKind
{
    int denomination = 0;
    QString currency; ///< empty when not told
    std::optional<int> billType;

    /// What a device takes.
    static CashKind ofNote(quint32 device, int note);

    bool operator<(const CashKind& other) const
    {
        return std::tie(denomination, currency) < std::tie(other.denomination, other.currency);
    }
};

/// Why a number is uncertain.
enum class DoubtReason {
    Stuck, ///< pieces got stuck on their way; so are the following
    OnItsWay,
    EndUnknown,
    InHandAtGap, ///< while lines were skipped
    ValueChanged,
    ValueUnknown,
    PlaceUnknown, ///< in a channel or not
    NoteMissing, ///< by the device's counter
    CreditAlone,
    LinesSkipped,
    CollectionUnseen, ///< in lines that were skipped
    RegistryNew, ///< told for the first time while something left the channels
    ChannelUnexplained, ///< it lost pieces
    CassetteOut, ///< while it was, pieces came into a channel or left it
    EndMissing, ///< of a payout, a float or an emptying
};

/// Something that makes a number uncertain, or that may be why a count differs from it.
struct CashDoubt
{
    struct Example
    {
        LogPlace place; ///< its line is a LogPosition
        QString text;
    };

    DoubtReason reason = DoubtReason::Stuck;
    std::optional<CashPlace> place; ///< anywhere without one
    int channel = 0; ///< of that place
    int denomination = 0; ///< 0 for any
    qint64 pieces = 0;
    std::vector<Example> examples; ///< the first ones

    bool isAbout(CashPlace other, int otherChannel, int value) const;

    QString text() const { return textOf(reason, pieces); }

    /// What is doubtful about so many pieces, or lines.
    static QString textOf(DoubtReason reason, qint64 pieces);
};

/// What came into one place of one kind, and went.
struct CashFlow
{
    PieceRange opening;
    PieceRange in;
    PieceRange out;
    PieceRange moved; ///< from other places, or below 0 to them
    qint64 filled = 0; ///< of what came in, put in by the service
    qint64 lost = 0; ///< so many may have been taken out unseen
};

/// A row of the ledger.
struct CashRow
{
    CashPlace place = CashPlace::Cassette;
    int channel = 0; ///< of that place
    CashKind kind;
    CashFlow flow;
    PieceRange now; ///< when the period ended
    QStringList why; ///< what makes it uncertain, or is to be known of it

    /// "cassette", "channel 2", "reject"
    QString placeName() const;

    /// What people are shown of it, from the place to the sum that lies there now.
    QStringList cells() const;

    /// The headings over those.
    static QStringList columns();
};

/// What lay in a device from one collection of its cassette to the next.
struct CashPeriod
{
    int number = 0; ///< of the device, from 1
    quint32 device = 0;
    quint32 thread = 0;
    QString deviceName;
    LogTime from;
    LogTime to;
    qint64 fromPosition = 0;
    qint64 toPosition = 0;
    int sessions = 0;
    bool isOpen = true;
    std::optional<quint32> cash; ///< what the device says of itself, in the end
    std::vector<CashRow> rows;
    qint64 ofAnyValue = 0; ///< so many pieces of unknown value may have come into the cassette
    PieceRange unseen; ///< of each kind that the cassette has no row of
    std::vector<CashDoubt> doubts;
    std::vector<Contradiction> contradictions; ///< the first ones; their lines are LogPositions

    /// What the cassette held since the period began, and whenever that changed.
    struct Content : LogMoment
    {
        PieceRange sum;
    };
    std::vector<Content> course;

    /// What the rows say besides numbers, each text once; rows have them as footnotes.
    QStringList notes() const;

    bool isOfSameDevice(const CashPeriod& other) const
    {
        return device == other.device && thread == other.thread;
    }
};
