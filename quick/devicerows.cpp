// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devicerows.h"

#include "service/customeranswer.h"
#include "text/conditions.h"
#include "text/devicename.h"
#include "text/diagnosis.h"

#include <algorithm>
#include <iterator>

namespace {

RowModel::Row lamp(const char* name, const char* label, bool isLit, bool isAlarm)
{
    const QString key = QLatin1String(name);
    return {key, {key, Diagnosis::tr(label), isLit, isAlarm}};
}

// Only what takes notes has a stacker, and only what takes money can be accepting.
QVector<RowModel::Row> lampRows(const PublishedDevice& device, bool isAccepting)
{
    const Money money = moneyOf(device.deviceId());
    QVector<RowModel::Row> lamps;
    if (money != Money::None)
        lamps += lamp("accepting", QT_TRANSLATE_NOOP("Diagnosis", "Accepting"), isAccepting, false);
    for (const Condition::Kind kind : Condition::lampOrder) {
        const bool isOfStacker =
            kind == Condition::StackerMissing || kind == Condition::StackerFull;
        if (isOfStacker && money != Money::Note)
            continue;
        const Condition& condition = Condition::table[kind];
        const bool isAlarm = kind != Condition::StackerMissing; // lit while it is there
        lamps +=
            lamp(condition.lamp, condition.lampLabel, condition.holds(device) == isAlarm, isAlarm);
    }
    return lamps;
}

QVector<RowModel::Row> registryRows(const QVariantMap& registry)
{
    QVector<RowModel::Row> rows;
    for (auto entry = registry.begin(); entry != registry.end(); ++entry) {
        // "<bill type>_<channel>_<denomination>_<currency>"; the row itself has no channel.
        const int channel = entry.key().section(QLatin1Char('_'), 1, 1).toInt();
        const QVariantMap row = entry.value().toMap();
        const auto number = [&row](const char* key) {
            return row.value(QLatin1String(key)).toInt();
        };
        rows += RowModel::Row{entry.key(),
                              {channel, number("bill_type") == 1, number("denomination"),
                               plainText(row.value(QStringLiteral("currency")).toString()),
                               number("count"), number("rejected")}};
    }
    return rows;
}

// Severity is what colour and icon go by.
struct RankedFault
{
    const char* reason;
    int severity;
};

// Worst first, and last what has no other row.
constexpr RankedFault faults[] = {
    {"money", 3},           {"error", 2},        {"state", 2},    {"offline", 2}, {"halted", 2},
    {"stacker_missing", 1}, {"stacker_full", 1}, {"disabled", 0}, {"", 0},
};

const RankedFault* rankOf(const QString& reason)
{
    return std::find_if(std::begin(faults), std::end(faults) - 1, [&](const RankedFault& fault) {
        return reason == QLatin1String(fault.reason);
    });
}

int severityOf(const PublishedDevice& device)
{
    int severity = -1;
    for (const DeviceFault& fault : whyNotWorking(device))
        severity = std::max(severity, rankOf(QLatin1String(fault.reason))->severity);
    return severity;
}

// In words for the staff.
QString openText(const NoteWatch::Note& note, const MoneyFormat& format)
{
    const bool isStuck = note.outcome == NoteWatch::Stuck;
    if (note.value == 0) {
        return isStuck ? Diagnosis::tr("Money of a customer is stuck.")
                       : Diagnosis::tr("It is not known what became of a customer's money.");
    }
    const QString text = isStuck
        ? Diagnosis::tr("Money of a customer is stuck: %1.")
        : Diagnosis::tr("It is not known what became of a customer's money: %1.");
    return text.arg(format.of(note.currency).text(note.value));
}

} // namespace

DeviceRows::DeviceRows(QObject* parent)
    : RowModel({"deviceId", "threadId", "modelName", "kind", "name", "idText", "enabled", "status",
                "statusText", "description", "wrong", "accepting", "lamps", "notesInserted",
                "notesRejected", "notesReturned", "registry", "severity"},
               parent)
{
}

void DeviceRows::show(const PublishedState& state, const QMap<int, QString>& names, bool isHeard)
{
    QVector<Row> rows;
    QHash<QString, int> seen;
    QHash<QString, Parts> gone = m_parts;
    for (const PublishedDevice& device : state.devices) {
        const bool isAccepting = isHeard && takesMoney(device);
        const int model = device.deviceId();
        QString key = QStringLiteral("%1/%2").arg(model).arg(device.threadId());
        key += QStringLiteral("/%1").arg(seen[key]++); // the same device may be told of twice
        gone.remove(key);
        const Parts& parts = partsOf(key);
        parts.lamps->setRows(lampRows(device, isAccepting));
        parts.registry->setRows(registryRows(device.dispRegistry()));
        rows += Row{key,
                    {model, device.threadId(), modelName(model), kindName(model),
                     names.value(model), device.idString(), device.enabled(), device.state(),
                     AcceptorState::stateDescr(device.state()), device.stateText(),
                     deviceFaults(device), isAccepting, QVariant::fromValue(parts.lamps),
                     device.insertedInFull, device.rejectedInFull, device.returnedInFull,
                     QVariant::fromValue(parts.registry), severityOf(device)}};
    }
    setRows(rows);
    for (auto parts = gone.begin(); parts != gone.end(); ++parts) {
        m_parts.remove(parts.key());
        parts->lamps->deleteLater(); // a view may be at it
        parts->registry->deleteLater();
    }
}

DeviceRows::Parts& DeviceRows::partsOf(const QString& key)
{
    Parts& parts = m_parts[key];
    if (!parts.lamps) {
        parts.lamps = new RowModel({"name", "label", "lit", "alarm"}, this);
        parts.registry = new RowModel(
            {"channel", "isCoin", "denomination", "currency", "stock", "rejects"}, this);
    }
    return parts;
}

QVector<RowModel::Row> faultRows(const PublishedState& state, const QMap<int, QString>& names,
                                 const std::vector<NoteWatch::Note>& open,
                                 const MoneyFormat& format)
{
    QVector<RowModel::Row> rows;
    const auto add = [&](const QString& key, int device, int thread, const QString& reason,
                         const QString& text) {
        rows += RowModel::Row{key,
                              {names.value(device, deviceName(device)), device, thread, reason,
                               text, rankOf(reason)->severity}};
    };
    for (const NoteWatch::Note& note : open) {
        if (note.outcome != NoteWatch::Checked)
            add(QString::number(note.id), note.device, note.thread, QStringLiteral("money"),
                openText(note, format));
    }
    int place = 0;
    for (const PublishedDevice& device : state.devices) {
        for (const DeviceFault& fault : whyNotWorking(device))
            add(QStringLiteral("%1/%2").arg(place).arg(QLatin1String(fault.reason)),
                device.deviceId(), device.threadId(), QLatin1String(fault.reason), fault.text);
        ++place;
    }
    constexpr int reason = 3; // of the roles
    std::stable_sort(rows.begin(), rows.end(), [](const RowModel::Row& a, const RowModel::Row& b) {
        return rankOf(a.values.at(reason).toString()) < rankOf(b.values.at(reason).toString());
    });
    return rows;
}
