#pragma once

#include <QString>

/// What is wrong with the input, the output or the command line. Thrown where it is found; main()
/// reports it and ends with exitBadInput.
struct Fault
{
    QString message; ///< names the file, the place in it and the fault
};

constexpr int exitSuccess = 0;
constexpr int exitFindings = 1; ///< of a check that read everything and found something
constexpr int exitBadInput = 2;

/// Writes "velmo: <message>" to standard error as one line, control characters as \uXXXX.
void printError(const QString& message);
