// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "input.h"
#include "settings/settingsedit.h"
#include "terminal/editlock.h"
#include "text/textoutput.h"

#include <QFileInfo>
#include <QProcess>
#include <QTemporaryFile>

#include <optional>

namespace {

const QString standardStream = QStringLiteral("-");

// As diff -u shows it.
QByteArray difference(const QString& name, const QByteArray& before, const QByteArray& after)
{
    QTemporaryFile old;
    if (!old.open() || old.write(before) != before.size() || !old.flush())
        throw Fault{QStringLiteral("%1: %2").arg(old.fileName(), old.errorString())};
    QProcess diff;
    const QString label = QStringLiteral("--label");
    diff.start(QStringLiteral("diff"),
               {QStringLiteral("-u"), label, name, label, name, old.fileName(), standardStream});
    diff.write(after);
    diff.closeWriteChannel();
    if (!diff.waitForFinished() || diff.exitCode() > 1)
        throw Fault{QStringLiteral("diff: %1").arg(diff.errorString())};
    return diff.readAllStandardOutput();
}

QString changesText(const SettingsEdit& edit)
{
    QString text;
    const QList<SettingsEdit::Change> changes = edit.changes();
    for (const SettingsEdit::Change& change : changes) {
        const QString before = change.before.toString().simplified();
        const QString after = change.after.toString().simplified();
        QString line;
        if (!change.from.isEmpty()) {
            line = Velmo::tr("carried over %1: %2 (from %3)").arg(change.path, after, change.from);
        } else if (!change.before.isValid()) {
            line = Velmo::tr("added %1: %2").arg(change.path, after);
        } else if (!change.after.isValid() && change.elements > 1) {
            line = Velmo::tr("removed %1: %2 (%n elements)", nullptr, change.elements)
                       .arg(change.path, before);
        } else if (!change.after.isValid()) {
            line = Velmo::tr("removed %1: %2").arg(change.path, before);
        } else if (before == after && change.wasDoubled) {
            line = Velmo::tr("changed %1: %2 in each \"value\"").arg(change.path, after);
        } else {
            line = Velmo::tr("changed %1: %2 -> %3").arg(change.path, before, after);
        }
        text += printable(line) + QLatin1Char('\n');
    }
    return text.isEmpty() ? Velmo::tr("nothing to change") + QLatin1Char('\n') : text;
}

// Says what the list would have that is wrong; throws Fault for an error.
void tellNewFindings(const Arguments& arguments, const SettingsEdit& edit)
{
    const QList<SettingsFinding> findings = edit.newFindings();
    bool hasErrors = false;
    for (const SettingsFinding& finding : findings) {
        const bool isError = finding.level == SettingsFinding::Error;
        hasErrors = hasErrors || isError;
        if (isError || !arguments.isSet(options::quiet)) {
            const QString level = isError ? Velmo::tr("error") : Velmo::tr("warning");
            printError(QStringLiteral("%1: %2: %3").arg(level, finding.path, finding.text));
        }
    }
    if (hasErrors && !arguments.isSet(options::force)) {
        throw Fault{Velmo::tr("%1: not written because of these errors; --force writes it all the "
                              "same")
                        .arg(edit.file().name())};
    }
}

// Where the changed list goes: under any of its names, the list itself is changed in place.
QString outputOf(const Arguments& arguments)
{
    const QString input = arguments.operands().constFirst();
    const QString output = arguments.value(options::output);
    const bool isOneFile = QFileInfo::exists(input) && QFileInfo(input) == QFileInfo(output);
    return output.isEmpty() || (input != standardStream && isOneFile) ? input : output;
}

int finish(const Arguments& arguments, const ArrayFile& original, const SettingsEdit& edit)
{
    tellNewFindings(arguments, edit);
    const QStringList remarks = arguments.isSet(options::quiet) ? QStringList() : edit.remarks();
    for (const QString& remark : remarks)
        printError(remark);
    const QString input = arguments.operands().constFirst();
    const QString output = outputOf(arguments);
    const bool toOutput = OutputFile::isStandardOutput(output);
    const QByteArray text = edit.file().text();
    if (arguments.isSet(options::dryRun)) {
        print(QString::fromUtf8(difference(original.name(), original.text(), text)));
        return exitSuccess;
    }
    if (output != input || toOutput || text != original.text()) {
        const bool inPlace = output == input && !toOutput;
        OutputFile file(output, inPlace ? QStringList() : QStringList(input));
        writeText(file.device(), text);
        if (inPlace && readSettings(input).text() != original.text())
            throw Fault{Velmo::tr("%1: was changed meanwhile; not written").arg(input)};
        file.commit();
    }
    if (arguments.isSet(options::quiet))
        return exitSuccess;
    const QString changes = changesText(edit);
    if (!toOutput)
        print(changes);
    else
        fputs(qUtf8Printable(changes), stderr);
    return exitSuccess;
}

template <typename Action>
int runEdit(const Arguments& arguments, Action action)
{
    const QString input = arguments.operands().constFirst();
    std::optional<EditLock> lock;
    if (input != standardStream && outputOf(arguments) == input
        && !arguments.isSet(options::dryRun))
        lock.emplace(input);
    const ArrayFile file = readSettings(input);
    SettingsEdit edit(file);
    action(edit, arguments.operands().mid(1));
    return finish(arguments, file, edit);
}

QList<Assignment> assignments(const QStringList& texts)
{
    QList<Assignment> list;
    for (const QString& text : texts)
        list += Assignment::parse(text);
    return list;
}

} // namespace

int setSettingsCommand(const Arguments& arguments)
{
    return runEdit(arguments, [](SettingsEdit& edit, const QStringList& texts) {
        edit.set(assignments(texts));
    });
}

int unsetSettingsCommand(const Arguments& arguments)
{
    return runEdit(arguments, [](SettingsEdit& edit, const QStringList& paths) {
        for (const QString& path : paths)
            edit.unset(path);
    });
}

int addDeviceCommand(const Arguments& arguments)
{
    return runEdit(arguments, [](SettingsEdit& edit, const QStringList& operands) {
        edit.addDevice(operands.constFirst(), assignments(operands.mid(1)));
    });
}

int removeDeviceCommand(const Arguments& arguments)
{
    const QString text = arguments.operands().at(1);
    bool isNumber = false;
    const int device = text.toInt(&isNumber);
    if (!isNumber)
        throw Fault{Velmo::tr("\"%1\": expected the index of a device").arg(text)};
    return runEdit(arguments, [device](SettingsEdit& edit, const QStringList& /*operands*/) {
        edit.removeDevice(device);
    });
}
