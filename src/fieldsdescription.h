// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QString>
#include <QVariant>

/// What a configuration tool needs to know about one filter parameter to show an input field and
/// to check what is typed into it.
class VELMOLIB_EXPORT FieldDescription
{
public:
    static const QString F_NAME; ///< "name"
    static const QString F_DESC; ///< "desc"
    static const QString F_TYPE; ///< "type"
    static const QString F_REGEXP; ///< "regexp"

    FieldDescription() = default; ///< four empty texts

    /// Takes the four texts as they are.
    FieldDescription(const QString& fieldName, const QString& description, const QString& typeName,
                     const QString& pattern);

    /// The four texts under the key constants.
    QVariantMap toMap() const;

    /// Reads all four texts or, when one is missing, none.
    /// @return whether all four were there
    bool fromMap(const QVariantMap& map);

    /// Whether all fields are equal, or some differ.
    bool operator==(const FieldDescription& other) const;
    bool operator!=(const FieldDescription& other) const { return !(*this == other); }

    QString name; ///< the parameter, which is the filter's Qt property of that name
    QString desc; ///< translated label
    QString type; ///< name of the value's type
    QString regexp; ///< what a valid value's text matches, anchored at both ends
};
