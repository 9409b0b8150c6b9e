#pragma once

#include "fault.h"

#include <QByteArray>
#include <QFile>
#include <QJsonDocument>
#include <QString>

/// An input file, "-" for standard input. Throws Fault when it cannot be read.
class TextFile
{
public:
    explicit TextFile(const QString& name);

    /// Reads the next line, without its line feed; false at the end of the file.
    bool readLine(QByteArray& line);

    QByteArray readAll();

    /// The name for people: "standard input" for "-".
    QString name() const { return m_name; }

    /// The number of the line that was read last, counted from 1.
    qint64 lineNumber() const { return m_lineNumber; }

    /// Whether the input comes from a pipe or a terminal, so that someone may be waiting for
    /// what it leads to.
    bool isLive() const { return m_file.isSequential(); }

    /// Reads JSON text that begins at the given line of this file.
    QJsonDocument parseJson(const QByteArray& text, qint64 firstLine) const;

    Fault faultAt(qint64 line, const QString& what) const;

private:
    void checkRead() const;

    QFile m_file;
    QString m_name;
    qint64 m_lineNumber = 0;
};
