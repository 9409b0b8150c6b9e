// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashcount.h"

#include "text/diagnosis.h"
#include "text/textinput.h"

#include <QJsonArray>
#include <QJsonObject>
#include <QStringList>

#include <algorithm>
#include <array>
#include <limits>

namespace {

constexpr std::array<const char*, cashPlaceCount> placeKeys{"cassette", "channel", "reject"};

qint64 wholeNumber(const QString& text, qint64 most)
{
    bool isNumber = false;
    const qint64 number = text.toLongLong(&isNumber);
    if (!isNumber || number < 0 || number > most)
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
         const auto* const found =
             std::find(placeKeys.begin(), placeKeys.end(), text.toLower().toStdString());
         if (found == placeKeys.end())
             throw Fault{Diagnosis::tr("expected cassette, channel or reject")};
         count.place = CashPlace(found - placeKeys.begin());
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
        if (count > 1 || (column.isNeeded && count == 0))
            throw Fault{(count > 1 ? Diagnosis::tr("column \"%1\" stands twice")
                                   : Diagnosis::tr("column \"%1\" is missing"))
                            .arg(QLatin1String(column.name))};
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
    for (int i = 0; i < lines.size(); ++i) {
        const QString line = lines.at(i).trimmed();
        if (line.isEmpty())
            continue;
        try {
            if (names.isEmpty()) {
                separator = line.contains(QLatin1Char(';')) ? QLatin1Char(';')
                    : line.contains(QLatin1Char('\t'))      ? QLatin1Char('\t')
                                                            : QLatin1Char(',');
                const QStringList head = cellsOf(line, separator);
                for (const QString& name : head)
                    names += QLatin1String(columnOf(name.trimmed().toLower()).name);
                requireColumns(names);
                continue;
            }
            const QStringList values = cellsOf(lines.at(i), separator);
            if (values.size() != names.size())
                throw Fault{Diagnosis::tr("expected %1 cells as in the header, not %2")
                                .arg(names.size())
                                .arg(values.size())};
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

const CashPeriod& periodOf(const CashCount& count, const std::vector<CashPeriod>& periods)
{
    const CashPeriod* found = nullptr;
    bool isOther = false; // one of another thread fits as well
    for (const CashPeriod& period : periods) {
        if (period.device != count.device || (count.thread && period.thread != *count.thread)
            || (count.period && period.number != *count.period))
            continue;
        isOther = isOther || (found && found->thread != period.thread);
        if (!found || !period.isOpen)
            found = &period;
    }
    if (!found)
        throw Fault{Diagnosis::tr("the logs have no such device or period")};
    if (isOther)
        throw Fault{Diagnosis::tr("several threads drive the device: say which in a column "
                                  "\"thread\"")};
    return *found;
}

bool isOf(const CashRow& row, const CashCount& count)
{
    return row.place == count.place && row.kind.denomination == count.denomination
        && (count.place != CashPlace::Channel || !count.channel || row.channel == *count.channel)
        && (count.currency.isEmpty() || row.kind.currency.isEmpty()
            || row.kind.currency == count.currency);
}

// How likely it is that a contradiction explains a difference, 0 being the likeliest; none when it
// does not.
std::optional<int> rankOf(const Contradiction& found, const CashCount& count, bool isShort)
{
    const bool isOfKind = found.note == count.denomination;
    switch (found.rule) {
    case Rule::NotCredited:
        return isShort && isOfKind ? std::optional<int>(0) : std::nullopt;
    case Rule::CreditedNotTaken:
        return !isShort && isOfKind ? std::optional<int>(0) : std::nullopt;
    case Rule::CreditDiffers:
        return isOfKind ? 1 : 3;
    case Rule::CounterJump:
    case Rule::CreditWithoutNote:
        return isShort ? std::nullopt : std::optional<int>(2);
    case Rule::PayoutDiffers:
    case Rule::PayoutUnfinished:
    case Rule::RegistryChanged:
        return count.place == CashPlace::Cassette ? 4 : 0;
    case Rule::CreditFell:
        break;
    }
    return {};
}

} // namespace

QString placeKey(CashPlace place)
{
    return QLatin1String(placeKeys.at(size_t(place)));
}

QString CashDifference::placeName() const
{
    CashRow row;
    row.place = count.place;
    row.channel = channel.value_or(0);
    return row.placeName();
}

QString CashDifference::verdict() const
{
    if (difference == 0)
        return Diagnosis::tr("right");
    return difference < 0 ? Diagnosis::tr("%1 short").arg(-difference)
                          : Diagnosis::tr("%1 over").arg(difference);
}

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

CashDifference compareCount(const CashCount& count, const std::vector<CashPeriod>& periods)
{
    const CashPeriod& period = periodOf(count, periods);
    CashDifference answer{count, period.thread, count.channel, period.number, {}, 0, {}};
    const auto found = std::find_if(period.rows.begin(), period.rows.end(),
                                    [&](const CashRow& row) { return isOf(row, count); });
    if (found != period.rows.end()) {
        answer.expected = found->now;
        if (count.place == CashPlace::Channel)
            answer.channel = found->channel;
        if (std::any_of(found + 1, period.rows.end(),
                        [&](const CashRow& row) { return isOf(row, count); }))
            throw Fault{Diagnosis::tr("several rows fit: say which in a column \"channel\" or "
                                      "\"currency\"")};
    } else if (count.place != CashPlace::Cassette) {
        throw Fault{Diagnosis::tr("the device has no such place")};
    } else {
        answer.expected = period.unseen;
    }
    if (count.count < answer.expected.min)
        answer.difference = count.count - answer.expected.min;
    else if (answer.expected.max && count.count > *answer.expected.max)
        answer.difference = count.count - *answer.expected.max;
    if (answer.difference == 0)
        return answer;
    std::vector<std::pair<int, CashDoubt::Example>> reasons;
    for (const Contradiction& contradiction : period.contradictions) {
        if (const auto rank = rankOf(contradiction, count, answer.difference < 0))
            reasons.push_back({*rank, {contradiction, contradiction.sentence}});
    }
    for (const CashDoubt& doubt : period.doubts) {
        if (!doubt.isAbout(count.place, answer.channel.value_or(0), count.denomination))
            continue;
        for (const CashDoubt::Example& example : doubt.examples)
            reasons.push_back({doubt.denomination == 0 ? 3 : 1, example});
    }
    std::stable_sort(reasons.begin(), reasons.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    for (auto& reason : reasons)
        answer.explanations.push_back(std::move(reason.second));
    return answer;
}
