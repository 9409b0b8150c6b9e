// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fieldsdescription.h"

#include "recordfields_p.h"

#include <tuple>

const QString FieldDescription::F_NAME = QStringLiteral("name");
const QString FieldDescription::F_DESC = QStringLiteral("desc");
const QString FieldDescription::F_TYPE = QStringLiteral("type");
const QString FieldDescription::F_REGEXP = QStringLiteral("regexp");

namespace {

auto fields()
{
    using D = FieldDescription;
    return std::array{recordField<D, &D::name>(D::F_NAME), recordField<D, &D::desc>(D::F_DESC),
                      recordField<D, &D::type>(D::F_TYPE), recordField<D, &D::regexp>(D::F_REGEXP)};
}

} // namespace

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
    return recordTable<fields>().toMap(*this);
}

bool FieldDescription::fromMap(const QVariantMap& map)
{
    FieldDescription description;
    const bool complete = recordTable<fields>().fromMap(map, description, nullptr);
    if (complete)
        *this = description;
    return complete;
}

bool FieldDescription::operator==(const FieldDescription& other) const
{
    return std::tie(name, desc, type, regexp)
        == std::tie(other.name, other.desc, other.type, other.regexp);
}
