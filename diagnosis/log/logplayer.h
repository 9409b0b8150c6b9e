// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestateworker.h"
#include "filterchain.h"
#include "log/filterset.h"
#include "log/sessionline.h"
#include "text/conditions.h"
#include "text/filtermemory.h"

#include <QString>
#include <QVector>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <vector>

/// A condition of a device that may be why it takes no note.
struct MachineCondition
{
    QString what; ///< the condition's key
    const char* word; ///< in short, to be translated
    qint64 line; ///< since when
    QString text; ///< a sentence
};

/// A device of a log: what its handler in the service holds.
class LogDevice
{
public:
    LogDevice(const FilterSet& filters, quint32 deviceId, quint32 threadId);

    quint32 deviceId() const { return m_deviceId; }
    quint32 threadId() const { return m_threadId; }

    /// What people call it, for example "Bill validator (CCNet)".
    QString name() const;

    /// The number of its session in the log, from 1.
    int session() const { return m_session; }

    /// False when its session was running already where the log begins.
    bool sessionStartSeen() const { return m_sessionStartSeen; }

    /// How many lines of the log had been skipped when its session began.
    qint64 skippedBefore() const { return m_skippedBefore; }

    const DeviceState& state() const { return *m_worker->getState(); }

    /// Whether it ever reported the field with this bit of DeviceReport.
    bool hasReported(quint32 bit) const { return (m_known & bit) != 0; }

    /// Whether it went offline, halted or got a critical error on this line: where its money is
    /// then, its states do not say.
    bool stopsOn(qint64 line) const;

    /// What it sent last in its session: the newest event, and before it the one before.
    const StatesList& events() const { return *m_worker->getStatesList(); }

    /// Every filter that refuses the newest event, in the order of the chain: the first one's
    /// verdict is the chain's.
    QVector<const FilterMemory*> refusing() const;

    /// What is known to be the matter with it now.
    QVector<MachineCondition> conditions() const;

    /// The same, as a bit for each Condition::Kind.
    quint32 conditionBits() const { return m_conditionBits; }

private:
    friend class LogPlayer;

    void startSession(int number, qint64 skippedLines);
    void take(const DeviceReport& report, qint64 line);
    bool send(qint64 line);

    const QString m_name;
    const quint32 m_deviceId;
    const quint32 m_threadId;
    bool m_showThread = false; // another thread drives a device of the same number
    int m_session = 0;
    bool m_sessionStartSeen = false;
    qint64 m_skippedBefore = 0;
    qint64 m_lastOwnLine = 0; // that was of it alone, counted through; 0 before there was one
    std::unique_ptr<DeviceStateWorker> m_worker;
    std::unique_ptr<FilterChain> m_chain;
    std::vector<FilterMemory> m_filters; // of those that the chain owns, in its order
    quint32 m_known = 0; // bits of the fields that it has reported
    std::array<qint64, Condition::count> m_conditionSince{}; // 0 for one that does not hold
    quint32 m_conditionBits = 0; // of those that hold
};

/// What a line of a log led to for one device.
struct LogStep
{
    LogDevice* device;
    bool startsSession;
    bool sent; ///< its state differed from the one before and became an event
    quint32 reported; ///< the bits of the fields that the line reports
    std::optional<qint64> notesInserted; ///< the counter that it publishes
};

/// Plays a session log the way that the service would: one worker and one chain of filters for each
/// device, that is for each pair of device and thread. A line that lacks one of the two or both is
/// of the device that fits and had a line of its own last; published states are of all devices and
/// point at none. Where none that fits had one, it is of the lowest that fits, by device and then
/// thread; where none fits, what is missing is the device of the last line, and thread 0.
///
/// Sessions are numbered through the log. A device's start begins the next number when the device
/// is in the newest session already, and joins that session otherwise.
class LogPlayer
{
public:
    explicit LogPlayer(const FilterSet& filters);

    /// The steps of one line, in the order in which the devices came; valid until the next call.
    /// Throws Fault, and takes nothing, when the line names another kiosk than those before.
    /// @param lineNumber of several logs a LogPosition
    const std::vector<LogStep>& take(const SessionLine& line, qint64 lineNumber);

    /// Those of the line that was taken last.
    const std::vector<LogStep>& steps() const { return m_steps; }

    /// Tells that a line could not be read.
    void skipLine() { ++m_skippedLines; }

    qint64 skippedLines() const { return m_skippedLines; }
    int sessions() const { return m_session; }

    const std::vector<std::unique_ptr<LogDevice>>& devices() const { return m_devices; }

private:
    LogDevice* knownDevice(const DeviceReport& report) const;
    template <typename Fits>
    LogDevice* lastDevice(Fits fits) const;
    LogDevice& newDevice(const DeviceReport& report);
    LogDevice& addDevice(quint32 deviceId, quint32 threadId);
    LogStep& stepOf(LogDevice& device);
    void startSession(LogDevice& device);
    void startEverySession();

    const FilterSet m_filters;
    std::vector<std::unique_ptr<LogDevice>> m_devices;
    std::vector<LogStep> m_steps;
    QString m_kiosk; // empty while no line named it
    std::vector<LogDevice*> m_reporting; // of each report of a line; null for a new one
    std::map<int, LogDevice*> m_lastOf; // by log: that had a line of its own in it
    LogDevice* m_last = nullptr; // for a line of this log: that, or else the last of any log
    LogDevice* m_lastOfAny = nullptr;
    qint64 m_ownLines = 0; // of any device
    int m_session = 0; // the newest
    bool m_everySessionStarted = false; // once at least
    qint64 m_skippedBefore = 0; // when every session was started last
    qint64 m_skippedLines = 0;
};
