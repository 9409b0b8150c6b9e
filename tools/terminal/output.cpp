// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "terminal/output.h"

#include "terminal/velmo.h"
#include "text/textoutput.h"

#include <QFileInfo>
#include <QSaveFile>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

// What a name stands for; "-" for an open file.
bool find(const QString& fileName, int standardStream, struct stat& found)
{
    return (fileName == QLatin1String("-") ? fstat(standardStream, &found)
                                           : stat(QFile::encodeName(fileName).constData(), &found))
        == 0;
}

// Has faults name the file as it was given, whatever file that stands for.
class NamedSaveFile : public QSaveFile
{
public:
    NamedSaveFile(const QString& name, const QString& target)
        : QSaveFile(target)
        , m_name(name)
    {
    }

    QString fileName() const override { return m_name; }

private:
    const QString m_name;
};

} // namespace

OutputFile::OutputFile(const QString& fileName, const QStringList& inputs)
    : m_name(isStandardOutput(fileName) ? Velmo::tr("standard output") : fileName)
{
    const QString name = isStandardOutput(fileName) ? QStringLiteral("-") : fileName;
    const bool isThere = find(name, STDOUT_FILENO, m_old);
    // QSaveFile would put a file in the place of a link that leads nowhere but to itself.
    if (!isThere && errno == ELOOP)
        throw Fault{QStringLiteral("%1: %2").arg(m_name, qt_error_string(ELOOP))};
    for (const QString& input : inputs) {
        struct stat read = {};
        // A terminal may well be both, and so may a socket.
        if (isThere && !S_ISCHR(m_old.st_mode) && !S_ISSOCK(m_old.st_mode)
            && find(input, STDIN_FILENO, read) && read.st_dev == m_old.st_dev
            && read.st_ino == m_old.st_ino)
            throw Fault{Velmo::tr("%1: is an input too; not overwritten").arg(m_name)};
    }
    if (name == QLatin1String("-") || (isThere && !S_ISREG(m_old.st_mode))) {
        auto file = std::make_unique<QFile>(name);
        const bool isOpen = name == QLatin1String("-")
            ? file->open(STDOUT_FILENO, QIODevice::WriteOnly)
            : file->open(QIODevice::WriteOnly);
        m_file = std::move(file);
        if (!isOpen)
            throw fault();
        return;
    }
    if (m_old.st_nlink > 1) {
        throw Fault{
            Velmo::tr("%1: has further names (hard links), which would keep the old content; not "
                      "written")
                .arg(m_name)};
    }
    const mode_t mask = umask(S_IRWXG | S_IRWXO); // nobody reads it before it has its mode
    if (!isThere)
        m_old.st_mode = 0666 & ~mask;
    m_file =
        std::make_unique<NamedSaveFile>(name, isThere ? QFileInfo(name).canonicalFilePath() : name);
    const bool isOpen = m_file->open(QIODevice::WriteOnly);
    umask(mask);
    if (!isOpen)
        throw fault();
}

OutputFile::~OutputFile() = default;

bool OutputFile::isStandardOutput(const QString& fileName)
{
    return fileName == QLatin1String("-") || fileName == QLatin1String("/dev/stdout")
        || fileName == QLatin1String("/dev/fd/1");
}

Fault OutputFile::fault() const
{
    return {QStringLiteral("%1: %2").arg(m_name, m_file->errorString())};
}

void OutputFile::commit()
{
    flushText(*m_file);
    auto* const replacement = qobject_cast<QSaveFile*>(m_file.get());
    if (!replacement)
        return;
    const int descriptor = replacement->handle();
    struct stat made = {};
    const bool isOthers = m_old.st_nlink > 0 && fstat(descriptor, &made) == 0
        && (made.st_uid != m_old.st_uid || made.st_gid != m_old.st_gid)
        && fchown(descriptor, m_old.st_uid, m_old.st_gid) != 0;
    // What runs with its owner's rights must not get those of another.
    const mode_t mode = m_old.st_mode & (isOthers ? 0777 : 07777);
    if (isOthers)
        printError(Velmo::tr("%1: has another owner now").arg(m_name));
    if (fchmod(descriptor, mode) != 0 || !replacement->commit())
        throw fault();
}

void openOutput(QFile& file)
{
    if (!file.open(STDOUT_FILENO, QIODevice::WriteOnly))
        throw Fault{Velmo::tr("standard output: %1").arg(file.errorString())};
}

int outputWidth()
{
    const int wanted = qEnvironmentVariableIntValue("COLUMNS");
    if (wanted > 0)
        return wanted;
    winsize terminal{};
    if (!isatty(STDOUT_FILENO) || ioctl(STDOUT_FILENO, TIOCGWINSZ, &terminal) != 0)
        return 0;
    return terminal.ws_col;
}

int outputHeight()
{
    winsize terminal{};
    return ioctl(STDOUT_FILENO, TIOCGWINSZ, &terminal) == 0 ? terminal.ws_row : 0;
}

QString printable(const QString& text)
{
    QString shown;
    for (const QChar c : text) {
        const QChar::Category category = c.category();
        const bool isCommand = category == QChar::Other_Control || category == QChar::Other_Format
            || category == QChar::Separator_Line || category == QChar::Separator_Paragraph;
        shown += isCommand ? QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'))
                           : QString(c);
    }
    return shown;
}

QString printableLines(const QString& text)
{
    QStringList lines = text.split(QLatin1Char('\n'));
    std::transform(lines.begin(), lines.end(), lines.begin(), printable);
    return lines.join(QLatin1Char('\n'));
}

bool isOutputColored()
{
    return isatty(STDOUT_FILENO) && qEnvironmentVariableIsEmpty("NO_COLOR");
}

void print(const QString& text)
{
    QFile output;
    openOutput(output);
    writeText(output, text.toUtf8());
    flushText(output);
}

void printError(const QString& message)
{
    fprintf(stderr, "%s: %s\n", qUtf8Printable(QCoreApplication::applicationName()),
            qUtf8Printable(printable(message)));
}
