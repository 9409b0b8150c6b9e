// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "kiosks.h"

#include "customeranswer.h"
#include "fault.h"
#include "metrics.h"
#include "words.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace {

qint64 timeOf(const QDateTime& time)
{
    return time.isValid() ? time.toMSecsSinceEpoch() : KioskSummary::noTime;
}

const QString silentKey = QStringLiteral("silent");
const QString devicesKey = QStringLiteral("devices");

} // namespace

KioskSummary::KioskSummary(const QString& kiosk, const PublishedState& state, StateWriter& writer)
    : time(timeOf(state.service.dt()))
    , isAccepting(state.service.isAcceptingAllowed())
{
    text = "{\"kiosk\":" + JsonText(kiosk) + ',' + writer.members(state) + '}';
    const QList<AcceptorStateItem> devices = state.service.deviceStates();
    for (const AcceptorStateItem& device : devices) {
        inserted += device.notesInserted();
        rejected += device.notesRejected();
        returned += device.notesReturned();
    }
}

KioskSummary KioskSummary::silent(const KioskSummary& last, const QString& kiosk,
                                  const QString& reason)
{
    const QJsonObject before = QJsonDocument::fromJson(last.text).object();
    KioskSummary summary = last;
    summary.isSilent = true;
    summary.isAccepting = false;
    summary.text = JsonText::object({{"kiosk", kiosk},
                                     {"time", JsonText::of(before.value(QLatin1String("time")))},
                                     {"payment_text", outOfServiceText()},
                                     {"accepting", false},
                                     {"reasons", JsonText::list(QStringList{reason})},
                                     {"devices", JsonText::of(before.value(devicesKey))},
                                     {"silent", true}});
    return summary;
}

KioskSummary::KioskSummary(const QByteArray& json)
    : text(json)
{
    const QJsonDocument document = QJsonDocument::fromJson(json);
    const QJsonObject object = document.object();
    if (!object.contains(QLatin1String("kiosk")) || !object.value(devicesKey).isArray())
        throw Fault{Diagnosis::tr("expected a kiosk's summary")};
    time = timeOf(
        QDateTime::fromString(object.value(QLatin1String("time")).toString(), Qt::ISODateWithMs));
    isSilent = object.value(silentKey).toBool();
    isAccepting = object.value(QLatin1String("accepting")).toBool();
    const QJsonArray devices = object.value(devicesKey).toArray();
    for (const QJsonValue& device : devices) {
        inserted += device[QLatin1String("notes_inserted")].toInt();
        rejected += device[QLatin1String("notes_rejected")].toInt();
        returned += device[QLatin1String("notes_returned")].toInt();
    }
}

Kiosks::Kiosks(Metrics& metrics)
    : m_metrics(metrics)
{
}

bool Kiosks::take(const QString& kiosk, const KioskSummary& summary)
{
    const auto known = m_kiosks.find(kiosk);
    if (known == m_kiosks.end()) {
        m_kiosks.insert(kiosk, {summary, Clock::now()});
        count(summary, 1);
        return true;
    }
    const bool isOlder = summary.time < known->newest.time;
    if (isOlder)
        return false;
    count(known->newest, -1);
    count(summary, 1);
    if (!summary.isSilent)
        known->heardOf = Clock::now();
    known->newest = summary;
    return true;
}

void Kiosks::hear(const QString& kiosk)
{
    const auto known = m_kiosks.find(kiosk);
    if (known != m_kiosks.end() && !known->newest.isSilent)
        known->heardOf = Clock::now();
}

const Kiosks::Kiosk* Kiosks::find(const QString& kiosk) const
{
    const auto known = m_kiosks.constFind(kiosk);
    return known == m_kiosks.constEnd() ? nullptr : &*known;
}

std::vector<QString> Kiosks::silentFor(std::chrono::seconds time) const
{
    const Clock::time_point latest = Clock::now() - time;
    std::vector<QString> silent;
    for (auto kiosk = m_kiosks.begin(); kiosk != m_kiosks.end(); ++kiosk) {
        if (!kiosk->newest.isSilent && kiosk->heardOf < latest)
            silent.push_back(kiosk.key());
    }
    return silent;
}

void Kiosks::count(const KioskSummary& summary, int sign)
{
    prometheus::Gauge& condition = summary.isSilent ? m_metrics.silent
        : summary.isAccepting                       ? m_metrics.accepting
                                                    : m_metrics.notAccepting;
    condition.Increment(sign);
    m_metrics.inserted.Increment(double(sign * summary.inserted));
    m_metrics.rejected.Increment(double(sign * summary.rejected));
    m_metrics.returned.Increment(double(sign * summary.returned));
}
