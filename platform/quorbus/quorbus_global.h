// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtCore/qglobal.h>

/// Marks what programs may use; everything else stays inside the library.
#define QUORBUS_EXPORT Q_DECL_EXPORT
