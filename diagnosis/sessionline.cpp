#include "sessionline.h"

#include "dispenserregistrymodel.h"
#include "fault.h"

#include <QHash>
#include <QJsonArray>

#include <cmath>
#include <limits>

namespace {

const QLatin1String sessionKey("session");

void read(const QJsonValue& value, bool& field)
{
    if (!value.isBool())
        throw Fault{QStringLiteral("expected true or false")};
    field = value.toBool();
}

void read(const QJsonValue& value, QString& field)
{
    if (!value.isString())
        throw Fault{QStringLiteral("expected a text")};
    field = value.toString();
}

template <typename Number>
void read(const QJsonValue& value, Number& field)
{
    constexpr Number min = std::numeric_limits<Number>::min();
    constexpr Number max = std::numeric_limits<Number>::max();
    const double number = value.toDouble(std::numeric_limits<double>::quiet_NaN());
    if (!(number >= min && number <= max) || std::trunc(number) != number)
        throw Fault{QStringLiteral("expected a whole number from %1 to %2").arg(min).arg(max)};
    field = static_cast<Number>(number);
}

void read(const QJsonValue& value, State& field)
{
    if (!value.isString() || !DeviceState::stateFromString(value.toString(), field))
        throw Fault{QStringLiteral("unknown state name \"%1\"").arg(value.toVariant().toString())};
}

DispenserRegistryItem registryRow(const QJsonObject& object)
{
    DispenserRegistryItem row;
    QString missingKey;
    if (!row.fromMap(object.toVariantMap(), &missingKey))
        throw Fault{QStringLiteral("key \"%1\" is missing").arg(missingKey)};
    // The row reads leniently, but must say what the line says.
    const QJsonObject taken = QJsonObject::fromVariantMap(row.toMap());
    for (auto field = object.begin(); field != object.end(); ++field) {
        if (!taken.contains(field.key()))
            throw Fault{QStringLiteral("unknown key \"%1\"").arg(field.key())};
        if (taken.value(field.key()) != field.value())
            throw Fault{QStringLiteral("\"%1\" cannot hold this value").arg(field.key())};
    }
    return row;
}

void read(const QJsonValue& value, QList<DispenserRegistryItem>& field)
{
    if (!value.isArray())
        throw Fault{QStringLiteral("expected a list of registry rows")};
    const QJsonArray rows = value.toArray();
    for (int i = 0; i < rows.size(); ++i) {
        try {
            field.append(registryRow(rows.at(i).toObject()));
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("row %1: %2").arg(QString::number(i + 1), fault.message)};
        }
    }
}

struct Field
{
    void (*read)(DeviceState& state, const QJsonValue& value);
    void (*copy)(DeviceState& to, const DeviceState& from);
};

template <auto Member>
Field field()
{
    return {[](DeviceState& state, const QJsonValue& value) { read(value, state.*Member); },
            [](DeviceState& to, const DeviceState& from) { to.*Member = from.*Member; }};
}

const QHash<QString, Field>& fields()
{
    using namespace deviceStateDescConst;
    static const QHash<QString, Field> table{
        {ENABLED, field<&DeviceState::enabled>()},
        {STATE, field<&DeviceState::state>()},
        {STACKER_PRESENT, field<&DeviceState::stackerPresent>()},
        {STACKER_FULL, field<&DeviceState::stackerFull>()},
        {CASH, field<&DeviceState::cash>()},
        {ERROR_TEXT, field<&DeviceState::errorText>()},
        {ERROR_CRITICAL, field<&DeviceState::errCritical>()},
        {HALT, field<&DeviceState::halt>()},
        {STATE_TEXT, field<&DeviceState::stateText>()},
        {THREAD_ID, field<&DeviceState::threadId>()},
        {DEVICE_ID, field<&DeviceState::deviceId>()},
        {SESSION_SUM, field<&DeviceState::sessionSum>()},
        {CURRENT_NOTE, field<&DeviceState::currentNote>()},
        {CURRENT_CHANNEL, field<&DeviceState::currentChannel>()},
        {DISPENSED_SUM, field<&DeviceState::dispensedSum>()},
        {ID_STRING, field<&DeviceState::idString>()},
        {ONLINE, field<&DeviceState::online>()},
        {DispenserRegistryModel::DISPENSER_REGISTRY, field<&DeviceState::dispenserRegistry>()},
    };
    return table;
}

} // namespace

SessionLine::SessionLine(const QJsonObject& line)
{
    for (auto entry = line.begin(); entry != line.end(); ++entry) {
        if (entry.key() == sessionKey) {
            if (entry.value() != QJsonValue(QLatin1String("start")))
                throw Fault{QStringLiteral("\"session\": expected \"start\"")};
            m_startsSession = true;
            continue;
        }
        const auto known = fields().constFind(entry.key());
        if (known == fields().constEnd())
            throw Fault{QStringLiteral("unknown key \"%1\"").arg(entry.key())};
        try {
            known->read(m_reported, entry.value());
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("\"%1\": %2").arg(entry.key(), fault.message)};
        }
        m_copies.append(known->copy);
    }
}

void SessionLine::applyTo(DeviceState& state) const
{
    for (const Copy copy : m_copies)
        copy(state, m_reported);
}
