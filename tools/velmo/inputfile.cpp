// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "inputfile.h"

#include "terminal/velmo.h"
#include "text/fault.h"

#include <QFile>

#include <unistd.h>

TextInput openInput(const QString& fileName)
{
    auto file = std::make_unique<QFile>(fileName);
    const bool isStandardInput = fileName == QLatin1String("-");
    const QString name = isStandardInput ? Velmo::tr("standard input") : fileName;
    const bool opened = isStandardInput ? file->open(STDIN_FILENO, QIODevice::ReadOnly)
                                        : file->open(QIODevice::ReadOnly);
    if (!opened)
        throw Fault{QStringLiteral("%1: %2").arg(name, file->errorString())};
    return {std::move(file), name};
}
