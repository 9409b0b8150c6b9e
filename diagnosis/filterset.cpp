// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filterset.h"

#include "acceptorsettings.h"
#include "arrayfile.h"
#include "fault.h"
#include "filterchain.h"
#include "filterfactory.h"
#include "filterwords.h"
#include "settingslist.h"
#include "words.h"

#include <algorithm>
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

std::pair<QString, QVariantMap> checkedFilter(const QJsonValue& element)
{
    const QJsonObject description = element.toObject();
    if (!description.value(nameKey).isString())
        throw Fault{Diagnosis::tr("expected an object with the filter's \"name\"")};
    const QStringList keys = description.keys();
    for (const QString& key : keys) {
        if (key != nameKey && key != paramsKey)
            throw Fault{Diagnosis::tr("unknown key \"%1\"").arg(key)};
    }
    const QString name = description.value(nameKey).toString();
    const QJsonValue paramsValue = description.value(paramsKey);
    if (!paramsValue.isObject() && !paramsValue.isUndefined())
        throw Fault{Diagnosis::tr("\"params\": expected an object")};
    const QVariantMap params = paramsValue.toObject().toVariantMap();

    const std::unique_ptr<AbstractFilter> filter(FilterFactory::createFilter(name, {}));
    if (!filter) {
        throw Fault{Diagnosis::tr("unknown filter \"%1\" (known: %2)")
                        .arg(name, FilterFactory::getFilters().join(QStringLiteral(", ")))};
    }
    const QJsonObject known = filterParams(*filter);
    for (auto param = params.keyBegin(); param != params.keyEnd(); ++param) {
        if (!known.contains(*param)) {
            throw Fault{Diagnosis::tr("%1: unknown parameter \"%2\" (known: %3)")
                            .arg(name, *param, known.keys().join(QStringLiteral(", ")))};
        }
    }
    filter->setParams(params);
    for (auto param = params.begin(); param != params.end(); ++param) {
        if (!holds(*filter, param.key(), param.value()))
            throw Fault{Diagnosis::tr("%1: parameter \"%2\" cannot hold this value")
                            .arg(name, param.key())};
    }
    return {name, params};
}

} // namespace

ListKind kindOf(const ArrayFile& file)
{
    const QJsonArray elements = file.elements();
    const auto anyHas = [&elements](const char* key) {
        return std::any_of(elements.begin(), elements.end(), [key](const QJsonValue& element) {
            return element.toObject().contains(QLatin1String(key));
        });
    };
    if (anyHas("group"))
        return ListKind::Settings;
    return anyHas("name") ? ListKind::Filters : ListKind::Other;
}

void requireKind(const ArrayFile& file, ListKind wanted)
{
    const ListKind kind = kindOf(file);
    if (kind == wanted || kind == ListKind::Other)
        return;
    const QString fault = kind == ListKind::Settings
        ? Diagnosis::tr("%1: is a settings list, where a filters file is expected")
        : Diagnosis::tr("%1: is a filters file, where a settings list is expected");
    throw Fault{fault.arg(file.name())};
}

FilterSet::FilterSet(const ArrayFile& file, ListKind kind)
{
    requireKind(file, kind);
    if (kind == ListKind::Settings)
        addSettings(file);
    else
        addFilters(file);
}

void FilterSet::addFilters(const ArrayFile& file)
{
    const QJsonArray elements = file.elements();
    for (int i = 0; i < elements.size(); ++i) {
        try {
            m_filters.append(checkedFilter(elements.at(i)));
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("%1: %2").arg(file.place(i), fault.message)};
        }
    }
}

void FilterSet::addSettings(const ArrayFile& file)
{
    // Never read through AcceptorSettings: what the list lacks would stay as the list before it
    // left it there.
    const SettingsList list(file);
    const auto valueOf = [&list](const QString& group, const QString& key) {
        return list.used(ServiceSetting::find(group, key)).value.toString();
    };
    const auto common = [&valueOf](const QString& key) {
        return valueOf(AcceptorSettings::ACCEPTOR_COMMON_SECTION, key);
    };
    const auto add = [this, &file, &list](const char* name, const QVariantMap& params) {
        const QJsonObject description{{nameKey, QLatin1String(name)},
                                      {paramsKey, QJsonObject::fromVariantMap(params)}};
        try {
            m_filters.append(checkedFilter(description));
        } catch (const Fault& fault) {
            // Of what settings say, only these limits can be too much for a filter.
            const ServiceSetting limits = ServiceSetting::find(
                AcceptorSettings::ACCEPTOR_COMMON_SECTION, AcceptorSettings::ATTEMPTS_FILTER);
            const int element = list.used(limits).element;
            throw Fault{QStringLiteral("%1: %2").arg(
                element < 0 ? file.name() : file.place(element), fault.message)};
        }
    };
    const bool acceptAll = common(AcceptorSettings::ACCEPT_ALL) == QLatin1String("1");
    add(filters::ACCEPT_FILTER, {{QStringLiteral("acceptAll"), acceptAll}});
    const QByteArray limits = common(AcceptorSettings::ATTEMPTS_FILTER).toUtf8();
    for (const QJsonValue limitMap : QJsonDocument::fromJson(limits).array()) {
        AcceptorAttemptFilterItem limit;
        limit.loadFromMap(limitMap.toObject().toVariantMap());
        add(filters::ATTEMPTS_FILTER,
            {{QStringLiteral("denom"), limit.denom()},
             {QStringLiteral("attempts"), limit.attempts()}});
    }
    const qint64 maxSumm = common(AcceptorSettings::MAX_SUMM).toLongLong();
    if (maxSumm > 0) {
        // The sums of a session have 32 bits: none exceeds this.
        add(filters::SESSION_SUM_FILTER,
            {{QStringLiteral("sessionSum"), qMin<qint64>(maxSumm, INT_MAX)}});
    }
    for (auto device = list.devices().keyBegin(); device != list.devices().keyEnd(); ++device) {
        const QString group = deviceGroup(*device, AcceptorSettings::DEVICE_SECTION);
        const QString model = valueOf(group, AcceptorSettings::DEVICE_ID);
        if (model.isEmpty())
            continue;
        const auto id = static_cast<quint32>(model.toInt());
        const QString name = valueOf(group, AcceptorSettings::DEVICE_NAME);
        // Of two devices of a model, nobody knows which one the log means.
        m_deviceNames.insert(id, m_deviceNames.contains(id) ? QString() : name);
    }
}

void FilterSet::addDeviceNames(const FilterSet& other)
{
    for (auto name = other.m_deviceNames.begin(); name != other.m_deviceNames.end(); ++name) {
        if (!m_deviceNames.contains(name.key()))
            m_deviceNames.insert(name.key(), name.value());
    }
}

QList<AbstractFilter*> FilterSet::addTo(FilterChain& chain) const
{
    QList<AbstractFilter*> made;
    for (const auto& [name, params] : m_filters) {
        made.append(FilterFactory::createFilter(name, params));
        chain.add(made.last());
    }
    return made;
}

QStringList FilterSet::rules() const
{
    FilterChain chain;
    const QList<AbstractFilter*> made = addTo(chain);
    QStringList sentences;
    for (const AbstractFilter* const filter : made)
        sentences += filterRule(*filter);
    return sentences;
}

std::optional<int> FilterSet::sumLimit() const
{
    FilterChain chain;
    std::optional<int> lowest;
    const QList<AbstractFilter*> made = addTo(chain);
    for (const AbstractFilter* const filter : made) {
        const QVariant limit = filter->property("sessionSum");
        if (limit.isValid())
            lowest = qMin(lowest.value_or(INT_MAX), limit.toInt());
    }
    return lowest;
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
