// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractListModel>
#include <QtQml>
#include <QVariant>
#include <QVector>

/// A list for views: rows of values, a value for each role. When it is given other rows, it
/// removes, inserts, moves and changes only those that differ, so that views animate and keep their
/// place. It belongs to the object that has it.
class RowModel : public QAbstractListModel
{
    Q_OBJECT
    QML_ANONYMOUS

    /// The number of rows.
    Q_PROPERTY(int count READ count NOTIFY countChanged)

public:
    struct Row
    {
        QString key; ///< what makes it the same row as before; unique
        QVariantList values; ///< in the order of the roles
    };

    explicit RowModel(const QByteArrayList& roles, QObject* parent = nullptr);

    void setRows(const QVector<Row>& rows);

    int count() const { return int(m_rows.size()); }
    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The values of a row by role, as a view's delegate has them; empty for a number that is none.
    Q_INVOKABLE QVariantMap get(int row) const;

Q_SIGNALS:
    void countChanged();

private:
    void removeRowsWithout(const QVector<Row>& rows);
    void place(int row, const Row& wanted);
    void change(int row, const QVariantList& values);
    int indexOf(const QString& key, int from) const;

    const QByteArrayList m_roles;
    QVector<Row> m_rows;
};
