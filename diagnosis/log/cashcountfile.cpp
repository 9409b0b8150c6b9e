// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashcount.h"
#include "text/diagnosis.h"
#include "text/textinput.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QRegularExpression>
#include <QStringList>

#include <algorithm>
#include <limits>

namespace {

// As a spreadsheet writes it: perhaps with blanks between thousands and with empty decimals.
qint64 wholeNumber(const QString& text, qint64 most)
{
    static const QRegularExpression form(
        QStringLiteral("^(\\d+|\\d{1,3}(?:[ \u00a0\u2009\u202f]\\d{3})+)(?:[.,]0{1,2})?$"));
    static const QRegularExpression thousands(QStringLiteral("^\\d{1,3}([.,]\\d{3})+$"));
    if (thousands.match(text).hasMatch()) {
        throw Fault{Diagnosis::tr("%1 may be thousands or a decimal: expected a whole number "
                                  "without a comma or point")
                        .arg(text)};
    }
    QString digits = form.match(text).captured(1);
    digits.remove(QRegularExpression(QStringLiteral("\\D")));
    bool isNumber = false;
    const qint64 number = digits.toLongLong(&isNumber);
    if (!isNumber || number > most)
        throw Fault{Diagnosis::tr("expected a whole number from %1 to %2").arg(0).arg(most)};
    return number;
}

constexpr qint64 mostInt = std::numeric_limits<int>::max();
constexpr qint64 mostId = std::numeric_limits<quint32>::max();

// What a file may say of a count.
struct Column
{
    const char* name;
    bool isNeeded;
    void (*read)(CashCount& count, const QString& text);
};

constexpr Column columns[] = {
    {"kiosk", false, [](CashCount& count, const QString& text) { count.kiosk = text; }},
    {"device", true,
     [](CashCount& count, const QString& text) {
         count.device = quint32(wholeNumber(text, mostId));
     }},
    {"thread", false,
     [](CashCount& count, const QString& text) {
         count.thread = quint32(wholeNumber(text, mostId));
     }},
    {"place", true,
     [](CashCount& count, const QString& text) {
         int place = 0;
         while (place < cashPlaceCount && placeKey(CashPlace(place)) != text.toLower())
             ++place;
         if (place == cashPlaceCount)
             throw Fault{Diagnosis::tr("expected cassette, channel or reject")};
         count.place = CashPlace(place);
     }},
    {"channel", false,
     [](CashCount& count, const QString& text) {
         count.channel = int(wholeNumber(text, mostInt));
     }},
    {"denomination", true,
     [](CashCount& count, const QString& text) {
         count.denomination = int(wholeNumber(text, mostInt));
     }},
    {"currency", false, [](CashCount& count, const QString& text) { count.currency = text; }},
    {"period", false,
     [](CashCount& count, const QString& text) { count.period = int(wholeNumber(text, mostInt)); }},
    {"count", true,
     [](CashCount& count, const QString& text) { count.count = wholeNumber(text, mostInt); }},
};

const Column& columnOf(const QString& name)
{
    const auto* const found =
        std::find_if(std::begin(columns), std::end(columns),
                     [&](const Column& column) { return name == QLatin1String(column.name); });
    if (found == std::end(columns))
        throw Fault{Diagnosis::tr("unknown column \"%1\"").arg(name)};
    return *found;
}

void requireColumns(const QStringList& names)
{
    for (const Column& column : columns) {
        const auto count = names.count(QLatin1String(column.name));
        if (count > 1 || (column.isNeeded && count == 0)) {
            throw Fault{(count > 1 ? Diagnosis::tr("column \"%1\" stands twice")
                                   : Diagnosis::tr("column \"%1\" is missing"))
                            .arg(QLatin1String(column.name))};
        }
    }
}

CashCount countOf(const QStringList& names, const QStringList& values)
{
    CashCount count;
    for (int i = 0; i < names.size(); ++i) {
        const Column& column = columnOf(names.at(i));
        const QString value = values.at(i).trimmed();
        if (value.isEmpty() && !column.isNeeded)
            continue;
        try {
            column.read(count, value);
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("\"%1\": %2").arg(names.at(i), fault.message)};
        }
    }
    return count;
}

// The cells of a line; one in quotation marks may have the separator and doubled marks in it.
QStringList cellsOf(const QString& line, QChar separator)
{
    QStringList cells{QString()};
    bool isQuoted = false;
    for (int i = 0; i < line.size(); ++i) {
        const QChar c = line.at(i);
        if (c == QLatin1Char('"') && isQuoted && line.mid(i + 1, 1) == QLatin1String("\""))
            cells.last() += line.at(++i);
        else if (c == QLatin1Char('"'))
            isQuoted = !isQuoted;
        else if (c == separator && !isQuoted)
            cells += QString();
        else
            cells.last() += c;
    }
    if (isQuoted)
        throw Fault{Diagnosis::tr("a quotation mark is not closed")};
    return cells;
}

std::vector<CashCount> readTable(const TextInput& file, const QStringList& lines)
{
    std::vector<CashCount> counts;
    QStringList names;
    QChar separator;
    static const QRegularExpression separatorLine(QStringLiteral("^\"?sep=(.)\"?\r?$"),
                                                  QRegularExpression::CaseInsensitiveOption);
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty())
            continue;
        const auto saysSeparator = separatorLine.match(lines.at(i));
        if (names.isEmpty() && separator.isNull() && saysSeparator.hasMatch()) {
            separator = saysSeparator.captured(1).at(0);
            continue;
        }
        try {
            if (names.isEmpty()) {
                separator = !separator.isNull()        ? separator
                    : line.contains(QLatin1Char(';'))  ? QLatin1Char(';')
                    : line.contains(QLatin1Char('\t')) ? QLatin1Char('\t')
                                                       : QLatin1Char(',');
                const QStringList head = cellsOf(line, separator);
                for (const QString& name : head)
                    names += QLatin1String(columnOf(name.trimmed().toLower()).name);
                requireColumns(names);
                continue;
            }
            const QStringList values = cellsOf(lines.at(i), separator);
            if (std::all_of(values.begin(), values.end(),
                            [](const QString& value) { return value.trimmed().isEmpty(); }))
                continue;
            if (values.size() != names.size()) {
                throw Fault{Diagnosis::tr("expected %1 cells as in the header, not %2")
                                .arg(names.size())
                                .arg(values.size())};
            }
            counts.push_back(countOf(names, values));
            counts.back().where = QStringLiteral("%1:%2").arg(file.name()).arg(i + 1);
        } catch (const Fault& fault) {
            throw file.faultAt(i + 1, fault.message);
        }
    }
    return counts;
}

std::vector<CashCount> readList(const TextInput& file, const QByteArray& text)
{
    const QJsonDocument document = file.parseJson(text, 1);
    if (!document.isArray())
        throw Fault{QStringLiteral("%1: %2").arg(file.name(), Diagnosis::tr("expected a list"))};
    std::vector<CashCount> counts;
    const QJsonArray list = document.array();
    for (const QJsonValue& element : list) {
        const QString where =
            Diagnosis::tr("%1: element %2").arg(file.name()).arg(counts.size() + 1);
        try {
            if (!element.isObject())
                throw Fault{Diagnosis::tr("expected a JSON object")};
            const QJsonObject object = element.toObject();
            QStringList values;
            for (const QJsonValue& value : object) {
                if (value.isBool() || value.isArray() || value.isObject())
                    throw Fault{Diagnosis::tr("expected texts and numbers")};
                values += value.isDouble() ? QString::number(value.toDouble(), 'g', 17)
                                           : value.toString();
            }
            requireColumns(object.keys());
            counts.push_back(countOf(object.keys(), values));
            counts.back().where = where;
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("%1: %2").arg(where, fault.message)};
        }
    }
    return counts;
}

} // namespace

std::vector<CashCount> readCashCounts(TextInput& file)
{
    const QByteArray bytes = file.readAll();
    const QByteArray start = bytes.trimmed();
    std::vector<CashCount> counts;
    if (start.startsWith('[') || start.startsWith('{')) {
        counts = readList(file, bytes);
    } else {
        QString text;
        try {
            text = decoded(bytes);
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("%1: %2").arg(file.name(), fault.message)};
        }
        if (text.startsWith(QChar(QChar::ByteOrderMark)))
            text.remove(0, 1);
        counts = readTable(file, text.split(QLatin1Char('\n')));
    }
    if (counts.empty())
        throw Fault{QStringLiteral("%1: %2").arg(file.name(), Diagnosis::tr("nothing is counted"))};
    return counts;
}
