#include "textinput.h"

#include <QFileDevice>
#include <QJsonParseError>

TextInput::TextInput(std::unique_ptr<QIODevice> device, const QString& name)
    : m_device(std::move(device))
    , m_name(name)
{
}

bool TextInput::readLine(QByteArray& line)
{
    line = m_device->readLine();
    if (line.isEmpty()) {
        checkRead();
        return false;
    }
    if (line.endsWith('\n'))
        line.chop(1);
    ++m_lineNumber;
    return true;
}

QByteArray TextInput::readAll()
{
    const QByteArray text = m_device->readAll();
    checkRead();
    return text;
}

QJsonDocument TextInput::parseJson(const QByteArray& text, qint64 firstLine) const
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

Fault TextInput::faultAt(qint64 line, const QString& what) const
{
    return {QStringLiteral("%1:%2: %3").arg(m_name, QString::number(line), what)};
}

void TextInput::checkRead() const
{
    const auto* const file = qobject_cast<const QFileDevice*>(m_device.get());
    if (file && file->error() != QFileDevice::NoError)
        throw Fault{QStringLiteral("%1: %2").arg(m_name, m_device->errorString())};
}
