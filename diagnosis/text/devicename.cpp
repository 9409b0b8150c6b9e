// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/devicename.h"

#include "acceptors.h"
#include "text/diagnosis.h"

#include <QHash>

namespace {

struct Model
{
    QString protocol;
    int kind = -1;
};

Model modelOf(int number)
{
    // The catalogue is made anew for each who asks.
    static const QHash<int, Model>& models = *new QHash<int, Model>([] {
        QHash<int, Model> found;
        const QList<SupportedDevice> catalogue = Acceptors::supportedDevices();
        for (const SupportedDevice& row : catalogue) {
            found.insert(row.value(QStringLiteral("id")).toInt(),
                         {row.value(QStringLiteral("protocol")).toString(),
                          row.value(QStringLiteral("type")).toInt()});
        }
        return found;
    }());
    return models.value(number);
}

} // namespace

QString modelName(int model)
{
    return modelOf(model).protocol;
}

int modelKind(int model)
{
    return modelOf(model).kind;
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
    switch (modelKind(model)) {
    case Acceptors::NoteAcceptor:
        return Diagnosis::tr("Bill validator");
    case Acceptors::CoinAcceptor:
        return Diagnosis::tr("Coin acceptor");
    case Acceptors::CardReader:
        return Diagnosis::tr("Card terminal");
    case Acceptors::NoteDispenser:
        return Diagnosis::tr("Note dispenser");
    case Acceptors::NoteRecycler:
        return Diagnosis::tr("Note recycler");
    case Acceptors::CoinHopper:
        return Diagnosis::tr("Coin hopper");
    default:
        return Diagnosis::tr("Device");
    }
}

QString deviceName(int model, const QString& givenName)
{
    const QString protocol = modelName(model);
    if (protocol.isEmpty())
        return givenName.isEmpty() ? Diagnosis::tr("Device %1").arg(model) : givenName;
    return QStringLiteral("%1 (%2)").arg(givenName.isEmpty() ? kindName(model) : givenName,
                                         protocol);
}
