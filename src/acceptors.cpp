// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptors.h"

#include <QDebug>

#include <algorithm>
#include <iterator>

namespace {

const QString idKey = QStringLiteral("id");
const QString protocolKey = QStringLiteral("protocol");
const QString classKey = QStringLiteral("class");
const QString typeKey = QStringLiteral("type");

using A = Acceptors;

struct Model
{
    Acceptors::Supported id;
    QString protocol;
    QString className;
    Acceptors::AcceptorType type;

    SupportedDevice row() const
    {
        return Acceptors::addDevice(static_cast<short>(id), protocol, className, type);
    }
};

// In the order of every list that the catalogue gives.
const Model catalogue[] = {
    {A::ArdacEliteId003, QStringLiteral("Ardac Elite ID 003"), QStringLiteral("NAArdacId003"),
     A::NoteAcceptor},
    {A::JcmIproId003, QStringLiteral("JCM iPRO ID003"), QStringLiteral("NaJcmIproId003"),
     A::NoteRecycler},
    {A::Id003, QStringLiteral("ID 003"), QStringLiteral("NAJcmId003"), A::NoteAcceptor},
    {A::CCNet, QStringLiteral("CCNet"), QStringLiteral("NACashCode"), A::NoteAcceptor},
    {A::Ebds, QStringLiteral("EBDS"), QStringLiteral("NAMeiCashflow"), A::NoteAcceptor},
    {A::EsspPayout, QStringLiteral("eSSP with Payout module"), QStringLiteral("NANv200Payout"),
     A::NoteRecycler},
    {A::Ssp, QStringLiteral("Innovative Technology SSP"), QStringLiteral("NANV"), A::NoteAcceptor},
    {A::Ict, QStringLiteral("ICT 002/004"), QStringLiteral("NAIct"), A::NoteAcceptor},
    {A::PuloonLcdm2, QStringLiteral("Puloon LCDM2"), QStringLiteral("NAPuloonLCDM2"),
     A::NoteDispenser},
    {A::CCTalk, QStringLiteral("CCTalk"), QStringLiteral("CANriG13"), A::CoinAcceptor},
    {A::SmartHopper, QStringLiteral("eSSP, Smart Hopper"), QStringLiteral("CASmartHopper"),
     A::CoinHopper},
    {A::Uniteller, QStringLiteral("Uniteller"), QStringLiteral("CRUniteller"), A::CardReader},
    {A::PosD200, QStringLiteral("PosD200"), QStringLiteral("CRPosD200"), A::CardReader},
};

// Null for a model that is not in the catalogue.
const Model* findModel(Acceptors::Supported id)
{
    const auto model = std::find_if(std::begin(catalogue), std::end(catalogue),
                                    [id](const Model& m) { return m.id == id; });
    return model == std::end(catalogue) ? nullptr : model;
}

} // namespace

SupportedDevice Acceptors::addDevice(short id, QString protocol, QString className,
                                     AcceptorType type)
{
    return {{idKey, int(id)}, {protocolKey, protocol}, {classKey, className}, {typeKey, int(type)}};
}

QList<SupportedDevice> Acceptors::supportedDevices()
{
    QList<SupportedDevice> devices;
    for (const Model& model : catalogue)
        devices.append(model.row());
    return devices;
}

QVariantList Acceptors::SupportedDevicesAsVariantList()
{
    QVariantList devices;
    for (const Model& model : catalogue)
        devices.append(model.row());
    return devices;
}

SupportedDevice Acceptors::search(Supported id)
{
    if (const Model* const model = findModel(id))
        return model->row();
    qCritical().noquote() << QStringLiteral("%1 - unknown device.").arg(int(id));
    return {};
}

QString Acceptors::devName(Supported id)
{
    if (const Model* const model = findModel(id))
        return model->protocol;
    search(id); // says that the model is unknown
    return QStringLiteral("Unknown device");
}

Acceptors::AcceptorType Acceptors::devType(Supported id)
{
    if (const Model* const model = findModel(id))
        return model->type;
    search(id);
    return static_cast<AcceptorType>(-1);
}

bool Acceptors::canDispense(Supported id)
{
    const AcceptorType type = devType(id);
    return type >= NoteDispenser && type <= CoinHopper;
}

bool Acceptors::isSmartDispenser(Supported id)
{
    return id == EsspPayout || id == SmartHopper;
}
