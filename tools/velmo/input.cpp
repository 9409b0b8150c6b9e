// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "input.h"

#include "options.h"
#include "settings/settingscheck.h"
#include "settings/settingslist.h"
#include "terminal/table.h"

#include <QFile>

#include <unistd.h>

namespace {

FiltersInput read(const ArrayFile& file, ListKind kind)
{
    FilterSet filters = filterSetOf(file, kind);
    QStringList findings;
    if (kind == ListKind::Settings) {
        for (const SettingsFinding& finding : checkSettings(file)) {
            findings += finding.line(file);
            printError(findings.constLast());
        }
    }
    if (!findings.isEmpty())
        printError(Velmo::tr("%1: answers may differ from the service's").arg(file.name()));
    return {std::move(filters), file.name(), findings};
}

} // namespace

TextInput openInput(const QString& fileName)
{
    auto file = std::make_unique<QFile>(fileName);
    const bool isStandardInput = fileName == QLatin1String("-");
    const QString name = isStandardInput ? Velmo::tr("standard input") : fileName;
    const bool opened = isStandardInput ? file->open(STDIN_FILENO, QIODevice::ReadOnly)
                                        : file->open(QIODevice::ReadOnly);
    if (!opened)
        throw Fault{QStringLiteral("%1: %2").arg(name, file->errorString())};
    return {std::move(file), name};
}

ArrayFile readSettings(const QString& fileName)
{
    TextInput input = openInput(fileName);
    return readSettingsFile(input);
}

QString FiltersInput::rulesText(const QString& heading) const
{
    QString text = heading + QLatin1Char('\n');
    const QStringList rules = filters.rules();
    for (const QString& rule : rules)
        text += wrapped(QStringLiteral("  - ") + rule, 4, outputWidth());
    if (rules.isEmpty())
        text +=
            QStringLiteral("  - ") + Velmo::tr("None: every note is accepted.") + QLatin1Char('\n');
    return text + QLatin1Char('\n');
}

FiltersInput readFilters(const Arguments& arguments, const QStringList& logs)
{
    const bool ofSettings = arguments.isSet(options::settings);
    const QString fileName = arguments.value(ofSettings ? options::settings : options::filters);
    if (fileName == QLatin1String("-") && logs.contains(fileName))
        throw Fault{Velmo::tr("log and filters cannot both come from standard input")};
    if (ofSettings)
        return read(readSettings(fileName), ListKind::Settings);
    TextInput text = openInput(fileName);
    return read(ArrayFile(text, Velmo::tr("filters")), ListKind::Filters);
}

FiltersInput readFilters(const QString& fileName)
{
    TextInput text = openInput(fileName);
    const ArrayFile file(text, Velmo::tr("settings or filters"));
    return read(file, kindOf(file) == ListKind::Settings ? ListKind::Settings : ListKind::Filters);
}
