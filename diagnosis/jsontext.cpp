// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "jsontext.h"

#include "jsonwriter_p.h"

JsonText::JsonText(const QString& text)
{
    JsonWriter json;
    json.write(text);
    append(json.text().toUtf8());
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
