#pragma once

#include "fault.h"

#include <QByteArray>
#include <QIODevice>
#include <QJsonDocument>
#include <QString>

#include <memory>

/// Text that is read from a device, with what a fault in it needs: its name and the number of the
/// line. Throws Fault when the device cannot be read.
class TextInput
{
public:
    /// @param device is open for reading
    /// @param name for people, for example the file's
    TextInput(std::unique_ptr<QIODevice> device, const QString& name);

    /// Reads the next line, without its line feed; false at the end of the file.
    bool readLine(QByteArray& line);

    QByteArray readAll();

    QString name() const { return m_name; }

    /// The number of the line that was read last, counted from 1.
    qint64 lineNumber() const { return m_lineNumber; }

    /// Whether the input comes from a pipe or a terminal, so that someone may be waiting for
    /// what it leads to.
    bool isLive() const { return m_device->isSequential(); }

    /// Reads JSON text that begins at the given line of this file.
    QJsonDocument parseJson(const QByteArray& text, qint64 firstLine) const;

    Fault faultAt(qint64 line, const QString& what) const;

private:
    void checkRead() const;

    std::unique_ptr<QIODevice> m_device;
    QString m_name;
    qint64 m_lineNumber = 0;
};
