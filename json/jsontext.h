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

    /// A text, a whole number or a switch.
    template <
        typename Value,
        typename = std::enable_if_t<std::is_integral_v<Value> || std::is_same_v<Value, QString>>>
    JsonText(const Value& value)
    {
        JsonBuffer json;
        json.append(value);
        append(json.text());
    }

    /// A value as QJsonValue::fromVariant() takes it.
    static JsonText of(const QVariant& value);

    static JsonText null() { return JsonText(QByteArrayLiteral("null")); }

    static JsonText object(std::initializer_list<Member> members);

    /// @param toText gives the text of one element
    template <typename List, typename ToText>
    static JsonText list(const List& elements, ToText toText)
    {
        if (elements.empty())
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
        : m_key(name)
        , m_value(&value)
        , m_write([](JsonBuffer& json, const char* key, const void* known) {
            json.writeMember(key, *static_cast<const Value*>(known));
        })
    {
    }

    void writeTo(JsonBuffer& json) const { m_write(json, m_key, m_value); }

private:
    const char* m_key;
    const void* m_value;
    void (*m_write)(JsonBuffer& json, const char* key, const void* value);
};
