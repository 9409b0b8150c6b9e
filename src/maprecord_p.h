#pragma once

#include <QString>
#include <QVariant>

#include <type_traits>

/// The value as a record field holds it. A value that does not convert gives 0 or an empty text;
/// a field narrower than an int takes its low bits.
template <typename T>
T converted(const QVariant& value)
{
    if constexpr (std::is_same_v<T, QString>)
        return value.toString();
    else if constexpr (std::is_same_v<T, bool>)
        return value.toBool();
    else if constexpr (std::is_same_v<T, quint64>)
        return value.toULongLong();
    else
        return static_cast<T>(value.toInt());
}

/// Fills a record from its map: reads keys in the order of the calls and stops at the first one
/// that is missing. Fields read before it stay changed, later ones are not touched.
class RecordReader
{
public:
    /// @param error receives the bare text of the first missing key; may be null
    RecordReader(const QVariantMap& map, QString* error)
        : m_map(map)
        , m_error(error)
    {
    }

    template <typename T>
    RecordReader& read(const QString& key, T& field)
    {
        if (const QVariant* value = next(key))
            field = converted<T>(*value);
        return *this;
    }

    /// Reads a field that is written as a name; a name that @p fromName does not know ends the
    /// reading as a missing key does, but names no key.
    template <typename T>
    RecordReader& read(const QString& key, T& field, bool (*fromName)(const QString&, T&))
    {
        if (const QVariant* value = next(key))
            m_complete = fromName(value->toString(), field);
        return *this;
    }

    template <typename T>
    RecordReader& readOptional(const QString& key, T& field)
    {
        return m_map.contains(key) ? read(key, field) : *this;
    }

    /// Whether everything asked for was there.
    bool complete() const { return m_complete; }

private:
    const QVariant* next(const QString& key)
    {
        if (!m_complete)
            return nullptr;
        const auto entry = m_map.constFind(key);
        if (entry != m_map.constEnd())
            return &*entry;
        m_complete = false;
        if (m_error)
            *m_error = key;
        return nullptr;
    }

    const QVariantMap& m_map;
    QString* const m_error;
    bool m_complete = true;
};
