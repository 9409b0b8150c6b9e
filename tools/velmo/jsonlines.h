#pragma once

#include "textinput.h"

#include <QJsonObject>

#include <functional>

/// Hands every line of a file, one JSON object each, to @p toText and writes what that returns to
/// standard output. Blank lines are passed over. A fault of a line, also one that @p toText throws,
/// names the file and the line; it ends the run, or with @p keepGoing is reported and counted.
/// Shows progress on standard error when that is a terminal and standard output is not.
/// @return the exit code
int processJsonLines(TextInput& file, bool keepGoing,
                     const std::function<QByteArray(const QJsonObject& line)>& toText);
