// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "velmolib_global.h"

#include <QString>

/// The keys of the serial-port parameters in AcceptorInfo::portSettings.
namespace acceptorportsettingsconsts {

extern VELMOLIB_EXPORT const QString MAP_PORTNAME; ///< "portname"
extern VELMOLIB_EXPORT const QString MAP_BAUDRATE; ///< "baudrate"
extern VELMOLIB_EXPORT const QString MAP_DATABITS; ///< "databits"
extern VELMOLIB_EXPORT const QString MAP_PARITY; ///< "parity"
extern VELMOLIB_EXPORT const QString MAP_STOPBITS; ///< "stopbits"
extern VELMOLIB_EXPORT const QString MAP_FLOWCONTROL; ///< "flowcontrol"

} // namespace acceptorportsettingsconsts
