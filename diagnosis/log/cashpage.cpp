// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashpage.h"

#include "log/cashcurve.h"
#include "log/cashpile.h"
#include "log/pageparts.h"
#include "log/svg.h"
#include "text/diagnosis.h"
#include "text/filterwords.h"
#include "text/htmltext.h"
#include "text/textoutput.h"

#include <algorithm>

namespace {

// Of a device, the one that is on and the last collection; the others are folded.
constexpr size_t unfoldedPeriods = 2;

// Of the cassette, in words.
QString cassetteText(const CashDevice& device, const CashPeriod& period)
{
    QStringList sums;
    for (const CashPile& pile : CashPile::of(device, period, true)) {
        if (pile.place == CashPlace::Cassette)
            sums += pile.text();
    }
    if (sums.isEmpty())
        sums += (period.unseen.isExact() ? period.unseen : PieceRange::atLeast(0)).text();
    return sums.join(QStringLiteral(", "));
}

QString momentText(const LogTime& time, qint64 position)
{
    return time.isKnown() ? time.iso().left(10) + QLatin1Char(' ') + time.clock()
                          : Diagnosis::tr("line %1").arg(LogPosition::line(position));
}

QString linesText(const QStringList& logs, qint64 from, qint64 to)
{
    const auto log = [&](qint64 position) { return logs.value(LogPosition::log(position)); };
    const QString first = QString::number(LogPosition::line(from));
    const QString last = QString::number(LogPosition::line(to));
    if (logs.size() == 1)
        return Diagnosis::tr("lines %1 to %2").arg(first, last);
    return Diagnosis::tr("%1:%2 to %3:%4").arg(log(from), first, log(to), last);
}

QString row(const QString& head, const QString& value, const char* style = "")
{
    return QStringLiteral("<tr class=\"%1\"><th scope=\"row\">%2</th><td>%3</td></tr>\n")
        .arg(QLatin1String(style), htmlText(head), htmlText(value));
}

// What lies where now.
QString nowCard(const std::vector<CashDevice>& devices)
{
    QString bodies;
    int number = 0;
    for (const CashDevice& device : devices) {
        const CashPeriod& now = device.now();
        QString rows;
        std::vector<CashPile> sums;
        for (const CashPile& pile : CashPile::of(device, now, true)) {
            if (pile.place == CashPlace::Cassette && !now.isOpen) {
                rows += row(pile.name, Diagnosis::tr("taken out with %1").arg(pile.text()));
                continue;
            }
            rows += row(pile.name, pile.text());
            const auto sum = std::find_if(sums.begin(), sums.end(), [&](const CashPile& known) {
                return known.currency == pile.currency;
            });
            if (sum == sums.end())
                sums.push_back(pile);
            else
                sum->sum += pile.sum;
        }
        if (now.rows.empty())
            rows += row(Diagnosis::tr("Of money the log tells nothing."), {});
        for (const CashPile& sum : sums)
            rows += row(Diagnosis::tr("in all"), sum.text(), "all");
        bodies +=
            QStringLiteral("<tbody>\n<tr><th colspan=\"2\" scope=\"rowgroup\"><a "
                           "href=\"#device%1\">%2</a> <span class=\"file\">%3</span></th>"
                           "</tr>\n%4</tbody>\n")
                .arg(QString::number(++number), htmlText(device.name()),
                     htmlText(Diagnosis::tr("as of %1").arg(momentText(now.to, now.toPosition))),
                     rows);
    }
    return QStringLiteral("<section class=\"card\">\n%1<table class=\"now\">\n%2</table>\n"
                          "</section>\n")
        .arg(htmlElement("h3", Diagnosis::tr("What lies where")), bodies);
}

// A share of the width, as SVG has it.
QString share(double value)
{
    return number(value) + QLatin1Char('%');
}

// Certain up to the least, hatched up to the most, and open where there is none.
QString bar(const CashPile& pile, qint64 most)
{
    constexpr double room = 95; // an arrow needs the rest
    const auto shareOf = [&](qint64 sum) {
        return room * double(sum) / double(qMax<qint64>(1, most));
    };
    const double sure = shareOf(pile.sum.min);
    QString shapes =
        QStringLiteral("<rect class=\"sure\" width=\"%1\" height=\"16\"/>").arg(share(sure));
    if (!pile.sum.max) {
        shapes += QStringLiteral("<svg x=\"%1\" overflow=\"visible\"><path class=\"atleast\" "
                                 "d=\"M0 8h14m-5-5l5 5-5 5\"/></svg>")
                      .arg(share(sure));
    } else if (!pile.sum.isExact()) {
        shapes += QStringLiteral("<rect class=\"may\" x=\"%1\" width=\"%2\" height=\"16\"/>")
                      .arg(share(sure), share(shareOf(*pile.sum.max) - sure));
    }
    return QStringLiteral("<svg class=\"bar\" role=\"img\" aria-label=\"%1\"><title>%1</title>"
                          "%2</svg>")
        .arg(htmlText(pile.name + QStringLiteral(": ") + pile.text()), shapes);
}

QString barsOf(const CashDevice& device, const CashPeriod& period, qint64 most)
{
    QString rows;
    for (const CashPile& pile : CashPile::of(device, period, false)) {
        rows += QStringLiteral("<tr><th scope=\"row\">%1</th><td>%2</td><td>%3</td></tr>\n")
                    .arg(htmlText(pile.name), bar(pile, most), htmlText(pile.text()));
    }
    return QStringLiteral("<table class=\"bars\">\n<tbody>\n%1</tbody></table>\n").arg(rows);
}

QString ledgerOf(const CashPeriod& period)
{
    WideTable table(CashRow::columns() << Diagnosis::tr("Why"));
    const QStringList notes = period.notes();
    for (const CashRow& cashRow : period.rows) {
        QStringList marks;
        for (const QString& why : cashRow.why)
            marks += QStringLiteral("[%1]").arg(notes.indexOf(why) + 1);
        table.add(cashRow.cells() << marks.join(QLatin1Char(' ')));
    }
    QString html = table.html();
    for (int i = 0; i < notes.size(); ++i)
        html += htmlElement("p", QStringLiteral("[%1] %2").arg(i + 1).arg(notes.at(i)));
    return html;
}

QString periodOf(const QStringList& logs, const CashDevice& device, const CashPeriod& period,
                 qint64 most, bool isUnfolded)
{
    const QString from = momentText(period.from, period.fromPosition);
    const QString to = momentText(period.to, period.toPosition);
    const QString what =
        period.isOpen ? Diagnosis::tr("in the cassette: %1") : Diagnosis::tr("taken out: %1");
    QString body = period.rows.empty()
        ? htmlElement("p", Diagnosis::tr("Of money the log tells nothing."))
        : barsOf(device, period, most) + ledgerOf(period);
    if (period.cash)
        body +=
            htmlElement("p", Diagnosis::tr("The device says of its cash: %1").arg(*period.cash));
    return QStringLiteral("<details class=\"fold\"%1>\n<summary><strong>%2 <span class=\"file\">"
                          "%3</span></strong>\n<span>%4</span></summary>\n<div class=\"period\">\n"
                          "%5%6</div>\n</details>\n")
        .arg(isUnfolded ? QStringLiteral(" open") : QString(),
             htmlText(Diagnosis::tr("Period %1").arg(period.number)),
             htmlText(period.isOpen ? Diagnosis::tr("since %1").arg(from)
                                    : Diagnosis::tr("%1 to %2").arg(from, to)),
             htmlText(what.arg(cassetteText(device, period))),
             htmlElement("p",
                         linesText(logs, period.fromPosition, period.toPosition)
                             + QStringLiteral("; ")
                             + Diagnosis::tr("%n sessions", nullptr, period.sessions)),
             body);
}

QString sectionOf(const QStringList& logs, const CashDevice& device, int number)
{
    qint64 most = 0; // in a place, for bars of one scale
    bool hasCassette = false;
    for (const CashPeriod& period : device.periods) {
        for (const CashPile& pile : CashPile::of(device, period, false)) {
            most = qMax(most, pile.sum.max.value_or(pile.sum.min));
            hasCassette = hasCassette || pile.place == CashPlace::Cassette;
        }
    }
    QString html = QStringLiteral("<section>\n<h2 id=\"device%1\">%2 <span class=\"file\">%3"
                                  "</span></h2>\n")
                       .arg(QString::number(number), htmlText(device.name()),
                            htmlText(Diagnosis::tr("device %1, thread %2")
                                         .arg(device.now().device)
                                         .arg(device.now().thread)));
    if (hasCassette) {
        const QString name = Diagnosis::tr("What the cassette held");
        html += QStringLiteral("<div class=\"picture\" tabindex=\"0\" role=\"group\" "
                               "aria-label=\"%1\">\n%2</div>\n")
                    .arg(htmlText(name), cashCurve(device.periods));
        if (device.currencies.size() > 1) {
            html += htmlElement("p",
                                Diagnosis::tr("The curve adds up the face values of all "
                                              "currencies."));
        }
    }
    for (size_t i = device.periods.size(); i > 0; --i) {
        html += periodOf(logs, device, device.periods.at(i - 1), most,
                         i + unfoldedPeriods > device.periods.size());
    }
    return html + QStringLiteral("</section>\n");
}

QString placeText(const QStringList& logs, LogPlace place)
{
    const QString log = logs.value(LogPosition::log(place.line));
    place.line = LogPosition::line(place.line);
    return logs.size() == 1 ? place.place() : log + QStringLiteral(": ") + place.place();
}

QString contradictions(const CashAnswer& answer)
{
    QString items;
    for (const KioskCash& kiosk : answer.kiosks) {
        for (const Contradiction& found : kiosk.contradictions) {
            QVector<qint64> lines;
            for (const qint64 position : found.lines)
                lines += LogPosition::line(position);
            items +=
                QStringLiteral("<li><strong>%1</strong> <span class=\"file\">%2</span><br>%3 "
                               "<span class=\"file\">%4</span></li>\n")
                    .arg(htmlText(Contradiction::meaningOf(found.rule)),
                         htmlText(ofKiosk(kiosk, placeText(answer.logs, found))),
                         htmlText(found.sentence),
                         lines.size() > 1 ? htmlText(QStringLiteral("(%1)").arg(lineList(lines)))
                                          : QString());
        }
    }
    if (items.isEmpty())
        return {};
    return QStringLiteral("<section class=\"warning\" id=\"odd\">\n%1<ul>\n%2</ul>\n</section>\n")
        .arg(htmlElement("h3", Diagnosis::tr("What does not add up")), items);
}

QString counts(const CashAnswer& answer)
{
    const bool hasKiosks = std::any_of(answer.kiosks.begin(), answer.kiosks.end(),
                                       [](const KioskCash& k) { return !k.kiosk.isEmpty(); });
    const QStringList kiosks = hasKiosks ? QStringList(Diagnosis::tr("Kiosk")) : QStringList();
    WideTable table(QStringList{Diagnosis::tr("Place"), Diagnosis::tr("Value")} + kiosks
                    + QStringList{Diagnosis::tr("Device"), Diagnosis::tr("Period"),
                                  Diagnosis::tr("Expected"), Diagnosis::tr("Counted"),
                                  Diagnosis::tr("Difference")});
    QString reasons;
    bool any = false;
    for (const KioskCash& kiosk : answer.kiosks) {
        for (const CashDifference& difference : kiosk.differences) {
            const CashCount& count = difference.count;
            any = true;
            const QString value = QString::number(count.denomination);
            table.add(QStringList{difference.placeName(), value}
                      + (hasKiosks ? QStringList(kiosk.kiosk) : QStringList())
                      + QStringList{QString::number(count.device),
                                    QString::number(difference.period), difference.expected.text(),
                                    QString::number(count.count), difference.verdict()});
            if (difference.difference == 0)
                continue;
            QStringList texts;
            for (const CashDoubt::Example& example : difference.explanations)
                texts +=
                    placeText(answer.logs, example.place) + QStringLiteral(": ") + example.text;
            if (texts.isEmpty())
                texts += Diagnosis::tr("nothing in the logs");
            const QString what = Diagnosis::tr("%1, %2 of %3: %4. What can explain it:")
                                     .arg(difference.placeName(), Diagnosis::tr("pieces"), value,
                                          difference.verdict());
            reasons += htmlElement("p", ofKiosk(kiosk, what)) + htmlList(texts);
        }
    }
    if (!any)
        return {};
    return QStringLiteral("<section class=\"counts\" id=\"counted\">\n%1%2%3</section>\n")
        .arg(htmlElement("h2", Diagnosis::tr("What was counted")), table.html(), reasons);
}

// No filters were asked.
QString notesCard(const Summary& summary)
{
    QList<Summary::Row> rows = summary.rows();
    const QString refused = Diagnosis::tr(wordsOf(Outcome::Refused).total);
    rows.erase(std::remove_if(rows.begin(), rows.end(),
                              [&](const Summary::Row& total) { return total.what == refused; }),
               rows.end());
    return totalsCard(summary.sessions, rows);
}

QString anchored(const char* anchor, const QString& text)
{
    return QStringLiteral("<a href=\"#%1\">%2</a>").arg(QLatin1String(anchor), htmlText(text));
}

// What the sections at the end say, with links to them.
QString verdict(const CashAnswer& answer)
{
    int odd = 0;
    int counted = 0;
    int wrong = 0;
    int missing = 0;
    for (const KioskCash& kiosk : answer.kiosks) {
        odd += int(kiosk.contradictions.size());
        counted += int(kiosk.differences.size());
        missing += int(kiosk.notCounted.size());
        wrong += int(std::count_if(kiosk.differences.begin(), kiosk.differences.end(),
                                   [](const CashDifference& d) { return d.difference != 0; }));
    }
    const QString sound = counted == 0 ? Diagnosis::tr("Everything adds up.")
                                       : Diagnosis::tr("In the logs everything adds up.");
    QStringList texts{
        odd == 0 ? htmlText(sound)
                 : anchored("odd", Diagnosis::tr("%n things do not add up.", nullptr, odd))};
    if (counted > 0) {
        texts += anchored(
            "counted",
            wrong == 0 ? Diagnosis::tr("Everything that was counted is right.")
                       : Diagnosis::tr("Of %1 counts %2 are not right.").arg(counted).arg(wrong));
    }
    if (missing > 0)
        texts += htmlText(Diagnosis::tr("%n rows were not counted.", nullptr, missing));
    return QStringLiteral("<p class=\"verdict\">%1</p>\n").arg(texts.join(QLatin1Char(' ')));
}

QString legend()
{
    const auto item = [](const char* shape, const QString& text) {
        return QStringLiteral("<li><svg class=\"key\" aria-hidden=\"true\">%1</svg>%2</li>\n")
            .arg(QLatin1String(shape), htmlText(text));
    };
    return QStringLiteral("<section class=\"legend\">\n<ul>\n%1</ul>\n</section>\n")
        .arg(item(R"(<rect class="sure" width="100%" height="100%"/>)",
                  Diagnosis::tr("certain to be there"))
             + item(R"(<rect class="may" width="100%" height="100%"/>)",
                    Diagnosis::tr("may be there besides"))
             + item(R"(<path class="atleast" d="M2 6h14m-5-5l5 5-5 5"/>)",
                    Diagnosis::tr("at least so much; the log does not tell how much more"))
             + item(R"(<path class="outmark" d="M5 1h12l-6 9z"/>)",
                    Diagnosis::tr("the cassette is taken out, with so much")));
}

} // namespace

void writeCashPage(QIODevice& page, const CashAnswer& answer)
{
    const QString title = Diagnosis::tr("Where is the money?");
    const std::vector<CashDevice> devices = CashDevice::of(answer);
    writeText(page,
              pageHead(title, answer.logs,
                       QStringLiteral("<svg width=\"0\" height=\"0\" aria-hidden=\"true\"><defs>"
                                      "<pattern id=\"hatch\" width=\"6\" height=\"6\" "
                                      "patternUnits=\"userSpaceOnUse\" "
                                      "patternTransform=\"rotate(45)\"><path class=\"hatch\" "
                                      "d=\"M0 0H3V6H0z\"/></pattern></defs></svg>\n")));
    const QString notes = answer.notes.isEmpty()
        ? QString()
        : QStringLiteral("<section class=\"warning\">\n%1%2</section>\n")
              .arg(htmlElement("h3", Diagnosis::tr("How the logs were read")),
                   htmlList(answer.notes));
    writeText(
        page,
        QStringLiteral("<header>\n%1%6</header>\n<main>\n%2<div class=\"top\">\n%3%4</div>\n%5")
            .arg(htmlElement("h1", title), notes, nowCard(devices), notesCard(answer.summary),
                 legend(), verdict(answer))
            .toUtf8());
    int number = 0;
    for (const CashDevice& device : devices)
        writeText(page, sectionOf(answer.logs, device, ++number).toUtf8());
    writeText(page,
              (counts(answer) + contradictions(answer)).toUtf8() + "</main>\n</body>\n</html>\n");
}
