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
    if (isPlain) {
        json += '"';
        const auto end = json.size();
        json.resize(int(end + text.size()) + 1);
        std::transform(text.begin(), text.end(), json.begin() + end,
                       [](QChar c) { return c.toLatin1(); });
        json.back() = '"';
        return;
    }
    JsonWriter writer;
    writer.write(text);
    json += writer.text().toUtf8();
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

JsonText JsonText::object(const std::vector<Member>& members)
{
    QByteArray text;
    text.reserve(512);
    for (const Member& member : members) {
        text += text.isEmpty() ? "{\"" : ",\"";
        text += member.key;
        text += "\":";
        text += member.value;
    }
    return JsonText(text + '}');
}
