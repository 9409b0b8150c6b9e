// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "brokerconnection.h"
#include "kiosks.h"
#include "kiosktopic.h"
#include "loglimit.h"
#include "metrics.h"
#include "partition.h"
#include "publisher.h"
#include "silencewatch.h"
#include "workerstatus.h"

#include <QByteArray>
#include <QDateTime>
#include <QSet>
#include <QString>
#include <QStringList>

#include <atomic>
#include <chrono>
#include <mutex>

class HistoryRecorder;

struct WorkerOptions
{
    BrokerOptions broker;
    QString name; ///< among the workers
    Partition part; ///< whose kiosks it summarises
    KioskTopic states;
    KioskTopic summaries;
    KioskTopic wills; ///< a message there says that the kiosk is gone
    KioskTopic status; ///< where workers tell of themselves
    std::chrono::seconds silence{0}; ///< after which a kiosk is told of as silent; 0 for never
    int forgetAfter = 0; ///< days of silence; 0 for never
};

/// Makes summaries of the states that the kiosks of its part have retained at a broker. The broker
/// keeps nothing for it: whenever it connects, it reads the present and publishes what is not
/// there. Several workers of one part publish the same.
class Worker
{
public:
    /// @param history null for none
    /// Throws Fault as BrokerConnection does.
    Worker(const WorkerOptions& options, Metrics& metrics, HistoryRecorder* history);

    /// Works until it is told to stop.
    void run(const std::atomic<bool>& isStopped);

    /// What people look at: a JSON object. From any thread.
    /// @param all whether kiosks that are fine are listed too
    QByteArray json(bool all);

private:
    using Clock = std::chrono::steady_clock;

    static constexpr std::chrono::seconds statusPause{600}; // at most, between two of them

    void turn();
    void turnEverySecond();
    void followConnection();
    void startGathering();
    void waitForRetained();
    bool hasGathered();
    void endGathering();

    void take(const QString& topic, const QByteArray& payload, bool isRetained);
    void takeSummary(const QString& name, const QByteArray& payload, bool isRetained);
    void takeState(const QString& name, const QByteArray& payload, bool isRetained);
    void takeWill(const QString& name, const QByteArray& payload, bool isRetained);
    void takeStatus(const QString& name, const QByteArray& payload, bool isRetained);
    void adoptSilence(const QString& name, const KioskSummary& told);
    static bool isSilenceAfter(const QString& name, KioskSummary state,
                               const KioskSummary& silence);
    void hear(Kiosk& kiosk);
    void judgeClock(const QString& name);
    void refuse(const char* reason, const QString& topic, const QString& text);

    void tell(const QString& name, const KioskSummary& summary, quint64 message,
              const PublishedState* state);
    void loseSight(const QString& name, KioskSummary::Condition condition, const char* reason,
                   const QString& text);
    void forget(const QString& name);
    void lookForSilence();
    void lookForForgotten();
    void lookForGone();

    int publishStatus(bool isProbe = false);
    void acknowledge(int message, const QString& refusal);
    WorkerStatus status() const;
    QStringList faults() const;

    const WorkerOptions m_options;
    Metrics& m_metrics;
    HistoryRecorder* const m_history;

    // Of its subscriptions. On one connection nothing is lost either way; a worker that passes over
    // what is of other parts spends half of its work for that on acknowledgements.
    const int m_qos;
    std::mutex m_mutex; // of all that follows, while json() may look
    LogLimit m_log;
    Kiosks m_kiosks;
    SilenceWatch m_silence;
    StateWriter m_writer;
    BrokerConnection m_broker;
    Publisher m_publisher;
    const QString m_begin = QDateTime::currentDateTimeUtc().toString(Qt::ISODateWithMs);

    int m_connection = 0; // the one that is known here
    qint64 m_lastConnected = KioskSummary::noTime; // when there was one last
    bool m_isGathering = true; // what is retained is coming
    bool m_isListening = false; // all of it has come since there is a connection
    bool m_isStoreNew = true; // the broker has nothing of this worker from before
    Clock::time_point m_lastRetained; // when something came that the broker had kept
    int m_endProbe = 0; // a message that it was sent since then; 0 for none
    bool m_isEndProbed = false; // whether it has that
    QSet<QString> m_retained; // kiosks of which it has something
    bool m_mustVerify = false; // whether the summaries there are those of this worker
    QSet<QString> m_left; // kiosks that left the fleet, and of which no state has come since
    qint64 m_droppedKnown = 0;
    std::chrono::seconds m_dropPause{10};
    Clock::time_point m_nextGathering;

    Clock::time_point m_lastTurn = Clock::now();
    qint64 m_turnedAt = 0; // not later than what is read now came, in milliseconds since 1970
    Clock::time_point m_caughtUpAt; // with what came while the program was stopped

    QByteArray m_status; // as it is at the broker; empty while that is not known
    QByteArray m_lastStatus; // as it was published last
    Clock::time_point m_nameTakenUntil; // by another worker, too
    Clock::time_point m_nextSecond;
    Clock::time_point m_nextStatus;
    Clock::time_point m_goneKnownAt = Clock::time_point::max();
    Clock::time_point m_nextForgetting = Clock::now() + std::chrono::minutes(1);
};
