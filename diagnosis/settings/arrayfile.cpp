// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settings/arrayfile.h"

#include "text/diagnosis.h"

#include <algorithm>

namespace {

// JSON's own white space.
bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

// What QJsonDocument makes of a value; it is slow with the many that are plain text.
QJsonValue parsed(const QByteArray& json)
{
    const bool isPlain = json.startsWith('"') && std::all_of(json.begin(), json.end(), [](char c) {
                             return c >= ' ' && c <= '~' && c != '\\';
                         });
    if (isPlain)
        return QString::fromLatin1(json.mid(1, json.size() - 2));
    return QJsonDocument::fromJson('[' + json + ']').array().at(0);
}

} // namespace

// What stands directly in the array or object that opens at @p open: the elements, or keys and
// values in turn. The text is known to be JSON.
QVector<ArrayFile::Span> ArrayFile::spansIn(const QByteArray& text, int open)
{
    QVector<Span> spans;
    Span span{-1, -1};
    int depth = 0;
    bool inString = false;
    for (int i = open; i < text.size(); ++i) {
        const char c = text.at(i);
        const bool closes = !inString && (c == ']' || c == '}');
        if (depth == 1 && !inString && (closes || c == ',' || c == ':')) {
            if (span.begin >= 0)
                spans += span;
            span = {-1, -1};
            if (closes)
                break;
            continue;
        }
        if (depth > 0 && (inString || !isSpace(c)))
            span = {span.begin < 0 ? i : span.begin, i + 1};
        if (inString && c == '\\')
            ++i;
        else if (c == '"')
            inString = !inString;
        else if (!inString && (c == '[' || c == '{'))
            ++depth;
        else if (closes)
            --depth;
    }
    return spans;
}

ArrayFile::ArrayFile(const TextInput& file, const QByteArray& text, const QString& contents)
    : m_name(file.name())
{
    if (!file.parseJson(text, 1).isArray())
        throw file.faultAt(1, Diagnosis::tr("expected a list of %1").arg(contents));
    setText(text);
}

void ArrayFile::setText(const QByteArray& text)
{
    m_text = text;
    m_spans = spansIn(text, int(text.indexOf('[')));
    m_values.clear();
    for (int i = 0; i < m_spans.size(); ++i)
        m_values += valueOf(textOf(i));
}

QStringList ArrayFile::keysOf(const QByteArray& object, const QVector<Span>& spans)
{
    QStringList keys;
    for (int i = 0; i < spans.size(); i += 2)
        keys +=
            parsed(object.mid(spans.at(i).begin, spans.at(i).end - spans.at(i).begin)).toString();
    return keys;
}

// Qt's JSON classes have numbers as double in part, which rounds.
QVariant ArrayFile::valueOf(const QByteArray& json)
{
    bool isWhole = false;
    const qint64 number = json.toLongLong(&isWhole);
    if (isWhole)
        return number;
    if (!json.startsWith('{'))
        return parsed(json).toVariant();
    QVariantMap map;
    const QVector<Span> spans = spansIn(json, 0);
    const QStringList keys = keysOf(json, spans);
    for (int i = 0; i < keys.size(); ++i) {
        const Span value = spans.at(2 * i + 1);
        map.insert(keys.at(i), valueOf(json.mid(value.begin, value.end - value.begin)));
    }
    return map;
}

bool ArrayFile::isDoubled(int index, const QString& key) const
{
    const QByteArray text = textOf(index);
    return text.startsWith('{') && keysOf(text, spansIn(text, 0)).count(key) > 1;
}

int ArrayFile::lineOf(int index) const
{
    const auto begin = m_text.constBegin();
    return 1 + int(std::count(begin, begin + m_spans.at(index).begin, '\n'));
}

QString ArrayFile::place(int index) const
{
    return QStringLiteral("%1:%2").arg(m_name, QString::number(lineOf(index)));
}

void ArrayFile::replace(Span span, const QByteArray& replacement)
{
    setText(m_text.left(span.begin) + replacement + m_text.mid(span.end));
}

QByteArray ArrayFile::withMember(QByteArray object, const Member& member)
{
    const QVector<Span> spans = spansIn(object, 0);
    const QStringList keys = keysOf(object, spans);
    // More than once, it may be: then all of them are set.
    for (int i = int(keys.size()) - 1; i >= 0; --i) {
        const Span old = spans.at(2 * i + 1);
        if (keys.at(i) == member.key)
            object.replace(old.begin, old.end - old.begin, member.value);
    }
    if (keys.contains(member.key))
        return object;
    const QByteArray added =
        (spans.isEmpty() ? "" : ", ") + JsonText(member.key) + ": " + member.value;
    return object.insert(spans.isEmpty() ? 1 : spans.constLast().end, added);
}

QByteArray ArrayFile::textOf(int index) const
{
    return m_text.mid(m_spans.at(index).begin, m_spans.at(index).end - m_spans.at(index).begin);
}

void ArrayFile::setMember(int index, const QString& key, const JsonText& value)
{
    setMembers({{index, {key, value}}});
}

void ArrayFile::setMembers(const QMap<int, Member>& members)
{
    QByteArray text;
    int end = 0; // of what is in the text already
    for (auto member = members.begin(); member != members.end(); ++member) {
        const Span span = m_spans.at(member.key());
        text += m_text.mid(end, span.begin - end) + withMember(textOf(member.key()), *member);
        end = span.end;
    }
    setText(text + m_text.mid(end));
}

QByteArray ArrayFile::gapBefore(int index) const
{
    const int begin = m_spans.at(index).begin;
    int gap = begin;
    while (gap > 0 && isSpace(m_text.at(gap - 1)))
        --gap;
    return m_text.mid(gap, begin - gap);
}

void ArrayFile::insert(int index, const QVector<Member>& element)
{
    QByteArray text;
    QStringList keys;
    for (const Member& member : element) {
        text += (text.isEmpty() ? '{' : ',') + JsonText(member.key) + ':' + member.value;
        keys += member.key;
    }
    text += '}';
    if (m_spans.isEmpty()) {
        const int inside = int(m_text.indexOf('[')) + 1;
        return replace({inside, inside}, text);
    }
    const int neighbour = std::max(index - 1, 0);
    keys.sort();
    if (m_values.at(neighbour).toMap().keys() == keys) {
        text = textOf(neighbour);
        for (const Member& member : element)
            text = withMember(text, member);
    }
    // One line further, without the blank lines that may stand before the neighbour.
    const QByteArray gap = gapBefore(neighbour);
    const int feed = int(gap.lastIndexOf('\n'));
    const bool hasReturn = feed > 0 && gap.at(feed - 1) == '\r';
    const QByteArray newGap = gap.mid(std::max(hasReturn ? feed - 1 : feed, 0));
    const int end = m_spans.at(neighbour).end;
    const int begin = m_spans.at(neighbour).begin;
    if (index > 0)
        replace({end, end}, ',' + newGap + text);
    else
        replace({begin, begin}, text + ',' + newGap);
}

void ArrayFile::remove(int index)
{
    const Span span = m_spans.at(index);
    const bool isLast = index + 1 == m_spans.size();
    // With one of the gaps around it: a blank line between blocks stays.
    const bool gapAfter =
        !isLast && (index == 0 || gapBefore(index + 1).size() <= gapBefore(index).size());
    if (gapAfter)
        replace({span.begin, m_spans.at(index + 1).begin}, {});
    else
        replace({index == 0 ? span.begin : m_spans.at(index - 1).end, span.end}, {});
}
