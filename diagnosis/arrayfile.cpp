// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "arrayfile.h"

#include "words.h"

#include <QJsonObject>

#include <algorithm>

namespace {

// JSON's own white space.
bool isSpace(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

QByteArray toText(const QJsonValue& value)
{
    return QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact).chopped(1).mid(1);
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

ArrayFile::ArrayFile(TextInput& file, const QString& contents)
    : m_name(file.name())
{
    const QByteArray text = file.readAll();
    if (!file.parseJson(text, 1).isArray())
        throw file.faultAt(1, Diagnosis::tr("expected a list of %1").arg(contents));
    setText(text);
}

void ArrayFile::setText(const QByteArray& text)
{
    m_text = text;
    m_elements = QJsonDocument::fromJson(text).array();
    m_spans = spansIn(text, int(text.indexOf('[')));
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

QByteArray ArrayFile::withMember(QByteArray object, const QString& key, const QJsonValue& value)
{
    const QVector<Span> spans = spansIn(object, 0);
    bool isFound = false; // more than once, it may be: then all of them are set
    for (int i = int(spans.size()) - 2; i >= 0; i -= 2) {
        const QByteArray name = object.mid(spans.at(i).begin, spans.at(i).end - spans.at(i).begin);
        if (QJsonDocument::fromJson('[' + name + ']').array().at(0) != key)
            continue;
        const Span old = spans.at(i + 1);
        object.replace(old.begin, old.end - old.begin, toText(value));
        isFound = true;
    }
    if (isFound)
        return object;
    const QByteArray member = (spans.isEmpty() ? "" : ", ") + toText(key) + ": " + toText(value);
    return object.insert(spans.isEmpty() ? 1 : spans.constLast().end, member);
}

QByteArray ArrayFile::textOf(int index) const
{
    return m_text.mid(m_spans.at(index).begin, m_spans.at(index).end - m_spans.at(index).begin);
}

void ArrayFile::setMember(int index, const QString& key, const QJsonValue& value)
{
    replace(m_spans.at(index), withMember(textOf(index), key, value));
}

QByteArray ArrayFile::gapBefore(int index) const
{
    const int begin = m_spans.at(index).begin;
    int gap = begin;
    while (gap > 0 && isSpace(m_text.at(gap - 1)))
        --gap;
    return m_text.mid(gap, begin - gap);
}

void ArrayFile::insert(int index, const QJsonObject& element)
{
    if (m_spans.isEmpty()) {
        const int inside = int(m_text.indexOf('[')) + 1;
        return replace({inside, inside}, toText(element));
    }
    const int neighbour = std::max(index - 1, 0);
    QByteArray text = toText(element);
    const QJsonObject like = m_elements.at(neighbour).toObject();
    if (like.keys() == element.keys()) {
        text = textOf(neighbour);
        for (auto member = element.begin(); member != element.end(); ++member)
            text = withMember(text, member.key(), member.value());
    }
    // One line further, without the blank lines that may stand before the neighbour.
    const QByteArray gap = gapBefore(neighbour);
    const QByteArray newGap = gap.mid(std::max(gap.lastIndexOf('\n'), decltype(gap.size())(0)));
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
