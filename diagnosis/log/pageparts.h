// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/noteanswer.h"

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <utility>

/// What the pages have in common. A page is HTML in one file that needs no other, and no script.

/// @param text is no markup, here and in the list
QString htmlElement(const char* tag, const QString& text);

QString htmlList(const QStringList& texts);

/// A table of which a narrow page shows each row as a block, where every cell says what it is.
class WideTable
{
public:
    explicit WideTable(QStringList headings)
        : m_headings(std::move(headings))
    {
    }

    /// A cell "0" is quiet.
    void add(const QStringList& cells);

    QString html() const;

private:
    const QStringList m_headings;
    QString m_rows;
};

/// All up to the content, with the style sheet.
/// @param logs their names, for the title
/// @param shapes SVG that the content refers to
QByteArray pageHead(const QString& title, const QStringList& logs, const QString& shapes);

/// How many notes there were and what became of them, as a table.
QString totalsCard(int sessions, const QList<Summary::Row>& rows);
