// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "historyrecorder.h"

class HistoryRecorder::Thread
{
};

HistoryRecorder::HistoryRecorder(const QString&, const QString&, const QString&) { }

HistoryRecorder::~HistoryRecorder() = default;

void HistoryRecorder::record(KioskRecord) { }

void HistoryRecorder::forget(const QString&, qint64) { }

HistoryRecorder::Status HistoryRecorder::status() const
{
    return {};
}
