// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/sessionlook.h"

#include "text/diagnosis.h"
#include "text/htmltext.h"

#include <iterator>

namespace {

constexpr StateLook states[] = {
    {STATE_IDLING, "idle", QT_TRANSLATE_NOOP("Diagnosis", "idling")},
    {STATE_ACCEPTING, "take", QT_TRANSLATE_NOOP("Diagnosis", "accepting")},
    {STATE_ACCEPTED, "keep", QT_TRANSLATE_NOOP("Diagnosis", "accepted")},
    {STATE_REJECTED, "back", QT_TRANSLATE_NOOP("Diagnosis", "rejected")},
    {STATE_STACKING, "keep", QT_TRANSLATE_NOOP("Diagnosis", "stacking")},
    {STATE_STACKED, "keep", QT_TRANSLATE_NOOP("Diagnosis", "stacked")},
    {STATE_RETURNING, "back", QT_TRANSLATE_NOOP("Diagnosis", "returning")},
    {STATE_RETURNED, "back", QT_TRANSLATE_NOOP("Diagnosis", "returned")},
    {STATE_JAMMED, "bad", QT_TRANSLATE_NOOP("Diagnosis", "jammed")},
    {STATE_BUSY, "busy", QT_TRANSLATE_NOOP("Diagnosis", "busy")},
    {STATE_ERROR, "bad", QT_TRANSLATE_NOOP("Diagnosis", "error")},
    {STATE_UPDATING, "busy", QT_TRANSLATE_NOOP("Diagnosis", "updating")},
    {STATE_DISPENSING, "pay", QT_TRANSLATE_NOOP("Diagnosis", "dispensing")},
    {STATE_DISPENSED, "pay", QT_TRANSLATE_NOOP("Diagnosis", "dispensed")},
    {STATE_FLOATING, "pay", QT_TRANSLATE_NOOP("Diagnosis", "floating")},
    {STATE_FLOATED, "pay", QT_TRANSLATE_NOOP("Diagnosis", "floated")},
    {STATE_EMPTYING, "pay", QT_TRANSLATE_NOOP("Diagnosis", "emptying")},
    {STATE_EMPTIED, "pay", QT_TRANSLATE_NOOP("Diagnosis", "emptied")},
};

constexpr bool isByState()
{
    for (const StateLook& look : states) {
        if (&states[look.state] != &look)
            return false;
    }
    return std::size(states) == STATE_EMPTIED + 1;
}
static_assert(isByState(), "a row for each State, in its order");

constexpr StateLook unknownState{STATE_BUSY, "busy",
                                 QT_TRANSLATE_NOOP("Diagnosis", "unknown state")};

struct StyleWords
{
    const char* style;
    const char* meaning;
};

constexpr StyleWords styleTable[] = {
    {"idle", QT_TRANSLATE_NOOP("Diagnosis", "idling")},
    {"take", QT_TRANSLATE_NOOP("Diagnosis", "accepting a note")},
    {"keep", QT_TRANSLATE_NOOP("Diagnosis", "keeping it")},
    {"back", QT_TRANSLATE_NOOP("Diagnosis", "giving it back")},
    {"pay", QT_TRANSLATE_NOOP("Diagnosis", "paying out")},
    {"busy", QT_TRANSLATE_NOOP("Diagnosis", "busy")},
    {"bad", QT_TRANSLATE_NOOP("Diagnosis", "jam, error or what else was the matter")},
};

} // namespace

const StateLook& lookOf(State state)
{
    return state >= 0 && state < int(std::size(states)) ? states[state] : unknownState;
}

QString stateLegend()
{
    QString items;
    for (const StyleWords& words : styleTable) {
        items += QStringLiteral("<li><span class=\"key %1\"></span>%2</li>\n")
                     .arg(QLatin1String(words.style), htmlText(Diagnosis::tr(words.meaning)));
    }
    return items;
}

QString markShapes()
{
    QString shapes;
    for (const OutcomeWords& words : outcomeWords()) {
        shapes += QStringLiteral("<path id=\"%1\" %2/>\n")
                      .arg(QLatin1String(words.key), QLatin1String(words.mark));
    }
    // The ring is around a refused note that was taken.
    return QStringLiteral("<svg width=\"0\" height=\"0\" aria-hidden=\"true\"><defs>\n%1"
                          "<path id=\"ring\" fill-rule=\"evenodd\" d=\"M-11 0A11 11 0 1 1 11 0A11 "
                          "11 0 1 1-11 0zM-9.5 0A9.5 9.5 0 1 0 9.5 0A9.5 9.5 0 1 0-9.5 0z\"/>\n"
                          "</defs></svg>\n")
        .arg(shapes);
}

QString markGlyph(Outcome outcome)
{
    return QStringLiteral("<svg class=\"glyph %1\" viewBox=\"-9 -9 18 18\" aria-hidden=\"true\">"
                          "<use href=\"#%1\"/></svg>")
        .arg(outcomeKey(outcome));
}

QString markLegend()
{
    QString items;
    for (const OutcomeWords& words : outcomeWords()) {
        items += QStringLiteral("<li>%1%2</li>\n")
                     .arg(markGlyph(words.outcome), htmlText(Diagnosis::tr(words.meaning)));
    }
    return items;
}
