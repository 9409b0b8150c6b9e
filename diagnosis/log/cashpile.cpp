// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashpile.h"

#include "text/diagnosis.h"

#include <algorithm>
#include <set>

QString ofKiosk(const KioskCash& kiosk, const QString& text)
{
    return kiosk.kiosk.isEmpty() ? text : Diagnosis::tr("Kiosk %1: %2").arg(kiosk.kiosk, text);
}

QString CashDevice::name() const
{
    return ofKiosk(*kiosk, now().deviceName);
}

std::vector<CashDevice> CashDevice::of(const CashAnswer& answer)
{
    std::vector<CashDevice> devices;
    for (const KioskCash& kiosk : answer.kiosks) {
        for (const CashPeriod& period : kiosk.periods) {
            const bool isSame = !devices.empty() && devices.back().kiosk == &kiosk
                && devices.back().now().device == period.device
                && devices.back().now().thread == period.thread;
            if (!isSame)
                devices.push_back({&kiosk, {}, {}});
            devices.back().periods.push_back(period);
        }
    }
    for (CashDevice& device : devices) {
        std::set<QString> told;
        for (const CashPeriod& period : device.periods) {
            for (const CashRow& row : period.rows)
                told.insert(row.kind.currency);
        }
        // What is told without one is of the only one that there is.
        if (told.size() == 2)
            told.erase(QString());
        for (const QString& currency : told)
            device.currencies += currency;
    }
    return devices;
}

QString CashPile::text() const
{
    return currency.isEmpty() ? sum.text() : sum.text() + QLatin1Char(' ') + currency;
}

std::vector<CashPile> CashPile::of(const CashDevice& device, const CashPeriod& period, bool isWhole)
{
    std::vector<CashPile> piles;
    for (const CashRow& row : period.rows) {
        const bool isChannel = row.place == CashPlace::Channel;
        const int channel = isChannel && !isWhole ? row.channel : 0;
        const QString& currency =
            device.currencies.size() > 1 ? row.kind.currency : device.currencies.constFirst();
        auto pile = std::find_if(piles.begin(), piles.end(), [&](const CashPile& known) {
            return known.place == row.place && known.channel == channel
                && known.currency == currency;
        });
        if (pile == piles.end()) {
            pile = piles.emplace(pile);
            pile->place = row.place;
            pile->channel = channel;
            pile->name = isChannel && isWhole ? Diagnosis::tr("channels") : row.placeName();
            pile->currency = currency;
        }
        pile->sum += row.now.times(row.kind.denomination);
        // There may be money of kinds that were not seen.
        if (row.place == CashPlace::Cassette && !period.unseen.isExact())
            pile->sum.max.reset();
    }
    return piles;
}
