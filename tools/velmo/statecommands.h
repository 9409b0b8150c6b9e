#pragma once

#include <QStringList>

// Each takes the program's name, the command, then its file and options, and returns the exit
// code.

/// velmo report: what published service states mean to the customer and to the engineer.
int reportCommand(const QStringList& arguments);

/// velmo state: checks a device state and writes it as compact text or as an indented map.
int stateCommand(const QStringList& arguments);
