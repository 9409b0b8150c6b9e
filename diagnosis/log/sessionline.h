// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"
#include "text/logtime.h"

#include <QByteArray>
#include <QString>

#include <optional>
#include <vector>

class TextInput;

/// The fields that a device reported.
struct DeviceReport
{
    DeviceState fields; ///< those that were not reported stand at their defaults
    quint32 reported = 0; ///< the bits of those that were
    std::optional<qint64> notesInserted; ///< the counter, which only published states have

    bool has(quint32 bit) const { return (reported & bit) != 0; }

    /// Sets the reported fields in @p state and leaves the others.
    void applyTo(DeviceState& state) const;

    /// The bit of the field under a key of the device state map.
    static quint32 bit(const QString& key);
};

/// One line of a session log: what a device reported, under the keys of the device state map, or
/// the published states of all devices. "session": "start" begins a payment session before they
/// are taken; "time" says when, and "kiosk" where. "incident" and "settled" are numbers for people.
class SessionLine
{
public:
    /// Throws Fault, which names the key, for an unknown key or a value that its field cannot
    /// hold.
    /// @param json a JSON object
    explicit SessionLine(const QString& json);

    /// Reads the line that was read from a file last. Throws Fault, which names file and line.
    static SessionLine read(const TextInput& file, const QByteArray& text);

    bool startsSession() const { return m_startsSession; }

    /// Whether the line is of all devices rather than of one.
    bool isPublished() const { return m_isPublished; }

    LogTime time() const { return m_time; }

    /// Replaces the time by the same in another form, or by what is known where there is none.
    void setTime(const LogTime& time) { m_time = time; }

    /// Empty where the line does not name it.
    QString kiosk() const { return m_kiosk; }

    /// One, or those that were published in their order.
    const std::vector<DeviceReport>& reports() const { return m_reports; }

private:
    std::vector<DeviceReport> m_reports;
    LogTime m_time;
    QString m_kiosk;
    bool m_startsSession = false;
    bool m_isPublished = false;
};
