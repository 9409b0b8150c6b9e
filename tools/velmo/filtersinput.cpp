// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filtersinput.h"

#include "arrayfile.h"
#include "command.h"
#include "inputfile.h"
#include "options.h"
#include "output.h"
#include "settingscheck.h"
#include "settingsinput.h"

FiltersInput readFilters(const Arguments& arguments, const QStringList& logs)
{
    const bool ofSettings = arguments.isSet(options::settings);
    if (ofSettings == arguments.isSet(options::filters))
        throw arguments.usageFault();
    const QString fileName = arguments.value(ofSettings ? options::settings : options::filters);
    if (fileName == QLatin1String("-") && logs.contains(fileName))
        throw Fault{Velmo::tr("log and filters cannot both come from standard input")};

    if (ofSettings) {
        const ArrayFile file = readSettings(fileName);
        FilterSet filters(file, ListKind::Settings);
        const QList<SettingsFinding> findings = checkSettings(file);
        for (const SettingsFinding& finding : findings)
            printError(finding.line(file));
        if (!findings.isEmpty())
            printError(Velmo::tr("%1: answers may differ from the service's").arg(file.name()));
        return {std::move(filters), file.name()};
    }
    TextInput text = openInput(fileName);
    const ArrayFile file(text, Velmo::tr("filters"));
    return {FilterSet(file, ListKind::Filters), file.name()};
}
