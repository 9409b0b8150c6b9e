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

} // namespace

int manualCommand(const Arguments& arguments)
{
    QString page = QString::fromUtf8(openInput(arguments.operands().constFirst()).readAll());
    const QString version = palx::AppVersionManager::version(QStringLiteral("velmolib")).version();
    QString usages;
    QString entries;
    for (const Command& command : commands()) {
        if (!command.summary)
            continue;
        usages += escaped(command.usage()) + QLatin1Char('\n');
        QString meaning = QLatin1String(command.summary);
        if (command.details)
            meaning += QLatin1Char(' ') + QLatin1String(command.details);
        entries += entry(QLatin1String(command.name), meaning);
    }
    QString optionEntries;
    for (const Option* const option : everyOption())
        optionEntries += entry(option->usage(), QLatin1String(option->help));
    page.replace(QStringLiteral("@VERSION@"), version);
    page.replace(QStringLiteral("@SYNOPSIS@\n"), QStringLiteral(".nf\n%1.fi\n").arg(usages));
    page.replace(QStringLiteral("@COMMANDS@\n"), entries);
    page.replace(QStringLiteral("@OPTIONS@\n"), optionEntries);
    print(page);
    return exitSuccess;
}
