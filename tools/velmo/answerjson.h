// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "explanation.h"
#include "jsontext.h"

/// [{"what": ..., "line": ..., "text": ...}, ...]
JsonText jsonOf(const QVector<MachineCondition>& conditions);

/// {"kind": "note", ...}
/// @param log the name of its log
JsonText jsonOf(const QString& log, const NoteAnswer& answer);

/// {"kind": "summary", ...}
JsonText jsonOf(const Summary& summary);
