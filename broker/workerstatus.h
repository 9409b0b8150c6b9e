// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

/// What a worker of a fleet tells of itself, retained at a topic of its own. docs/formats.md
/// describes the text.
struct WorkerStatus
{
    /// Of a text that is none, the part is 0.
    static WorkerStatus read(const QByteArray& json);

    QByteArray json() const;

    QString worker; ///< its name
    int part = 0; ///< of so many, from 1
    int parts = 0;
    bool isGone =
        false; ///< nothing more is known then: the broker tells it of a worker it has lost
    int kiosks = 0; ///< summaries of its part
    int changes = 0; ///< kiosks that came or left since it began; not read
    bool isReady = false; ///< it has read all that the broker had retained
    QString since; ///< when it began, as JSON has it
    QStringList faults; ///< sentences
};
