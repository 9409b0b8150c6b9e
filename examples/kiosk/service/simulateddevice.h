// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <velmolib/devicestateworker.h>
#include <velmolib/filterchain.h>
#include <velmolib/statitem.h>

#include <QJsonArray>
#include <QVariant>
#include <QVector>

/// A device that reports what its session file says: one JSON object a line with the fields that
/// it reports, under the keys of the device state map; {"session":"start"} begins a payment
/// session. It stands where a real service has the handler of a real device.
class SimulatedDevice
{
public:
    /// @param filters descriptions of the note filters: {"name": ..., "params": {...}}
    /// Throws std::runtime_error when the file cannot be read or has a bad line, and for an
    /// unknown filter.
    SimulatedDevice(const QString& sessionFile, const QJsonArray& filters);

    /// Reports the next line; false when there is none left.
    bool step();

    /// What became of the piece in hand with the last line; Stuck once for each piece.
    enum class Piece { None, Stuck, Ended };
    Piece pieceEnd() const { return m_pieceEnd; }

    /// How much it took in the session.
    int sessionSum() { return m_worker.getState()->sessionSum; }

    /// What it reported last, with its numbers of device and thread: a line of a session log. Where
    /// a piece got stuck, with its value.
    QVariantMap lastReport();

    /// Begins its session file again.
    void rewind() { m_nextLine = 0; }

    /// Whether it has reported anything.
    bool isKnown() const { return m_isKnown; }

    /// The device as the service publishes it: its state with the note counters.
    QVariantMap toMap();

    /// Each filter that refuses the note in hand, as it is described in a filters file, with the
    /// device's numbers; empty while it has none.
    QVariantList refusals();

private:
    void readSession(const QString& fileName);
    void countNote(const DeviceState& sent);
    void followPiece();

    QVector<QVariantMap> m_session;
    int m_nextLine = 0;
    DeviceStateWorker m_worker;
    FilterChain m_filters;
    QList<QPair<AbstractFilter*, QVariantMap>> m_described; // owned by the chain
    bool m_isKnown = false;
    StatItem m_counters;
    State m_counted = STATE_BUSY;
    State m_followed = STATE_BUSY;
    int m_piece = 0; // the value of what is in hand
    int m_stuck = 0; // and of what it failed with since
    Piece m_pieceEnd = Piece::None;
};
