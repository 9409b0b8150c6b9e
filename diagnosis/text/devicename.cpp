// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/devicename.h"

#include "acceptors.h"
#include "text/diagnosis.h"

#include <QHash>

#include <algorithm>
#include <iterator>

namespace {

SupportedDevice modelOf(int number)
{
    // The catalogue is made anew for each who asks.
    static const auto& models = *new QHash<int, SupportedDevice>([] {
        QHash<int, SupportedDevice> found;
        const QList<SupportedDevice> catalogue = Acceptors::supportedDevices();
        for (const SupportedDevice& row : catalogue)
            found.insert(row.value(QStringLiteral("id")).toInt(), row);
        return found;
    }());
    return models.value(number);
}

// By Acceptors::AcceptorType.
constexpr const char* kinds[] = {
    QT_TRANSLATE_NOOP("Diagnosis", "Device"),
    QT_TRANSLATE_NOOP("Diagnosis", "Bill validator"),
    QT_TRANSLATE_NOOP("Diagnosis", "Coin acceptor"),
    QT_TRANSLATE_NOOP("Diagnosis", "Card terminal"),
    QT_TRANSLATE_NOOP("Diagnosis", "Note dispenser"),
    QT_TRANSLATE_NOOP("Diagnosis", "Device"),
    QT_TRANSLATE_NOOP("Diagnosis", "Note recycler"),
    QT_TRANSLATE_NOOP("Diagnosis", "Coin hopper"),
};
static_assert(std::size(kinds) == Acceptors::CoinHopper + 1, "a kind has no name");

} // namespace

QString modelName(int model)
{
    return modelOf(model).value(QStringLiteral("protocol")).toString();
}

int modelKind(int model)
{
    return modelOf(model).value(QStringLiteral("type"), -1).toInt();
}

bool isValidator(int model)
{
    return model >= 1 && model <= 99;
}

bool isCoinDevice(int model)
{
    return model >= 100 && model <= 199;
}

Money moneyOf(int model)
{
    const int kind = modelKind(model);
    if (kind == Acceptors::NoteDispenser || kind == Acceptors::OtherDispenser)
        return Money::None;
    if (isValidator(model))
        return Money::Note;
    if (isCoinDevice(model))
        return Money::Coin;
    return kind == Acceptors::CardReader ? Money::Card : Money::None;
}

QString kindName(int model)
{
    return Diagnosis::tr(kinds[std::max(0, modelKind(model))]);
}

QString deviceName(int model, const QString& givenName)
{
    const QString protocol = modelName(model);
    if (protocol.isEmpty())
        return givenName.isEmpty() ? Diagnosis::tr("Device %1").arg(quint32(model)) : givenName;
    return QStringLiteral("%1 (%2)").arg(givenName.isEmpty() ? kindName(model) : givenName,
                                         protocol);
}
