#pragma once

#include <QByteArray>
#include <QJsonArray>
#include <QString>

/// A file that holds a JSON array, for example of filters or of settings. Throws Fault when it
/// cannot be read or holds something else.
class ArrayFile
{
public:
    /// @param contents what the array holds, for the fault
    ArrayFile(const QString& name, const QString& contents);

    /// The name for people: "standard input" for "-".
    QString name() const { return m_name; }

    QJsonArray elements() const { return m_elements; }

    /// "FILE:LINE", where the element begins.
    QString place(int index) const;

private:
    QString m_name;
    QByteArray m_text;
    QJsonArray m_elements;
};
