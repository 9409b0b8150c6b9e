// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "jsonlines.h"

#include "command.h"
#include "text/textoutput.h"

#include <QElapsedTimer>
#include <QJsonDocument>

#include <cstdio>
#include <unistd.h>
#include <utility>

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

// Whether more of the text would make an object of it.
bool isBegunObject(const QByteArray& text)
{
    QJsonParseError error;
    QJsonDocument::fromJson(text, &error);
    const bool isOpen = error.error == QJsonParseError::UnterminatedObject
        || error.error == QJsonParseError::UnterminatedArray;
    return text.startsWith('{') && error.error != QJsonParseError::NoError
        && error.error != QJsonParseError::GarbageAtEnd && (isOpen || !text.endsWith('}'));
}

} // namespace

bool takeLine(TextInput& file, bool keepGoing,
              const std::function<void(const QByteArray& line)>& take,
              const std::function<void(const QString& fault)>& skip)
{
    QByteArray text;
    try {
        do {
            if (!file.readLine(text))
                return false;
        } while (text.trimmed().isEmpty());
    } catch (const Fault& fault) {
        if (!keepGoing)
            throw;
        skip(fault.message);
        return false;
    }
    try {
        take(text);
    } catch (const Fault& fault) {
        const bool isBegun = file.isLineUnended() && isBegunObject(text.trimmed());
        if (!isBegun && !keepGoing)
            throw;
        skip(isBegun ? file.faultAt(file.lineNumber(),
                                    Velmo::tr("the file ends in the middle of a line"))
                           .message
                     : fault.message);
    }
    return true;
}

int processLines(TextInput& file, bool keepGoing,
                 const std::function<QByteArray(const QByteArray& line)>& toText,
                 const std::function<void()>& skipLine, std::optional<Fault>* ending)
{
    QFile output;
    openOutput(output);
    const bool flushLines = file.isLive() || isatty(STDOUT_FILENO);
    Progress progress;
    qint64 skipped = 0;
    QByteArray result;
    const auto take = [&](const QByteArray& line) {
        progress.show(file.lineNumber());
        result = toText(line);
    };
    const auto skip = [&](const QString& fault) {
        progress.erase();
        printError(fault);
        ++skipped;
        skipLine();
    };
    const auto takeNext = [&] {
        try {
            return takeLine(file, keepGoing, take, skip);
        } catch (const Fault& fault) {
            if (!ending)
                throw;
            *ending = fault;
            return false;
        }
    };
    while (takeNext()) {
        if (result.isEmpty())
            continue;
        writeText(output, std::exchange(result, {}));
        if (flushLines)
            flushText(output);
    }
    flushText(output);
    progress.erase();
    if (skipped == 0)
        return ending && *ending ? exitBadInput : exitSuccess;
    printError(Velmo::tr("bad lines skipped: %1").arg(skipped));
    return exitBadInput;
}
