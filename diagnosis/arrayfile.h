// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "textinput.h"

#include <QByteArray>
#include <QJsonArray>
#include <QString>
#include <QVector>

/// A file that holds a JSON array of objects, for example of filters or of settings. What is
/// changed is changed in its text: every other byte stays as it is.
class ArrayFile
{
public:
    /// Throws Fault when the file cannot be read or holds something else.
    /// @param contents what the array holds, for the fault
    ArrayFile(TextInput& file, const QString& contents);

    QString name() const { return m_name; }

    QJsonArray elements() const { return m_elements; }

    QByteArray text() const { return m_text; }

    /// The number of the line on which an element begins.
    int lineOf(int index) const;

    /// "FILE:LINE", where the element begins.
    QString place(int index) const;

    /// Sets a member of an element that is an object.
    void setMember(int index, const QString& key, const QJsonValue& value);

    /// Inserts an object so that it becomes the element at @p index, written like the one before
    /// it.
    void insert(int index, const QJsonObject& element);

    void remove(int index);

private:
    /// Where something stands in a text.
    struct Span
    {
        int begin;
        int end;
    };

    static QVector<Span> spansIn(const QByteArray& text, int open);
    static QByteArray withMember(QByteArray object, const QString& key, const QJsonValue& value);

    void setText(const QByteArray& text);
    void replace(Span span, const QByteArray& replacement);
    QByteArray textOf(int index) const;
    QByteArray gapBefore(int index) const;

    QString m_name;
    QByteArray m_text;
    QJsonArray m_elements;
    QVector<Span> m_spans; // of the elements
};
