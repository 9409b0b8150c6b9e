// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "devicestatefields_p.h"
#include "recordfields_p.h"
#include "statitem.h"

#include <QVarLengthArray>

#include <algorithm>
#include <array>
#include <charconv>
#include <initializer_list>

/// A registry row on its way from either reader into an entry's map.
class RegistryRow
{
public:
    // Where the value of a key belongs; null when it is not kept.
    QVariant* place(std::size_t i, QStringView key, const QVariant& likelyCurrency)
    {
        m_isEmpty = false;
        if (i == DeviceId || i == ThreadId)
            return nullptr;
        if (i == keys.size())
            return &m_others[key.toString()];
        m_isRead[i] = true;
        if (i == Currency)
            m_values[i] = likelyCurrency; // a text that is shared costs no memory in each row
        return &m_values[i];
    }

    // Stores the row under its kind and channel.
    void file(QVariantMap& registry) const
    {
        if (m_isEmpty)
            return;
        QVarLengthArray<QChar, 64> key;
        append(key, m_values[BillType]);
        key.append(u'_');
        append(key, m_values[Channel]);
        key.append(u'_');
        append(key, m_values[Denomination]);
        key.append(u'_');
        append(key, currency());
        registry.insert(registry.cend(), QString(key.constData(), key.size()), values());
    }

    const QVariant& currency() const { return m_values[Currency]; }

    static const auto& order()
    {
        static const KeyOrder order(keys);
        return order;
    }

private:
    using Row = DispenserRegistryItem;
    enum Key : std::size_t {
        BillType,
        Channel,
        Currency,
        Denomination,
        DeviceId,
        ThreadId,
        Count,
        Rejected
    };
    static constexpr std::array keys{&Row::BILL_TYPE,    &Row::CHANNEL,   &Row::CURRENCY,
                                     &Row::DENOMINATION, &Row::DEVICE_ID, &Row::THREAD_ID,
                                     &Row::COUNT,        &Row::REJECTED};

    // A copy of a map is made faster than a map is filled, above all with Qt 6.
    QVariantMap values() const
    {
        static const auto& blank = *new QVariantMap{{Row::BILL_TYPE, {}},
                                                    {Row::COUNT, {}},
                                                    {Row::CURRENCY, {}},
                                                    {Row::DENOMINATION, {}},
                                                    {Row::REJECTED, {}}};
        constexpr std::array kept{BillType, Count, Currency, Denomination, Rejected};
        const bool isUsual = m_others.isEmpty()
            && std::all_of(kept.begin(), kept.end(), [this](Key key) { return m_isRead[key]; });
        QVariantMap values = isUsual ? blank : m_others;
        auto entry = values.begin();
        for (const Key key : kept) {
            if (isUsual)
                *entry++ = m_values[key];
            else if (m_isRead[key])
                values.insert(*keys[key], m_values[key]);
        }
        return values;
    }

    static void append(QVarLengthArray<QChar, 64>& key, const QVariant& part)
    {
        if (part.userType() != QMetaType::LongLong) {
            const QString text = Variants::toString(part);
            key.append(text.constData(), text.size());
            return;
        }
        char digits[20];
        const char* const end = std::to_chars(digits, digits + 20, part.toLongLong()).ptr;
        for (const char* digit = digits; digit != end; ++digit)
            key.append(QLatin1Char(*digit));
    }

    std::array<QVariant, keys.size()> m_values;
    std::array<bool, keys.size()> m_isRead{};
    QVariantMap m_others; // under keys that are not known
    bool m_isEmpty = true;
};

/// A field of a published device.
/// @tparam Device AcceptorStateItem, or what is derived from it and keeps more
template <typename Reader, typename Device>
struct DeviceField
{
    const QString* key;
    /// Null when it is not read. A text that is the same in the device before is shared.
    bool (*read)(Reader& reader, Device& device, const Device& before);
};

template <typename Reader, typename Device>
bool readRegistry(Reader& reader, Device& device, const Device& /*before*/)
{
    QVariantMap registry;
    QVariant currency; // mostly the same in every row
    const auto readRow = [&] {
        RegistryRow row;
        const auto readMember = [&](std::size_t i, QStringView key) {
            QVariant* const value = row.place(i, key, currency);
            return value ? reader.readValue(*value) : reader.skipValue();
        };
        const bool complete = reader.readObject(RegistryRow::order(), readMember);
        row.file(registry);
        currency = row.currency();
        return complete;
    };
    const auto readElement = [&] { return reader.isAtObject() ? readRow() : reader.skipValue(); };
    const bool complete = reader.isAtArray() ? reader.readArray(readElement) : reader.skipValue();
    device.setDispRegistry(registry);
    return complete;
}

template <typename Reader, typename Device, auto Member>
DeviceField<Reader, Device> deviceField(DeviceStateField<Member> field)
{
    return {field.key, nullptr};
}

template <typename Reader, typename Device, auto Member, auto Getter, auto Setter>
DeviceField<Reader, Device> deviceField(DeviceStateField<Member, Getter, Setter> field)
{
    return {field.key, [](Reader& reader, Device& device, const Device& before) {
                const AcceptorStateItem& entryBefore = before;
                AcceptorStateItem& entry = device;
                auto value = (entryBefore.*Getter)();
                const bool complete = readJson(reader, value);
                (entry.*Setter)(value);
                return complete;
            }};
}

template <typename Reader, typename Device>
DeviceField<Reader, Device> deviceField(DeviceStateField<&DeviceState::dispenserRegistry> field)
{
    return {field.key, readRegistry<Reader, Device>};
}

/// The fields of a device's state and the counters. Those that are not read are among them: the key
/// that is likely to come after them is then known.
template <typename Reader, typename Device>
auto deviceFields()
{
    using E = AcceptorStateItem;
    const auto toArray = [](auto... field) {
        return std::array{deviceField<Reader, Device>(field)...};
    };
    return joined(withDeviceStateFields(toArray),
                  toArray(
                      DeviceStateField<nullptr, &E::notesInserted, &E::setNotesInserted>{
                          &StatItem::NOTES_INSERTED},
                      DeviceStateField<nullptr, &E::notesRejected, &E::setNotesRejected>{
                          &StatItem::NOTES_REJECTED},
                      DeviceStateField<nullptr, &E::notesReturned, &E::setNotesReturned>{
                          &StatItem::NOTES_RETURNED}));
}

/// Reads the devices of a published state, from text or from a map.
template <typename Reader, typename Device>
class DeviceTable
{
public:
    /// @param own fields that are read in another way than the entry's
    explicit DeviceTable(std::initializer_list<DeviceField<Reader, Device>> own = {})
        : m_fields(deviceFields<Reader, Device>())
        , m_order(keysOf(m_fields))
    {
        for (const auto& field : own) {
            std::size_t likely = 0;
            m_fields[m_order.find(*field.key, likely)] = field;
        }
    }

    /// Reads an object into a device; what it lacks stays.
    bool read(Reader& reader, Device& device, const Device& before) const
    {
        return reader.readObject(m_order, [&](std::size_t i, QStringView) {
            return i < m_fields.size() && m_fields[i].read
                ? m_fields[i].read(reader, device, before)
                : reader.skipValue();
        });
    }

    /// Reads an array. What is null has no device; what else is no object has one of defaults.
    template <typename Devices>
    bool readList(Reader& reader, Devices& devices) const
    {
        const Device withDefaults{QVariantMap()};
        return reader.readArray([&] {
            if (reader.isAtObject()) {
                const Device before = devices.empty() ? withDefaults : devices.back();
                devices.push_back(withDefaults);
                return read(reader, devices.back(), before);
            }
            QVariant other;
            const bool complete = reader.readValue(other);
            if (!Variants::isNull(other))
                devices.push_back(withDefaults);
            return complete;
        });
    }

private:
    decltype(deviceFields<Reader, Device>()) m_fields;
    decltype(KeyOrder(keysOf(deviceFields<Reader, Device>()))) m_order;
};
