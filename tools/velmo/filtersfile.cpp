#include "filtersfile.h"

#include "filterchain.h"
#include "filterfactory.h"
#include "textfile.h"

#include <QJsonArray>

#include <cctype>
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
    for (const QString& key : description.keys()) {
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
    for (const QString& param : params.keys()) {
        if (!known.contains(param)) {
            throw Fault{QStringLiteral("%1: unknown parameter \"%2\" (known: %3)")
                            .arg(name, param, known.keys().join(QStringLiteral(", ")))};
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

// The line on which the element at @p index of an array begins; the text is known to be one.
int lineOfElement(const QByteArray& text, int index)
{
    int depth = 0;
    bool inString = false;
    bool beforeElement = false;
    for (int i = 0; i < text.size(); ++i) {
        const char c = text.at(i);
        if (beforeElement && !isspace(static_cast<unsigned char>(c))) {
            if (index-- == 0)
                return 1 + text.left(i).count('\n');
            beforeElement = false;
        }
        if (inString && c == '\\')
            ++i;
        else if (c == '"')
            inString = !inString;
        else if (inString)
            continue;
        else if (c == '[' || c == '{')
            beforeElement = ++depth == 1;
        else if (c == ']' || c == '}')
            --depth;
        else if (c == ',')
            beforeElement = depth == 1;
    }
    return 1;
}

} // namespace

QList<AbstractFilter*> loadFilters(const QString& fileName, FilterChain& chain)
{
    TextFile file(fileName);
    const QByteArray text = file.readAll();
    const QJsonDocument document = file.parseJson(text, 1);
    if (!document.isArray())
        throw file.faultAt(1, QStringLiteral("expected a list of filters"));
    const QJsonArray descriptions = document.array();
    QList<AbstractFilter*> filters;
    for (int i = 0; i < descriptions.size(); ++i) {
        try {
            filters.append(makeFilter(descriptions.at(i)).release());
        } catch (const Fault& fault) {
            throw file.faultAt(lineOfElement(text, i), fault.message);
        }
        chain.add(filters.last());
    }
    return filters;
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
