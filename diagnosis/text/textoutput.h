// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/fault.h"

#include <QByteArray>

class QIODevice;

/// Why a device cannot be written or read, with the name of its file.
Fault faultOf(QIODevice& device);

/// Writes a text whole. Throws Fault, which names the file and says why it cannot be.
void writeText(QIODevice& device, const QByteArray& text);

/// Hands what a device has not written yet to the system; the same faults.
void flushText(QIODevice& device);
