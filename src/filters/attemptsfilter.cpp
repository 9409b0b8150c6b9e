// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "attemptsfilter.h"

AbstractFilter::FilterResult AttemptsFilter::validate()
{
    const DeviceState* const newest = newestEvent();
    if (!newest)
        return FILTER_REJECT;
    if (newest->currentNote != m_denom)
        return FILTER_ACCEPT;

    int rejections = 0;
    // The oldest event is never examined: it is the state in which the session began.
    for (auto i = events->size() - 1; i > 0; --i) {
        const State state = events->at(i).state;
        if (state == STATE_REJECTED)
            ++rejections;
        if (rejections >= m_attempts)
            return FILTER_REJECT;
        // Rejections before the last stacked note no longer count.
        if (state == STATE_STACKED)
            return FILTER_ACCEPT;
    }
    return FILTER_ACCEPT;
}

QString AttemptsFilter::getFilterName() const
{
    return QStringLiteral("max attempts filter");
}

QList<FieldDescription> AttemptsFilter::getFieldsDescription() const
{
    // The pattern of the attempts admits 1 to 9 and the tens up to 90, each with an optional zero
    // before it.
    return {{QStringLiteral("denom"), tr("Denomination"), QStringLiteral("int"),
             QStringLiteral("^(\\d+)$")},
            {QStringLiteral("attempts"), tr("Accept tries"), QStringLiteral("int"),
             QStringLiteral("^(0{0,1}[1-9]|0?[1-9][0])$")}};
}

QString AttemptsFilter::getFilterDescription() const
{
    // Translations are looked up by this text, the missing blank included.
    return tr("Max attempts filter|Antiphishing filter. If BNV rejects note given number of times, "
              "the serviceshall reject this note 'till the end of the session even if BNV shall "
              "recognize it.");
}
