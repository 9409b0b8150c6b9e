// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// The configuration tool side: reads a settings list, limits the fishing of notes of 1000, moves
// the first device to another port and writes the list back.

#include <velmolib/acceptorsettings.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <cstdio>

int main()
{
    QFile in;
    QFile out;
    if (!in.open(stdin, QIODevice::ReadOnly) || !out.open(stdout, QIODevice::WriteOnly))
        return 1;

    AcceptorSettings settings;
    settings.setList(QJsonDocument::fromJson(in.readAll()).array().toVariantList());
    AcceptorSettings::addAttemptsFilter(1000, 3);
    settings.updateValue(QStringLiteral("device0"), AcceptorSettings::HARDWARE_SECTION,
                         AcceptorSettings::PORT_NAME, QStringLiteral("ttyS7"));
    out.write(QJsonDocument(QJsonArray::fromVariantList(settings.toList())).toJson());
    settings.setList({}); // deletes the devices
    return 0;
}
