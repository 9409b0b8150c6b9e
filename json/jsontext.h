// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "json/jsonwriter.h"

#include <QByteArray>
#include <QString>
#include <QVariant>

#include <initializer_list>
#include <type_traits>

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

    static JsonText of(const QVariant& value);

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
