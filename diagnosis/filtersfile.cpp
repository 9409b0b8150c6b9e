#include "filtersfile.h"

#include "acceptorsettings.h"
#include "arrayfile.h"
#include "fault.h"
#include "filterchain.h"
#include "filterfactory.h"

#include <climits>
#include <memory>

namespace {

const QLatin1String nameKey("name");
const QLatin1String paramsKey("params");

// A number, a text that reads as one, or a switch; the filter's property has taken it when both
// are the same number.
bool holds(const AbstractFilter& filter, const QString& param, const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && number == filter.property(param.toUtf8().constData()).toDouble();
}

std::unique_ptr<AbstractFilter> makeFilter(const QJsonValue& element)
{
    const QJsonObject description = element.toObject();
    if (!description.value(nameKey).isString())
        throw Fault{QStringLiteral("expected an object with the filter's \"name\"")};
    const QStringList keys = description.keys();
    for (const QString& key : keys) {
        if (key != nameKey && key != paramsKey)
            throw Fault{QStringLiteral("unknown key \"%1\"").arg(key)};
    }
    const QString name = description.value(nameKey).toString();
    const QJsonValue paramsValue = description.value(paramsKey);
    if (!paramsValue.isObject() && !paramsValue.isUndefined())
        throw Fault{QStringLiteral("\"params\": expected an object")};
    const QVariantMap params = paramsValue.toObject().toVariantMap();

    std::unique_ptr<AbstractFilter> filter(FilterFactory::createFilter(name, {}));
    if (!filter) {
        throw Fault{QStringLiteral("unknown filter \"%1\" (known: %2)")
                        .arg(name, FilterFactory::getFilters().join(QStringLiteral(", ")))};
    }
    const QJsonObject known = filterParams(*filter);
    for (auto param = params.keyBegin(); param != params.keyEnd(); ++param) {
        if (!known.contains(*param)) {
            throw Fault{QStringLiteral("%1: unknown parameter \"%2\" (known: %3)")
                            .arg(name, *param, known.keys().join(QStringLiteral(", ")))};
        }
    }
    filter->setParams(params);
    for (auto param = params.begin(); param != params.end(); ++param) {
        if (!holds(*filter, param.key(), param.value()))
            throw Fault{QStringLiteral("%1: parameter \"%2\" cannot hold this value")
                            .arg(name, param.key())};
    }
    return filter;
}

// Adds a filter for each description; @p place names the one that is at fault.
template <typename Place>
QList<AbstractFilter*> addFilters(const QJsonArray& descriptions, FilterChain& chain, Place place)
{
    QList<AbstractFilter*> filters;
    for (int i = 0; i < descriptions.size(); ++i) {
        try {
            filters.append(makeFilter(descriptions.at(i)).release());
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("%1: %2").arg(place(i), fault.message)};
        }
        chain.add(filters.last());
    }
    return filters;
}

} // namespace

QList<AbstractFilter*> loadFilters(const ArrayFile& file, FilterChain& chain)
{
    return addFilters(file.elements(), chain, [&file](int index) { return file.place(index); });
}

QList<AbstractFilter*> filtersOfSettings(const ArrayFile& file, FilterChain& chain)
{
    AcceptorSettings().setList(file.elements().toVariantList());

    QJsonArray descriptions;
    const auto describe = [&descriptions](const char* name, const QJsonObject& params) {
        descriptions += QJsonObject{{nameKey, QLatin1String(name)}, {paramsKey, params}};
    };
    describe(filters::ACCEPT_FILTER,
             {{QStringLiteral("acceptAll"), AcceptorSettings::acceptAll()}});
    const QList<AcceptorAttemptFilterItem> limits = AcceptorSettings::attemptsFilter();
    for (const AcceptorAttemptFilterItem& limit : limits) {
        describe(filters::ATTEMPTS_FILTER,
                 {{QStringLiteral("denom"), limit.denom()},
                  {QStringLiteral("attempts"), limit.attempts()}});
    }
    if (AcceptorSettings::maxSumm() > 0) {
        // The sums of a session have 32 bits: none exceeds this.
        const qint64 maximum = qMin<qint64>(AcceptorSettings::maxSumm(), INT_MAX);
        describe(filters::SESSION_SUM_FILTER, {{QStringLiteral("sessionSum"), maximum}});
    }
    return addFilters(descriptions, chain, [&file](int) { return file.name(); });
}

QString filterName(const AbstractFilter& filter)
{
    return QLatin1String(filter.metaObject()->className());
}

QJsonObject filterParams(const AbstractFilter& filter)
{
    QJsonObject params;
    const QList<FieldDescription> descriptions = filter.getFieldsDescription();
    for (const FieldDescription& description : descriptions) {
        const QVariant value = filter.property(description.name.toUtf8().constData());
        params.insert(description.name, value.toInt());
    }
    return params;
}
