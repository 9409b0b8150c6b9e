// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/jsontext.h"

#include <utility>

JsonText::JsonText(const QString& text)
{
    JsonBuffer json;
    json.append(text);
    append(json.text());
}

JsonText JsonText::of(const QVariant& value)
{
    JsonBuffer json;
    json.append(value);
    return JsonText(json.text());
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
        json << std::exchange(before, ',') << '"' << member.key << "\":";
        member.appendTo(json);
    }
    json << '}';
    return JsonText(json.text());
}
