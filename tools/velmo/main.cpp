// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorsettings.h"
#include "command.h"
#include "output.h"

#include <QCoreApplication>
#include <QLoggingCategory>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    // The library's progress messages; QT_LOGGING_RULES=default.debug=true brings them back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    int exitCode = exitBadInput;
    try {
        exitCode = runCommand(QCoreApplication::arguments());
    } catch (const Fault& fault) {
        printError(fault.message);
    }
    AcceptorSettings().setList({}); // deletes the devices
    return exitCode;
}
