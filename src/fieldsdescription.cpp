#include "fieldsdescription.h"

#include "maprecord_p.h"

#include <tuple>

const QString FieldDescription::F_NAME = QStringLiteral("name");
const QString FieldDescription::F_DESC = QStringLiteral("desc");
const QString FieldDescription::F_TYPE = QStringLiteral("type");
const QString FieldDescription::F_REGEXP = QStringLiteral("regexp");

FieldDescription::FieldDescription(const QString& fieldName, const QString& description,
                                   const QString& typeName, const QString& pattern)
    : name(fieldName)
    , desc(description)
    , type(typeName)
    , regexp(pattern)
{
}

QVariantMap FieldDescription::toMap() const
{
    return {{F_NAME, name}, {F_DESC, desc}, {F_TYPE, type}, {F_REGEXP, regexp}};
}

bool FieldDescription::fromMap(const QVariantMap& map)
{
    FieldDescription description;
    const bool complete = RecordReader(map, nullptr)
                              .read(F_NAME, description.name)
                              .read(F_DESC, description.desc)
                              .read(F_TYPE, description.type)
                              .read(F_REGEXP, description.regexp)
                              .complete();
    if (complete)
        *this = description;
    return complete;
}

bool FieldDescription::operator==(const FieldDescription& other) const
{
    return std::tie(name, desc, type, regexp)
        == std::tie(other.name, other.desc, other.type, other.regexp);
}
