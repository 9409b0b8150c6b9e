#pragma once

#include <QByteArray>
#include <QFile>

/// Standard output. Throws Fault when it cannot be written.
class Output
{
public:
    Output();

    void write(const QByteArray& text);
    void flush();

private:
    QFile m_file;
};

/// Writes a whole text to standard output.
void print(const QString& text);

/// Writes "velmo: <message>" to standard error as one line, control characters as \uXXXX.
void printError(const QString& message);
