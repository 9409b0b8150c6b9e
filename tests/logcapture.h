// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QMessageLogContext>
#include <QStringList>

/// Collects the log lines that are written while it lives.
class LogCapture
{
public:
    LogCapture()
        : m_previous(qInstallMessageHandler(collect))
    {
        s_texts.clear();
        s_places.clear();
    }

    ~LogCapture() { qInstallMessageHandler(m_previous); }

    /// Level and text of each line, for example "debug: Clearing chain".
    QStringList texts() const { return s_texts; }

    /// Category, file and signature of each line; no blanks, which compilers set differently.
    QStringList places() const { return s_places; }

private:
    static void collect(QtMsgType level, const QMessageLogContext& context, const QString& text)
    {
        static const char* const levels[] = {"debug: ", "warning: ", "critical: ", "fatal: "};
        s_texts += QLatin1String(levels[level]) + text;
        s_places += QStringLiteral("%1 %2 ").arg(QLatin1String(context.category),
                                                 QLatin1String(context.file))
            + QString::fromLatin1(context.function).remove(QLatin1Char(' '));
    }

    inline static QStringList s_texts;
    inline static QStringList s_places;
    QtMessageHandler m_previous;
};
