// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Where the broker is and as whom to connect.
struct BrokerOptions
{
    QString host = QStringLiteral("localhost");
    int port = 1883;
    QString user; ///< empty for nobody
    QString password;
    QString caFile; ///< certificates to trust, PEM; empty for a connection without TLS
    QString certificateFile; ///< the client's own, PEM; empty without one
    QString keyFile;

    /// Takes what a program's options of these names say; empty for one that is not given.
    /// @param broker "HOST" or "HOST:PORT", IPv6 addresses in brackets
    /// @param passwordFile has "USER:PASSWORD" on its first line
    ///
    /// Throws Fault for an address that is none, for a file that cannot be read or has no
    /// password, and for a certificate that lacks its counterpart.
    void take(const QString& broker, const QString& passwordFile, const QString& tlsCa,
              const QString& tlsCert, const QString& tlsKey);

private:
    void setAddress(const QString& address);
    void readPassword(const QString& fileName);
};
