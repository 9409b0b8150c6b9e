// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "../acceptorbus.h"
#include "cashcontent.h"
#include "simulateddevice.h"

#include <QFile>
#include <QObject>
#include <QStringList>

#include <memory>
#include <vector>

/// The acceptor service's object on the bus. It publishes the service state, a JSON text:
/// {"device_states": [device maps], "refusals": [...], "content": [...]}, where a refusal is a
/// filter that refuses what a device has in hand: {"device_id", "thread_id", "name", "params"}, and
/// the content is as in CashContent. Whoever reads it ignores keys that he does not know.
class AcceptorService : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", ACCEPTOR_BUS_INTERFACE)

public:
    /// One simulated device for each session file, all with the same filters. Throws as
    /// SimulatedDevice does.
    AcceptorService(const QStringList& sessionFiles, const QJsonArray& filters);

    /// Appends what the devices report from now on to a session log, a line at once. Throws
    /// std::runtime_error when the file cannot be written.
    void record(const QString& fileName);

    /// Lets the sessions begin again when all are over.
    void setLooping(bool looping) { m_isLooping = looping; }

public Q_SLOTS: // on the bus
    /// Lets every device report the next line of its session; false when none has one left. A show
    /// that loops then begins again.
    bool step();

    /// The state and when it was published, for those who came after the signal.
    QString currentState(QString& timestamp) const;

Q_SIGNALS: // on the bus
    /// @param timestamp UTC in ISO 8601 form
    void stateChanged(const QString& state, const QString& timestamp);

private:
    void publish();
    void keep(SimulatedDevice& device);

    std::vector<std::unique_ptr<SimulatedDevice>> m_devices;
    CashContent m_content;
    QFile m_record; // open while the reports are recorded
    bool m_isLooping = false;
    QString m_state;
    QString m_timestamp;
};
