// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <functional>
#include <memory>

/// Inflates gzip data as they come, also several members one after the other. Zero bytes behind a
/// member are no data: files are padded with them. What else stands there is damage, which zlib's
/// own gzread() would pass over.
class Gzip
{
public:
    /// Reads up to that many bytes of compressed data; 0 at their end.
    using Source = std::function<int(char* data, int size)>;

    static constexpr char firstByte = '\x1f';

    static bool recognises(const QByteArray& begin);

    /// @param begin what was read of the data already
    Gzip(const QByteArray& begin, Source source);
    ~Gzip();

    /// Inflates up to that many bytes; 0 at the end. Throws Fault for damaged data and for such
    /// that end too early.
    int read(char* text, int size);

private:
    Q_DISABLE_COPY(Gzip)

    struct Stream;

    QByteArray m_data;
    Source m_source;
    std::unique_ptr<Stream> m_stream;
    bool m_inMember = false;
};
