// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVariant>

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

    /// Reads an object: @p readMember(key) reads the value of each member. The key is valid until
    /// then.
    template <typename Read>
    bool readObject(Read readMember)
    {
        return readContainer(u'{', u'}',
                             [&] { return readString(m_key) && skip(u':') && readMember(m_key); });
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
        if (current() != character)
            return false;
        ++m_next;
        skipSpace();
        return true;
    }

    void skipSpace()
    {
        while (current() == u' ' || current() == u'\t' || current() == u'\n' || current() == u'\r')
            ++m_next;
    }

    bool readString(QString& string);
    QVariant readWord(); // a number, true, false or null

    const QChar* m_next; // never at the space between tokens
    const QChar* const m_end;
    int m_depth = 0;
    QString m_key;
};
