#include "output.h"

#include "fault.h"

#include <unistd.h>

namespace {

Fault outputFault(const QFile& file)
{
    return {QStringLiteral("standard output: %1").arg(file.errorString())};
}

} // namespace

Output::Output()
{
    if (!m_file.open(STDOUT_FILENO, QIODevice::WriteOnly))
        throw outputFault(m_file);
}

void Output::write(const QByteArray& text)
{
    if (m_file.write(text) != text.size())
        throw outputFault(m_file);
}

void Output::flush()
{
    if (!m_file.flush())
        throw outputFault(m_file);
}

void print(const QString& text)
{
    Output output;
    output.write(text.toUtf8());
    output.flush();
}
