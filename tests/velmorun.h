// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "testtable.h"

#include <QProcess>

/// What a run of the velmo tool gave.
struct VelmoRun
{
    int exitCode = -1;
    QString out;
    QString err;

    QStringList outLines() const { return out.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
    QStringList errLines() const { return err.split(QLatin1Char('\n'), Qt::SkipEmptyParts); }
};

inline VelmoRun velmo(const QStringList& arguments, const QByteArray& input = {})
{
    QProcess process;
    process.start(QStringLiteral(VELMO), arguments);
    process.write(input);
    process.closeWriteChannel();
    // Whoever runs the tests ends one that hangs.
    if (!process.waitForFinished(-1) || process.exitStatus() != QProcess::NormalExit)
        return {-1, {}, process.errorString()};
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

/// Writes a file and returns its name.
inline QString writeFile(const QString& name, const QString& content)
{
    QFile file(name);
    const QByteArray bytes = content.toUtf8();
    const bool written = file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size();
    return written ? name : QString();
}

inline QString sample(const QString& name)
{
    return QStringLiteral(SAMPLES "/") + name;
}
