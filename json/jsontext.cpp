// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/jsontext.h"

#include <QJsonArray>
#include <QJsonDocument>

JsonText JsonText::of(const QVariant& value)
{
    const QByteArray array =
        QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)}).toJson(QJsonDocument::Compact);
    return JsonText(array.mid(1, array.size() - 2));
}

JsonText JsonText::object(std::initializer_list<Member> members)
{
    JsonBuffer json;
    json.beginObject();
    for (const Member& member : members)
        member.writeTo(json);
    json.endObject();
    return JsonText(json.text());
}
