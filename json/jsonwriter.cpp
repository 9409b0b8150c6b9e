// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/jsonwriter.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>
#include <array>
#include <charconv>
#include <cstring>

namespace {

// As an escape; 0 when the character has none of a letter.
char escapeLetter(QChar c)
{
    switch (c.unicode()) {
    case u'"':
    case u'\\':
        return char(c.unicode());
    case u'\b':
        return 'b';
    case u'\f':
        return 'f';
    case u'\n':
        return 'n';
    case u'\r':
        return 'r';
    case u'\t':
        return 't';
    default:
        return 0;
    }
}

} // namespace

template <typename Char>
void BasicJsonWriter<Char>::writeKey(const QString& key)
{
    separate();
    *this << '"';
    appendRun(key.constBegin(), key.constEnd());
    *this << '"' << ':';
    m_needsComma = false;
}

template <typename Char>
void BasicJsonWriter<Char>::append(const QString& text)
{
    *this << '"';
    const QChar* const end = text.constEnd();
    const QChar* written = text.constBegin();
    for (const QChar* c = written; c != end; ++c) {
        const bool isPair = c->isHighSurrogate() && c + 1 != end && c[1].isLowSurrogate();
        const bool isPlain =
            isPair || (c->unicode() >= 0x20 && *c != u'"' && *c != u'\\' && !c->isSurrogate());
        if (!isPlain) {
            appendRun(written, c);
            appendEscape(*c);
            written = c + 1;
        }
        c += isPair ? 1 : 0;
    }
    appendRun(written, end);
    *this << '"';
}

template <typename Char>
void BasicJsonWriter<Char>::append(const QVariant& value)
{
    switch (value.userType()) {
    case QMetaType::Bool:
        return append(value.toBool());
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::LongLong:
        return append(value.toLongLong());
    case QMetaType::QString:
        return append(value.toString());
    case QMetaType::QVariantMap: {
        const QVariantMap map = value.toMap();
        char before = '{';
        for (auto member = map.begin(); member != map.end(); ++member, before = ',') {
            *this << before;
            append(member.key());
            *this << ':';
            append(member.value());
        }
        append(map.isEmpty() ? "{}" : "}");
        return;
    }
    case QMetaType::QVariantList: {
        const QVariantList list = value.toList();
        char before = '[';
        for (auto element = list.begin(); element != list.end(); ++element, before = ',') {
            *this << before;
            append(*element);
        }
        append(list.isEmpty() ? "[]" : "]");
        return;
    }
    default:
        // Reals, null and what is rare.
        const QByteArray array = QJsonDocument(QJsonArray{QJsonValue::fromVariant(value)})
                                     .toJson(QJsonDocument::Compact);
        *this << array.mid(1, array.size() - 2);
    }
}

template <typename Char>
void BasicJsonWriter<Char>::append(const char* ascii)
{
    appendAscii(ascii, int(std::strlen(ascii)));
}

template <typename Char>
void BasicJsonWriter<Char>::separate()
{
    if (m_needsComma)
        *this << ',';
    m_needsComma = true;
}

template <typename Char>
void BasicJsonWriter<Char>::begin(char bracket)
{
    separate();
    *this << bracket;
    m_needsComma = false;
}

template <typename Char>
void BasicJsonWriter<Char>::end(char bracket)
{
    *this << bracket;
    m_needsComma = true;
}

template <typename Char>
void BasicJsonWriter<Char>::appendNumber(qint64 number)
{
    std::array<char, 20> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    appendAscii(digits.data(), int(end - digits.data()));
}

template <typename Char>
void BasicJsonWriter<Char>::appendAscii(const char* begin, int size)
{
    const auto before = m_text.size();
    m_text.resize(before + size);
    std::transform(begin, begin + size, m_text.data() + before, asChar);
}

// Text without anything to escape.
template <typename Char>
void BasicJsonWriter<Char>::appendRun(const QChar* begin, const QChar* end)
{
    if constexpr (std::is_same_v<Char, QChar>) {
        m_text.append(begin, int(end - begin));
    } else if (std::all_of(begin, end, [](QChar c) { return c.unicode() < 0x80; })) {
        const auto before = m_text.size();
        m_text.resize(before + int(end - begin));
        std::transform(begin, end, m_text.data() + before, [](QChar c) { return c.toLatin1(); });
    } else {
        *this << QStringView(begin, end - begin).toUtf8();
    }
}

template <typename Char>
void BasicJsonWriter<Char>::appendEscape(QChar c)
{
    *this << '\\';
    if (const char letter = escapeLetter(c)) {
        *this << letter;
        return;
    }
    *this << 'u';
    for (int shift = 12; shift >= 0; shift -= 4)
        *this << "0123456789abcdef"[(c.unicode() >> shift) & 0xf];
}

template class BasicJsonWriter<QChar>;
template class BasicJsonWriter<char>;
