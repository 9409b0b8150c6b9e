// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "command.h"

#include <QLoggingCategory>

int main(int argc, char* argv[])
{
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(QStringLiteral("velmo"));
    // The library's progress messages, and what the answer says of a broker;
    // QT_LOGGING_RULES=default.debug=true brings the former back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\nvelmo.broker=false"));
    try {
        return runCommand(QByteArrayList(argv, argv + argc));
    } catch (const Fault& fault) {
        printError(fault.message);
        return exitBadInput;
    }
}
