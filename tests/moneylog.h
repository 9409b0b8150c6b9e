// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "testtable.h"

/// The registry of a shorthand: "4/1+2" is 4 pieces and 1 reject in channel 1, 2 in channel 2.
inline QString moneyRegistry(const QString& counts, const QString& currency)
{
    QStringList rows;
    for (const QString& count : counts.split(QLatin1Char('+')))
        rows += R"({"device_id":7,"thread_id":2,"channel":%1,"bill_type":0,"currency":"%2",)"
                R"("denomination":%3,"count":%4,"rejected":%5})"_s.arg(rows.size() + 1)
                    .arg(currency)
                    .arg(rows.isEmpty() ? 100 : 500)
                    .arg(count.section(QLatin1Char('/'), 0, 0).toInt())
                    .arg(count.section(QLatin1Char('/'), 1).toInt());
    return R"("dispenser_registry":[%1])"_s.arg(rows.join(QLatin1Char(',')));
}

/// What a part of a word says: "a500" that a note of 500 is accepted, "#3" that channel 1 holds 3.
inline QString moneyFields(const QString& part, const QString& currency)
{
    static const QHash<char, QString> states{
        {'A', "accepting"_s},  {'d', "accepted"_s},  {'g', "stacking"_s}, {'k', "stacked"_s},
        {'t', "returning"_s},  {'b', "returned"_s},  {'r', "rejected"_s}, {'j', "jammed"_s},
        {'p', "dispensing"_s}, {'q', "dispensed"_s}, {'f', "floating"_s}, {'F', "floated"_s},
        {'e', "emptying"_s},   {'E', "emptied"_s}};
    static const QHash<char, QString> texts{
        {'s',
         R"("session":"start","state":"idling","session_sum":0,"stacker_present":true,"cash":77,)"_s},
        {'S', R"("session":"start","state":"idling")"_s},
        {'a', R"("state":"accepting","current_note":%1)"_s},
        {'i', R"("state":"idling","current_note":0)"_s},
        {'c', R"("state":"stacked","session_sum":%1)"_s},
        {'$', R"("session_sum":%1)"_s},
        {'-', R"("dispensed_sum":%1)"_s},
        {'o', R"("stacker_present":false)"_s},
        {'n', R"("stacker_present":true)"_s},
        {'x', R"("online":false)"_s},
        {'y', R"("online":true)"_s}};
    const char letter = part.at(0).toLatin1();
    if (letter == '#')
        return moneyRegistry(part.mid(1), currency);
    if (states.contains(letter))
        return R"("state":"%1")"_s.arg(states.value(letter));
    const QString text = texts.value(letter);
    if (letter == 's')
        return text + moneyRegistry("4"_s, currency);
    return text.contains("%1"_s) ? text.arg(part.mid(1)) : text;
}

/// A log of a recycler in the words of a shorthand, a line each: parts between commas, perhaps with
/// a minute, as "5=a500,$0". "C6" is a published state with that counter, "!" is bad, "+" goes on
/// with the kiosk of that name, "@" with the device of that number
/// or, without one, that no line names.
inline QString moneyLog(const QString& shorthand, const QString& currency = "XTS"_s)
{
    QString text;
    QString kiosk;
    QString device = "7"_s;
    for (const QString& word : shorthand.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
        if (word.startsWith(QLatin1Char('+'))) {
            kiosk = word.mid(1).replace("_"_s, " "_s).replace("\""_s, "\\\""_s);
            continue;
        }
        if (word.startsWith(QLatin1Char('@'))) {
            device = word.mid(1);
            continue;
        }
        const QString what = word.section(QLatin1Char('='), -1);
        QStringList fields;
        if (!device.isEmpty())
            fields += R"("device_id":%1,"thread_id":2)"_s.arg(device);
        for (const QString& part : what.split(QLatin1Char(',')))
            fields += moneyFields(part, currency);
        QString line = "{%1}"_s.arg(fields.join(QLatin1Char(',')));
        if (what.startsWith(QLatin1Char('C')))
            line =
                R"({"device_states":[{%1,"notes_inserted":%2}]})"_s.arg(fields.at(0), what.mid(1));
        if (what != word)
            line.insert(1, R"("time":"2026-01-01T10:%1:00Z",)"_s.arg(word.section("="_s, 0, 0)));
        if (!kiosk.isEmpty())
            line.insert(1, R"("kiosk":"%1",)"_s.arg(kiosk));
        text += line + QLatin1Char('\n');
    }
    return text;
}
