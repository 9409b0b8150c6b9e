// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "cashcontent.h"

#include "log/cashcount.h"
#include "text/fault.h"

#include <velmolib/devicestatesconst.h>

#include <QDebug>

namespace {

QVariantList placesOf(const CashPeriod& period)
{
    QVariantList places;
    for (const CashRow& row : period.rows) {
        QVariantMap place{{QStringLiteral("place"), placeKey(row.place)},
                          {QStringLiteral("channel"), row.channel},
                          {QStringLiteral("denomination"), row.kind.denomination},
                          {QStringLiteral("currency"), row.kind.currency},
                          {QStringLiteral("min"), row.now.min}};
        if (row.now.max)
            place.insert(QStringLiteral("max"), *row.now.max);
        places += place;
    }
    return places;
}

QVariantList piecesOf(const CashPeriod& period)
{
    QVariantList pieces;
    for (const CashDoubt& doubt : period.doubts) {
        if (doubt.reason == DoubtReason::Stuck || doubt.reason == DoubtReason::OnItsWay) {
            pieces +=
                QVariantMap{{QStringLiteral("denomination"), doubt.denomination},
                            {QStringLiteral("count"), doubt.pieces},
                            {QStringLiteral("stuck"), doubt.reason == DoubtReason::Stuck},
                            {QStringLiteral("since"), doubt.examples.front().place.time.iso()}};
        }
    }
    return pieces;
}

} // namespace

void CashContent::take(const QByteArray& line)
{
    ++m_lines;
    try {
        m_ledger.take(SessionLine(QString::fromUtf8(line)), m_lines);
    } catch (const Fault& fault) {
        qWarning().noquote() << fault.message;
        m_ledger.skipLine(m_lines);
    }
}

QVariantList CashContent::toList() const
{
    QVariantList devices;
    for (const CashPeriod& period : m_ledger.now()) {
        const QVariantList places = placesOf(period);
        const QVariantList pieces = piecesOf(period);
        if (!places.isEmpty() || !pieces.isEmpty()) {
            devices += QVariantMap{{deviceStateDescConst::DEVICE_ID, period.device},
                                   {deviceStateDescConst::THREAD_ID, period.thread},
                                   {QStringLiteral("places"), places},
                                   {QStringLiteral("pieces"), pieces}};
        }
    }
    return devices;
}
