// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filterfactory.h"

#include "acceptfilter.h"
#include "acceptorsettings.h"
#include "attemptsfilter.h"
#include "denomcountfilter.h"
#include "sessionsumfilter.h"

#include <algorithm>
#include <limits>
#include <memory>

namespace filters {

const char* const ACCEPT_FILTER = "AcceptFilter";
const char* const ATTEMPTS_FILTER = "AttemptsFilter";
const char* const DENOM_COUNT_FILTER = "DenomCountFilter";
const char* const SESSION_SUM_FILTER = "SessionSumFilter";

} // namespace filters

namespace {

template <typename Filter>
AbstractFilter* make()
{
    return new Filter;
}

const struct
{
    QLatin1String name;
    AbstractFilter* (*make)();
} knownFilters[] = {
    {QLatin1String(filters::SESSION_SUM_FILTER), make<SessionSumFilter>},
    {QLatin1String(filters::ACCEPT_FILTER), make<AcceptFilter>},
    {QLatin1String(filters::ATTEMPTS_FILTER), make<AttemptsFilter>},
    {QLatin1String(filters::DENOM_COUNT_FILTER), make<DenomCountFilter>},
};

template <typename Held>
Held saturated(qint64 value)
{
    using Limits = std::numeric_limits<Held>;
    return static_cast<Held>(std::clamp<qint64>(value, Limits::min(), Limits::max()));
}

} // namespace

AbstractFilter* FilterFactory::createFilter(const QString& name, const QVariantMap& params)
{
    for (const auto& known : knownFilters) {
        if (name == known.name)
            return known.make()->setParams(params);
    }
    return nullptr;
}

QList<AbstractFilter*> FilterFactory::createFilters()
{
    return createFilters(AcceptorSettings::acceptAll(), AcceptorSettings::attemptsFilter(),
                         AcceptorSettings::maxSumm());
}

QList<AbstractFilter*> FilterFactory::createFilters(bool acceptAll,
                                                    const QList<AcceptorAttemptFilterItem>& limits,
                                                    qint64 maxSumm)
{
    QList<AbstractFilter*> implied;
    const auto add = [&implied](const char* name, const QVariantMap& params) {
        implied.append(createFilter(QLatin1String(name), params));
    };
    add(filters::ACCEPT_FILTER, {{QStringLiteral("acceptAll"), acceptAll}});
    for (const AcceptorAttemptFilterItem& limit : limits) {
        add(filters::ATTEMPTS_FILTER,
            {{QStringLiteral("denom"), limit.denom()},
             {QStringLiteral("attempts"), int(saturated<qint8>(limit.attempts()))}});
    }
    if (maxSumm > 0) {
        add(filters::SESSION_SUM_FILTER,
            {{QStringLiteral("sessionSum"), saturated<qint32>(maxSumm)}});
    }
    return implied;
}

QStringList FilterFactory::getFilters()
{
    QStringList names;
    for (const auto& known : knownFilters)
        names.append(known.name);
    return names;
}

QList<FieldDescription> FilterFactory::getFieldsDesc(const QString& name)
{
    const std::unique_ptr<AbstractFilter> filter(createFilter(name, {}));
    return filter ? filter->getFieldsDescription() : QList<FieldDescription>();
}

QString FilterFactory::getFilterDesc(const QString& name)
{
    const std::unique_ptr<AbstractFilter> filter(createFilter(name, {}));
    return filter ? filter->getFilterDescription() : QString();
}
