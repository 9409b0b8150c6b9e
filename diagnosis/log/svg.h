// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Pieces of SVG; what they look like is left to the style sheet.

/// A length, with one decimal.
QString number(double value);

/// Of a text in small letters, about.
double textWidth(const QString& text);

/// Cut where it would cover what stands beside it.
QString shortened(const QString& text, double room);

QString svgText(double x, double y, const char* style, const QString& text);

/// The pointer brings up the title.
QString svgPath(const QString& style, const QString& path, const QString& title = {});

/// The path around it.
QString rectangle(double left, double top, double right, double bottom);
