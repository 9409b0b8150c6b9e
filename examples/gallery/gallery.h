// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QString>

#include <cstdio>

/// What Gallery.qml cannot do itself.
class Gallery : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Ends the program when a picture could not be written.
    Q_INVOKABLE void fail(const QString& file)
    {
        fprintf(stderr, "gallery: %s: cannot be written\n", qPrintable(file));
        QCoreApplication::exit(2);
    }
};
