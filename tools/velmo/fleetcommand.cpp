// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"

#include "fleethistory.h"
#include "fleettable.h"
#include "fleetwatch.h"
#include "terminal/output.h"
#include "terminal/table.h"

#include <QTime>

#include <algorithm>
#include <future>

namespace {

int watch(const Arguments& arguments, const FleetSelection& selection)
{
    FleetMemory memory(arguments.value(options::history));
    const FleetTable table(selection, memory, arguments.isSet(options::allFaults));
    const QString count = arguments.value(options::count);
    FleetWatch watch(arguments);
    watch.follow([&] {
        memory.refresh();
        QStringList faults = watch.faults();
        if (watch.isComing())
            faults = QStringList{Velmo::tr("The summaries are still coming.")};
        if (!watch.connectionFault().isEmpty())
            faults = QStringList{watch.connectionFault() + QStringLiteral(". ")
                                 + Velmo::tr("The table is from before.")};
        if (!memory.fault().isEmpty())
            faults += memory.fault();
        QString told =
            QTime::currentTime().toString(QStringLiteral("hh:mm:ss")) + QLatin1Char('\n');
        int lines = 2; // this one and that of the cursor
        for (const QString& fault : std::as_const(faults)) {
            const QString text = wrapped(printable(fault), 0, outputWidth());
            lines += int(text.count(QLatin1Char('\n')));
            told += text;
        }
        const int room = outputHeight() == 0 ? 0 : std::max(outputHeight() - lines, 1);
        print(QStringLiteral("\033[2J\033[H")
              + (count.isEmpty() ? table.text(watch.fleet(), room)
                                 : table.countsText(watch.fleet(), count, room))
              + told);
    });
    return exitSuccess;
}

int tell(const Arguments& arguments, const FleetSelection& selection)
{
    FleetWatch watch(arguments);
    watch.gather();
    const Fleet& fleet = watch.fleet();
    QStringList faults = watch.faults();
    const FleetMemory memory(arguments.value(options::history));
    if (!memory.fault().isEmpty())
        faults += memory.fault();
    const FleetTable table(selection, memory, arguments.isSet(options::allFaults));
    const QString count = arguments.value(options::count);
    if (fleet.size() == 0) {
        faults +=
            Velmo::tr("no kiosk has a summary at \"%1\"").arg(arguments.value(options::summaries));
    } else if (std::none_of(
                   fleet.kiosks().begin(), fleet.kiosks().end(),
                   [&](const FleetKiosk& kiosk) { return selection.hasName(kiosk.name); })) {
        faults += Velmo::tr("no kiosk has such a name and region");
    } else if (arguments.isSet(options::json)) {
        print(QString::fromUtf8(table.json(fleet, count)));
    } else {
        print(count.isEmpty() ? table.text(fleet) : table.countsText(fleet, count));
    }
    for (const QString& fault : std::as_const(faults))
        printError(fault);
    if (!faults.isEmpty())
        return exitBadInput;
    const bool needsSomebody =
        std::any_of(fleet.kiosks().begin(), fleet.kiosks().end(), [&](const FleetKiosk& kiosk) {
            return kiosk.condition != KioskSummary::Fine && selection.has(kiosk);
        });
    return needsSomebody && arguments.isSet(options::exitCode) ? exitFindings : exitSuccess;
}

// Of options that exclude one another, whether there is more than one.
bool areTooMany(const Arguments& arguments, std::initializer_list<const Option*> exclusive)
{
    return std::count_if(exclusive.begin(), exclusive.end(),
                         [&](const Option* option) { return arguments.isSet(*option); })
        > 1;
}

} // namespace

int fleetCommand(const Arguments& arguments)
{
    const bool asksAvailability = arguments.isSet(options::availability);
    if (!arguments.operands().isEmpty() && !asksAvailability)
        throw arguments.usageFault();
    if (areTooMany(arguments, {&options::json, &options::watch})
        || areTooMany(arguments, {&options::availability, &options::due, &options::watch})
        || areTooMany(arguments, {&options::availability, &options::due, &options::count})
        || areTooMany(arguments, {&options::availability, &options::due, &options::condition})
        || areTooMany(arguments, {&options::availability, &options::due, &options::reason}))
        throw arguments.usageFault();
    const FleetSelection selection(arguments);
    if (asksAvailability)
        return tellAvailability(arguments, selection);
    if (arguments.isSet(options::due))
        return tellDue(arguments, selection);
    const QString count = arguments.value(options::count);
    if (!count.isEmpty() && !FleetTable::countKeys().contains(count)) {
        throw Fault{
            Velmo::tr("%1: expected %2")
                .arg(options::count.dashedName(), FleetTable::countKeys().join(Velmo::tr(" or ")))};
    }
    return arguments.isSet(options::watch) ? watch(arguments, selection)
                                           : tell(arguments, selection);
}
