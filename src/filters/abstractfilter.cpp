// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "abstractfilter.h"

#include "log_p.h"
#include "json/variants.h"

AbstractFilter::FilterResult AbstractFilter::validate()
{
    return FILTER_ACCEPT;
}

AbstractFilter* AbstractFilter::setParams(const QVariantMap& params)
{
    for (auto param = params.begin(); param != params.end(); ++param) {
        logDebug() << QStringLiteral("Setting property %1 to %2")
                          .arg(param.key(), Variants::toString(param.value()));
        const int index = metaObject()->indexOfProperty(param.key().toUtf8().constData());
        const QMetaProperty property = metaObject()->property(index);
        if (property.isReadable())
            Variants::write(property, this, param.value());
        else
            qWarning().noquote() << QStringLiteral("Property %1 does not exists").arg(param.key());
    }
    return this;
}

AbstractFilter* AbstractFilter::setEvents(StatesList* source)
{
    events = source;
    return this;
}

const DeviceState* AbstractFilter::newestEvent() const
{
    return events && !events->isEmpty() ? &events->constLast() : nullptr;
}
