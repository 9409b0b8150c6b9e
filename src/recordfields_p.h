// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "json/jsonreader.h"
#include "json/jsonwriter.h"
#include "json/variants.h"

#include <QString>
#include <QVariant>

#include <algorithm>
#include <array>
#include <type_traits>

/// The map-record convention: a record is its table of keys and fields, in the order in which they
/// are read. Reading stops at the first key that is missing; fields before it stay changed, later
/// ones are not touched. A value that does not convert gives 0 or an empty text; a field narrower
/// than an int takes its low bits.

enum FieldReading : qint32 {
    RequiredField,
    OptionalField, ///< keeps its value when its key is missing
    UnreadField
};

/// One field of a record.
template <typename Record>
struct RecordField
{
    const QString* key;
    QVariant (*get)(const Record& record);
    bool (*set)(Record& record, const QVariant& value); ///< false ends the reading
    void (*write)(JsonWriter& json, const Record& record);
    /// False for text that is no JSON; @p isRead becomes what set() would return.
    bool (*read)(JsonReader& json, Record& record, bool& isRead);
    void (*take)(Record& record, Record& from);
    FieldReading reading = RequiredField;
    bool (*isWritten)(const Record& record) = nullptr; ///< null: always
};

template <typename T>
QVariant toVariant(const T& value)
{
    if constexpr (
        std::is_same_v<
            T,
            QString> || std::is_same_v<T, bool> || std::is_same_v<T, quint64> || std::is_same_v<T, quint32>)
        return value;
    else
        return static_cast<int>(value);
}

template <typename T>
T fromVariant(const QVariant& value)
{
    if constexpr (std::is_same_v<T, QString>)
        return Variants::toString(value);
    else if constexpr (std::is_same_v<T, bool>)
        return Variants::toBool(value);
    else if constexpr (std::is_same_v<T, quint64>)
        return Variants::toULongLong(value);
    else
        return static_cast<T>(Variants::toInt(value));
}

template <typename T>
void writeJson(JsonWriter& json, const T& value)
{
    if constexpr (std::is_same_v<T, QString> || std::is_same_v<T, bool>)
        json.write(value);
    else
        json.write(static_cast<qint64>(value));
}

/// Reads what fromVariant() makes of the value that the text stands for.
template <typename T>
bool readJson(JsonReader& json, T& value)
{
    using Plain =
        std::conditional_t<std::is_same_v<T, QString> || std::is_same_v<T, bool>, T, qint64>;
    if constexpr (std::is_same_v<T, Plain>) {
        if (json.readPlain(value))
            return true;
    } else if (Plain plain = 0; json.readPlain(plain)) {
        value = static_cast<T>(plain);
        return true;
    }
    QVariant other;
    const bool isSound = json.readValue(other);
    value = fromVariant<T>(other);
    return isSound;
}

/// The field for a data member of the record or of its base.
template <typename Record, auto Member>
RecordField<Record> recordField(const QString& key, FieldReading reading = RequiredField)
{
    using T = std::decay_t<decltype(std::declval<Record>().*Member)>;
    return {&key,
            [](const Record& record) { return toVariant(record.*Member); },
            [](Record& record, const QVariant& value) {
                record.*Member = fromVariant<T>(value);
                return true;
            },
            [](JsonWriter& json, const Record& record) { writeJson(json, record.*Member); },
            [](JsonReader& json, Record& record, bool& isRead) {
                isRead = true;
                return readJson(json, record.*Member);
            },
            [](Record& record, Record& from) { record.*Member = std::move(from.*Member); },
            reading};
}

/// The keys of a table's fields.
template <typename Field, std::size_t Size>
std::array<const QString*, Size> keysOf(const std::array<Field, Size>& fields)
{
    std::array<const QString*, Size> keys;
    std::transform(fields.begin(), fields.end(), keys.begin(),
                   [](const Field& field) { return field.key; });
    return keys;
}

/// The fields of a record with what the convention makes of them.
template <typename Record, std::size_t Size>
class RecordTable
{
public:
    explicit RecordTable(const std::array<RecordField<Record>, Size>& fields)
        : m_fields(fields)
        , m_order(keysOf(fields))
    {
    }

    QVariantMap toMap(const Record& record) const
    {
        QVariantMap map;
        for (const std::size_t i : m_order.ascending()) {
            const RecordField<Record>& field = m_fields[i];
            if (!field.isWritten || field.isWritten(record))
                map.insert(map.cend(), *field.key, field.get(record));
        }
        return map;
    }

    /// @param error receives the bare text of the first missing key; may be null
    bool fromMap(const QVariantMap& map, Record& record, QString* error) const
    {
        for (const RecordField<Record>& field : m_fields) {
            if (field.reading == UnreadField)
                continue;
            const auto value = map.constFind(*field.key);
            if (value != map.constEnd()) {
                if (!field.set(record, *value))
                    return false;
            } else if (field.reading == RequiredField) {
                if (error)
                    *error = *field.key;
                return false;
            }
        }
        return true;
    }

    void write(JsonWriter& json, const Record& record) const
    {
        json.beginObject();
        for (const std::size_t i : m_order.ascending()) {
            const RecordField<Record>& field = m_fields[i];
            if (field.isWritten && !field.isWritten(record))
                continue;
            json.writeKey(*field.key);
            field.write(json, record);
        }
        json.endObject();
    }

    /// Passes over a record, whose keys need not be read.
    bool skip(JsonReader& json) const
    {
        return json.readObject(m_order, [&](std::size_t, QStringView) { return json.skipValue(); });
    }

    /// Reads JSON text as fromMap() reads the map that it stands for. A text that is no object has
    /// none, and nothing is read.
    bool parse(const QString& text, Record& record) const
    {
        std::array<bool, Size> isRead{};
        Record read = record; // whose texts are kept where they are the same
        JsonReader json(text);
        const auto readMember = [&](std::size_t i, QStringView) {
            if (i == Size)
                return json.skipValue();
            return m_fields[i].read(json, read, isRead[i]);
        };
        if (!json.readObject(m_order, readMember) || !json.isAtEnd())
            return false;
        for (std::size_t i = 0; i < Size; ++i) {
            if (isRead[i])
                m_fields[i].take(record, read);
            else if (m_fields[i].reading == RequiredField)
                return false;
        }
        return true;
    }

private:
    std::array<RecordField<Record>, Size> m_fields; // in reading order
    KeyOrder<Size> m_order;
};

/// The table of the fields that a function lists, made on first use.
template <auto Fields>
const auto& recordTable()
{
    static const RecordTable table(Fields());
    return table;
}

/// The fields of a base and those that a derived record adds.
template <typename Field, std::size_t BaseSize, std::size_t OwnSize>
std::array<Field, BaseSize + OwnSize> joined(const std::array<Field, BaseSize>& base,
                                             const std::array<Field, OwnSize>& own)
{
    std::array<Field, BaseSize + OwnSize> fields;
    std::copy(own.begin(), own.end(), std::copy(base.begin(), base.end(), fields.begin()));
    return fields;
}
