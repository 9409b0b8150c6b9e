// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "acceptors.h"
#include "velmolib_global.h"

#include <QString>
#include <QVariant>

/// One kind of note or coin.
///
/// This is also the root of the library's map records. Every record keeps its map keys in static
/// constants, writes itself with toMap() and reads itself with fromMap(), which takes the keys in
/// the order of the class's key constants and stops at the first one that is missing: the fields
/// before it are then changed, the others are not. Values convert as QVariant converts them; one
/// that does not gives 0 or an empty text and is no failure. Unknown keys are ignored.
class VELMOLIB_EXPORT BasicNoteItem
{
public:
    static const QString CURRENCY; ///< "currency": text
    static const QString DENOMINATION; ///< "denomination": int
    static const QString BILL_TYPE; ///< "bill_type": int

    virtual ~BasicNoteItem() = default;

    /// The map form: a value under each key constant of the class and its bases.
    virtual QVariantMap toMap() const;

    /// Reads the record. @p error receives the bare text of the first missing key; it may be null.
    /// @return whether every key was there
    virtual bool fromMap(const QVariantMap& map, QString* error = nullptr);

    /// Whether all fields are equal, or some differ.
    bool operator==(const BasicNoteItem& other) const;
    bool operator!=(const BasicNoteItem& other) const { return !(*this == other); }

    QString currency; ///< code of the currency, for example "RUB"; any text is kept
    qint32 denomination = 0; ///< face value, in the unit that the service uses
    Acceptors::billTypes billType = Acceptors::Bill; ///< any number is kept as it is
};
