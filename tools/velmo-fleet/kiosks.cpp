// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "kiosks.h"

#include "kiosktopic.h"
#include "metrics.h"
#include "json/variants.h"

#include <QDateTime>
#include <QSet>

#include <cstring>

namespace {

constexpr qint64 minute = 60000; // milliseconds

std::vector<KioskRecord::Level> levelsOf(const PublishedDevice& device)
{
    std::vector<KioskRecord::Level> levels;
    const QVariantMap registry = device.dispRegistry();
    for (auto row = registry.begin(); row != registry.end(); ++row) {
        const QVariantMap item = row->toMap();
        levels.push_back({row.key().section(QLatin1Char('_'), 1, 1).toInt(),
                          Variants::toInt(item.value(QStringLiteral("denomination"))),
                          item.value(QStringLiteral("currency")).toString(),
                          Variants::toInt(item.value(QStringLiteral("bill_type"))),
                          Variants::toLongLong(item.value(QStringLiteral("count")))});
    }
    return levels;
}

} // namespace

KioskRecord Kiosk::record(const QString& name, const PublishedState* state) const
{
    KioskRecord record{
        name, QDateTime::currentMSecsSinceEpoch(), message, summary.condition, summary.faults, {}};
    // Without a time, the same state may come on another day; and silence is no message.
    if (summary.time == KioskSummary::noTime)
        record.message += quint64(record.time / minute) * 0x9e3779b97f4a7c15;
    if (!state) {
        record.message ^= quint64(summary.condition) + 1;
        return record;
    }
    for (const PublishedDevice& device : state->devices) {
        record.devices.push_back({device.deviceId(), device.threadId(), device.insertedInFull,
                                  device.rejectedInFull, device.returnedInFull,
                                  device.stackerPresent(), device.stackerFull(), levelsOf(device)});
    }
    return record;
}

// Eight bytes at a time: each state is hashed.
quint64 Kiosk::hash(const QByteArray& text)
{
    constexpr quint64 factor = 0x9e3779b97f4a7c15;
    quint64 hash = quint64(text.size()) * factor;
    for (qsizetype i = 0; i < text.size(); i += 8) {
        quint64 word = 0;
        std::memcpy(&word, text.constData() + i, std::min<size_t>(8, size_t(text.size() - i)));
        hash = (hash ^ word) * factor;
        hash ^= hash >> 32;
    }
    return hash == 0 ? 1 : hash;
}

Kiosk* Kiosks::find(const QString& name)
{
    const auto known = m_kiosks.find(name);
    return known == m_kiosks.end() ? nullptr : &*known;
}

Kiosk& Kiosks::set(const QString& name, const KioskSummary& summary)
{
    const auto known = m_kiosks.find(name);
    count(summary, 1);
    if (known == m_kiosks.end()) {
        ++m_changes;
        return *m_kiosks.insert(name, Kiosk{summary});
    }
    count(known->summary, -1);
    known->summary = summary;
    return *known;
}

bool Kiosks::cut(const QString& name, Kiosk& kiosk, qsizetype bytes)
{
    KioskSummary summary = kiosk.summary;
    const bool isCut = summary.cutTo(bytes, name);
    if (isCut)
        set(name, summary);
    return isCut;
}

void Kiosks::setClockWrong(Kiosk& kiosk, bool isWrong)
{
    m_metrics.wrongClocks.Increment(int(isWrong) - int(kiosk.isClockWrong));
    kiosk.isClockWrong = isWrong;
}

void Kiosks::remove(const QString& name)
{
    const auto known = m_kiosks.find(name);
    if (known == m_kiosks.end())
        return;
    ++m_changes;
    setClockWrong(*known, false);
    count(known->summary, -1);
    m_kiosks.erase(known);
}

void Kiosks::count(const KioskSummary& summary, int sign)
{
    m_counts[summary.condition] += sign;
    m_metrics.kiosks(summary.condition).Increment(sign);
    m_metrics.inserted.Increment(double(sign * summary.inserted));
    m_metrics.rejected.Increment(double(sign * summary.rejected));
    m_metrics.returned.Increment(double(sign * summary.returned));
    QStringList reasons; // a kiosk counts once for each
    for (const KioskFault& fault : summary.faults) {
        if (!reasons.contains(fault.reason)) {
            reasons += fault.reason;
            m_metrics.faults(fault.reason).Increment(sign);
        }
    }
}

QByteArray Kiosks::json(bool all) const
{
    QByteArray counts;
    for (int i = 0; i <= KioskSummary::Fine; ++i) {
        counts += (i == 0 ? "\"" : ",\"")
            + QByteArray(KioskSummary::name(KioskSummary::Condition(i)))
            + "\":" + QByteArray::number(m_counts[i]);
    }
    const auto textOf = [](const KioskFault& fault) { return JsonText(fault.text); };
    const auto causeOf = [](const KioskFault& fault) { return fault.cause(); };
    QByteArray kiosks;
    for (auto kiosk = m_kiosks.begin(); kiosk != m_kiosks.end(); ++kiosk) {
        const KioskSummary& summary = kiosk->summary;
        if (!all && summary.condition == KioskSummary::Fine)
            continue;
        std::vector<KioskFault> faults = summary.faults;
        KioskFault::sort(faults);
        kiosks += (kiosks.isEmpty() ? "" : ",")
            + JsonText::object(
                      {{"kiosk", kiosk.key()},
                       {"region", regionOf(kiosk.key())},
                       {"condition", QString(QLatin1String(KioskSummary::name(summary.condition)))},
                       {"time", KioskSummary::momentText(summary.time)},
                       {"since", KioskSummary::momentText(summary.since)},
                       {"faults", JsonText::list(faults, textOf)},
                       {"causes", JsonText::list(faults, causeOf)}});
    }
    return "\"counts\":{" + counts + "},\"kiosks\":[" + kiosks + ']';
}
