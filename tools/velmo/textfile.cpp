#include "textfile.h"

#include <QJsonParseError>

#include <unistd.h>

TextFile::TextFile(const QString& name)
    : m_name(name)
{
    bool opened = false;
    if (name == QLatin1String("-")) {
        m_name = QStringLiteral("standard input");
        opened = m_file.open(STDIN_FILENO, QIODevice::ReadOnly);
    } else {
        m_file.setFileName(name);
        opened = m_file.open(QIODevice::ReadOnly);
    }
    if (!opened)
        throw Fault{QStringLiteral("%1: %2").arg(m_name, m_file.errorString())};
}

bool TextFile::readLine(QByteArray& line)
{
    line = m_file.readLine();
    if (line.isEmpty()) {
        checkRead();
        return false;
    }
    if (line.endsWith('\n'))
        line.chop(1);
    ++m_lineNumber;
    return true;
}

QByteArray TextFile::readAll()
{
    const QByteArray text = m_file.readAll();
    checkRead();
    return text;
}

QJsonDocument TextFile::parseJson(const QByteArray& text, qint64 firstLine) const
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (error.error == QJsonParseError::NoError)
        return document;
    const QByteArray before = text.left(error.offset);
    throw faultAt(firstLine + before.count('\n'),
                  QStringLiteral("not JSON: %1 (column %2)")
                      .arg(error.errorString())
                      .arg(before.size() - before.lastIndexOf('\n')));
}

Fault TextFile::faultAt(qint64 line, const QString& what) const
{
    return {QStringLiteral("%1:%2: %3").arg(m_name, QString::number(line), what)};
}

void TextFile::checkRead() const
{
    if (m_file.error() != QFileDevice::NoError)
        throw Fault{QStringLiteral("%1: %2").arg(m_name, m_file.errorString())};
}
