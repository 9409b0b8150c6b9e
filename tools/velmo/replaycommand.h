#pragma once

#include <QStringList>

/// velmo replay: plays a session file through worker, filters and published state and prints what
/// each line led to.
/// @param arguments the program's name, "replay", then options and the session file
/// @return the exit code
int replayCommand(const QStringList& arguments);
