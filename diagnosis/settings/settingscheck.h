// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/arrayfile.h"
#include "settings/devicenumbering.h"

#include <QList>

#include <optional>

/// Something in a settings list that somebody should look at.
struct SettingsFinding
{
    enum Level {
        Error, ///< the service would do something else than the list says, or a device not work
        Warning ///< odd, but harmless
    };

    Level level;
    int element; ///< the list's; -1 for the list as a whole
    std::optional<int> device; ///< whose setting it is about
    QString path; ///< the setting, or the device
    QString text; ///< what is wrong with it
    std::optional<int> otherDevice; ///< that the text names besides
    QString fault; ///< the text without what tells devices apart

    /// "FILE:LINE: error: PATH: TEXT"
    QString line(const ArrayFile& file) const;

    QString levelKey() const; ///< "error" or "warning", for programs
};

/// What the service would ignore, take otherwise than it is written or not find in a settings list,
/// in the order of the list.
QList<SettingsFinding> checkSettings(const ArrayFile& file);

/// What is found in a list that was not found in the one before.
/// @param numbering what became of the devices of the one before
QList<SettingsFinding> newFindings(const ArrayFile& before, const ArrayFile& after,
                                   const DeviceNumbering& numbering);
