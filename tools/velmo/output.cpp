// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "output.h"

#include "fault.h"
#include "words.h"

#include <algorithm>
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
    Output output;
    output.write(text.toUtf8());
    output.flush();
}

void printError(const QString& message)
{
    fprintf(stderr, "velmo: %s\n", qUtf8Printable(printable(message)));
}
