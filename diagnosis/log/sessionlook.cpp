// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/sessionlook.h"

#include "text/diagnosis.h"
#include "text/htmltext.h"

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

} // namespace

// The compiler names a state that has no case.
StateLook lookOf(State state)
{
    switch (state) {
    case STATE_IDLING:
        return {"idle", QT_TRANSLATE_NOOP("Diagnosis", "idling")};
    case STATE_ACCEPTING:
        return {"take", QT_TRANSLATE_NOOP("Diagnosis", "accepting")};
    case STATE_ACCEPTED:
        return {"keep", QT_TRANSLATE_NOOP("Diagnosis", "accepted")};
    case STATE_REJECTED:
        return {"back", QT_TRANSLATE_NOOP("Diagnosis", "rejected")};
    case STATE_STACKING:
        return {"keep", QT_TRANSLATE_NOOP("Diagnosis", "stacking")};
    case STATE_STACKED:
        return {"keep", QT_TRANSLATE_NOOP("Diagnosis", "stacked")};
    case STATE_RETURNING:
        return {"back", QT_TRANSLATE_NOOP("Diagnosis", "returning")};
    case STATE_RETURNED:
        return {"back", QT_TRANSLATE_NOOP("Diagnosis", "returned")};
    case STATE_JAMMED:
        return {"bad", QT_TRANSLATE_NOOP("Diagnosis", "jammed")};
    case STATE_BUSY:
        return {"busy", QT_TRANSLATE_NOOP("Diagnosis", "busy")};
    case STATE_ERROR:
        return {"bad", QT_TRANSLATE_NOOP("Diagnosis", "error")};
    case STATE_UPDATING:
        return {"busy", QT_TRANSLATE_NOOP("Diagnosis", "updating")};
    case STATE_DISPENSING:
        return {"pay", QT_TRANSLATE_NOOP("Diagnosis", "dispensing")};
    case STATE_DISPENSED:
        return {"pay", QT_TRANSLATE_NOOP("Diagnosis", "dispensed")};
    case STATE_FLOATING:
        return {"pay", QT_TRANSLATE_NOOP("Diagnosis", "floating")};
    case STATE_FLOATED:
        return {"pay", QT_TRANSLATE_NOOP("Diagnosis", "floated")};
    case STATE_EMPTYING:
        return {"pay", QT_TRANSLATE_NOOP("Diagnosis", "emptying")};
    case STATE_EMPTIED:
        return {"pay", QT_TRANSLATE_NOOP("Diagnosis", "emptied")};
    }
    return {"busy", QT_TRANSLATE_NOOP("Diagnosis", "unknown state")};
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
