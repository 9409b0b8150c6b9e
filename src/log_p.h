#pragma once

#include <QDebug>
#include <QLoggingCategory>

/// Whether debug messages are wanted: asking costs nothing, while qDebug() puts a message together
/// before it finds out.
inline bool logsDebug()
{
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
}
