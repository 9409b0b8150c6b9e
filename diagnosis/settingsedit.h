// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QJsonArray>
#include <QList>
#include <QString>

/// A setting and the value that it is to have.
struct Assignment
{
    QString group;
    QString key;
    QString value;
};

/// Applies assignments through the service's model, and gives the settings list in which exactly
/// that has changed which the model carries differently afterwards: an element that the model does
/// not know, and the order of the list, stay. Throws Fault for a setting that the model does not
/// know and for a value that it would not take as it stands.
QJsonArray editSettings(const QJsonArray& list, const QList<Assignment>& assignments);
