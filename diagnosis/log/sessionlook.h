// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestate.h"
#include "log/outcome.h"

#include <QString>

/// How a picture shows a state of a device.
struct StateLook
{
    const char* style; ///< of the style sheet; states of one meaning share it
    const char* word;
};

/// A number that is no state looks like an unknown one.
StateLook lookOf(State state);

/// The states' colours with their meaning, as HTML list items.
QString stateLegend();

/// The shapes of the marks, which a page needs once.
QString markShapes();

/// A mark in a picture, which leads to its sentence.
/// @param more what is drawn over it
QString markAt(double x, double y, const QString& shape, const QString& id, const QString& sentence,
               const QString& title, const QString& more = {});

/// A line of words with the mark of an outcome.
QString markGlyph(Outcome outcome);

/// The same of what does not add up.
QString wrongGlyph();

/// The marks with their meaning, as HTML list items.
QString markLegend();
