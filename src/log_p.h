// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDebug>
#include <QLoggingCategory>

/// Whether debug messages are wanted. When Qt's own static objects are gone, and the default
/// category with them, all are: so qDebug() has it.
inline bool logsDebug()
{
    const QLoggingCategory* const category = QLoggingCategory::defaultCategory();
    return !category || category->isDebugEnabled();
}

/// A line of debug text, logDebug() << text: as qDebug() writes it, but the text is only put
/// together when it is wanted. Qt's qCDebug() would do so too, but clang's pedantic warnings forbid
/// it.
#define logDebug()                                                                                 \
    for (bool wanted = logsDebug(); wanted; wanted = false)                                        \
    qDebug().noquote()
