// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "rowmodel.h"
#include "service/notewatch.h"
#include "service/serviceanswer.h"

#include <QHash>
#include <QMap>

/// The devices of a ServiceState as a model, each with models of its lamps and of its registry that
/// live as long as it is told of.
class DeviceRows : public RowModel
{
    Q_OBJECT

public:
    explicit DeviceRows(QObject* parent = nullptr);

    /// @param state what the service told last
    /// @param names display names by device identifier
    /// @param isHeard false while the service cannot be reached: nothing is accepted then
    void show(const PublishedState& state, const QMap<int, QString>& names, bool isHeard);

private:
    struct Parts
    {
        RowModel* lamps = nullptr;
        RowModel* registry = nullptr;
    };

    Parts& partsOf(const QString& key);

    QHash<QString, Parts> m_parts; // by the key of the device's row; children
};

/// What is wrong with the devices, worst first; money that is stuck before all.
/// @param open pieces of money whose end is not told
QVector<RowModel::Row> faultRows(const PublishedState& state, const QMap<int, QString>& names,
                                 const std::vector<NoteWatch::Note>& open,
                                 const MoneyFormat& format);
