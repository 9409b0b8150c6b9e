// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/serviceanswer.h"

#include "publisheddevices_p.h"
#include "text/conditions.h"
#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/fault.h"
#include "text/logtime.h"
#include "json/jsonreader.h"
#include "json/variants.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numeric>

namespace {

// Beyond so many different ones, texts that come from outside are not remembered.
constexpr int mostRemembered = 1000;

// As Qt::ISODateWithMs has it, in a tenth of the time.
QByteArray jsonOf(const QDateTime& time)
{
    if (!time.isValid())
        return JsonText::null();
    const QDate date = time.date();
    if (time.timeSpec() != Qt::UTC || date.year() < 1000 || date.year() > 9999)
        return JsonText(time.toString(Qt::ISODateWithMs));
    const QTime clock = time.time();
    char text[] = "\"yyyy-mm-ddThh:mm:ss.zzzZ\"";
    const auto put = [&text](int at, int digits, int number) {
        for (int place = at + digits - 1; place >= at; --place, number /= 10)
            text[place] = char('0' + number % 10);
    };
    put(1, 4, date.year());
    put(6, 2, date.month());
    put(9, 2, date.day());
    put(12, 2, clock.hour());
    put(15, 2, clock.minute());
    put(18, 2, clock.second());
    put(21, 3, clock.msec());
    return text;
}

using PublishedField = DeviceField<JsonReader, PublishedDevice>;

template <auto Member>
PublishedField detail(const QString& key)
{
    return {&key, [](JsonReader& json, PublishedDevice& device, const PublishedDevice&) {
                return readJson(json, device.*Member);
            }};
}

template <auto Member>
PublishedField amount(const QString& key)
{
    return {&key, [](JsonReader& json, PublishedDevice& device, const PublishedDevice&) {
                QVariant value;
                const bool isSound = json.readValue(value);
                device.*Member = wholeNumber(value).value_or(0);
                return isSound;
            }};
}

template <auto SetCounter, auto InFull>
PublishedField counter(const QString& key)
{
    return {&key, [](JsonReader& json, PublishedDevice& device, const PublishedDevice&) {
                AcceptorStateItem& entry = device;
                QVariant value;
                const bool isSound = json.readValue(value);
                (entry.*SetCounter)(Variants::toInt(value));
                device.*InFull = counterOf(value);
                return isSound;
            }};
}

const auto& deviceTable()
{
    using namespace deviceStateDescConst;
    using D = PublishedDevice;
    static const DeviceTable<JsonReader, PublishedDevice> table({
        amount<&D::currentNote>(CURRENT_NOTE),
        amount<&D::sessionSum>(SESSION_SUM),
        detail<&D::isOnline>(ONLINE),
        counter<&D::setNotesInserted, &D::insertedInFull>(StatItem::NOTES_INSERTED),
        counter<&D::setNotesRejected, &D::rejectedInFull>(StatItem::NOTES_REJECTED),
        counter<&D::setNotesReturned, &D::returnedInFull>(StatItem::NOTES_RETURNED),
    });
    return table;
}

QString currencyOf(const QVariant& published)
{
    const QString code = published.toString();
    const bool isCode = published.userType() == QMetaType::QString && code.size() == 3
        && std::all_of(code.begin(), code.end(), [](QChar c) { return c >= u'A' && c <= u'Z'; });
    return isCode ? code : QString();
}

void readMoney(PublishedState& state, const QVariant& published)
{
    constexpr int mostDigits = 4;
    const QVariantMap map = published.toMap();
    const qint64 digits = wholeNumber(map.value(QStringLiteral("digits"))).value_or(0);
    const QString change = map.value(QStringLiteral("change")).toString();
    const QStringList changes{QStringLiteral("none"), QStringLiteral("paid"),
                              QStringLiteral("credited")};
    state.money = {currencyOf(map.value(QStringLiteral("currency"))),
                   digits >= 0 && digits <= mostDigits ? int(digits) : 0,
                   wholeNumber(map.value(QStringLiteral("recorded"))),
                   changes.contains(change) ? change : QString()};
}

void readIncidents(PublishedState& state, const QVariant& published)
{
    using namespace deviceStateDescConst;
    constexpr size_t most = 100;
    constexpr qint64 nobody = std::numeric_limits<qint64>::max();
    state.incidents.reset();
    if (published.userType() != QMetaType::QVariantList)
        return;
    std::vector<Incident> incidents;
    const QVariantList list = published.toList();
    for (const QVariant& element : list) {
        const QVariantMap map = element.toMap();
        const auto text = [&map](const char* key) {
            const QVariant value = map.value(QLatin1String(key));
            return value.userType() == QMetaType::QString ? plainText(value.toString()) : QString();
        };
        const qint64 device = wholeNumber(map.value(DEVICE_ID)).value_or(nobody);
        const qint64 thread = wholeNumber(map.value(THREAD_ID)).value_or(nobody);
        const bool isOpen = map.value(QStringLiteral("settled")) != QVariant(true);
        if (text("number").isEmpty() || int(device) != device || int(thread) != thread || !isOpen
            || incidents.size() == most)
            continue;
        const qint64 value = wholeNumber(map.value(QStringLiteral("denomination"))).value_or(0);
        incidents.push_back({text("number"), int(device), int(thread), qMax(value, qint64(0)),
                             currencyOf(map.value(QStringLiteral("currency"))),
                             QDateTime::fromString(text("time"), Qt::ISODateWithMs)});
    }
    state.incidents = incidents;
}

// What may be published beside the devices.
struct FurtherMember
{
    const char* key;
    void (*read)(PublishedState& state, const QVariant& published);
};

constexpr FurtherMember furtherMembers[] = {
    {"refusals",
     [](PublishedState& state, const QVariant& list) { state.refusals = list.toList(); }},
    {"money", readMoney},
    {"incidents", readIncidents},
};

} // namespace

QString plainText(const QString& text)
{
    constexpr int longest = 200;
    const auto isPlain = [](QChar c) {
        return c == u'\n'
            || (c.category() != QChar::Other_Control && c.category() != QChar::Other_Format);
    };
    if (text.size() <= longest && std::all_of(text.begin(), text.end(), isPlain))
        return text; // shared
    QString plain;
    for (const QChar c : text) {
        if (plain.size() == longest)
            return plain + QChar(0x2026);
        if (isPlain(c))
            plain += c;
        else if (c.category() == QChar::Other_Control)
            plain += QChar(u' ');
    }
    return plain;
}

void makePlain(PublishedState& state)
{
    QList<AcceptorStateItem> entries;
    for (PublishedDevice& device : state.devices) {
        device.setState(plainText(device.state()));
        device.setStateText(plainText(device.stateText()));
        device.setErrorText(plainText(device.errorText()));
        device.setIdString(plainText(device.idString()));
        entries += device;
    }
    state.service.setDeviceStates(entries);
}

std::optional<qint64> wholeNumber(const QVariant& published)
{
    constexpr double beyond = 9007199254740992.0;
    if (published.userType() != QMetaType::LongLong && published.userType() != QMetaType::Double)
        return {};
    const double number = published.toDouble();
    if (std::abs(number) >= beyond || number != std::trunc(number))
        return {};
    return qint64(number);
}

qint64 PublishedState::sessionSum() const
{
    return std::accumulate(
        devices.begin(), devices.end(), qint64(0),
        [](qint64 sum, const PublishedDevice& device) { return sum + device.sessionSum; });
}

qint64 counterOf(const QVariant& published)
{
    const bool isBeyond = published.userType() == QMetaType::Double
        && std::abs(published.toDouble()) >= 9223372036854775808.0;
    if (!isBeyond)
        return Variants::toLongLong(published);
    return published.toDouble() < 0 ? std::numeric_limits<qint64>::min()
                                    : std::numeric_limits<qint64>::max();
}

QStringList deviceFaults(const PublishedDevice& device)
{
    QStringList texts;
    for (const Condition::Kind kind : Condition::publishedOrder) {
        if (Condition::table[kind].holds(device))
            texts += Condition::table[kind].told(device);
    }
    return texts;
}

QStringList whyNotAccepting(const PublishedState& state)
{
    if (state.devices.empty())
        return {Diagnosis::tr("The service tells of no device.")};
    if (state.service.allDisabled())
        return {Diagnosis::tr("Every device is disabled.")};
    if (state.service.isAcceptingAllowed())
        return {};
    // Then it is the last validator that decides, whether it is online or not.
    PublishedDevice last =
        *std::find_if(state.devices.rbegin(), state.devices.rend(),
                      [](const PublishedDevice& d) { return isValidator(d.deviceId()); });
    last.isOnline = true;
    QStringList reasons = deviceFaults(last);
    if (last.state() != AcceptorState::ACCEPTOR_STATE_BUSY) {
        reasons += Diagnosis::tr("The device is not ready for notes; its state: %1.")
                       .arg(AcceptorState::stateDescr(last.state()));
    }
    const QString name = deviceName(last.deviceId());
    for (QString& reason : reasons)
        reason = QStringLiteral("%1: %2").arg(name, reason);
    return reasons;
}

QMap<int, QString> deviceNames(const PublishedState& state, const QMap<int, QString>& given)
{
    QMap<int, QString> names = given;
    for (const PublishedDevice& device : state.devices) {
        if (!names.contains(device.deviceId()))
            names.insert(device.deviceId(), deviceName(device.deviceId()));
    }
    return names;
}

PublishedState readServiceState(const QString& json)
{
    JsonReader reader(json);
    PublishedState state;
    bool hasDevices = false;
    QVariant time;
    const bool isObject = reader.isAtObject();
    const bool isWhole = reader.readObject([&](QStringView key) {
        if (key == AcceptorState::DEVICE_STATES) {
            hasDevices = reader.isAtArray();
            state.devices.clear(); // of doubled keys the last one counts
            return hasDevices ? deviceTable().readList(reader, state.devices) : reader.skipValue();
        }
        if (key == QLatin1String("time"))
            return reader.readValue(time);
        const auto* const more =
            std::find_if(std::begin(furtherMembers), std::end(furtherMembers),
                         [&](const FurtherMember& m) { return key == QLatin1String(m.key); });
        if (more == std::end(furtherMembers))
            return reader.skipValue();
        QVariant value;
        const bool isSound = reader.readValue(value);
        more->read(state, value);
        return isSound;
    });
    if (!isObject || !isWhole || !reader.isAtEnd())
        throw Fault{Diagnosis::tr("expected a JSON object")};
    if (!hasDevices)
        throw Fault{Diagnosis::tr("expected a list \"device_states\"")};
    if (time.isValid())
        state.service.setDt(LogTime(time).toDateTime());
    QList<AcceptorStateItem> entries;
    for (const PublishedDevice& device : state.devices)
        entries += device;
    state.service.setDeviceStates(entries);
    return state;
}

StateWriter::StateWriter(const QMap<int, QString>& names)
    : m_names(names)
{
}

QByteArray StateWriter::members(const PublishedState& state)
{
    const AcceptorState& service = state.service;
    JsonBuffer json;
    json.writeMember("time", jsonOf(service.dt()));
    json.writeMember("payment_text", service.paymentStateDescr());
    json.writeMember("accepting", service.isAcceptingAllowed());
    json.writeMember("reasons", JsonText::list(whyNotAccepting(state)));
    json.writeKey(QStringLiteral("devices"));
    json.beginArray();
    for (const PublishedDevice& device : state.devices)
        write(json, device);
    json.endArray();
    return json.text();
}

void StateWriter::write(JsonBuffer& json, const PublishedDevice& device)
{
    const QVariantMap registry = device.dispRegistry();
    json.beginObject();
    json.writeMember("device", device.deviceId());
    json.writeMember("thread", device.threadId());
    json.append(model(device.deviceId()));
    json.writeMember("enabled", device.enabled());
    json.append(state(device.state()));
    json.writeMember("wrong", JsonText::list(deviceFaults(device)));
    json.writeMember("notes_inserted", device.insertedInFull);
    json.writeMember("notes_rejected", device.rejectedInFull);
    json.writeMember("notes_returned", device.returnedInFull);
    json.writeMember("registry",
                     registry.isEmpty() ? QByteArrayLiteral("{}") : JsonText::of(registry));
    json.endObject();
}

const QByteArray& StateWriter::model(int number)
{
    if (m_models.size() > mostRemembered)
        m_models.clear();
    QByteArray& known = m_models[number];
    if (known.isNull()) {
        const QString model = modelName(number);
        const auto name = m_names.constFind(number);
        known = ",\"name\":" + JsonText(name == m_names.constEnd() ? deviceName(number) : *name)
            + ",\"model\":" + (model.isEmpty() ? JsonText::null() : JsonText(model))
            + ",\"kind\":" + JsonText(kindName(number));
    }
    return known;
}

const QByteArray& StateWriter::state(const QString& name)
{
    if (m_states.size() > mostRemembered)
        m_states.clear();
    QByteArray& known = m_states[name];
    if (known.isNull()) {
        known = ",\"state\":" + JsonText(name)
            + ",\"state_text\":" + JsonText(AcceptorState::stateDescr(name));
    }
    return known;
}
