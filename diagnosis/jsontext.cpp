// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "jsontext.h"

#include "jsonwriter_p.h"

#include <algorithm>
#include <array>
#include <charconv>

JsonText::JsonText(const QString& text)
{
    appendTo(*this, text);
}

void JsonText::appendTo(QByteArray& json, const QString& text)
{
    const bool isPlain = std::all_of(text.begin(), text.end(), [](QChar c) {
        return c >= u' ' && c <= u'~' && c != u'"' && c != u'\\';
    });
    if (!isPlain) {
        JsonWriter writer;
        writer.write(text);
        json += writer.text().toUtf8();
        return;
    }
    const auto end = json.size();
    json.resize(int(end + text.size()) + 2);
    char* next = json.data() + end;
    *next++ = '"';
    next = std::transform(text.begin(), text.end(), next, [](QChar c) { return c.toLatin1(); });
    *next = '"';
}

void JsonText::appendTo(QByteArray& json, qint64 number)
{
    std::array<char, 20> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    json.append(digits.data(), int(end - digits.data()));
}

JsonText JsonText::null()
{
    return JsonText(QByteArrayLiteral("null"));
}

JsonText JsonText::object(std::initializer_list<Member> members)
{
    QByteArray text;
    text.reserve(512);
    for (const Member& member : members) {
        text.append(text.isEmpty() ? "{\"" : ",\"", 2);
        text.append(member.key);
        text.append("\":", 2);
        if (member.text)
            appendTo(text, *member.text);
        else if (member.json)
            text.append(*member.json);
        else if (member.isTruth)
            text.append(member.number ? "true" : "false");
        else
            appendTo(text, member.number);
    }
    text.append('}');
    return JsonText(text);
}
