// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/gzip.h"

#include "text/diagnosis.h"
#include "text/fault.h"

#include <zlib.h>

#include <new>

namespace {

constexpr int compressedSize = 64 * 1024;

} // namespace

struct Gzip::Stream : z_stream
{
};

bool Gzip::recognises(const QByteArray& begin)
{
    return begin.startsWith("\x1f\x8b");
}

Gzip::Gzip(const QByteArray& begin, Source source)
    : m_data(begin)
    , m_source(std::move(source))
    , m_stream(new Stream())
{
    constexpr int windowBitsOfGzip = 15 + 16;
    m_stream->next_in = reinterpret_cast<Bytef*>(m_data.data());
    m_stream->avail_in = static_cast<uInt>(m_data.size());
    if (inflateInit2(m_stream.get(), windowBitsOfGzip) != Z_OK)
        throw std::bad_alloc();
}

Gzip::~Gzip()
{
    inflateEnd(m_stream.get());
}

int Gzip::read(char* text, int size)
{
    m_stream->next_out = reinterpret_cast<Bytef*>(text);
    m_stream->avail_out = static_cast<uInt>(size);
    while (m_stream->avail_out == static_cast<uInt>(size)) {
        if (m_stream->avail_in == 0) {
            m_data.resize(compressedSize);
            m_stream->next_in = reinterpret_cast<Bytef*>(m_data.data());
            m_stream->avail_in = static_cast<uInt>(m_source(m_data.data(), compressedSize));
        }
        const bool isEnd = m_stream->avail_in == 0;
        for (; !m_inMember && m_stream->avail_in > 0 && *m_stream->next_in == 0;
             ++m_stream->next_in)
            --m_stream->avail_in;
        if (m_stream->avail_in == 0 && !isEnd)
            continue;
        if (isEnd) {
            if (m_inMember)
                throw Fault{Diagnosis::tr("the compressed file is cut off")};
            return 0;
        }
        const int result = inflate(m_stream.get(), Z_NO_FLUSH);
        m_inMember = result != Z_STREAM_END;
        if (result == Z_STREAM_END)
            inflateReset(m_stream.get());
        else if (result != Z_OK && result != Z_BUF_ERROR)
            throw Fault{Diagnosis::tr("the compressed file is damaged")};
    }
    return size - static_cast<int>(m_stream->avail_out);
}
