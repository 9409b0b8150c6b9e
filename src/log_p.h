#pragma once

#include <QDebug>
#include <QLoggingCategory>

/// The category of qDebug(). With qCDebug() a message that is not wanted costs nothing, while
/// qDebug() puts it together before it finds out.
inline const QLoggingCategory& defaultLog()
{
    return *QLoggingCategory::defaultCategory();
}
