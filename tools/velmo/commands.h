// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "options.h"

// What the commands run; each returns the exit code.

int explainCommand(const Arguments& arguments);
int cashCommand(const Arguments& arguments);
int compareCommand(const Arguments& arguments);
int replayCommand(const Arguments& arguments);
int reportCommand(const Arguments& arguments);
int fleetCommand(const Arguments& arguments);
int fleetHistoryCommand(const Arguments& arguments);
int fleetForgetCommand(const Arguments& arguments);
int stateCommand(const Arguments& arguments);
int showSettingsCommand(const Arguments& arguments);
int getSettingCommand(const Arguments& arguments);
int setSettingsCommand(const Arguments& arguments);
int unsetSettingsCommand(const Arguments& arguments);
int addDeviceCommand(const Arguments& arguments);
int removeDeviceCommand(const Arguments& arguments);
int checkSettingsCommand(const Arguments& arguments);
int diffSettingsCommand(const Arguments& arguments);
int settingsFiltersCommand(const Arguments& arguments);
int showRoutesCommand(const Arguments& arguments);
int devicesCommand(const Arguments& arguments);
int filtersCommand(const Arguments& arguments);
int completeCommand(const Arguments& arguments);
int manualCommand(const Arguments& arguments);
