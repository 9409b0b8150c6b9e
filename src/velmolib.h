// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <palx/appversion.h>

/// The library's identity. While it is loaded, the library registers itself as "velmolib" with
/// palx::AppVersionManager: its version, and that it brings translations.
class VELMOLIB_EXPORT VelmoLib
{
public:
    /// Registers the version unless that is done, and the localisation in every case.
    VelmoLib();
    ~VelmoLib();

    /// The version as registered: number, and time of the build in ISO 8601 form (empty when the
    /// compiler's stamp could not be read). May be called from any thread.
    static palx::AppVersion version();

private:
    static palx::AppVersion _version;
};
