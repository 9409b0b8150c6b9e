// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "fleetpage.h"

#include "service/kiosksummary.h"
#include "terminal/velmo.h"
#include "text/conditions.h"
#include "text/diagnosis.h"
#include "text/htmltext.h"
#include "json/jsontext.h"

#include <QCryptographicHash>
#include <QFile>
#include <QVariantMap>

namespace {

struct Text
{
    const char* key;
    const char* text; // in English, to be translated
};

// Those of the page, by the keys that page.html and page.js use.
constexpr Text pageTexts[] = {
    {"kiosks", QT_TRANSLATE_NOOP("Velmo", "Kiosks")},
    {"counts", QT_TRANSLATE_NOOP("Velmo", "Kiosks by condition")},
    {"count", QT_TRANSLATE_NOOP("Velmo", "%1 %2")},
    {"part",
     QT_TRANSLATE_NOOP("Velmo",
                       "Part %1 of %2: the kiosks of the other parts are shown by their workers.")},
    {"name", QT_TRANSLATE_NOOP("Velmo", "Name")},
    {"kiosk", QT_TRANSLATE_NOOP("Velmo", "Kiosk")},
    {"condition", QT_TRANSLATE_NOOP("Velmo", "Condition")},
    {"region", QT_TRANSLATE_NOOP("Velmo", "Region")},
    {"reason", QT_TRANSLATE_NOOP("Velmo", "Reason")},
    {"any", QT_TRANSLATE_NOOP("Velmo", "any")},
    {"all", QT_TRANSLATE_NOOP("Velmo", "show fine ones too")},
    {"since", QT_TRANSLATE_NOOP("Velmo", "For how long")},
    {"last", QT_TRANSLATE_NOOP("Velmo", "Last state")},
    {"wrong", QT_TRANSLATE_NOOP("Velmo", "What is wrong")},
    {"sinceTime", QT_TRANSLATE_NOOP("Velmo", "since %1")},
    {"times", QT_TRANSLATE_NOOP("Velmo", "%1× this month")},
    {"moreFaults", QT_TRANSLATE_NOOP("Velmo", "and %1 more")},
    {"more",
     QT_TRANSLATE_NOOP("Velmo", "The first %1 are shown; %2 more are not. The filters find them.")},
    {"noMatch", QT_TRANSLATE_NOOP("Velmo", "No kiosk matches the filters.")},
    {"noneToSee", QT_TRANSLATE_NOOP("Velmo", "No kiosk needs somebody.")},
    {"reading", QT_TRANSLATE_NOOP("Velmo", "Reading...")},
    {"asOf", QT_TRANSLATE_NOOP("Velmo", "As of %1.")},
    {"noAnswer", QT_TRANSLATE_NOOP("Velmo", "The worker does not answer.")},
    {"noAnswerSince",
     QT_TRANSLATE_NOOP("Velmo", "The worker does not answer: what is shown is from %1.")},
    {"notConnected",
     QT_TRANSLATE_NOOP("Velmo",
                       "The worker has no connection to the broker: what is shown is from %1.")},
    {"notReady",
     QT_TRANSLATE_NOOP("Velmo",
                       "The worker is still reading what the broker has: kiosks may be missing.")},
    {"script", QT_TRANSLATE_NOOP("Velmo", "The table needs JavaScript, which is off here.")},
    {"noHistory", QT_TRANSLATE_NOOP("Velmo", "No history is kept.")},
    {"historyFault", QT_TRANSLATE_NOOP("Velmo", "The history does not answer: %1")},
    {"timeline", QT_TRANSLATE_NOOP("Velmo", "Conditions of the last 30 days")},
    {"faults", QT_TRANSLATE_NOOP("Velmo", "Faults")},
    {"collections", QT_TRANSLATE_NOOP("Velmo", "Collections")},
    {"conditionList", QT_TRANSLATE_NOOP("Velmo", "Conditions")},
    {"when", QT_TRANSLATE_NOOP("Velmo", "When")},
    {"long", QT_TRANSLATE_NOOP("Velmo", "How long")},
    {"still", QT_TRANSLATE_NOOP("Velmo", "still so")},
    {"device", QT_TRANSLATE_NOOP("Velmo", "Device")},
    {"notes", QT_TRANSLATE_NOOP("Velmo", "Notes since the one before")},
    {"none", QT_TRANSLATE_NOOP("Velmo", "None.")},
    {"older", QT_TRANSLATE_NOOP("Velmo", "%1 older ones are not shown.")},
    {"days", QT_TRANSLATE_NOOP("Velmo", "%1 d")},
    {"hours", QT_TRANSLATE_NOOP("Velmo", "%1 h")},
    {"minutes", QT_TRANSLATE_NOOP("Velmo", "%1 min")},
    {"seconds", QT_TRANSLATE_NOOP("Velmo", "%1 s")},
};

constexpr const char* conditionTexts[] = {
    QT_TRANSLATE_NOOP("Velmo", "unknown"), QT_TRANSLATE_NOOP("Velmo", "silent"),
    QT_TRANSLATE_NOOP("Velmo", "out of order"), QT_TRANSLATE_NOOP("Velmo", "faulty"),
    QT_TRANSLATE_NOOP("Velmo", "fine")};

// Those that are no conditions of a device.
constexpr Text reasonTexts[] = {
    {"state", QT_TRANSLATE_NOOP("Velmo", "device state")},
    {"no_devices", QT_TRANSLATE_NOOP("Velmo", "no devices")},
    {"silent", QT_TRANSLATE_NOOP("Velmo", "silent")},
    {"gone", QT_TRANSLATE_NOOP("Velmo", "kiosk offline")},
    {"unreadable", QT_TRANSLATE_NOOP("Velmo", "cannot be read")},
    {"too_large", QT_TRANSLATE_NOOP("Velmo", "too large")},
};

QByteArray conditionNames()
{
    QByteArray members;
    for (int i = KioskSummary::Unknown; i <= KioskSummary::Fine; ++i) {
        members += QByteArray(members.isEmpty() ? "" : ",") + '"'
            + KioskSummary::name(KioskSummary::Condition(i))
            + "\":" + JsonText(Velmo::tr(conditionTexts[i]));
    }
    return '{' + members + '}';
}

QByteArray reasonNames()
{
    QVariantMap names;
    for (const Condition& condition : Condition::table)
        names.insert(QLatin1String(condition.key), Diagnosis::tr(condition.word));
    for (const Text& reason : reasonTexts)
        names.insert(QLatin1String(reason.key), Velmo::tr(reason.text));
    return JsonText::of(names);
}

QByteArray fileOf(const char* name)
{
    QFile file(QStringLiteral(":/page/%1").arg(QLatin1String(name)));
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

QByteArray hashSource(const QByteArray& text)
{
    return "'sha256-" + QCryptographicHash::hash(text, QCryptographicHash::Sha256).toBase64()
        + '\'';
}

} // namespace

FleetPage::FleetPage()
    : html(fileOf("page.html"))
{
    const QByteArray style = fileOf("page.css");
    const QByteArray script = fileOf("page.js");
    QByteArray words = "{\"conditions\":" + conditionNames() + ",\"reasons\":" + reasonNames();
    for (const Text& text : pageTexts) {
        const QString translated = Velmo::tr(text.text);
        html.replace(QByteArray("{{") + text.key + "}}", htmlText(translated).toUtf8());
        words += QByteArray(",\"") + text.key + "\":" + JsonText(translated);
    }
    words += '}';
    words.replace('<', "\\u003c"); // no end of the element
    //: The language of these words, for the attribute lang of HTML.
    html.replace("{{language}}", htmlText(Velmo::tr("en", "language code")).toUtf8());
    html.replace("{{texts}}", words);
    html.replace("{{page.css}}", style);
    html.replace("{{page.js}}", script);
    policy = "default-src 'none'; style-src " + hashSource(style) + "; script-src "
        + hashSource(script)
        + "; connect-src 'self'; img-src data:; base-uri 'none'; form-action 'none'; "
          "frame-ancestors 'none'";
}
