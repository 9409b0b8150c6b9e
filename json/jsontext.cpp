// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/jsontext.h"

#include "json/jsonwriter.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>
#include <utility>

void JsonBuffer::appendKey(char before, const char* key)
{
    m_text.append(before);
    m_text.append('"');
    m_text.append(key, int(std::strlen(key)));
    m_text.append("\":", 2);
}

void JsonBuffer::append(const QString& text)
{
    const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar c) {
        return c >= u' ' && c <= u'~' && c != u'"' && c != u'\\';
    });
    if (!isPlain) {
        JsonWriter writer;
        writer.write(text);
        *this << writer.text().toUtf8();
        return;
    }
    const auto size = m_text.size();
    m_text.resize(size + int(text.size()) + 2);
    char* next = m_text.data() + size;
    *next++ = '"';
    next = std::transform(text.begin(), text.end(), next, [](QChar c) { return c.toLatin1(); });
    *next = '"';
}

void JsonBuffer::appendNumber(qint64 number)
{
    std::array<char, 20> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    m_text.append(digits.data(), int(end - digits.data()));
}

JsonText::JsonText(const QString& text)
{
    JsonBuffer json;
    json.append(text);
    append(json.text());
}

JsonText JsonText::null()
{
    return JsonText(QByteArrayLiteral("null"));
}

JsonText JsonText::object(std::initializer_list<Member> members)
{
    JsonBuffer json;
    char before = '{';
    for (const Member& member : members) {
        json.appendKey(std::exchange(before, ','), member.key);
        member.appendTo(json);
    }
    json << '}';
    return JsonText(json.text());
}
