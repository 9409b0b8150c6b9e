// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/textoutput.h"

#include "text/diagnosis.h"

#include <QFileDevice>

Fault faultOf(QIODevice& device)
{
    auto* const file = qobject_cast<QFileDevice*>(&device);
    // When there was room for a part, only the next try tells why there is none for the rest.
    if (file)
        file->flush();
    const QString name = file ? file->fileName() : QString();
    return {QStringLiteral("%1: %2").arg(name.isEmpty() ? Diagnosis::tr("standard output") : name,
                                         device.errorString())};
}

void writeText(QIODevice& device, const QByteArray& text)
{
    for (qint64 written = 0; written < text.size();) {
        const qint64 count = device.write(text.constData() + written, text.size() - written);
        if (count < 0)
            throw faultOf(device);
        written += count;
    }
}

void flushText(QIODevice& device)
{
    auto* const file = qobject_cast<QFileDevice*>(&device);
    if (file && !file->flush())
        throw faultOf(device);
}
