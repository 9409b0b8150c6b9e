// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QString>
#include <QVarLengthArray>

#include <initializer_list>
#include <type_traits>

/// JSON text that grows at its end.
class JsonBuffer
{
public:
    template <std::size_t Size>
    JsonBuffer& operator<<(const char (&literal)[Size])
    {
        m_text.append(literal, int(Size) - 1);
        return *this;
    }
    JsonBuffer& operator<<(char character)
    {
        m_text.append(character);
        return *this;
    }
    JsonBuffer& operator<<(const QByteArray& json)
    {
        m_text.append(json.constData(), int(json.size()));
        return *this;
    }

    /// Appends the key of a member, plain ASCII, after @p before.
    void appendKey(char before, const char* key);

    /// Appends a text, a number, or true or false as JSON.
    void append(const QString& text);
    template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
    void append(Number number)
    {
        if constexpr (std::is_same_v<Number, bool>)
            *this << (number ? QByteArrayLiteral("true") : QByteArrayLiteral("false"));
        else
            appendNumber(number);
    }

    QByteArray text() const { return {m_text.constData(), int(m_text.size())}; }

private:
    void appendNumber(qint64 number);

    QVarLengthArray<char, 1024> m_text;
};

/// A JSON value as compact text. Unlike a QJsonObject, an object keeps its members in the order in
/// which they were given, which is that of their meaning.
class JsonText : public QByteArray
{
public:
    struct Member;

    JsonText(const QString& text);
    template <typename Number, typename = std::enable_if_t<std::is_integral_v<Number>>>
    JsonText(Number number)
    {
        JsonBuffer json;
        json.append(number);
        append(json.text());
    }

    static JsonText of(const QJsonValue& value)
    {
        const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
        return JsonText(array.mid(1, array.size() - 2));
    }

    static JsonText null();

    static JsonText object(std::initializer_list<Member> members);

    /// @param toText gives the text of one element
    template <typename List, typename ToText>
    static JsonText list(const List& elements, ToText toText)
    {
        if (elements.isEmpty())
            return JsonText(QByteArrayLiteral("[]"));
        QByteArray text("[");
        for (const auto& element : elements) {
            if (text.size() > 1)
                text += ',';
            text += toText(element);
        }
        text += ']';
        return JsonText(text);
    }

    template <typename List>
    static JsonText list(const List& elements)
    {
        return list(elements, [](const auto& element) { return JsonText(element); });
    }

private:
    explicit JsonText(const QByteArray& text)
        : QByteArray(text)
    {
    }
};

/// A member of an object that is being written: it refers to its value, which must last until then.
struct JsonText::Member
{
    /// @param name plain ASCII
    template <typename Value>
    Member(const char* name, const Value& value)
        : key(name)
        , m_value(&value)
        , m_append([](JsonBuffer& json, const void* known) {
            if constexpr (std::is_same_v<Value, JsonText>)
                json << *static_cast<const JsonText*>(known);
            else
                json.append(*static_cast<const Value*>(known));
        })
    {
    }

    void appendTo(JsonBuffer& json) const { m_append(json, m_value); }

    const char* key;

private:
    const void* m_value;
    void (*m_append)(JsonBuffer& json, const void* value);
};
