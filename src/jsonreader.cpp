// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "jsonreader_p.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

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
        return readObject([&](const QString& key) { return readValue(map[key]); });
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
        if (!readString(m_key))
            return false;
        const bool isHeld = value.userType() == QMetaType::QString
            && *static_cast<const QString*>(value.constData()) == m_key;
        if (!isHeld)
            value = QString(m_key.constData(), m_key.size());
        return true;
    }
    value = readWord();
    return value.isValid();
}

bool JsonReader::skipValue()
{
    if (isAtObject())
        return readObject([this](const QString&) { return skipValue(); });
    if (isAtArray())
        return readArray([this] { return skipValue(); });
    return current() == u'"' ? readString(m_key) : readWord().isValid();
}

bool JsonReader::readString(QString& string)
{
    if (current() != u'"')
        return false;
    const QChar* const begin = ++m_next;
    const auto isPlain = [](QChar c) { return c != u'"' && c != u'\\' && !c.isSurrogate(); };
    m_next = std::find_if_not(begin, m_end, isPlain);
    if (current() == u'"' && *begin != QChar(QChar::ByteOrderMark)) {
        string.setUnicode(begin, static_cast<int>(m_next - begin));
        return skip(u'"');
    }
    for (; current() != u'"'; ++m_next) { // to the quote; an escaped one is stepped over
        if (isAtEnd() || (*m_next == u'\\' && ++m_next == m_end))
            return false;
    }
    const QVariant value = valueByQt({begin - 1, ++m_next});
    skipSpace();
    string = value.toString();
    return value.isValid();
}

QVariant JsonReader::readWord()
{
    const QChar* const begin = m_next;
    while (current() > u' ' && current() != u',' && current() != u']' && current() != u'}')
        ++m_next;
    const QStringView word(begin, m_next);
    skipSpace();
    if (word == QLatin1String("true") || word == QLatin1String("false"))
        return word.size() == 4;

    const QStringView digits = word.mid(word.startsWith(u'-') ? 1 : 0);
    bool isPlain = digits.size() == 1 || (digits.size() <= 18 && !digits.startsWith(u'0'));
    quint64 number = 0;
    for (const QChar digit : digits) {
        isPlain = isPlain && digit >= u'0' && digit <= u'9';
        number = number * 10 + digit.unicode() - u'0';
    }
    if (!isPlain || digits.isEmpty())
        return valueByQt(word);
    return digits.size() < word.size() ? -qlonglong(number) : qlonglong(number);
}
