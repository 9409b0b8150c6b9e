#pragma once

#include <QString>
#include <QVariant>

/// Reads JSON text without a document in between. It takes what Qt 5.15's parser takes, and numbers
/// and escapes mean the same. Of doubled keys the last one counts; Qt's parser leaks then, and does
/// not say which one counts. Every reading function returns false when the text is not as it must
/// be; the reader is then of no further use.
class JsonReader
{
public:
    /// @param text stays alive while the reader is used
    explicit JsonReader(const QString& text);

    /// The document as variant maps and lists; invalid when it is none.
    static QVariant read(const QString& text);

    /// Reads a document, whose only value is an object or an array, with @p readContent.
    template <typename Read>
    bool readDocument(Read readContent)
    {
        skipSpace();
        if (!(isAtObject() || isAtArray()) || !readContent())
            return false;
        skipSpace();
        return m_next == m_end;
    }

    bool isAtObject() const { return current() == u'{'; }
    bool isAtArray() const { return current() == u'['; }

    /// Reads an object: @p readMember(key) reads the value of each member. The key is valid until
    /// the next key is read.
    template <typename Read>
    bool readObject(Read readMember)
    {
        return readContainer(u'{', u'}', [&] {
            if (!readString(m_key) || !skip(u':'))
                return false;
            skipSpace();
            return readMember(m_key);
        });
    }

    /// Reads an array: @p readElement() reads each element.
    template <typename Read>
    bool readArray(Read readElement)
    {
        return readContainer(u'[', u']', readElement);
    }

    /// Reads any value as Qt's JSON classes convert it: integers as qlonglong, other numbers as
    /// double, null as nullptr.
    bool readValue(QVariant& value);

    /// Reads any value and drops it.
    bool skipValue();

private:
    static constexpr int maximumDepth = 1024; // as Qt's

    template <typename Read>
    bool readContainer(ushort open, ushort close, Read readContent)
    {
        if (!skip(open) || ++m_depth > maximumDepth)
            return false;
        if (!skip(close)) {
            do {
                skipSpace();
                if (!readContent())
                    return false;
            } while (skip(u','));
            if (!skip(close))
                return false;
        }
        --m_depth;
        return true;
    }

    ushort current() const { return m_next == m_end ? ushort(0) : m_next->unicode(); }

    void skipSpace();
    bool skip(ushort character);
    bool readWord(QLatin1String word);
    bool readString(QString& string);
    bool readEscape(QString& string);
    bool readNumber(QVariant& value);

    const QChar* m_next;
    const QChar* const m_end;
    int m_depth = 0;
    QString m_key;
    QString m_dropped;
};
