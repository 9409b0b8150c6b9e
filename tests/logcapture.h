#pragma once

#include <QList>
#include <QMessageLogContext>
#include <QString>

/// Collects the log lines that are written while it lives.
class LogCapture
{
public:
    struct Line
    {
        QtMsgType level;
        QString category;
        QString file;
        QString function; ///< signature without blanks, which compilers set differently
        QString text;
    };

    LogCapture()
    {
        s_lines.clear();
        m_previous = qInstallMessageHandler(collect);
    }

    ~LogCapture() { qInstallMessageHandler(m_previous); }

    QList<Line> lines() const { return s_lines; }

    /// Each line's level and text, for example "debug: Clearing chain".
    QStringList texts() const
    {
        QStringList texts;
        for (const Line& line : s_lines)
            texts += levelName(line.level) + QStringLiteral(": ") + line.text;
        return texts;
    }

private:
    static QString levelName(QtMsgType level)
    {
        switch (level) {
        case QtDebugMsg:
            return QStringLiteral("debug");
        case QtWarningMsg:
            return QStringLiteral("warning");
        case QtCriticalMsg:
            return QStringLiteral("critical");
        default:
            return QStringLiteral("other");
        }
    }

    static void collect(QtMsgType level, const QMessageLogContext& context, const QString& text)
    {
        s_lines.append({level, QString::fromUtf8(context.category), QString::fromUtf8(context.file),
                        QString::fromUtf8(context.function).remove(QLatin1Char(' ')), text});
    }

    inline static QList<Line> s_lines;
    QtMessageHandler m_previous;
};
