// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "appversion.h"

#include <QStringList>

namespace palx {

/// The process-wide register of the components that a program is made of. Every function may be
/// called from any thread, and while libraries are being loaded.
class PALX_EXPORT AppVersionManager
{
public:
    /// Records the version of a component, in place of an earlier one, and returns it.
    static AppVersion addVersion(const QString& component, const AppVersion& version);

    /// Records that a component brings translations. Repeated calls are recorded again.
    static void addLocalisation(const QString& component);

    /// The recorded version of a component; not valid when it has none.
    static AppVersion version(const QString& component);

    /// One element for each call of addLocalisation(), in call order.
    static QStringList localisations();
};

} // namespace palx
