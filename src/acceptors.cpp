#include "acceptors.h"

#include <QDebug>

namespace {

const QLatin1String idKey("id");
const QLatin1String protocolKey("protocol");
const QLatin1String classKey("class");
const QLatin1String typeKey("type");

} // namespace

SupportedDevice Acceptors::addDevice(short id, QString protocol, QString className,
                                     AcceptorType type)
{
    return {{idKey, int(id)}, {protocolKey, protocol}, {classKey, className}, {typeKey, int(type)}};
}

QList<SupportedDevice> Acceptors::supportedDevices()
{
    return {
        addDevice(ArdacEliteId003, QStringLiteral("Ardac Elite ID 003"),
                  QStringLiteral("NAArdacId003"), NoteAcceptor),
        addDevice(JcmIproId003, QStringLiteral("JCM iPRO ID003"), QStringLiteral("NaJcmIproId003"),
                  NoteRecycler),
        addDevice(Id003, QStringLiteral("ID 003"), QStringLiteral("NAJcmId003"), NoteAcceptor),
        addDevice(CCNet, QStringLiteral("CCNet"), QStringLiteral("NACashCode"), NoteAcceptor),
        addDevice(Ebds, QStringLiteral("EBDS"), QStringLiteral("NAMeiCashflow"), NoteAcceptor),
        addDevice(EsspPayout, QStringLiteral("eSSP with Payout module"),
                  QStringLiteral("NANv200Payout"), NoteRecycler),
        addDevice(Ssp, QStringLiteral("Innovative Technology SSP"), QStringLiteral("NANV"),
                  NoteAcceptor),
        addDevice(Ict, QStringLiteral("ICT 002/004"), QStringLiteral("NAIct"), NoteAcceptor),
        addDevice(PuloonLcdm2, QStringLiteral("Puloon LCDM2"), QStringLiteral("NAPuloonLCDM2"),
                  NoteDispenser),
        addDevice(CCTalk, QStringLiteral("CCTalk"), QStringLiteral("CANriG13"), CoinAcceptor),
        addDevice(SmartHopper, QStringLiteral("eSSP, Smart Hopper"),
                  QStringLiteral("CASmartHopper"), CoinHopper),
        addDevice(Uniteller, QStringLiteral("Uniteller"), QStringLiteral("CRUniteller"),
                  CardReader),
        addDevice(PosD200, QStringLiteral("PosD200"), QStringLiteral("CRPosD200"), CardReader),
    };
}

QVariantList Acceptors::SupportedDevicesAsVariantList()
{
    QVariantList list;
    for (const SupportedDevice& device : supportedDevices())
        list.append(device);
    return list;
}

SupportedDevice Acceptors::search(Supported id)
{
    for (const SupportedDevice& device : supportedDevices()) {
        if (device.value(idKey).toInt() == id)
            return device;
    }
    qCritical().noquote() << QStringLiteral("%1 - unknown device.").arg(int(id));
    return {};
}

QString Acceptors::devName(Supported id)
{
    return search(id).value(protocolKey, QStringLiteral("Unknown device")).toString();
}

Acceptors::AcceptorType Acceptors::devType(Supported id)
{
    return static_cast<AcceptorType>(search(id).value(typeKey, -1).toInt());
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
