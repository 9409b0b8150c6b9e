// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "kiosktopic.h"

#include "text/diagnosis.h"
#include "text/fault.h"

KioskTopic::KioskTopic(const QString& pattern)
{
    QString plain = pattern;
    plain.replace(QLatin1String("%1"), QLatin1String("+"));
    const auto place = plain.indexOf(QLatin1Char('+'));
    m_before = plain.left(place);
    m_after = plain.mid(place + 1);
    const bool isWholeLevel = (m_before.isEmpty() || m_before.endsWith(QLatin1Char('/')))
        && (m_after.isEmpty() || m_after.startsWith(QLatin1Char('/')));
    if (place < 0 || !isWholeLevel || m_after.contains(QLatin1Char('+'))
        || plain.contains(QLatin1Char('#')) || plain.startsWith(QLatin1Char('$'))) {
        throw Fault{Diagnosis::tr("topic \"%1\": expected one level that is + or %2")
                        .arg(pattern, QStringLiteral("%1"))};
    }
}

QString KioskTopic::kioskOf(const QString& topic) const
{
    if (topic.size() <= m_before.size() + m_after.size() || !topic.startsWith(m_before)
        || !topic.endsWith(m_after))
        return {};
    const QString kiosk =
        topic.mid(m_before.size(), topic.size() - m_before.size() - m_after.size());
    return kiosk.contains(QLatin1Char('/')) ? QString() : kiosk;
}
