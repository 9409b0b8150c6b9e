// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashperiod.h"

#include "text/devicename.h"
#include "text/diagnosis.h"

#include <algorithm>
#include <climits>
#include <iterator>

bool CashDoubt::isAbout(CashPlace other, int otherChannel, int value) const
{
    const bool isThere = !place || *place == other;
    const bool isOfChannel = other != CashPlace::Channel || channel == 0 || channel == otherChannel;
    return isThere && isOfChannel && (denomination == 0 || denomination == value);
}

CashKind CashKind::ofNote(quint32 device, int note)
{
    std::optional<int> billType;
    if (isCoinDevice(int(device)))
        billType = 1;
    else if (isValidator(int(device)))
        billType = 0;
    return {note, {}, billType};
}

QString CashDoubt::textOf(DoubtReason reason, qint64 pieces)
{
    struct Words
    {
        DoubtReason reason;
        const char* text;
    };
    static constexpr Words table[] = {
        {DoubtReason::Stuck, QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces got stuck on their way")},
        {DoubtReason::OnItsWay, QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces are on their way")},
        {DoubtReason::EndUnknown,
         QT_TRANSLATE_N_NOOP("Diagnosis", "of %n pieces the log does not say what became of them")},
        {DoubtReason::InHandAtGap,
         QT_TRANSLATE_N_NOOP("Diagnosis", "lines were skipped while %n pieces were on their way")},
        {DoubtReason::ValueChanged,
         QT_TRANSLATE_N_NOOP("Diagnosis",
                             "the value of %n pieces changed while they were on their way")},
        {DoubtReason::ValueUnknown,
         QT_TRANSLATE_N_NOOP("Diagnosis", "%n pieces of unknown value were taken")},
        {DoubtReason::PlaceUnknown,
         QT_TRANSLATE_N_NOOP(
             "Diagnosis", "of %n pieces the registry does not tell whether they are in a channel")},
        {DoubtReason::NoteMissing,
         QT_TRANSLATE_N_NOOP("Diagnosis",
                             "by the device's counter %n pieces are missing from the log")},
        {DoubtReason::CreditAlone,
         QT_TRANSLATE_N_NOOP("Diagnosis", "%n credits came without a piece")},
        {DoubtReason::LinesSkipped, QT_TRANSLATE_N_NOOP("Diagnosis", "%n lines were skipped")},
        {DoubtReason::CollectionUnseen,
         QT_TRANSLATE_N_NOOP("Diagnosis",
                             "lines were skipped in which the cassette may have been emptied")},
        {DoubtReason::RegistryNew,
         QT_TRANSLATE_N_NOOP(
             "Diagnosis",
             "the registry was told for the first time while channels were floated or emptied")},
        {DoubtReason::ChannelUnexplained,
         QT_TRANSLATE_N_NOOP("Diagnosis",
                             "%n pieces left a channel, and the log does not say why")},
        {DoubtReason::CassetteOut,
         QT_TRANSLATE_N_NOOP(
             "Diagnosis",
             "%n pieces came or went while the cassette was out, and are not counted here")},
        {DoubtReason::EndMissing,
         QT_TRANSLATE_N_NOOP("Diagnosis",
                             "the log does not tell the end of a payout, a float or an "
                             "emptying, %n pieces may be on their way")},
    };
    const auto* const found =
        std::find_if(std::begin(table), std::end(table),
                     [reason](const Words& words) { return words.reason == reason; });
    return Diagnosis::tr(found->text, nullptr, int(qMin<qint64>(pieces, INT_MAX)));
}

QString CashRow::placeName() const
{
    switch (place) {
    case CashPlace::Cassette:
        return Diagnosis::tr("cassette");
    case CashPlace::Channel:
        return Diagnosis::tr("channel %1").arg(channel);
    case CashPlace::Reject:
        break;
    }
    return Diagnosis::tr("reject");
}

QStringList CashRow::cells() const
{
    return {placeName(),
            QString::number(kind.denomination),
            kind.currency,
            flow.opening.text(),
            flow.in.text(),
            flow.out.text(),
            flow.moved.text(),
            now.text(),
            now.times(kind.denomination).text()};
}

QStringList CashRow::columns()
{
    return {Diagnosis::tr("Place"),   Diagnosis::tr("Value"), Diagnosis::tr("Currency"),
            Diagnosis::tr("Opening"), Diagnosis::tr("In"),    Diagnosis::tr("Out"),
            Diagnosis::tr("Moved"),   Diagnosis::tr("Now"),   Diagnosis::tr("Sum now")};
}

QStringList CashPeriod::notes() const
{
    QStringList texts;
    for (const CashRow& row : rows)
        texts += row.why;
    texts.removeDuplicates();
    return texts;
}
