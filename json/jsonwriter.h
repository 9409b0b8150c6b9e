// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>
#include <QVarLengthArray>

#include <type_traits>

/// Writes compact JSON text as Qt's QJsonDocument does, without a document in between: UTF-16 as
/// JsonWriter, UTF-8 as JsonBuffer.
template <typename Char>
class BasicJsonWriter
{
public:
    /// The parts of a text that is written in order: commas come by themselves. The caller writes
    /// the keys of an object in the order that they are to have; Qt's is ascending.
    void beginObject() { begin('{'); }
    void endObject() { end('}'); }
    void beginArray() { begin('['); }
    void endArray() { end(']'); }

    /// @param key ASCII without quotes and backslashes
    void writeKey(const QString& key);

    template <typename Value>
    void write(const Value& value)
    {
        separate();
        append(value);
    }

    /// Appends a value alone.
    void append(const QString& text);
    void append(const QVariant& value); ///< as QJsonValue::fromVariant() takes it
    template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
    void append(Number number)
    {
        if constexpr (std::is_same_v<Number, bool>)
            append(number ? "true" : "false");
        else
            appendNumber(qint64(number));
    }

    /// Appends ASCII as it stands.
    void append(const char* ascii);

    /// Appends text that is JSON already, or a part of it.
    BasicJsonWriter& operator<<(char character)
    {
        m_text.append(asChar(character));
        return *this;
    }
    BasicJsonWriter& operator<<(const char* ascii)
    {
        append(ascii);
        return *this;
    }
    BasicJsonWriter& operator<<(const QByteArray& utf8)
    {
        if constexpr (std::is_same_v<Char, char>) {
            m_text.append(utf8.constData(), int(utf8.size()));
        } else {
            const QString utf16 = QString::fromUtf8(utf8);
            m_text.append(utf16.constData(), int(utf16.size()));
        }
        return *this;
    }

    auto text() const
    {
        using Text = std::conditional_t<std::is_same_v<Char, char>, QByteArray, QString>;
        return Text(m_text.constData(), int(m_text.size()));
    }

private:
    static Char asChar(char ascii)
    {
        if constexpr (std::is_same_v<Char, char>)
            return ascii;
        else
            return QLatin1Char(ascii);
    }

    void separate();
    void begin(char bracket);
    void end(char bracket);
    void appendNumber(qint64 number);
    void appendAscii(const char* begin, int size);
    void appendRun(const QChar* begin, const QChar* end);
    void appendEscape(QChar c);

    QVarLengthArray<Char, 1024> m_text;
    bool m_needsComma = false;
};

using JsonWriter = BasicJsonWriter<QChar>;
using JsonBuffer = BasicJsonWriter<char>;

extern template class BasicJsonWriter<QChar>;
extern template class BasicJsonWriter<char>;
