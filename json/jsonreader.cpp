// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/jsonreader.h"

#include <QJsonArray>
#include <QJsonDocument>

namespace {

// A string, number or word as Qt has it; invalid when it is none. Qt knows best what the unusual
// ones mean: escapes, halves of surrogate pairs, byte order marks, fractions.
QVariant valueByQt(QStringView text)
{
    const QByteArray array = '[' + text.toUtf8() + ']';
    return QJsonDocument::fromJson(array).array().at(0).toVariant();
}

} // namespace

QVariantList JsonReader::readList(const QString& text)
{
    JsonReader reader(text);
    QVariant value;
    return reader.isAtArray() && reader.readValue(value) && reader.isAtEnd() ? value.toList()
                                                                             : QVariantList();
}

bool JsonReader::readValue(QVariant& value)
{
    if (isAtObject()) {
        value = QVariantMap();
        auto& map = *static_cast<QVariantMap*>(value.data());
        return readObject([&](QStringView key) { return readValue(map[key.toString()]); });
    }
    if (isAtArray()) {
        value = QVariantList();
        auto& list = *static_cast<QVariantList*>(value.data());
        return readArray([&] {
            list.append(QVariant());
            return readValue(list.last());
        });
    }
    if (current() == u'"') {
        QStringView string;
        if (!readString(string))
            return false;
        const bool isHeld = value.userType() == QMetaType::QString
            && *static_cast<const QString*>(value.constData()) == string;
        if (!isHeld)
            value = string.toString();
        return true;
    }
    value = readWord();
    return value.isValid();
}

bool JsonReader::skipValue()
{
    if (isAtObject())
        return readObject([this](QStringView) { return skipValue(); });
    if (isAtArray())
        return readArray([this] { return skipValue(); });
    QStringView string;
    qint64 number = 0;
    if (current() == u'"')
        return readString(string);
    return readPlain(number) || readWord().isValid();
}

bool JsonReader::readPlain(bool& value)
{
    for (const QStringView word : {QStringView(u"true"), QStringView(u"false")}) {
        if (isAt(m_next, word) && isWordEnd(m_next + word.size())) {
            value = word.size() == 4;
            m_next += word.size();
            skipSpace();
            return true;
        }
    }
    return false;
}

bool JsonReader::readPlain(qint64& number)
{
    const bool isNegative = current() == u'-';
    const QChar* const digits = m_next + (isNegative ? 1 : 0);
    const QChar* next = digits;
    qint64 read = 0;
    for (; next != m_end && *next >= QChar(u'0') && *next <= QChar(u'9') && next - digits < 18;
         ++next)
        read = read * 10 + next->unicode() - u'0';
    if (next == digits || !isWordEnd(next) || (*digits == QChar(u'0') && next - digits > 1))
        return false;
    number = isNegative ? -read : read;
    m_next = next;
    skipSpace();
    return true;
}

bool JsonReader::readPlain(QString& text)
{
    QStringView string;
    if (!readPlain(string))
        return false;
    if (text.isNull() || text != string)
        text = string.toString();
    return true;
}

bool JsonReader::readPlain(QStringView& string)
{
    if (current() != u'"')
        return false;
    // Most characters stand between the backslash and the surrogates: one comparison tells.
    const auto isPlain = [](QChar c) {
        return uint(c.unicode()) - 0x5d < 0xd800 - 0x5d
            || (c != u'"' && c != u'\\' && !c.isSurrogate());
    };
    const QChar* const begin = m_next + 1;
    const QChar* end = begin;
    while (end != m_end && isPlain(*end))
        ++end;
    if (end == m_end || *end != QChar(u'"') || *begin == QChar(QChar::ByteOrderMark))
        return false;
    string = {begin, end};
    m_next = end;
    return skip(u'"');
}

bool JsonReader::readString(QStringView& string)
{
    if (readPlain(string))
        return true;
    if (current() != u'"')
        return false;
    const QChar* const begin = m_next++;
    for (; current() != u'"'; ++m_next) { // to the quote; an escaped one is stepped over
        if (isAtEnd() || (*m_next == u'\\' && ++m_next == m_end))
            return false;
    }
    const QVariant value = valueByQt({begin, ++m_next});
    skipSpace();
    m_unusual = value.toString();
    string = m_unusual;
    return value.isValid();
}

QVariant JsonReader::readWord()
{
    qint64 number = 0;
    if (readPlain(number))
        return number;
    bool isTrue = false;
    if (readPlain(isTrue))
        return isTrue;
    const QChar* const begin = m_next;
    while (!isWordEnd(m_next))
        ++m_next;
    const QStringView word(begin, m_next);
    skipSpace();
    return valueByQt(word);
}
