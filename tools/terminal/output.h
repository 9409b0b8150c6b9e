// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/fault.h"

#include <QFile>
#include <QStringList>

#include <memory>

#include <sys/stat.h>

constexpr int exitSuccess = 0;
constexpr int exitFindings = 1; ///< of a check that read everything and found something
constexpr int exitBadInput = 2;

/// Opens standard output. Throws Fault when it cannot be written.
void openOutput(QFile& file);

/// A file that a command writes, "-" for standard output. A regular file is replaced when all is
/// written, or stays as it is; it keeps its owner and mode. Anything else, as a device or a pipe,
/// is written to. Throws Fault, which names the file.
class OutputFile
{
public:
    /// @param inputs what is read meanwhile, which it must not be
    OutputFile(const QString& fileName, const QStringList& inputs);
    ~OutputFile();

    QFileDevice& device() { return *m_file; }

    /// To be called when all is written.
    void commit();

    static bool isStandardOutput(const QString& fileName);

private:
    Fault fault() const;

    const QString m_name; // for people
    struct stat m_old = {}; // of the file that is replaced; without links for a new one
    std::unique_ptr<QFileDevice> m_file;
};

/// The columns that a line on standard output may have: those of the terminal or of the variable
/// COLUMNS; 0 for any number where people do not read it as it comes.
int outputWidth();

/// The lines that the terminal of standard output has; 0 where it is none.
int outputHeight();

/// A text as it may be shown on a terminal, where it can be of anybody: what terminals take for
/// commands, and what changes the direction or the line, as \uXXXX.
QString printable(const QString& text);

/// The same, but for line feeds.
QString printableLines(const QString& text);

/// Whether standard output may be coloured: on a terminal unless NO_COLOR is set.
bool isOutputColored();

/// Writes a whole text to standard output.
void print(const QString& text);

/// Writes the program's name and a message to standard error, as one printable() line.
void printError(const QString& message);
