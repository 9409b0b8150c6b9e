#pragma once

#include <QStringList>

/// velmo settings: shows, reads, changes and checks a settings list.
/// @param arguments the program's name, "settings", then the action, its file and its options
/// @return the exit code
int settingsCommand(const QStringList& arguments);
