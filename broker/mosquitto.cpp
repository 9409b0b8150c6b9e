// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "mosquitto_p.h"

#include "text/diagnosis.h"
#include "text/fault.h"

const Mosquitto& Mosquitto::library()
{
    static const Mosquitto& library = *new Mosquitto; // its log lines may come at exit
    return library;
}

Mosquitto::Mosquitto()
    : m_library(QStringLiteral("mosquitto"), LIBMOSQUITTO_SONAME)
{
    lib_init();
}

Mosquitto::Function Mosquitto::find(const char* name)
{
    const QFunctionPointer found = m_library.resolve(name);
    if (!found)
        throw Fault{Diagnosis::tr("a broker needs libmosquitto: %1").arg(m_library.errorString())};
    return {found};
}
