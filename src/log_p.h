#pragma once

#include <QDebug>
#include <QLoggingCategory>

/// Whether debug messages are wanted: asking costs nothing, while qDebug() puts a message together
/// before it finds out. Qt's qCDebug() would do both, but clang's pedantic warnings forbid it.
inline bool logsDebug()
{
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
}
