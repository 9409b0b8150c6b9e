// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "brokeroptions.h"

#include "text/diagnosis.h"
#include "text/fault.h"

#include <QFile>
#include <QRegularExpression>

namespace {

// Throws Fault, which names the file, when it cannot be read.
void open(QFile& file)
{
    if (!file.open(QIODevice::ReadOnly))
        throw Fault{QStringLiteral("%1: %2").arg(file.fileName(), file.errorString())};
}

} // namespace

void BrokerOptions::take(const QString& broker, const QString& passwordFile, const QString& tlsCa,
                         const QString& tlsCert, const QString& tlsKey)
{
    if (!broker.isEmpty())
        setAddress(broker);
    if (!passwordFile.isEmpty())
        readPassword(passwordFile);
    caFile = tlsCa;
    certificateFile = tlsCert;
    keyFile = tlsKey;
    for (const QString& name : {tlsCa, tlsCert, tlsKey}) {
        QFile file(name);
        if (!name.isEmpty())
            open(file);
    }
    if (certificateFile.isEmpty() != keyFile.isEmpty())
        throw Fault{Diagnosis::tr("a client certificate and its key go together")};
    if (!certificateFile.isEmpty() && caFile.isEmpty())
        throw Fault{Diagnosis::tr("a client certificate needs the certificates to trust")};
}

void BrokerOptions::setAddress(const QString& address)
{
    static const QRegularExpression pattern(
        QStringLiteral(R"(^(?:\[([0-9A-Fa-f:]+)\]|([^:\[\]\s]+))(?::(\d{1,5}))?$)"));
    const QRegularExpressionMatch match = pattern.match(address);
    const int given = match.captured(3).isEmpty() ? port : match.captured(3).toInt();
    if (!match.hasMatch() || given < 1 || given > 65535)
        throw Fault{Diagnosis::tr("broker \"%1\": expected HOST or HOST:PORT").arg(address)};
    host = match.captured(1) + match.captured(2);
    port = given;
}

void BrokerOptions::readPassword(const QString& fileName)
{
    QFile file(fileName);
    open(file);
    const QString line = QString::fromUtf8(file.readLine()).trimmed();
    const auto colon = line.indexOf(QLatin1Char(':'));
    if (colon < 1)
        throw Fault{Diagnosis::tr("%1:1: expected USER:PASSWORD").arg(fileName)};
    user = line.left(colon);
    password = line.mid(colon + 1);
}
