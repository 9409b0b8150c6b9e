// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "jsonlines.h"

#include "command.h"
#include "output.h"

#include <QElapsedTimer>

#include <cstdio>
#include <unistd.h>

namespace {

// Counts the lines on standard error, on a terminal that does not show the rows themselves.
class Progress
{
public:
    Progress() { m_sinceShown.start(); }

    ~Progress() { erase(); }

    /// Makes room for a line of text.
    void erase()
    {
        if (m_shown)
            fputs("\r\033[K", stderr);
        m_shown = false;
    }

    void show(qint64 lines)
    {
        if (!m_wanted || m_sinceShown.elapsed() < 200)
            return;
        fprintf(stderr, "\r%lld lines", static_cast<long long>(lines));
        m_sinceShown.restart();
        m_shown = true;
    }

private:
    const bool m_wanted = isatty(STDERR_FILENO) && !isatty(STDOUT_FILENO);
    bool m_shown = false;
    QElapsedTimer m_sinceShown;
};

} // namespace

int processLines(TextInput& file, bool keepGoing,
                 const std::function<QByteArray(const QByteArray& line)>& toText,
                 const std::function<void()>& skipLine)
{
    Output output;
    const bool flushLines = file.isLive() || isatty(STDOUT_FILENO);
    Progress progress;
    qint64 skipped = 0;
    QByteArray text;
    while (file.readLine(text)) {
        progress.show(file.lineNumber());
        if (text.trimmed().isEmpty())
            continue;
        QByteArray result;
        try {
            result = toText(text);
        } catch (const Fault& fault) {
            if (!keepGoing)
                throw;
            progress.erase();
            printError(fault.message);
            ++skipped;
            skipLine();
            continue;
        }
        if (result.isEmpty())
            continue;
        output.write(result);
        if (flushLines)
            output.flush();
    }
    output.flush();
    progress.erase();
    if (skipped == 0)
        return exitSuccess;
    printError(Velmo::tr("bad lines skipped: %1").arg(skipped));
    return exitBadInput;
}
