// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "kioskrecord.h"
#include "rowbatch.h"

#include <QHash>
#include <QSet>

#include <memory>
#include <optional>
#include <vector>

class HistoryDatabase;

/// What is to be remembered: a kiosk's condition, faults or cassettes are others than before, or
/// only its counts, or it is no longer one of the fleet.
struct KioskChange
{
    enum Kind { State, Counts, Forgotten };
    Kind kind;
    QString kiosk;
    qint64 time;
    quint64 message; ///< 0 where it is forgotten
    std::shared_ptr<const KioskRecord> record; ///< null where it is forgotten
};

/// Makes rows of changes. Between transactions it knows what the database has of the kiosks, so
/// that it reads only of those that it has not met; for as long as nobody else writes.
class KioskLedger
{
public:
    KioskLedger();

    /// Reads what the database has of those kiosks that it does not know yet.
    /// @return them
    QSet<QString> load(HistoryDatabase& database, const QSet<QString>& kiosks);

    /// When its last change was, and the message of it; nullopt for a kiosk without any.
    struct Position
    {
        qint64 time;
        quint64 message;
    };
    std::optional<Position> position(const QString& kiosk) const;

    /// The kiosk must be known. A change that says what is known already makes no rows.
    void apply(const KioskChange& change);

    /// The counts alone, of a change that the database has already.
    void applyCounts(const KioskChange& change);

    /// Writes the rows. Throws Fault when somebody else has written of the same kiosks.
    void write(HistoryDatabase& database);

    /// Forgets what it knows, and the rows that are not written.
    void clear();

private:
    struct Fault
    {
        int device;
        int thread;
        QString reason;
        qint64 began;
    };

    struct Device
    {
        int device;
        int thread;
        qint64 time; // when its counters were these
        qint64 inserted;
        qint64 rejected;
        qint64 returned;
        bool isStackerPresent;
        bool isStackerFull;
        std::optional<qint64> notes; // since the cassette was emptied; unknown before
        bool isLoaded; // by whoever wrote before, whose clock may be another
    };

    struct Kiosk
    {
        std::optional<Position> position;
        std::optional<KioskSummary::Condition> condition; // while it is one of the fleet
        qint64 began = 0;
        std::vector<Fault> faults;
        std::vector<Device> devices;
        std::shared_ptr<const KioskRecord> counted; // whose levels are written
    };

    bool closeCondition(Kiosk& kiosk, const QString& name, qint64 time);
    bool applyFaults(Kiosk& kiosk, const KioskRecord& record, qint64 time);
    bool applyCassettes(Kiosk& kiosk, const KioskRecord& record, qint64 time);
    void applyDevice(Kiosk& kiosk, const KioskRecord& record, const KioskRecord::Device& device);
    void writeLevel(const KioskRecord& record, const KioskRecord::Device& device,
                    const KioskRecord::Level& level);
    void remember(const QString& kiosk, const Device& device);

    QHash<QString, Kiosk> m_kiosks;
    RowBatch m_positions;
    RowBatch m_conditions;
    RowBatch m_faults;
    RowBatch m_hours;
    RowBatch m_channels;
    RowBatch m_levels;
    RowBatch m_collections;
    RowBatch m_fullCassettes;
    RowBatch m_counters;
    QSet<QString> m_forgotten; // whose counters are to go
};
