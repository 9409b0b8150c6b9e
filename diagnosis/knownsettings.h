// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

#include <optional>

/// A setting of the settings list that the service's model reads.
struct KnownSetting
{
    QString path; ///< group/key as the list form writes it

    /// What the model makes of a value that it does not take as it stands; empty when it does.
    QString (*complaint)(const QString& value);
};

/// The number in a group of one device, for example 2 in "device2/ccnet". As in the model, a text
/// that is no number counts as 0.
struct DeviceGroup
{
    int device;
    bool hasNumber;
    QString subgroup;
};

/// Nothing for a group that is no device's.
std::optional<DeviceGroup> deviceGroup(const QString& group);

/// The setting that the model reads under a group and a key; nothing when it ignores them.
std::optional<KnownSetting> knownSetting(const QString& group, const QString& key);

/// The same; throws Fault, which names the nearest known setting, where the model ignores them.
KnownSetting requireKnownSetting(const QString& group, const QString& key);

/// The known path that is spelled most like this one.
QString nearestKnownPath(const QString& path);
