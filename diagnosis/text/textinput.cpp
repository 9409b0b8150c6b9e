// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/textinput.h"

#include "text/diagnosis.h"
#include "text/gzip.h"

#include <QFileDevice>
#include <QJsonParseError>

#include <cerrno>
#include <cstring>
#include <unistd.h>

namespace {

constexpr int chunkSize = 64 * 1024;
constexpr int mostText = 256 * 1024 * 1024;
constexpr int mostBlankLines = 1000000;

int readDevice(QIODevice& device, char* data, int size)
{
    qint64 count = 0;
    const auto* const file = qobject_cast<const QFileDevice*>(&device);
    if (file && file->isSequential()) {
        // QFile waits until it has all that was asked for; a pipe's line is wanted when it comes.
        do
            count = ::read(file->handle(), data, static_cast<size_t>(size));
        while (count < 0 && errno == EINTR);
    } else {
        count = device.read(data, size);
    }
    if (count < 0 || (file && file->error() != QFileDevice::NoError))
        throw Fault{file && file->isSequential() ? qt_error_string(errno) : device.errorString()};
    return static_cast<int>(count);
}

} // namespace

QString decoded(const QByteArray& utf8)
{
    const QString text = QString::fromUtf8(utf8.constData(), utf8.size());
    if (text.contains(QChar(QChar::ReplacementCharacter)) && text.toUtf8() != utf8)
        throw Fault{Diagnosis::tr("expected UTF-8")};
    if (text.contains(QChar(0)))
        throw Fault{Diagnosis::tr("NUL byte")};
    return text;
}

TextInput::TextInput(std::unique_ptr<QIODevice> device, const QString& name)
    : m_device(std::move(device))
    , m_name(name)
{
}

TextInput::TextInput(TextInput&& other) noexcept = default;

TextInput::~TextInput() = default;

bool TextInput::readLine(QByteArray& line)
{
    int searched = 0; // bytes of this line without a line feed
    for (;;) {
        const char* const begin = m_text.constData() + m_next;
        const int size = int(m_text.size()) - m_next;
        const void* const found =
            size == 0 ? nullptr : memchr(begin + searched, '\n', size_t(size - searched));
        const bool isLast = !found && (searched = size, !readMore());
        if (!found && !isLast)
            continue;
        if (isLast && size == 0)
            return false;
        const int length = found ? int(static_cast<const char*>(found) - begin) : size;
        line = m_text.mid(m_next, length);
        m_next += length + (found ? 1 : 0);
        m_isLineUnended = isLast;
        if (++m_lineNumber == 1 && line.startsWith("\xef\xbb\xbf"))
            line.remove(0, 3);
        m_blankLines = line.trimmed().isEmpty() ? m_blankLines + 1 : 0;
        if (m_blankLines > mostBlankLines)
            throw faultAt(m_lineNumber,
                          Diagnosis::tr("more than %1 blank lines").arg(mostBlankLines));
        return true;
    }
}

QByteArray TextInput::readAll()
{
    while (readMore()) { }
    const QByteArray text = m_text.mid(m_next);
    m_text.clear();
    m_next = 0;
    return text;
}

// Appends to the text; false at the end of the input.
bool TextInput::readMore()
{
    if (m_next > 0)
        m_text.remove(0, m_next);
    m_next = 0;
    const int size = int(m_text.size());
    if (size > mostText)
        throw faultAt(m_lineNumber + 1, Diagnosis::tr("more than 256 MiB of text at once"));
    m_text.resize(size + chunkSize);
    int count = 0;
    try {
        count = readText(m_text.data() + size, chunkSize);
    } catch (const Fault& fault) {
        throw Fault{QStringLiteral("%1: %2").arg(m_name, fault.message)};
    }
    m_text.resize(size + count);
    return count > 0;
}

int TextInput::readText(char* data, int size)
{
    if (m_gzip)
        return m_gzip->read(data, size);
    int count = readDevice(*m_device, data, size);
    if (m_isOpen)
        return count;
    m_isOpen = true;
    if (count == 1 && *data == Gzip::firstByte)
        count += readDevice(*m_device, data + 1, size - 1);
    const QByteArray begin(data, count);
    if (!Gzip::recognises(begin))
        return count;
    m_gzip = std::make_unique<Gzip>(begin, [device = m_device.get()](char* compressed, int most) {
        return readDevice(*device, compressed, most);
    });
    return m_gzip->read(data, size);
}

QJsonDocument TextInput::parseJson(const QByteArray& text, qint64 firstLine) const
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    const bool isJson = error.error == QJsonParseError::NoError;
    const int nul = int(text.indexOf('\0')); // which Qt takes in strings
    if (isJson && nul < 0)
        return document;
    const QByteArray before = text.left(isJson ? nul : error.offset);
    throw faultAt(firstLine + before.count('\n'),
                  Diagnosis::tr("not JSON: %1 (column %2)")
                      .arg(isJson ? Diagnosis::tr("NUL byte") : error.errorString())
                      .arg(before.size() - before.lastIndexOf('\n')));
}

Fault TextInput::faultAt(qint64 line, const QString& what) const
{
    return {QStringLiteral("%1:%2: %3").arg(m_name, QString::number(line), what)};
}
