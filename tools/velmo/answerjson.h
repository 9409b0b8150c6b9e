// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/cashperiod.h"
#include "log/comparison.h"
#include "log/conditiontimeline.h"
#include "json/jsontext.h"

/// [{"what": ..., "line": ..., "text": ...}, ...]
JsonText jsonOf(const QVector<MachineCondition>& conditions);

/// A text, or null when not known.
JsonText jsonOf(const LogTime& time);

JsonText jsonOf(const Tally& tally);

/// {"kind": "note", ...}
/// @param log the name of its log
JsonText jsonOf(const QString& log, const NoteAnswer& answer);

/// {"kind": "contradiction", ...}
/// @param logs the names of the logs that its lines are of, each a LogPosition
JsonText jsonOf(const QStringList& logs, const Contradiction& found);

/// {"kind": "condition", ...}
JsonText jsonOf(const QString& log, const ConditionSpan& span);

/// {"kind": "device_totals", ...}
JsonText jsonOf(const QString& log, const LogDevice& device, const Summary& summary);

/// {"kind": "summary", ...}
JsonText jsonOf(const Summary& summary);

/// {"kind": "difference", ...}
/// @param log the name of its log
JsonText jsonOf(const QString& log, const Difference& difference);
