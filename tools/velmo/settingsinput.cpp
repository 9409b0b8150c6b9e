// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingsinput.h"

#include "inputfile.h"
#include "settings/settingslist.h"

ArrayFile readSettings(const QString& fileName)
{
    TextInput input = openInput(fileName);
    return readSettingsFile(input);
}
