// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "kiosktopic.h"

#include "text/diagnosis.h"
#include "text/fault.h"

#include <QRegularExpression>

namespace {

const QLatin1String anyName("+");
const QLatin1String partLevel("%part");

} // namespace

KioskTopic::KioskTopic(const QString& pattern)
    : m_levels(pattern.split(QLatin1Char('/')))
{
    static const QRegularExpression wild(QStringLiteral("[+#%]|^\\$"));
    bool isSound = true;
    for (QString& level : m_levels) {
        if (level == QLatin1String("%1") || level == QLatin1String("%kiosk"))
            level = anyName;
        isSound = isSound && (level == anyName || level == partLevel || !level.contains(wild));
    }
    const auto names = m_levels.count(anyName);
    if (!isSound || names < 1 || names > 2 || m_levels.count(partLevel) > 1) {
        throw Fault{Diagnosis::tr("topic \"%1\": expected one or two levels that are + or %2, and "
                                  "no more than one that is %3")
                        .arg(pattern, QStringLiteral("%kiosk"), partLevel)};
    }
}

QString KioskTopic::filter(int part) const
{
    return QStringList(m_levels)
        .replaceInStrings(partLevel, part == 0 ? QString(anyName) : QString::number(part))
        .join(QLatin1Char('/'));
}

QString KioskTopic::of(const QString& kiosk, int part) const
{
    QStringList names = kiosk.split(QLatin1Char('/'));
    QStringList levels = m_levels;
    for (QString& level : levels) {
        if (level == anyName)
            level = names.isEmpty() ? QString() : names.takeFirst();
        else if (level == partLevel)
            level = part == 0 ? QString(anyName) : QString::number(part);
    }
    return levels.join(QLatin1Char('/'));
}

// Without a list of the levels: a worker asks for each state of all other parts, too.
QString KioskTopic::kioskOf(const QString& topic) const
{
    QString kiosk;
    int begin = 0;
    for (const QString& level : m_levels) {
        auto end = topic.indexOf(QLatin1Char('/'), begin);
        const bool isLast = &level == &m_levels.constLast();
        if ((end < 0) != isLast)
            return {};
        if (isLast)
            end = topic.size();
        const QStringView told = QStringView(topic).mid(begin, end - begin);
        if (level == anyName && told.isEmpty())
            return {};
        if (level == anyName)
            kiosk = kiosk.isEmpty() ? told.toString() : kiosk + QLatin1Char('/') + told.toString();
        else if (level != partLevel && told != level)
            return {};
        begin = int(end) + 1;
    }
    return kiosk;
}

int KioskTopic::partOf(const QString& topic) const
{
    const auto level = m_levels.indexOf(partLevel);
    return level < 0 ? 0 : topic.section(QLatin1Char('/'), int(level), int(level)).toInt();
}

QString regionOf(const QString& kiosk)
{
    static const QRegularExpression separator(QStringLiteral("[-/_.]"));
    const auto end = kiosk.indexOf(separator);
    return end < 0 ? QString() : kiosk.left(end);
}
