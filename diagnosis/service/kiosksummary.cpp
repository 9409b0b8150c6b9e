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

constexpr const char* conditions[] = {"silent", "out_of_order", "faulty", "fine"};

qint64 timeOf(const QDateTime& time)
{
    return time.isValid() ? time.toMSecsSinceEpoch() : KioskSummary::noTime;
}

QStringList faultsOf(const PublishedState& state)
{
    QStringList faults;
    for (const PublishedDevice& device : state.devices) {
        const QStringList reasons = whyNotWorking(device);
        for (const QString& reason : reasons)
            faults += QStringLiteral("%1: %2").arg(deviceName(device.deviceId()), reason);
    }
    if (state.devices.empty())
        faults += Diagnosis::tr("The service tells of no device.");
    return faults;
}

QByteArray ending(KioskSummary::Condition condition, const QStringList& faults)
{
    return QByteArrayLiteral(",\"condition\":\"") + KioskSummary::name(condition) + R"(","faults":)"
        + JsonText::list(faults) + '}';
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

} // namespace

const char* KioskSummary::name(Condition condition)
{
    return conditions[condition];
}

KioskSummary::KioskSummary(const QString& kiosk, const PublishedState& state, StateWriter& writer)
    : time(timeOf(state.service.dt()))
    , faults(faultsOf(state))
{
    if (!faults.isEmpty())
        condition = CustomerAnswer(state).inService ? Faulty : OutOfOrder;
    text =
        "{\"kiosk\":" + JsonText(kiosk) + ',' + writer.members(state) + ending(condition, faults);
    for (const PublishedDevice& device : state.devices) {
        inserted = wrappingSum(inserted, device.insertedInFull);
        rejected = wrappingSum(rejected, device.rejectedInFull);
        returned = wrappingSum(returned, device.returnedInFull);
    }
}

KioskSummary KioskSummary::silent(const KioskSummary& last, const QString& kiosk,
                                  const QString& reason)
{
    QVariant time;
    QVariant devices;
    readMembers(last.text, [&](JsonReader& reader, QStringView key) {
        if (key == QLatin1String("time"))
            return reader.readValue(time);
        return key == QLatin1String("devices") ? reader.readValue(devices) : reader.skipValue();
    });
    KioskSummary summary = last;
    summary.condition = Silent;
    summary.faults = QStringList{reason};
    summary.text = "{\"kiosk\":" + JsonText(kiosk) + ",\"time\":" + JsonText::of(time)
        + ",\"payment_text\":" + JsonText(outOfServiceText()) + R"(,"accepting":false,"reasons":)"
        + JsonText::list(summary.faults) + ",\"devices\":" + JsonText::of(devices)
        + ending(Silent, summary.faults);
    return summary;
}

KioskSummary::KioskSummary(const QByteArray& json)
    : text(json)
{
    bool hasDevices = false;
    QVariant value;
    QString conditionName;
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
        if (key == QLatin1String("time")) {
            const bool isTime = reader.readValue(value);
            time = timeOf(QDateTime::fromString(value.toString(), Qt::ISODateWithMs));
            return isTime;
        }
        const bool isCondition = key == QLatin1String("condition");
        if (!isCondition && key != QLatin1String("faults"))
            return reader.skipValue();
        const bool isRead = reader.readValue(value);
        if (isCondition)
            conditionName = value.toString();
        else
            faults = value.toStringList();
        return isRead;
    });
    const auto known =
        std::find_if(std::begin(conditions), std::end(conditions),
                     [&](const char* name) { return conditionName == QLatin1String(name); });
    if (!isSound || !hasDevices || known == std::end(conditions))
        throw Fault{Diagnosis::tr("expected a kiosk's summary")};
    condition = Condition(known - std::begin(conditions));
}
