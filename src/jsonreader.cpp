#include "jsonreader_p.h"

#include <algorithm>
#include <iterator>

namespace {

bool isDigit(ushort c)
{
    return c >= u'0' && c <= u'9';
}

int hexDigit(ushort c)
{
    if (isDigit(c))
        return c - u'0';
    const ushort lower = c | 0x20;
    return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10 : -1;
}

} // namespace

JsonReader::JsonReader(const QString& text)
    : m_next(text.constData())
    , m_end(m_next + text.size())
{
    if (current() == QChar::ByteOrderMark)
        ++m_next;
}

QVariant JsonReader::read(const QString& text)
{
    JsonReader reader(text);
    QVariant value;
    return reader.readDocument([&] { return reader.readValue(value); }) ? value : QVariant();
}

bool JsonReader::readValue(QVariant& value)
{
    bool complete = false;
    switch (current()) {
    case u'{': {
        QVariantMap map;
        complete = readObject([&](const QString& key) { return readValue(map[key]); });
        value = map;
        return complete;
    }
    case u'[': {
        QVariantList list;
        complete = readArray([&] {
            list.append(QVariant());
            return readValue(list.last());
        });
        value = list;
        return complete;
    }
    case u'"': {
        QString string;
        complete = readString(string);
        value = string;
        return complete;
    }
    case u't':
        value = true;
        return readWord(QLatin1String("true"));
    case u'f':
        value = false;
        return readWord(QLatin1String("false"));
    case u'n':
        value = QVariant::fromValue(nullptr);
        return readWord(QLatin1String("null"));
    default:
        return readNumber(value);
    }
}

bool JsonReader::skipValue()
{
    if (isAtObject())
        return readObject([this](const QString&) { return skipValue(); });
    if (isAtArray())
        return readArray([this] { return skipValue(); });
    if (current() == u'"')
        return readString(m_dropped);
    QVariant dropped;
    return readValue(dropped);
}

void JsonReader::skipSpace()
{
    for (;; ++m_next) {
        const ushort c = current();
        if (c != u' ' && c != u'\t' && c != u'\n' && c != u'\r')
            return;
    }
}

bool JsonReader::skip(ushort character)
{
    skipSpace();
    if (current() != character)
        return false;
    ++m_next;
    return true;
}

bool JsonReader::readWord(QLatin1String word)
{
    for (const char c : word) {
        if (current() != uchar(c))
            return false;
        ++m_next;
    }
    return true;
}

bool JsonReader::readString(QString& string)
{
    if (!skip(u'"'))
        return false;
    const QChar* const begin = m_next;
    while (m_next != m_end && *m_next != u'"' && *m_next != u'\\' && !m_next->isSurrogate())
        ++m_next;
    string.setUnicode(begin, static_cast<int>(m_next - begin));
    bool hasEscapes = false;
    while (m_next != m_end && *m_next != u'"') {
        const QChar c = *m_next++;
        if (c == u'\\') {
            hasEscapes = true;
            if (!readEscape(string))
                return false;
        } else if (c.isHighSurrogate() && QChar::isLowSurrogate(current())) {
            string.append(c).append(*m_next++);
        } else {
            // Half a surrogate pair has no UTF-8 form, in which JSON text is thought to come.
            string.append(c.isSurrogate() ? QChar(u'?') : c);
        }
    }
    // Qt takes a byte order mark for one in a string, too, unless it looks at each character.
    if (!hasEscapes && string.startsWith(QChar(QChar::ByteOrderMark)))
        string.remove(0, 1);
    return skip(u'"');
}

bool JsonReader::readEscape(QString& string)
{
    if (m_next == m_end)
        return false;
    const QChar c = *m_next++;
    static constexpr char letters[] = "bfnrt";
    static constexpr char controls[] = "\b\f\n\r\t";
    const char* const letter =
        std::find(std::begin(letters), std::end(letters) - 1, c.unicode() < 0x80 ? c.cell() : 0);
    if (letter != std::end(letters) - 1) {
        string.append(QLatin1Char(controls[letter - letters]));
        return true;
    }
    if (c != u'u') {
        // Any other ASCII character stands for itself, as Qt reads it.
        const bool isPair = c.isHighSurrogate() && QChar::isLowSurrogate(current());
        if (c.unicode() >= 0x80 && (!c.isSurrogate() || isPair))
            return false;
        string.append(c.isSurrogate() ? QChar(u'?') : c);
        return true;
    }
    int unit = 0;
    for (int i = 0; i < 4; ++i, ++m_next) {
        const int digit = hexDigit(current());
        if (digit < 0)
            return false;
        unit = unit * 16 + digit;
    }
    string.append(QChar(unit));
    return true;
}

bool JsonReader::readNumber(QVariant& value)
{
    const QChar* const begin = m_next;
    const auto skipOneOf = [this](ushort a, ushort b) {
        const bool found = current() == a || current() == b;
        m_next += found ? 1 : 0;
        return found;
    };
    quint64 magnitude = 0;
    const auto skipDigits = [&] {
        for (; isDigit(current()); ++m_next)
            magnitude = magnitude * 10 + (m_next->unicode() - u'0');
    };

    const bool isNegative = skipOneOf(u'-', u'-');
    const QChar* const digits = m_next;
    if (!skipOneOf(u'0', u'0'))
        skipDigits();
    const auto digitCount = m_next - digits;
    const bool hasFraction = skipOneOf(u'.', u'.');
    if (hasFraction)
        skipDigits();
    const bool hasExponent = skipOneOf(u'e', u'E');
    if (hasExponent) {
        skipOneOf(u'+', u'-');
        skipDigits();
    }
    constexpr int safeDigits = 18;
    if (!hasFraction && !hasExponent && digitCount > 0 && digitCount <= safeDigits) {
        value = isNegative ? -qlonglong(magnitude) : qlonglong(magnitude);
        return true;
    }

    const QByteArray text = QString(begin, static_cast<int>(m_next - begin)).toLatin1();
    bool isNumber = false;
    if (!hasFraction && !hasExponent) {
        value = text.toLongLong(&isNumber);
        if (isNumber)
            return true;
    }
    const double number = text.toDouble(&isNumber);
    constexpr double limit = 9223372036854775808.0; // 2^63
    const bool isIntegral =
        number >= -limit && number < limit && double(qlonglong(number)) == number;
    value = isIntegral ? QVariant(qlonglong(number)) : QVariant(number);
    return isNumber;
}
