// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringView>
#include <QVariant>

#include <algorithm>
#include <array>
#include <cstring>

/// Finds keys by their index. They mostly come in ascending order: the one after the key that was
/// found last is tried first.
template <std::size_t Size>
class KeyOrder
{
public:
    explicit KeyOrder(const std::array<const QString*, Size>& keys)
    {
        for (std::size_t i = 0; i < Size; ++i)
            m_ascending[i] = i;
        std::sort(m_ascending.begin(), m_ascending.end(),
                  [&keys](std::size_t a, std::size_t b) { return *keys[a] < *keys[b]; });
        std::transform(m_ascending.begin(), m_ascending.end(), m_texts.begin(),
                       [&keys](std::size_t i) { return QStringView(*keys[i]); });
    }

    /// The indexes of the keys in the order of their texts.
    const std::array<std::size_t, Size>& ascending() const { return m_ascending; }

    /// The key at a place in that order.
    QStringView at(std::size_t place) const { return m_texts[place]; }

    /// The index of a key, Size without one. @p likely is the place in that order where it is
    /// looked for first, and afterwards where the next key will be.
    std::size_t find(QStringView key, std::size_t& likely) const
    {
        for (std::size_t tried = 0; tried < Size; ++tried) {
            const std::size_t place = likely;
            likely = likely + 1 == Size ? 0 : likely + 1;
            if (isEqual(m_texts[place], key))
                return m_ascending[place];
        }
        return Size;
    }

private:
    static bool isEqual(QStringView a, QStringView b)
    {
        return a.size() == b.size()
            && (a.data() == b.data()
                || std::memcmp(a.data(), b.data(), std::size_t(a.size()) * sizeof(QChar)) == 0);
    }

    std::array<std::size_t, Size> m_ascending;
    std::array<QStringView, Size> m_texts; // of the constants, in that order
};

/// Reads JSON text without a document in between. It takes what Qt 5.15's parser takes, and means
/// the same by it. Of doubled keys the last one counts; Qt's parser leaks then, and does not say
/// which one counts. Every reading function returns false when the text is not as it must
/// be; the reader is then of no further use.
class JsonReader
{
public:
    /// @param text stays alive while the reader is used
    explicit JsonReader(const QString& text)
        : m_next(text.constBegin() + (text.startsWith(QChar(QChar::ByteOrderMark)) ? 1 : 0))
        , m_end(text.constEnd())
    {
        skipSpace();
    }

    /// The elements of a document that is an array; empty for any other text.
    static QVariantList readList(const QString& text);

    bool isAtObject() const { return current() == u'{'; }
    bool isAtArray() const { return current() == u'['; }
    bool isAtEnd() const { return m_next == m_end; }

    /// The text that is not read yet.
    QStringView rest() const { return {m_next, m_end}; }

    /// Passes over an object or array that was read before, if its text stands here again.
    bool skipText(QStringView text)
    {
        if (text.isEmpty() || !isAt(m_next, text))
            return false;
        m_next += text.size();
        skipSpace();
        return true;
    }

    /// Reads an object: @p readMember(key) reads the value of each member. The key is valid until
    /// then.
    template <typename Read>
    bool readObject(Read readMember)
    {
        QStringView key;
        return readContainer(u'{', u'}',
                             [&] { return readString(key) && skip(u':') && readMember(key); });
    }

    /// Reads an object of known keys: @p readMember(index, key) reads the value of each member. The
    /// key that is likely to come is compared with the text as it stands.
    /// The index is that of KeyOrder::find().
    template <std::size_t Size, typename Read>
    bool readObject(const KeyOrder<Size>& keys, Read readMember)
    {
        QStringView key;
        std::size_t likely = 0;
        return readContainer(u'{', u'}', [&] {
            key = keys.at(likely);
            if (!skipPlainString(key) && !readString(key))
                return false;
            return skip(u':') && readMember(keys.find(key, likely), key);
        });
    }

    /// Reads an array: @p readElement() reads each element.
    template <typename Read>
    bool readArray(Read readElement)
    {
        return readContainer(u'[', u']', readElement);
    }

    /// Reads any value as Qt's JSON classes convert it: integers as qlonglong, other numbers as
    /// double, null as nullptr. A text that @p value already holds is kept and stays shared.
    bool readValue(QVariant& value);

    /// Reads any value and drops it.
    bool skipValue();

    /// Reads a value in the plain form of its type. Any other is left where it is, for readValue():
    /// texts with escapes, numbers with a fraction or more than 18 digits. A text that @p text
    /// already holds is kept and stays shared.
    bool readPlain(bool& value);
    bool readPlain(qint64& number);
    bool readPlain(QString& text);
    bool readPlain(QStringView& text); // valid as long as the text that is read

private:
    template <typename Read>
    bool readContainer(ushort open, ushort close, Read readContent)
    {
        if (!skip(open) || ++m_depth > 1024) // as deep as Qt reads
            return false;
        bool isSound = current() == close || readContent();
        while (isSound && current() != close)
            isSound = skip(u',') && readContent();
        --m_depth;
        return isSound && skip(close);
    }

    ushort current() const { return isAtEnd() ? ushort(0) : m_next->unicode(); }

    bool skip(ushort character)
    {
        if (isAtEnd() || *m_next != QChar(character))
            return false;
        ++m_next;
        skipSpace();
        return true;
    }

    void skipSpace()
    {
        while (!isAtEnd() && isSpace(*m_next))
            ++m_next;
    }

    static bool isSpace(QChar c)
    {
        return c <= QChar(u' ') && (c == u' ' || c == u'\t' || c == u'\n' || c == u'\r');
    }

    // Whether a word may end before a place of the text.
    bool isWordEnd(const QChar* place) const
    {
        return place == m_end || *place <= QChar(u' ') || *place == QChar(u',')
            || *place == QChar(u']') || *place == QChar(u'}');
    }

    // Whether these characters stand at a place of the text.
    bool isAt(const QChar* place, QStringView text) const
    {
        return m_end - place >= text.size()
            && std::memcmp(place, text.data(), std::size_t(text.size()) * sizeof(QChar)) == 0;
    }

    bool skipPlainString(QStringView string)
    {
        if (m_end - m_next < string.size() + 2)
            return false;
        const QChar* const end = m_next + string.size() + 1;
        if (*m_next != QChar(u'"') || *end != QChar(u'"') || !isAt(m_next + 1, string))
            return false;
        m_next = end;
        return skip(u'"');
    }

    bool readString(QStringView& string); // valid until the next one is read
    QVariant readWord(); // a number, true, false or null

    const QChar* m_next; // never at the space between tokens
    const QChar* const m_end;
    int m_depth = 0;
    QString m_unusual; // the string that was not plain
};
