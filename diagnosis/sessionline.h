#pragma once

#include "devicestate.h"

#include <QJsonObject>
#include <QVector>

/// One line of a session file: the fields that a device reported, under the keys of the device
/// state map; "session": "start" begins a payment session before they are taken.
class SessionLine
{
public:
    /// Throws Fault, which names the key, for an unknown key or a value that its field cannot
    /// hold.
    explicit SessionLine(const QJsonObject& line);

    bool startsSession() const { return m_startsSession; }

    /// Sets the reported fields in @p state and leaves the others.
    void applyTo(DeviceState& state) const;

private:
    using Copy = void (*)(DeviceState& to, const DeviceState& from);

    DeviceState m_reported;
    QVector<Copy> m_copies; // one for each field in m_reported that was reported
    bool m_startsSession = false;
};
