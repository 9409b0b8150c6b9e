// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "../acceptorbus.h"
#include "cashcontent.h"
#include "incidents.h"
#include "simulateddevice.h"

#include <QFile>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <map>
#include <memory>
#include <vector>

/// The acceptor service's object on the bus. It publishes the service state, a JSON text:
/// {"device_states": [device maps], "refusals": [...], "content": [...], "incidents": [...],
/// "money": {...}}, where a refusal is a filter that refuses what a device has in hand:
/// {"device_id", "thread_id", "name", "params"}, the content is as in CashContent, the incidents
/// are as in Incidents with their currency, and money tells the currency, its digits after the
/// point, what becomes of change, and how much of the session's sum is safe in the session log.
/// Whoever reads it ignores keys that he does not know.
///
/// The state is published when it changes, and every five seconds again with a new time, so that
/// whoever hears nothing for longer knows that the service stands still.
class AcceptorService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", ACCEPTOR_BUS_INTERFACE)

public:
    /// One simulated device for each session file, all with the same filters. Throws as
    /// SimulatedDevice does.
    AcceptorService(const QStringList& sessionFiles, const QJsonArray& filters);

    /// Appends what the devices report from now on to a session log, a line at once, and goes on
    /// with its incidents. Throws std::runtime_error when the file cannot be written.
    void record(const QString& fileName);

    /// @param currency ISO 4217 code
    /// @param digits how many of a sum stand after the point
    void setMoney(const QString& currency, int digits);

    /// @param change what becomes of it: "none", "paid" or "credited"
    void setChange(const QString& change);

    /// Lets the sessions begin again when all are over.
    void setLooping(bool looping) { m_isLooping = looping; }

public Q_SLOTS: // on the bus
    /// Lets every device report the next line of its session; false when none has one left. A show
    /// that loops then begins again.
    bool step();

    /// The state and when it was published, for those who came after the signal.
    QString currentState(QString& timestamp) const;

    /// Somebody found out where the piece of money of an incident is; false when no open one has
    /// the number. The log tells of it.
    bool settle(const QString& incident);

Q_SIGNALS: // on the bus
    /// @param timestamp UTC in ISO 8601 form
    void stateChanged(const QString& state, const QString& timestamp);

private:
    void publish();
    void send();
    void keep(SimulatedDevice& device);
    bool write(QVariantMap line);
    QVariantMap money() const;
    QVariantList incidents() const;

    std::vector<std::unique_ptr<SimulatedDevice>> m_devices;
    CashContent m_content;
    Incidents m_incidents;
    QFile m_record; // open while the reports are recorded
    std::map<SimulatedDevice*, int> m_recorded; // of the session's sum of each
    QVariantMap m_money; // what was said of it
    QTimer m_heartbeat;
    bool m_isLooping = false;
    QString m_state;
    QString m_timestamp;
};
