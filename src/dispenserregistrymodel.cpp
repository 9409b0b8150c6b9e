// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "dispenserregistrymodel.h"

#include "json/variants.h"

#include <algorithm>

const QString DispenserRegistryModel::DISPENSER_REGISTRY = QStringLiteral("dispenser_registry");

void DispenserRegistryModel::clear()
{
    m_rows.clear();
}

QList<DispenserRegistryItem> DispenserRegistryModel::items() const
{
    return m_rows;
}

void DispenserRegistryModel::assign(const QList<DispenserRegistryItem>& rows)
{
    m_rows = rows;
}

bool DispenserRegistryModel::insert(const DispenserRegistryItem& row)
{
    m_rows.append(row);
    return true;
}

DispenserRegistryItem& DispenserRegistryModel::operator[](const unsigned int& index)
{
    return m_rows[static_cast<int>(index)];
}

DispenserRegistryItem* DispenserRegistryModel::find(const DispenserRegistryItem& pattern)
{
    const auto row =
        std::find_if(m_rows.begin(), m_rows.end(),
                     [&pattern](const DispenserRegistryItem& r) { return r.like(pattern); });
    return row == m_rows.end() ? nullptr : &*row;
}

DispenserRegistryItem* DispenserRegistryModel::ui(const DispenserRegistryItem& row, bool* inserted)
{
    DispenserRegistryItem* const stored = find(row);
    if (inserted)
        *inserted = !stored;
    if (stored) {
        *stored = row;
        return stored;
    }
    m_rows.append(row);
    return &m_rows.last();
}

bool DispenserRegistryModel::fromMap(const QVariantMap& map)
{
    const auto entry = map.constFind(DISPENSER_REGISTRY);
    if (entry == map.constEnd())
        return false;
    const QVariantList rows = Variants::toList(*entry);
    m_rows.clear();
    for (const QVariant& row : rows)
        m_rows.append(DispenserRegistryItem::createFromMap(Variants::toMap(row)));
    return true;
}

QVariantMap DispenserRegistryModel::toMap() const
{
    QVariantList rows;
    for (const DispenserRegistryItem& row : m_rows)
        rows.append(row.toMap());
    return {{DISPENSER_REGISTRY, rows}};
}

QVariantMap DispenserRegistryModel::toMap(unsigned short threadId) const
{
    for (const DispenserRegistryItem& row : m_rows) {
        if (row.threadId == threadId)
            return {{DISPENSER_REGISTRY, row.toMap()}};
    }
    return {};
}
