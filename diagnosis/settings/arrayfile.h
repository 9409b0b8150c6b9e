// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "text/textinput.h"
#include "json/jsontext.h"

#include <QByteArray>
#include <QJsonArray>
#include <QMap>
#include <QString>
#include <QVariant>
#include <QVector>

/// A file that holds a JSON array of objects, for example of filters or of settings. What is
/// changed is changed in its text: every other byte stays as it is.
class ArrayFile
{
public:
    /// Throws Fault when the file cannot be read or holds something else.
    /// @param contents what the array holds, for the fault
    ArrayFile(TextInput& file, const QString& contents)
        : ArrayFile(file, file.readAll(), contents)
    {
    }

    /// The same of a text that was read from the file.
    ArrayFile(const TextInput& file, const QByteArray& text, const QString& contents);

    struct Member
    {
        QString key;
        JsonText value;
    };

    QString name() const { return m_name; }

    QJsonArray elements() const { return QJsonDocument::fromJson(m_text).array(); }

    /// The elements as the library takes them, whole numbers of 64 bits exact. Of doubled keys the
    /// last one counts.
    const QVariantList& values() const { return m_values; }

    QByteArray text() const { return m_text; }

    /// Whether a key stands more than once in an element: readers differ in which one counts.
    bool isDoubled(int index, const QString& key) const;

    /// The number of the line on which an element begins.
    int lineOf(int index) const;

    /// "FILE:LINE", where the element begins.
    QString place(int index) const;

    /// Sets a member of an element that is an object.
    void setMember(int index, const QString& key, const JsonText& value);

    /// The same for many elements, by their index, at once.
    void setMembers(const QMap<int, Member>& members);

    /// Inserts an object so that it becomes the element at @p index, written like the one before
    /// it.
    void insert(int index, const QVector<Member>& element);

    void remove(int index);

private:
    /// Where something stands in a text.
    struct Span
    {
        int begin;
        int end;
    };

    static QVector<Span> spansIn(const QByteArray& text, int open);
    static QStringList keysOf(const QByteArray& object, const QVector<Span>& spans);
    static QVariant valueOf(const QByteArray& json);
    static QByteArray withMember(QByteArray object, const Member& member);

    void setText(const QByteArray& text);
    void replace(Span span, const QByteArray& replacement);
    QByteArray textOf(int index) const;
    QByteArray gapBefore(int index) const;

    QString m_name;
    QByteArray m_text;
    QVariantList m_values;
    QVector<Span> m_spans; // of the elements
};
