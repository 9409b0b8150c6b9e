#pragma once

#include <QList>
#include <QStringList>

/// Rows of text as a table with columns as wide as needed.
/// @param head the columns' headings; one that begins with ">" is of numbers and aligned right
QString formatTable(const QStringList& head, const QList<QStringList>& rows);
