// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "partition.h"

#include "text/diagnosis.h"
#include "text/fault.h"

#include <QRegularExpression>

namespace {

quint64 mixed(quint64 hash)
{
    hash = (hash ^ (hash >> 30)) * 0xbf58476d1ce4e5b9;
    hash = (hash ^ (hash >> 27)) * 0x94d049bb133111eb;
    return hash ^ (hash >> 31);
}

} // namespace

quint64 hashOf(const QByteArray& bytes, quint64 hash)
{
    for (const char byte : bytes)
        hash = (hash ^ uchar(byte)) * 0x100000001b3;
    return hash;
}

Partition::Partition(const QString& text)
{
    static const QRegularExpression pattern(QStringLiteral(R"(^(\d{1,4})/(\d{1,4})$)"));
    const QRegularExpressionMatch match = pattern.match(text);
    m_number = match.captured(1).toInt();
    m_count = match.captured(2).toInt();
    if (m_number < 1 || m_number > m_count || m_count > most)
        throw Fault{Diagnosis::tr("part \"%1\": expected one of so many, as 2/4").arg(text)};
}

int Partition::of(const QString& kiosk, int count)
{
    const quint64 name = hashOf(kiosk.toUtf8());
    int best = 1;
    quint64 highest = 0;
    for (int part = 1; part <= count; ++part) {
        const quint64 score = mixed(name + quint64(part) * 0x9e3779b97f4a7c15);
        if (score >= highest) {
            highest = score;
            best = part;
        }
    }
    return best;
}
