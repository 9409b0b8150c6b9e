// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QVarLengthArray>

#include <cstring>
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
    void writeMember(const char* key, const Value& value)
    {
        separate();
        *this << '"' << key << "\":";
        append(value);
    }

    template <typename Value>
    void write(const Value& value)
    {
        separate();
        append(value);
    }

    /// Appends a value alone.
    void append(const QString& text);
    void append(const QByteArray& json) { appendBytes(json.constData(), int(json.size())); }
    template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
    void append(Number number)
    {
        if constexpr (std::is_same_v<Number, bool>)
            *this << (number ? "true" : "false");
        else
            appendNumber(qint64(number));
    }

    /// Appends a part of JSON text as it stands.
    BasicJsonWriter& operator<<(char character)
    {
        m_text.append(asChar(character));
        return *this;
    }
    BasicJsonWriter& operator<<(const char* ascii)
    {
        appendBytes(ascii, int(std::strlen(ascii)));
        return *this;
    }

    auto text() const
    {
        using Text = std::conditional_t<std::is_same_v<Char, char>, QByteArray, QString>;
        return Text(m_text.constData(), int(m_text.size()));
    }

private:
    static Char asChar(char byte) { return Char(ushort(uchar(byte))); }

    void separate()
    {
        if (m_needsComma)
            *this << ',';
        m_needsComma = true;
    }

    void begin(char bracket)
    {
        separate();
        *this << bracket;
        m_needsComma = false;
    }

    void end(char bracket)
    {
        *this << bracket;
        m_needsComma = true;
    }

    void appendNumber(qint64 number);
    void appendBytes(const char* begin, int size); // ASCII where the text is UTF-16
    void appendRun(const QChar* begin, const QChar* end);
    void appendEscape(QChar c);

    QVarLengthArray<Char, 1024> m_text;
    bool m_needsComma = false;
};

using JsonWriter = BasicJsonWriter<QChar>;
using JsonBuffer = BasicJsonWriter<char>;

extern template class BasicJsonWriter<QChar>;
extern template class BasicJsonWriter<char>;
