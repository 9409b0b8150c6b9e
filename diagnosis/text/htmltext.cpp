// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/htmltext.h"

namespace {

bool isHidden(QChar c)
{
    switch (c.category()) {
    case QChar::Other_Control:
    case QChar::Other_Format: // also what turns the direction
    case QChar::Other_Surrogate:
    case QChar::Separator_Line:
    case QChar::Separator_Paragraph:
        return true;
    default:
        return false;
    }
}

} // namespace

QString htmlText(const QString& text)
{
    QString shown;
    for (int i = 0; i < text.size(); ++i) {
        const QChar c = text.at(i);
        const bool isPair =
            c.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (isPair)
            shown += text.mid(i++, 2);
        else if (isHidden(c))
            shown += QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
        else
            shown += c;
    }
    return shown.toHtmlEscaped();
}
