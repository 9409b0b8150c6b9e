// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "basicnoteitem.h"

/// A number of notes or coins of one kind.
class VELMOLIB_EXPORT NoteItem : public BasicNoteItem
{
public:
    static const QString COUNT; ///< "count": int

    QVariantMap toMap() const override;
    bool fromMap(const QVariantMap& map, QString* error = nullptr) override;

    /// Whether all fields are equal, or some differ.
    bool operator==(const NoteItem& other) const;
    bool operator!=(const NoteItem& other) const { return !(*this == other); }

    qint32 count = 0; ///< any number is kept as it is
};
