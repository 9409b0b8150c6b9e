// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/sessionlook.h"

#include "log/svg.h"
#include "text/diagnosis.h"
#include "text/htmltext.h"

#include <iterator>

namespace {

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

// By State.
constexpr StateLook looks[] = {
    {"idle", QT_TRANSLATE_NOOP("Diagnosis", "idling")},
    {"take", QT_TRANSLATE_NOOP("Diagnosis", "accepting")},
    {"keep", QT_TRANSLATE_NOOP("Diagnosis", "accepted")},
    {"back", QT_TRANSLATE_NOOP("Diagnosis", "rejected")},
    {"keep", QT_TRANSLATE_NOOP("Diagnosis", "stacking")},
    {"keep", QT_TRANSLATE_NOOP("Diagnosis", "stacked")},
    {"back", QT_TRANSLATE_NOOP("Diagnosis", "returning")},
    {"back", QT_TRANSLATE_NOOP("Diagnosis", "returned")},
    {"bad", QT_TRANSLATE_NOOP("Diagnosis", "jammed")},
    {"busy", QT_TRANSLATE_NOOP("Diagnosis", "busy")},
    {"bad", QT_TRANSLATE_NOOP("Diagnosis", "error")},
    {"busy", QT_TRANSLATE_NOOP("Diagnosis", "updating")},
    {"pay", QT_TRANSLATE_NOOP("Diagnosis", "dispensing")},
    {"pay", QT_TRANSLATE_NOOP("Diagnosis", "dispensed")},
    {"pay", QT_TRANSLATE_NOOP("Diagnosis", "floating")},
    {"pay", QT_TRANSLATE_NOOP("Diagnosis", "floated")},
    {"pay", QT_TRANSLATE_NOOP("Diagnosis", "emptying")},
    {"pay", QT_TRANSLATE_NOOP("Diagnosis", "emptied")},
};
static_assert(std::size(looks) == STATE_EMPTIED + 1, "a state has no look");

} // namespace

StateLook lookOf(State state)
{
    if (state < STATE_IDLING || state > STATE_EMPTIED)
        return {"busy", QT_TRANSLATE_NOOP("Diagnosis", "unknown state")};
    return looks[state];
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
                          "<path id=\"wrong\" fill-rule=\"evenodd\" d=\"M-5-8H5L8-5V5L5 8H-5L-8 "
                          "5V-5zM-1.4-5.5V1.5H1.4V-5.5zM-1.4 3V5.8H1.4V3z\"/>\n"
                          "</defs></svg>\n")
        .arg(shapes);
}

QString markAt(double x, double y, const QString& shape, const QString& id, const QString& sentence,
               const QString& title, const QString& more)
{
    return QStringLiteral("<a id=\"%1\" class=\"mark %2\" href=\"#%3\" tabindex=\"-1\">"
                          "<title>%4</title><use href=\"#%2\" x=\"%5\" y=\"%6\"/>%7"
                          "<circle class=\"halo\" cx=\"%5\" cy=\"%6\" r=\"11\"/></a>\n")
        .arg(id, shape, sentence, htmlText(title), number(x), number(y), more);
}

QString markGlyph(Outcome outcome)
{
    return QStringLiteral("<svg class=\"glyph %1\" viewBox=\"-9 -9 18 18\" aria-hidden=\"true\">"
                          "<use href=\"#%1\"/></svg>")
        .arg(outcomeKey(outcome));
}

QString wrongGlyph()
{
    return QStringLiteral("<svg class=\"glyph wrong\" viewBox=\"-9 -9 18 18\" "
                          "aria-hidden=\"true\"><use href=\"#wrong\"/></svg>");
}

QString markLegend()
{
    QString items;
    for (const OutcomeWords& words : outcomeWords()) {
        items += QStringLiteral("<li>%1%2</li>\n")
                     .arg(markGlyph(words.outcome), htmlText(Diagnosis::tr(words.meaning)));
    }
    items += QStringLiteral("<li>%1%2</li>\n")
                 .arg(wrongGlyph(), htmlText(Diagnosis::tr("does not add up")));
    return items;
}
