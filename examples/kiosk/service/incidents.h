// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

/// Pieces of money that got stuck in a device, each under a number that its line of the session log
/// has too, until somebody settles it or the device tells where it went.
class Incidents
{
public:
    /// Goes on where a session log ends: with its numbers, and with what it does not tell the end
    /// of. A log that is not there yet is empty.
    void readLog(const QString& fileName);

    /// @param report the line in which the device failed, with its numbers and the piece's value
    /// @return the number
    QString open(const QVariantMap& report);

    /// The open one of a device and thread that began last; empty when there is none.
    QString openOf(const QVariantMap& report) const;

    /// What the log is to say of the end: {"device_id", "thread_id", "settled"}; empty when no open
    /// one has the number.
    QVariantMap settle(const QString& number);

    /// {"number", "device_id", "thread_id", "denomination", "time", "settled"} of those that are
    /// open.
    QVariantList toList() const { return m_open; }

private:
    QVariantList m_open; // by their beginning
    int m_last = 0; // number
};
