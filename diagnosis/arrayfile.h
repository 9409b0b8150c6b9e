#pragma once

#include "textinput.h"

#include <QByteArray>
#include <QJsonArray>
#include <QString>

/// A file that holds a JSON array, for example of filters or of settings.
class ArrayFile
{
public:
    /// Throws Fault when the file cannot be read or holds something else.
    /// @param contents what the array holds, for the fault
    ArrayFile(TextInput& file, const QString& contents);

    QString name() const { return m_name; }

    QJsonArray elements() const { return m_elements; }

    /// "FILE:LINE", where the element begins.
    QString place(int index) const;

private:
    QString m_name;
    QByteArray m_text;
    QJsonArray m_elements;
};
