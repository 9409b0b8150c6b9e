// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "commands.h"
#include "options.h"
#include "output.h"
#include "settingsedit.h"
#include "settingsinput.h"

#include <QProcess>
#include <QSaveFile>
#include <QTemporaryFile>

#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString standardStream = QStringLiteral("-");

// A file that is replaced keeps its owner, as far as who writes it may give it to others.
void keepOwner(const QString& fileName, int descriptor)
{
    struct stat old
    {
    };
    struct stat made
    {
    };
    if (stat(QFile::encodeName(fileName).constData(), &old) != 0 || fstat(descriptor, &made) != 0
        || (old.st_uid == made.st_uid && old.st_gid == made.st_gid))
        return;
    if (fchown(descriptor, old.st_uid, old.st_gid) != 0)
        printError(Velmo::tr("%1: has another owner now").arg(fileName));
}

void save(const QByteArray& text, const QString& fileName)
{
    if (fileName == standardStream) {
        Output output;
        output.write(text);
        return output.flush();
    }
    QSaveFile file(fileName);
    if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size() || !file.flush())
        throw Fault{QStringLiteral("%1: %2").arg(fileName, file.errorString())};
    keepOwner(fileName, file.handle());
    if (!file.commit())
        throw Fault{QStringLiteral("%1: %2").arg(fileName, file.errorString())};
}

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
        if (!change.before.isValid())
            text += Velmo::tr("added %1: %2").arg(change.path, after);
        else if (!change.after.isValid())
            text += Velmo::tr("removed %1: %2").arg(change.path, before);
        else
            text += Velmo::tr("changed %1: %2 -> %3").arg(change.path, before, after);
        text += QLatin1Char('\n');
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

int finish(const Arguments& arguments, const ArrayFile& original, const SettingsEdit& edit)
{
    tellNewFindings(arguments, edit);
    const QStringList notes = arguments.isSet(options::quiet) ? QStringList() : edit.notes();
    for (const QString& note : notes)
        printError(note);
    const QString input = arguments.operands().constFirst();
    const QString output =
        arguments.isSet(options::output) ? arguments.value(options::output) : input;
    const QByteArray text = edit.file().text();
    if (arguments.isSet(options::dryRun)) {
        print(QString::fromUtf8(difference(original.name(), original.text(), text)));
        return exitSuccess;
    }
    if (output != input || output == standardStream || text != original.text())
        save(text, output);
    if (arguments.isSet(options::quiet))
        return exitSuccess;
    const QString changes = changesText(edit);
    if (output != standardStream)
        print(changes);
    else
        fputs(qUtf8Printable(changes), stderr);
    return exitSuccess;
}

template <typename Action>
int runEdit(const Arguments& arguments, Action action)
{
    const ArrayFile file = readSettings(arguments.operands().constFirst());
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
