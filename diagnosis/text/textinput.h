// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/fault.h"

#include <QByteArray>
#include <QIODevice>
#include <QJsonDocument>
#include <QString>

#include <memory>

class Gzip;

/// Throws Fault for bytes that are no UTF-8 and for NUL, which no text of ours has.
QString decoded(const QByteArray& utf8);

/// Text that is read from a device, plain or compressed by gzip, with what a fault in it needs: its
/// name and the number of the line. Throws Fault when the device cannot be read, for compressed
/// data that are damaged or cut off, for more than 256 MiB in one line or in readAll(), and for a
/// million blank lines one after the other, which a few bytes of compressed data hold.
class TextInput
{
public:
    /// @param device is open for reading
    /// @param name for people, for example the file's
    TextInput(std::unique_ptr<QIODevice> device, const QString& name);
    TextInput(TextInput&& other) noexcept;
    ~TextInput();

    /// Reads the next line, without its line feed and the file's byte order mark; false at the end
    /// of the file.
    bool readLine(QByteArray& line);

    QByteArray readAll();

    QString name() const { return m_name; }

    /// The number of the line that was read last, counted from 1 in the uncompressed text.
    qint64 lineNumber() const { return m_lineNumber; }

    /// Whether that line ends with the file and has no line feed: who writes it may be at it still.
    bool isLineUnended() const { return m_isLineUnended; }

    /// Whether the input comes from a pipe or a terminal, so that someone may be waiting for
    /// what it leads to.
    bool isLive() const { return m_device->isSequential(); }

    /// Reads JSON text that begins at the given line of this file.
    QJsonDocument parseJson(const QByteArray& text, qint64 firstLine) const;

    Fault faultAt(qint64 line, const QString& what) const;

    /// Hands the line that was read last to what @p take does with it: a Fault that it throws gets
    /// that line's place.
    template <typename Take>
    auto placing(Take take) const
    {
        try {
            return take();
        } catch (const Fault& fault) {
            throw faultAt(m_lineNumber, fault.message);
        }
    }

private:
    bool readMore();
    int readText(char* data, int size);

    std::unique_ptr<QIODevice> m_device;
    QString m_name;
    qint64 m_lineNumber = 0;
    qint64 m_blankLines = 0; // up to the one that was read last
    bool m_isLineUnended = false;
    std::unique_ptr<Gzip> m_gzip; // null for plain text
    bool m_isOpen = false; // it is known whether the text is compressed
    QByteArray m_text; // read and, from m_next on, not yet given away
    int m_next = 0;
};
