// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "service/serviceanswer.h"

#include <QMap>
#include <QString>

#include <utility>

/// What became of the note or coin that was inserted last, in words for the customer who did. It
/// follows the published states; of what was in hand before the first of them it tells nothing, and
/// a sum that falls begins another session.
class LastNote
{
public:
    enum Outcome {
        None, ///< nothing was inserted in the session
        Checked, ///< it is in the device's hand
        Taken,
        Refused, ///< by the note filters; it comes back
        Rejected, ///< by the device
        Returned, ///< by the device
        Stuck ///< the device failed while it had it
    };

    void take(const PublishedState& state);

    Outcome outcome() const { return m_outcome; }

    /// In the language that is shown; empty when there is nothing to tell.
    QString text() const;

private:
    struct Event
    {
        QString state;
        qint32 note = 0;
    };

    void follow(const PublishedDevice& device, const QVariantList& refused);

    Outcome m_outcome = None;
    std::pair<int, int> m_device; // model and thread
    int m_note = 0; // 0 when its value is not known
    QVariantMap m_refusal; // the filter that refuses it
    qint64 m_sum = 0;
    bool m_isFirst = true; // no state was taken yet
    QMap<std::pair<int, int>, Event> m_events; // the last of each device and thread
};
