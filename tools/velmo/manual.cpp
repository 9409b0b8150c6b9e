// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "input.h"

#include <palx/appversionmanager.h>

namespace {

// Text as the manual page's language has it: hyphens that stay hyphens, no line that is an order.
QString escaped(const QString& text)
{
    QString result = text;
    result.replace(QLatin1Char('\\'), QStringLiteral("\\e"))
        .replace(QLatin1Char('-'), QStringLiteral("\\-"));
    return result.startsWith(QLatin1Char('.')) ? QStringLiteral("\\&") + result : result;
}

QString entry(const QString& term, const QString& meaning)
{
    return QStringLiteral(".TP\n.B %1\n%2\n").arg(escaped(term), escaped(meaning));
}

QString synopsis()
{
    QString lines = QStringLiteral(".nf\n");
    for (const Command& command : commands()) {
        if (command.summary)
            lines += escaped(command.usage()) + QLatin1Char('\n');
    }
    return lines + QStringLiteral(".fi\n");
}

QString commandEntries()
{
    QString entries;
    for (const Command& command : commands()) {
        if (!command.summary)
            continue;
        QString meaning = QLatin1String(command.summary);
        if (command.details)
            meaning += QLatin1Char(' ') + QLatin1String(command.details);
        entries += entry(QLatin1String(command.name), meaning);
    }
    return entries;
}

QString optionEntries()
{
    QString entries;
    for (const Option* const option : everyOption())
        entries += entry(option->usage(), QLatin1String(option->help));
    return entries;
}

} // namespace

int manualCommand(const Arguments& arguments)
{
    QString page = QString::fromUtf8(openInput(arguments.operands().constFirst()).readAll());
    const QString version = palx::AppVersionManager::version(QStringLiteral("velmolib")).version();
    page.replace(QStringLiteral("@VERSION@"), version);
    page.replace(QStringLiteral("@SYNOPSIS@\n"), synopsis());
    page.replace(QStringLiteral("@COMMANDS@\n"), commandEntries());
    page.replace(QStringLiteral("@OPTIONS@\n"), optionEntries());
    print(page);
    return exitSuccess;
}
