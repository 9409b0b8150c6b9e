// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filtersfile.h"

#include "acceptorsettings.h"
#include "filterfactory.h"
#include "settings/settingslist.h"
#include "text/diagnosis.h"
#include "text/fault.h"
#include "text/filterwords.h"

#include <algorithm>
#include <memory>

namespace {

const QLatin1String nameKey("name");
const QLatin1String paramsKey("params");

// A number from 0 on, a text that reads as one, or a switch; the filter's property has taken it
// when both are the same number.
bool holds(const AbstractFilter& filter, const QString& param, const QVariant& value)
{
    bool isNumber = false;
    const double number = value.toDouble(&isNumber);
    return isNumber && number >= 0
        && number == filter.property(param.toUtf8().constData()).toDouble();
}

FilterSet::Filter checkedFilter(const QJsonValue& element)
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

QList<FilterSet::Filter> filtersOf(const ArrayFile& file)
{
    QList<FilterSet::Filter> filters;
    const QJsonArray elements = file.elements();
    for (int i = 0; i < elements.size(); ++i) {
        try {
            filters.append(checkedFilter(elements.at(i)));
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("%1: %2").arg(file.place(i), fault.message)};
        }
    }
    return filters;
}

FilterSet impliedFilters(const ArrayFile& file)
{
    QList<FilterSet::Filter> implied;
    QMap<quint32, QString> names;
    // Never read through AcceptorSettings: what the list lacks would stay as the list before it
    // left it there.
    const SettingsList list(file);
    const auto valueOf = [&list](const QString& group, const QString& key) {
        return list.used(ServiceSetting::find(group, key)).value.toString();
    };
    const auto common = [&valueOf](const QString& key) {
        return valueOf(AcceptorSettings::ACCEPTOR_COMMON_SECTION, key);
    };
    QList<AcceptorAttemptFilterItem> limits;
    const QByteArray limitMaps = common(AcceptorSettings::ATTEMPTS_FILTER).toUtf8();
    for (const QJsonValue limitMap : QJsonDocument::fromJson(limitMaps).array()) {
        limits.append(AcceptorAttemptFilterItem());
        limits.last().loadFromMap(limitMap.toObject().toVariantMap());
    }
    const QList<AbstractFilter*> filters =
        FilterFactory::createFilters(common(AcceptorSettings::ACCEPT_ALL) == QLatin1String("1"),
                                     limits, common(AcceptorSettings::MAX_SUMM).toLongLong());
    for (const AbstractFilter* const filter : filters)
        implied.append({filterName(*filter), filterParams(*filter).toVariantMap()});
    qDeleteAll(filters);
    for (auto device = list.devices().keyBegin(); device != list.devices().keyEnd(); ++device) {
        const QString group = deviceGroup(*device, AcceptorSettings::DEVICE_SECTION);
        const QString model = valueOf(group, AcceptorSettings::DEVICE_ID);
        if (model.isEmpty())
            continue;
        const auto id = static_cast<quint32>(model.toInt());
        const QString name = valueOf(group, AcceptorSettings::DEVICE_NAME);
        // Of two devices of a model, nobody knows which one the log means.
        names.insert(id, names.contains(id) ? QString() : name);
    }
    return FilterSet(implied, names);
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

FilterSet filterSetOf(const ArrayFile& file, ListKind kind)
{
    requireKind(file, kind);
    return kind == ListKind::Settings ? impliedFilters(file) : FilterSet(filtersOf(file));
}
