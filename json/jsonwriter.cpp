// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "json/jsonwriter.h"

#include <algorithm>
#include <array>
#include <charconv>

namespace {

constexpr struct
{
    char16_t character;
    char letter; // of its escape
} escapes[] = {{u'"', '"'},  {u'\\', '\\'}, {u'\b', 'b'}, {u'\f', 'f'},
               {u'\n', 'n'}, {u'\r', 'r'},  {u'\t', 't'}};

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
void BasicJsonWriter<Char>::appendNumber(qint64 number)
{
    std::array<char, 20> digits{};
    const char* const end = std::to_chars(digits.data(), digits.data() + digits.size(), number).ptr;
    appendBytes(digits.data(), int(end - digits.data()));
}

template <typename Char>
void BasicJsonWriter<Char>::appendBytes(const char* begin, int size)
{
    if constexpr (std::is_same_v<Char, char>) {
        m_text.append(begin, size);
    } else {
        const auto before = m_text.size();
        m_text.resize(before + size);
        std::transform(begin, begin + size, m_text.data() + before, asChar);
    }
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
        append(QStringView(begin, end - begin).toUtf8());
    }
}

template <typename Char>
void BasicJsonWriter<Char>::appendEscape(QChar c)
{
    *this << '\\';
    for (const auto& escape : escapes) {
        if (escape.character == c.unicode()) {
            *this << escape.letter;
            return;
        }
    }
    *this << 'u';
    for (int shift = 12; shift >= 0; shift -= 4)
        *this << "0123456789abcdef"[(c.unicode() >> shift) & 0xf];
}

template class BasicJsonWriter<QChar>;
template class BasicJsonWriter<char>;
