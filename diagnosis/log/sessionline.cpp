// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/sessionline.h"

#include "acceptorstate.h"
#include "devicestatefields_p.h"
#include "dispenserregistrymodel.h"
#include "recordfields_p.h"
#include "statitem.h"
#include "text/diagnosis.h"
#include "text/textinput.h"

#include <array>
#include <bitset>
#include <cmath>
#include <limits>
#include <optional>
#include <tuple>
#include <type_traits>

namespace {

Fault unknownKey(QStringView key)
{
    return {Diagnosis::tr("unknown key \"%1\"").arg(key)};
}

// How the value of a field is read: false for a text that is no JSON; throws Fault for a value that
// the field cannot hold.

bool read(JsonReader& json, bool& field)
{
    if (json.readPlain(field))
        return true;
    if (json.skipValue())
        throw Fault{Diagnosis::tr("expected true or false")};
    return false;
}

bool read(JsonReader& json, QString& field)
{
    QVariant value;
    if (json.readPlain(field))
        return true;
    if (!json.readValue(value))
        return false;
    if (value.userType() != QMetaType::QString)
        throw Fault{Diagnosis::tr("expected a text")};
    field = value.toString();
    return true;
}

template <typename Number>
bool read(JsonReader& json, Number& field)
{
    constexpr Number min = std::numeric_limits<Number>::min();
    constexpr Number max = std::numeric_limits<Number>::max();
    QVariant value;
    qint64 plain = 0;
    const bool isPlain = json.readPlain(plain);
    if (!isPlain && !json.readValue(value))
        return false;
    const bool isNumber = isPlain || value.userType() == QMetaType::Double
        || value.userType() == QMetaType::LongLong; // Qt makes it of 1000.0
    const double number = isPlain ? double(plain)
        : isNumber                ? value.toDouble()
                                  : std::numeric_limits<double>::quiet_NaN();
    if (!(number >= min && number <= max) || std::trunc(number) != number)
        throw Fault{Diagnosis::tr("expected a whole number from %1 to %2").arg(min).arg(max)};
    field = static_cast<Number>(number);
    return true;
}

bool read(JsonReader& json, State& field)
{
    QVariant value;
    if (!json.readValue(value))
        return false;
    if (value.userType() != QMetaType::QString
        || !DeviceState::stateFromString(value.toString(), field))
        throw Fault{Diagnosis::tr("unknown state name \"%1\"").arg(value.toString())};
    return true;
}

bool read(JsonReader& json, Acceptors::billTypes& field)
{
    qint32 number = 0;
    const bool isSound = read(json, number);
    field = static_cast<Acceptors::billTypes>(number);
    return isSound;
}

using Row = DispenserRegistryItem;

struct RowField
{
    const QString* key;
    bool (*read)(JsonReader& json, Row& row);
};

template <auto Member>
RowField rowField(const QString& key)
{
    return {&key, [](JsonReader& json, Row& row) { return read(json, row.*Member); }};
}

// In the order in which the row misses them.
const auto& rowFields()
{
    static const std::array fields{
        rowField<&Row::currency>(Row::CURRENCY),  rowField<&Row::denomination>(Row::DENOMINATION),
        rowField<&Row::billType>(Row::BILL_TYPE), rowField<&Row::count>(Row::COUNT),
        rowField<&Row::threadId>(Row::THREAD_ID), rowField<&Row::deviceId>(Row::DEVICE_ID),
        rowField<&Row::channel>(Row::CHANNEL),    rowField<&Row::rejected>(Row::REJECTED)};
    return fields;
}

const auto& rowKeys()
{
    static const KeyOrder order(keysOf(rowFields()));
    return order;
}

// A row as it is read. Of doubled keys the last one counts, so that its faults show at its end.
class RowReader
{
public:
    explicit RowReader(const QString& likelyCurrency) { m_row.currency = likelyCurrency; }

    bool read(JsonReader& json)
    {
        if (!json.isAtObject())
            return json.skipValue(); // misses every key
        return json.readObject(rowKeys(), [&](size_t index, QStringView key) {
            if (index == rowFields().size()) {
                if (!m_unknown || key < *m_unknown)
                    m_unknown = key.toString();
                return json.skipValue();
            }
            m_isTold.set(index);
            m_isRefused.reset(index);
            try {
                return rowFields()[index].read(json, m_row);
            } catch (const Fault&) {
                m_isRefused.set(index);
                return true;
            }
        });
    }

    // Throws Fault for the first one in the order of the keys; what is missing comes before all.
    const Row& row() const
    {
        for (size_t i = 0; i < rowFields().size(); ++i) {
            const QString& key = *rowFields()[i].key;
            if (!m_isTold[i] && key != Row::REJECTED)
                throw Fault{Diagnosis::tr("key \"%1\" is missing").arg(key)};
        }
        for (const size_t i : rowKeys().ascending()) {
            const QString& key = *rowFields()[i].key;
            if (m_isRefused[i] && (!m_unknown || key < *m_unknown))
                throw Fault{Diagnosis::tr("\"%1\" cannot hold this value").arg(key)};
        }
        if (m_unknown)
            throw unknownKey(*m_unknown);
        return m_row;
    }

private:
    using Fields = std::decay_t<decltype(rowFields())>;

    Row m_row;
    std::bitset<std::tuple_size_v<Fields>> m_isTold;
    std::bitset<std::tuple_size_v<Fields>> m_isRefused; // by its field
    std::optional<QString> m_unknown; // the first one in the order of the keys
};

bool read(JsonReader& json, QList<Row>& field)
{
    // Those of the line before, mostly: they are then shared.
    static thread_local QString lastText;
    static thread_local QList<Row> lastRows;
    if (json.skipText(lastText)) {
        field = lastRows;
        return true;
    }
    const QStringView begin = json.rest();
    field.clear();
    QString fault; // that of a text which is no JSON further on comes before it
    const auto readRow = [&] {
        RowReader reader(field.isEmpty() ? QString() : field.constLast().currency);
        const bool isSound = reader.read(json);
        if (!isSound || !fault.isNull())
            return isSound;
        try {
            field.append(reader.row());
        } catch (const Fault& found) {
            fault =
                Diagnosis::tr("row %1: %2").arg(QString::number(field.size() + 1), found.message);
        }
        return true;
    };
    const bool isList = json.isAtArray();
    if (isList ? !json.readArray(readRow) : !json.skipValue())
        return false;
    if (!isList)
        throw Fault{Diagnosis::tr("expected a list of registry rows")};
    if (!fault.isNull())
        throw Fault{fault};
    lastText = begin.chopped(json.rest().size()).toString();
    lastRows = field;
    return true;
}

struct Field
{
    const QString* key;
    bool (*read)(JsonReader& json, DeviceState& state);
    void (*copy)(DeviceState& to, const DeviceState& from);
};

template <auto Member, auto... Entry>
Field tableRow(DeviceStateField<Member, Entry...> field)
{
    return {field.key,
            [](JsonReader& json, DeviceState& state) { return read(json, state.*Member); },
            [](DeviceState& to, const DeviceState& from) { to.*Member = from.*Member; }};
}

const auto& fields()
{
    static const auto table =
        withDeviceStateFields([](auto... field) { return std::array{tableRow(field)...}; });
    return table;
}

// The keys of a line: those of the fields have the places of these.
enum Key : size_t {
    DeviceStates = std::tuple_size_v<std::decay_t<decltype(fields())>>,
    Session,
    Time,
    Kiosk,
    Incident,
    Settled,
    Inserted,
    Rejected,
    Returned,
    Unknown
};

const auto& keys()
{
    static const QString session = QStringLiteral("session");
    static const QString time = QStringLiteral("time");
    static const QString kiosk = QStringLiteral("kiosk");
    static const QString incident = QStringLiteral("incident");
    static const QString settled = QStringLiteral("settled");
    static const KeyOrder order(
        joined(keysOf(fields()),
               std::array{&AcceptorState::DEVICE_STATES, &session, &time, &kiosk, &incident,
                          &settled, &StatItem::NOTES_INSERTED, &StatItem::NOTES_REJECTED,
                          &StatItem::NOTES_RETURNED}));
    return order;
}

bool readField(JsonReader& json, size_t index, DeviceReport& report)
{
    const Field& known = fields().at(index);
    report.reported |= 1U << index;
    try {
        return known.read(json, report.fields);
    } catch (const Fault& fault) {
        throw Fault{QStringLiteral("\"%1\": %2").arg(*known.key, fault.message)};
    }
}

bool readPublishedDevice(JsonReader& json, DeviceReport& report)
{
    const bool isSound = json.readObject(keys(), [&](size_t index, QStringView key) {
        if (index < DeviceStates)
            return readField(json, index, report);
        if (index < Inserted || index == Unknown)
            throw unknownKey(key);
        if (index != Inserted)
            return json.skipValue();
        QVariant counter;
        const bool isRead = json.readValue(counter);
        if (counter.userType() == QMetaType::LongLong)
            report.notesInserted = counter.toLongLong();
        return isRead;
    });
    static const quint32 identifier = DeviceReport::bit(deviceStateDescConst::DEVICE_ID);
    if (isSound && !report.has(identifier))
        throw Fault{Diagnosis::tr("key \"%1\" is missing").arg(deviceStateDescConst::DEVICE_ID)};
    // A device without rows is published without the key.
    report.reported |= DeviceReport::bit(DispenserRegistryModel::DISPENSER_REGISTRY);
    return isSound;
}

bool readPublished(JsonReader& json, std::vector<DeviceReport>& devices)
{
    devices.clear(); // of doubled keys the last one counts
    if (!json.isAtArray())
        throw Fault{Diagnosis::tr("expected a list \"device_states\"")};
    int element = 0;
    return json.readArray([&] {
        ++element;
        try {
            if (json.isAtObject())
                return readPublishedDevice(json, devices.emplace_back());
            QVariant other;
            const bool isSound = json.readValue(other);
            if (isSound && !other.isNull()) // which every reader passes over
                throw Fault{Diagnosis::tr("expected a JSON object")};
            return isSound;
        } catch (const Fault& fault) {
            throw Fault{Diagnosis::tr("\"device_states\": element %1: %2")
                            .arg(QString::number(element), fault.message)};
        }
    });
}

LogTime readTime(const QVariant& value)
{
    try {
        return LogTime(value);
    } catch (const Fault& fault) {
        throw Fault{QStringLiteral("\"time\": %1").arg(fault.message)};
    }
}

QString readKiosk(const QVariant& value)
{
    if (value.userType() != QMetaType::QString || value.toString().isEmpty())
        throw Fault{Diagnosis::tr(R"("kiosk": expected a name)")};
    return value.toString();
}

// Numbers of incidents are for those who search the log.
void checkIncident(const QVariant& value)
{
    if (value.userType() != QMetaType::QString)
        throw Fault{Diagnosis::tr("the number of an incident: expected a text")};
}

} // namespace

void DeviceReport::applyTo(DeviceState& state) const
{
    quint32 bits = reported;
    for (size_t index = 0; bits != 0; ++index, bits >>= 1U) {
        if ((bits & 1U) != 0)
            ::fields().at(index).copy(state, fields);
    }
}

quint32 DeviceReport::bit(const QString& key)
{
    size_t likely = 0;
    return 1U << keys().find(key, likely);
}

SessionLine::SessionLine(const QString& text)
{
    JsonReader json(text);
    DeviceReport report;
    QString stray; // the first unknown key: those who read published states pass over such
    const bool isSound = json.readObject(keys(), [&](size_t index, QStringView key) {
        if (index < DeviceStates)
            return readField(json, index, report);
        if (index == DeviceStates) {
            m_isPublished = true;
            return readPublished(json, m_reports);
        }
        if (index > Settled) {
            stray = stray.isNull() ? key.toString() : stray;
            return json.skipValue();
        }
        QVariant value;
        if (!json.readValue(value))
            return false;
        if (index == Time)
            m_time = readTime(value);
        else if (index == Kiosk)
            m_kiosk = readKiosk(value);
        else if (index == Incident || index == Settled)
            checkIncident(value);
        else if (value.userType() != QMetaType::QString
                 || value.toString() != QLatin1String("start"))
            throw Fault{Diagnosis::tr(R"("session": expected "start")")};
        m_startsSession = m_startsSession || index == Session;
        return true;
    });
    if (!isSound || !json.isAtEnd())
        throw Fault{Diagnosis::tr("expected a JSON object")};
    if (m_isPublished && report.reported != 0)
        throw Fault{Diagnosis::tr("fields of one device beside \"device_states\"")};
    if (!m_isPublished && !stray.isNull())
        throw unknownKey(stray);
    if (!m_isPublished)
        m_reports.push_back(report);
}

SessionLine SessionLine::read(const TextInput& file, const QByteArray& text)
{
    try {
        return SessionLine(decoded(text));
    } catch (const Fault& fault) {
        file.parseJson(text, file.lineNumber()); // says where a text is not JSON
        throw file.faultAt(file.lineNumber(), fault.message);
    }
}
