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

    /// Takes "HOST" or "HOST:PORT", IPv6 addresses in brackets. Throws Fault for anything else.
    void setAddress(const QString& address);

    /// Takes the user and the password from a file with "USER:PASSWORD" on its first line. Throws
    /// Fault, which names the file, when it has none.
    void readPassword(const QString& fileName);

    /// Whether client certificate, key and trusted certificates are given as they must be. Throws
    /// Fault for what lacks its counterpart.
    void check() const;
};
