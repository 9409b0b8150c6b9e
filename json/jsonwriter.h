// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QVarLengthArray>

/// Writes compact JSON text as Qt's QJsonDocument does, without a document in between. The caller
/// writes the keys of an object in ascending order.
class JsonWriter
{
public:
    void beginObject() { begin(u'{'); }
    void endObject() { end(u'}'); }
    void beginArray() { begin(u'['); }
    void endArray() { end(u']'); }

    /// @param key ASCII without quotes and backslashes
    void writeKey(const QString& key);

    void write(bool value);
    void write(qint64 value);
    void write(const QString& value);

    QString text() const { return QString(m_text.constData(), m_text.size()); }

private:
    void separate();
    void begin(QChar bracket);
    void end(QChar bracket);
    void writeEscape(QChar c);

    QVarLengthArray<QChar, 1024> m_text;
    bool m_needsComma = false;
};
