// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/pageparts.h"

#include "log/pagestyle.h"
#include "text/diagnosis.h"
#include "text/htmltext.h"

#include <QCryptographicHash>

QString htmlElement(const char* tag, const QString& text)
{
    return QStringLiteral("<%1>%2</%1>\n").arg(QLatin1String(tag), htmlText(text));
}

QString htmlList(const QStringList& texts)
{
    QString items;
    for (const QString& text : texts)
        items += htmlElement("li", text);
    return QStringLiteral("<ul>\n%1</ul>\n").arg(items);
}

void WideTable::add(const QStringList& cells)
{
    m_rows += QStringLiteral("<tr>");
    for (int i = 0; i < cells.size(); ++i) {
        const QString text = htmlText(cells.at(i));
        const bool isQuiet = text.isEmpty() || text == QLatin1String("0");
        m_rows += i == 0 ? QStringLiteral("<th scope=\"row\">%1</th>").arg(text)
                         : QStringLiteral("<td%1 data-name=\"%2\">%3</td>")
                               .arg(isQuiet ? QStringLiteral(" class=\"quiet\"") : QString(),
                                    htmlText(m_headings.at(i)), text);
    }
    m_rows += QStringLiteral("</tr>\n");
}

QString WideTable::html() const
{
    QString head;
    for (const QString& column : m_headings)
        head += QStringLiteral("<th scope=\"col\">%1</th>").arg(htmlText(column));
    return QStringLiteral("<table class=\"wide\">\n<thead><tr>%1</tr></thead>\n<tbody>\n"
                          "%2</tbody></table>\n")
        .arg(head, m_rows);
}

QByteArray pageHead(const QString& title, const QStringList& logs, const QString& shapes)
{
    const QByteArray style(pageStyle);
    const QByteArray hash = QCryptographicHash::hash(style, QCryptographicHash::Sha256).toBase64();
    const QString whole = title + QStringLiteral(" - ") + logs.join(QStringLiteral(", "));
    //: The language of these words, for the attribute lang of HTML.
    const QString language = Diagnosis::tr("en", "language code");
    return "<!DOCTYPE html>\n<html lang=\"" + htmlText(language).toUtf8()
        + "\">\n<head>\n<meta charset=\"utf-8\">\n"
          "<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src "
          "'sha256-"
        + hash
        + "'; base-uri 'none'; form-action 'none'\">\n"
          "<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\n"
          "<meta name=\"referrer\" content=\"no-referrer\">\n"
        + htmlElement("title", whole).toUtf8() + "<style>" + style + "</style>\n</head>\n<body>\n"
        + shapes.toUtf8();
}

QString totalsCard(int sessions, const QList<Summary::Row>& rows)
{
    QString body;
    for (const Summary::Row& row : rows) {
        body += QStringLiteral("<tr%1><th scope=\"row\">%2</th><td>%3</td><td>%4</td></tr>\n")
                    .arg(row.isPart ? QStringLiteral(" class=\"part\"") : QString(),
                         htmlText(row.what), QString::number(row.tally.count),
                         row.hasSum ? QString::number(row.tally.sum) : QString());
    }
    return QStringLiteral(
               "<section class=\"card\">\n%1<table>\n<thead><tr><th "
               "scope=\"col\">%2</th><th scope=\"col\">%3</th><th "
               "scope=\"col\">%4</th></tr></thead>\n<tbody>\n%5</tbody></table>\n</section>\n")
        .arg(htmlElement("h3", Diagnosis::tr("%n sessions", nullptr, sessions)),
             htmlText(Diagnosis::tr("Notes")), htmlText(Diagnosis::tr("Number")),
             htmlText(Diagnosis::tr("Sum")), body);
}
