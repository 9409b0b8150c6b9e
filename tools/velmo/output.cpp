// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "output.h"

#include "fault.h"
#include "words.h"

#include <cstdio>
#include <sys/ioctl.h>
#include <unistd.h>

namespace {

Fault outputFault(const QFile& file)
{
    return {Velmo::tr("standard output: %1").arg(file.errorString())};
}

} // namespace

Output::Output()
{
    if (!m_file.open(STDOUT_FILENO, QIODevice::WriteOnly))
        throw outputFault(m_file);
}

void Output::write(const QByteArray& text)
{
    if (m_file.write(text) != text.size())
        throw outputFault(m_file);
}

void Output::flush()
{
    if (!m_file.flush())
        throw outputFault(m_file);
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

bool isOutputColored()
{
    return isatty(STDOUT_FILENO) && qEnvironmentVariableIsEmpty("NO_COLOR");
}

void print(const QString& text)
{
    Output output;
    output.write(text.toUtf8());
    output.flush();
}

void printError(const QString& message)
{
    QString line = QStringLiteral("velmo: ");
    for (const QChar c : message) {
        const bool printable = c.unicode() >= ' ' && c.unicode() != 0x7f;
        line += printable ? QString(c)
                          : QStringLiteral("\\u%1").arg(c.unicode(), 4, 16, QLatin1Char('0'));
    }
    fprintf(stderr, "%s\n", qUtf8Printable(line));
}
