// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/jsonwriter.h"

namespace {

// As an escape; 0 when the character has none of a letter.
ushort escapeLetter(QChar c)
{
    switch (c.unicode()) {
    case u'"':
    case u'\\':
        return c.unicode();
    case u'\b':
        return u'b';
    case u'\f':
        return u'f';
    case u'\n':
        return u'n';
    case u'\r':
        return u'r';
    case u'\t':
        return u't';
    default:
        return 0;
    }
}

} // namespace

void JsonWriter::writeKey(const QString& key)
{
    separate();
    m_text.append(u'"');
    m_text.append(key.constData(), key.size());
    m_text.append(u'"');
    m_text.append(u':');
    m_needsComma = false;
}

void JsonWriter::write(bool value)
{
    separate();
    for (const char c : QLatin1String(value ? "true" : "false"))
        m_text.append(QLatin1Char(c));
}

void JsonWriter::write(qint64 value)
{
    separate();
    QChar digits[20];
    QChar* const end = digits + 20;
    QChar* begin = end;
    quint64 rest = value < 0 ? 0 - quint64(value) : quint64(value);
    do {
        *--begin = QChar(ushort(u'0' + rest % 10));
        rest /= 10;
    } while (rest != 0);
    if (value < 0)
        *--begin = u'-';
    m_text.append(begin, static_cast<int>(end - begin));
}

void JsonWriter::write(const QString& value)
{
    separate();
    m_text.append(u'"');
    const QChar* const end = value.constEnd();
    const QChar* written = value.constBegin();
    for (const QChar* c = written; c != end; ++c) {
        const bool isPair = c->isHighSurrogate() && c + 1 != end && c[1].isLowSurrogate();
        const bool isPlain =
            isPair || (c->unicode() >= 0x20 && *c != u'"' && *c != u'\\' && !c->isSurrogate());
        if (!isPlain) {
            m_text.append(written, static_cast<int>(c - written));
            writeEscape(*c);
            written = c + 1;
        }
        c += isPair ? 1 : 0;
    }
    m_text.append(written, static_cast<int>(end - written));
    m_text.append(u'"');
}

void JsonWriter::separate()
{
    if (m_needsComma)
        m_text.append(u',');
    m_needsComma = true;
}

void JsonWriter::begin(QChar bracket)
{
    separate();
    m_text.append(bracket);
    m_needsComma = false;
}

void JsonWriter::end(QChar bracket)
{
    m_text.append(bracket);
    m_needsComma = true;
}

void JsonWriter::writeEscape(QChar c)
{
    m_text.append(u'\\');
    if (const ushort letter = escapeLetter(c)) {
        m_text.append(letter);
        return;
    }
    m_text.append(u'u');
    for (int shift = 12; shift >= 0; shift -= 4)
        m_text.append(QLatin1Char("0123456789abcdef"[(c.unicode() >> shift) & 0xf]));
}
