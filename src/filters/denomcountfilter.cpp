// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "denomcountfilter.h"

AbstractFilter::FilterResult DenomCountFilter::validate()
{
    const DeviceState* const newest = newestEvent();
    if (!newest)
        return FILTER_REJECT;
    if (newest->currentNote != m_denom)
        return FILTER_ACCEPT;

    int accepted = 0;
    State later = STATE_BUSY;
    // The oldest event is never examined: it is the state in which the session began.
    for (auto i = events->size() - 1; i > 0; --i) {
        const DeviceState& event = events->at(i);
        // A device may report one accepted note several times: only the newest of a run counts.
        if (event.state == STATE_ACCEPTED && later != STATE_ACCEPTED
            && event.currentNote == m_denom)
            ++accepted;
        if (accepted >= m_count)
            return FILTER_REJECT;
        later = event.state;
    }
    return FILTER_ACCEPT;
}

QString DenomCountFilter::getFilterName() const
{
    return QStringLiteral("denomination count filter");
}

QList<FieldDescription> DenomCountFilter::getFieldsDescription() const
{
    return {{QStringLiteral("denom"), tr("Denomination"), QStringLiteral("int"),
             QStringLiteral("^(\\d+)$")},
            {QStringLiteral("count"), tr("Max notes/coins count"), QStringLiteral("int"),
             QStringLiteral("^(\\d+)$")}};
}

QString DenomCountFilter::getFilterDescription() const
{
    return tr("Denomination count filter|Define max count of notes or coins accepted via session.");
}
