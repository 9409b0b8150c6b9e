// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/svg.h"

#include "text/htmltext.h"

#include <cmath>

namespace {

constexpr double charWidth = 6.2;

} // namespace

QString number(double value)
{
    return QString::number(std::round(value * 10) / 10);
}

double textWidth(const QString& text)
{
    return charWidth * double(text.size());
}

QString shortened(const QString& text, double room)
{
    const int fitting = qMax(1, int(room / charWidth));
    return text.size() <= fitting ? text : text.left(fitting - 1) + QChar(0x2026);
}

QString svgText(double x, double y, const char* style, const QString& text)
{
    return QStringLiteral("<text x=\"%1\" y=\"%2\" class=\"%3\">%4</text>\n")
        .arg(number(x), number(y), QLatin1String(style), htmlText(text));
}

QString svgPath(const QString& style, const QString& path, const QString& title)
{
    const QString inside =
        title.isEmpty() ? QString() : QStringLiteral("<title>%1</title>").arg(htmlText(title));
    return QStringLiteral("<path class=\"%1\" d=\"%2\">%3</path>\n").arg(style, path, inside);
}

QString rectangle(double left, double top, double right, double bottom)
{
    return QStringLiteral("M%1 %2H%3V%4H%1z")
        .arg(number(left), number(top), number(right), number(bottom));
}
