// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

/// Which kiosks a worker summarises: each kiosk is of one of so many parts.
///
/// The part is found by rendezvous hashing: of all parts, the one whose number gives the highest
/// hash together with the kiosk's name. Where a part is added, only the kiosks that it gets move.
class Partition
{
public:
    static constexpr int most = 1000; ///< parts

    /// The only part.
    Partition() = default;

    /// @param text "2/4". Throws Fault for one that is no part of so many.
    explicit Partition(const QString& text);

    int number() const { return m_number; } ///< from 1
    int count() const { return m_count; }

    QString text() const { return QStringLiteral("%1/%2").arg(m_number).arg(m_count); }

    bool has(const QString& kiosk) const { return m_count == 1 || of(kiosk, m_count) == m_number; }

    /// The part that a kiosk is of. The hash of its name in UTF-8 is FNV-1a of 64 bits; it is added
    /// to the number and mixed by the finaliser of SplitMix64.
    static int of(const QString& kiosk, int count);

private:
    int m_number = 1;
    int m_count = 1;
};

/// FNV-1a of 64 bits.
/// @param hash of what comes before
quint64 hashOf(const QByteArray& bytes, quint64 hash = 0xcbf29ce484222325);
