#pragma once

#include <QStringList>

// Each takes the program's name, the command, then its options, and returns the exit code.

/// velmo devices: the catalogue of device models.
int devicesCommand(const QStringList& arguments);

/// velmo filters: the note filters with their parameters.
int filtersCommand(const QStringList& arguments);
