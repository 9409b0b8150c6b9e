// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "findingicon.h"

#include "terminal/velmo.h"

#include <QApplication>
#include <QStyle>

QString findingWord(SettingsFinding::Level level)
{
    return level == SettingsFinding::Error ? Velmo::tr("Error") : Velmo::tr("Warning");
}

QIcon findingIcon(std::optional<SettingsFinding::Level> level)
{
    if (!level)
        return {};
    return QApplication::style()->standardIcon(*level == SettingsFinding::Error
                                                   ? QStyle::SP_MessageBoxCritical
                                                   : QStyle::SP_MessageBoxWarning);
}

QColor findingColor(SettingsFinding::Level level, const QPalette& palette)
{
    const bool isDark = palette.color(QPalette::Window).lightness() < 128;
    if (level == SettingsFinding::Error)
        return isDark ? QColor(0xff, 0x9a, 0x8f) : QColor(0xa8, 0x00, 0x1c);
    return isDark ? QColor(0xff, 0xd0, 0x70) : QColor(0x7a, 0x4a, 0x00);
}
