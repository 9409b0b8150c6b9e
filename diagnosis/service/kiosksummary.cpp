// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/kiosksummary.h"

#include "service/customeranswer.h"
#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/fault.h"
#include "text/textinput.h"
#include "wraparound_p.h"
#include "json/jsonreader.h"

#include <QDateTime>

#include <algorithm>
#include <iterator>

namespace {

constexpr const char* conditions[] = {"unknown", "silent", "out_of_order", "faulty", "fine"};

constexpr const char* reasons[] = {"unreadable",      "silent",       "gone",     "no_devices",
                                   "halted",          "error",        "state",    "offline",
                                   "stacker_missing", "stacker_full", "disabled", "too_large"};

// How bad a fault is; one that is not known here comes last.
int rankOf(const KioskFault& fault)
{
    return int(std::find_if(std::begin(reasons), std::end(reasons),
                            [&](const char* each) { return fault.reason == QLatin1String(each); })
               - std::begin(reasons));
}

qint64 timeOf(const QDateTime& time)
{
    return time.isValid() ? time.toMSecsSinceEpoch() : KioskSummary::noTime;
}

std::vector<KioskFault> faultsOf(const PublishedState& state)
{
    std::vector<KioskFault> faults;
    for (const PublishedDevice& device : state.devices) {
        for (const DeviceFault& fault : whyNotWorking(device)) {
            faults.push_back(
                {device.deviceId(), device.threadId(), QLatin1String(fault.reason),
                 QStringLiteral("%1: %2").arg(deviceName(device.deviceId()), fault.text)});
        }
    }
    if (state.devices.empty()) {
        faults.push_back({KioskFault::noDevice, KioskFault::noDevice, QStringLiteral("no_devices"),
                          Diagnosis::tr("The service tells of no device.")});
    }
    return faults;
}

// The members after "devices", and the end of the object.
QByteArray ending(const KioskSummary& summary)
{
    QByteArray since;
    if (summary.since != KioskSummary::noTime) {
        since =
            ",\"since\":"
            + JsonText(
                QDateTime::fromMSecsSinceEpoch(summary.since, Qt::UTC).toString(Qt::ISODateWithMs));
    }
    return since + R"(,"condition":")" + KioskSummary::name(summary.condition) + R"(","faults":)"
        + JsonText::list(summary.faults,
                         [](const KioskFault& fault) { return JsonText(fault.text); })
        + ",\"causes\":"
        + JsonText::list(summary.faults, [](const KioskFault& fault) { return fault.cause(); })
        + '}';
}

// Reads the members of a summary; false for a text that is no JSON object.
template <typename Read>
bool readMembers(const QByteArray& text, Read readMember)
{
    const QString json = decoded(text);
    JsonReader reader(json);
    return reader.readObject([&](QStringView key) { return readMember(reader, key); })
        && reader.isAtEnd();
}

QVariantMap membersOf(const QByteArray& text)
{
    QVariantMap members;
    readMembers(text, [&](JsonReader& reader, QStringView key) {
        return reader.readValue(members[key.toString()]);
    });
    return members;
}

KioskFault faultOf(const QString& text, const QVariantMap& cause)
{
    const auto number = [&](const QString& key) {
        const QVariant value = cause.value(key);
        return value.isNull() ? KioskFault::noDevice : value.toInt();
    };
    return {number(QStringLiteral("device")), number(QStringLiteral("thread")),
            cause.value(QStringLiteral("reason")).toString(), text};
}

} // namespace

JsonText KioskFault::cause() const
{
    const auto number = [](int of) { return of == noDevice ? JsonText::null() : JsonText(of); };
    return JsonText::object(
        {{"device", number(device)}, {"thread", number(thread)}, {"reason", reason}});
}

QStringList KioskFault::knownReasons()
{
    QStringList keys;
    for (const char* const reason : reasons)
        keys += QLatin1String(reason);
    return keys;
}

void KioskFault::sort(std::vector<KioskFault>& faults)
{
    std::stable_sort(faults.begin(), faults.end(), [](const KioskFault& a, const KioskFault& b) {
        return rankOf(a) < rankOf(b);
    });
}

JsonText KioskSummary::momentText(std::optional<qint64> time)
{
    return !time || *time == noTime
        ? JsonText::null()
        : JsonText(QDateTime::fromMSecsSinceEpoch(*time, Qt::UTC).toString(Qt::ISODateWithMs));
}

const char* KioskSummary::name(Condition condition)
{
    return conditions[condition];
}

KioskSummary::Condition KioskSummary::conditionOf(const QString& name)
{
    const auto known = std::find_if(std::begin(conditions), std::end(conditions),
                                    [&](const char* each) { return name == QLatin1String(each); });
    return known == std::end(conditions) ? Unknown : Condition(known - std::begin(conditions));
}

KioskSummary::KioskSummary(const QString& kiosk, const PublishedState& state, StateWriter& writer)
    : time(timeOf(state.service.dt()))
    , faults(faultsOf(state))
{
    if (!faults.empty())
        condition = CustomerAnswer(state).inService ? Faulty : OutOfOrder;
    text = "{\"kiosk\":" + JsonText(kiosk) + ',' + writer.members(state) + ending(*this);
    for (const PublishedDevice& device : state.devices) {
        inserted = wrappingSum(inserted, device.insertedInFull);
        rejected = wrappingSum(rejected, device.rejectedInFull);
        returned = wrappingSum(returned, device.returnedInFull);
    }
}

KioskSummary KioskSummary::withoutState(const KioskSummary& last, const QString& kiosk,
                                        Condition condition, const KioskFault& fault, qint64 now)
{
    const QVariantMap members = membersOf(last.text);
    KioskSummary summary = last;
    if (last.condition != condition || last.since == noTime || last.since > now)
        summary.since = now;
    summary.condition = condition;
    summary.faults = {fault};
    summary.text = "{\"kiosk\":" + JsonText(kiosk)
        + ",\"time\":" + JsonText::of(members.value(QStringLiteral("time")))
        + ",\"payment_text\":" + JsonText(outOfServiceText()) + R"(,"accepting":false,"reasons":)"
        + JsonText::list(QStringList{fault.text}) + ",\"devices\":"
        + JsonText::of(members.value(QStringLiteral("devices"))) + ending(summary);
    return summary;
}

bool KioskSummary::cutTo(qsizetype bytes, const QString& kiosk)
{
    const QVariantMap members = membersOf(text);
    const KioskFault cut{KioskFault::noDevice, KioskFault::noDevice, QStringLiteral("too_large"),
                         Diagnosis::tr("Devices are left out: the broker has no room for all.")};
    if (condition == Fine)
        condition = Faulty;
    for (size_t kept = faults.size(); kept > 0 || faults.empty(); kept /= 2) {
        faults.resize(kept / 2);
        faults.push_back(cut);
        text = "{\"kiosk\":" + JsonText(kiosk)
            + ",\"time\":" + JsonText::of(members.value(QStringLiteral("time")))
            + ",\"payment_text\":" + JsonText::of(members.value(QStringLiteral("payment_text")))
            + ",\"accepting\":" + JsonText::of(members.value(QStringLiteral("accepting")))
            + R"(,"reasons":[],"devices":[])" + ending(*this);
        if (text.size() <= bytes)
            return true;
    }
    return false;
}

KioskSummary::KioskSummary(const QByteArray& json)
    : text(json)
{
    bool hasDevices = false;
    QVariant value;
    QString conditionName;
    QStringList texts;
    QVariantList causes;
    const auto readDevice = [&](JsonReader& reader) {
        return reader.readObject([&](QStringView key) {
            qint64* const count = key == QLatin1String("notes_inserted") ? &inserted
                : key == QLatin1String("notes_rejected")                 ? &rejected
                : key == QLatin1String("notes_returned")                 ? &returned
                                                                         : nullptr;
            if (!count)
                return reader.skipValue();
            const bool isSound = reader.readValue(value);
            *count = wrappingSum(*count, counterOf(value));
            return isSound;
        });
    };
    const bool isSound = readMembers(json, [&](JsonReader& reader, QStringView key) {
        if (key == QLatin1String("devices")) {
            hasDevices = true;
            return reader.readArray([&] { return readDevice(reader); });
        }
        qint64* const moment = key == QLatin1String("time") ? &time
            : key == QLatin1String("since")                 ? &since
                                                            : nullptr;
        const bool isFault = key == QLatin1String("faults");
        const bool isCause = key == QLatin1String("causes");
        const bool isCondition = key == QLatin1String("condition");
        if (!moment && !isFault && !isCause && !isCondition)
            return reader.skipValue();
        const bool isRead = reader.readValue(value);
        if (moment)
            *moment = timeOf(QDateTime::fromString(value.toString(), Qt::ISODateWithMs));
        else if (isFault)
            texts = value.toStringList();
        else if (isCause)
            causes = value.toList();
        else
            conditionName = value.toString();
        return isRead;
    });
    condition = conditionOf(conditionName);
    if (!isSound || !hasDevices || conditionName != QLatin1String(name(condition)))
        throw Fault{Diagnosis::tr("expected a kiosk's summary")};
    for (const QString& fault : texts)
        faults.push_back(faultOf(fault, causes.value(int(faults.size())).toMap()));
}
