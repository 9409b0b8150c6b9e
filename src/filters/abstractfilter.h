// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"
#include "fieldsdescription.h"
#include "velmolib_global.h"

#include <QList>
#include <QObject>
#include <QString>
#include <QVariant>

/// Judges the newest event of a payment session: whether the note or coin that a device has just
/// recognised may be accepted.
///
/// A filter's parameters are its Qt properties, set from a map and described by
/// getFieldsDescription(). It keeps nothing between verdicts, so a limit holds for the session
/// because the list of events does. Used on one thread at a time, that of the event list.
class VELMOLIB_EXPORT AbstractFilter : public QObject
{
    Q_OBJECT

public:
    /// Everything but FILTER_ACCEPT means that the note is not to be accepted.
    enum FilterResult : qint32 {
        FILTER_ACCEPT = 0,
        FILTER_REJECT = 1,
        FILTER_NO_EVENTS = 2 ///< a chain without an event source
    };

    AbstractFilter() = default;

    /// The verdict on the newest event. Filters that read events reject when there is none.
    virtual FilterResult validate();

    /// Sets the properties that @p params names; Qt converts the values, and one that does not
    /// convert leaves its property as it was. A number beyond the range of its property wraps
    /// around: 200 attempts become -56. Logs each entry, and a warning for a name that is no
    /// property.
    /// @return this filter
    virtual AbstractFilter* setParams(const QVariantMap& params);

    /// Sets the event source: the states that one device sent in the session, oldest first. The
    /// caller keeps it alive; null means none.
    /// @return this filter
    virtual AbstractFilter* setEvents(StatesList* source);

    /// Short untranslated name for log lines.
    virtual QString getFilterName() const = 0;

    /// One description for each parameter, in a fixed order.
    virtual QList<FieldDescription> getFieldsDescription() const = 0;

    /// Translated title and explanation with one vertical bar between them.
    virtual QString getFilterDescription() const = 0;

protected:
    /// The event to be judged; null when there is no event source or no event in it.
    const DeviceState* newestEvent() const;

    /// The event source, which the filter does not own; null means none.
    StatesList* events = nullptr;
};

/// What a chain takes.
using PAbstractFilter = AbstractFilter*;
