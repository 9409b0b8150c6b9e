// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "rowmodel.h"

#include <QSet>

#include <algorithm>

RowModel::RowModel(const QByteArrayList& roles, QObject* parent)
    : QAbstractListModel(parent)
    , m_roles(roles)
{
}

void RowModel::setRows(const QVector<Row>& rows)
{
    const int countBefore = count();
    removeRowsWithout(rows);
    for (int row = 0; row < rows.size(); ++row)
        place(row, rows.at(row));
    if (count() != countBefore)
        Q_EMIT countChanged();
}

void RowModel::removeRowsWithout(const QVector<Row>& rows)
{
    QSet<QString> kept;
    for (const Row& row : rows)
        kept.insert(row.key);
    for (int row = count() - 1; row >= 0; --row) {
        if (kept.contains(m_rows.at(row).key))
            continue;
        beginRemoveRows({}, row, row);
        m_rows.removeAt(row);
        endRemoveRows();
    }
}

// All rows before it are in their places already.
void RowModel::place(int row, const Row& wanted)
{
    const int found = indexOf(wanted.key, row);
    if (found < 0) {
        beginInsertRows({}, row, row);
        m_rows.insert(row, wanted);
        endInsertRows();
        return;
    }
    if (found != row) {
        beginMoveRows({}, found, found, {}, row);
        m_rows.move(found, row);
        endMoveRows();
    }
    change(row, wanted.values);
}

void RowModel::change(int row, const QVariantList& values)
{
    QVariantList& held = m_rows[row].values;
    QVector<int> changed;
    for (int i = 0; i < values.size(); ++i) {
        if (held.at(i) != values.at(i))
            changed += Qt::UserRole + i;
    }
    held = values;
    if (!changed.isEmpty())
        Q_EMIT dataChanged(index(row), index(row), changed);
}

int RowModel::indexOf(const QString& key, int from) const
{
    const auto found = std::find_if(m_rows.begin() + from, m_rows.end(),
                                    [&](const Row& row) { return row.key == key; });
    return found == m_rows.end() ? -1 : int(found - m_rows.begin());
}

int RowModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : count();
}

QVariant RowModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return m_rows.at(index.row()).values.value(role - Qt::UserRole);
}

QHash<int, QByteArray> RowModel::roleNames() const
{
    QHash<int, QByteArray> names;
    for (int i = 0; i < m_roles.size(); ++i)
        names.insert(Qt::UserRole + i, m_roles.at(i));
    return names;
}

QVariantMap RowModel::get(int row) const
{
    QVariantMap values;
    for (int i = 0; row >= 0 && row < count() && i < m_roles.size(); ++i)
        values.insert(QString::fromLatin1(m_roles.at(i)), m_rows.at(row).values.at(i));
    return values;
}
