// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "mosquitto_p.h"

#include "fault.h"
#include "words.h"

const Mosquitto& Mosquitto::library()
{
    static const Mosquitto& library = *new Mosquitto; // its log lines may come at exit
    return library;
}

Mosquitto::Mosquitto()
    : m_library(QStringLiteral("mosquitto"), LIBMOSQUITTO_SONAME)
{
    if (!m_library.load())
        throw Fault{Diagnosis::tr("a broker needs libmosquitto: %1").arg(m_library.errorString())};
    const auto load = [this](auto*& member, const char* name) {
        member = function<std::remove_pointer_t<std::remove_reference_t<decltype(member)>>>(name);
    };
    load(lib_init, "mosquitto_lib_init");
    load(create, "mosquitto_new");
    load(destroy, "mosquitto_destroy");
    load(int_option, "mosquitto_int_option");
    load(threaded_set, "mosquitto_threaded_set");
    load(username_pw_set, "mosquitto_username_pw_set");
    load(tls_set, "mosquitto_tls_set");
    load(connect_v5_callback_set, "mosquitto_connect_v5_callback_set");
    load(message_callback_set, "mosquitto_message_callback_set");
    load(publish_callback_set, "mosquitto_publish_callback_set");
    load(subscribe_callback_set, "mosquitto_subscribe_callback_set");
    load(unsubscribe_callback_set, "mosquitto_unsubscribe_callback_set");
    load(connect_bind_v5, "mosquitto_connect_bind_v5");
    load(disconnect_v5, "mosquitto_disconnect_v5");
    load(subscribe, "mosquitto_subscribe");
    load(unsubscribe, "mosquitto_unsubscribe");
    load(publish, "mosquitto_publish");
    load(socket, "mosquitto_socket");
    load(want_write, "mosquitto_want_write");
    load(loop_read, "mosquitto_loop_read");
    load(loop_write, "mosquitto_loop_write");
    load(loop_misc, "mosquitto_loop_misc");
    load(property_add_int32, "mosquitto_property_add_int32");
    load(property_free_all, "mosquitto_property_free_all");
    load(strerror, "mosquitto_strerror");
    load(reason_string, "mosquitto_reason_string");
    lib_init();
}

QFunctionPointer Mosquitto::find(const char* name)
{
    const QFunctionPointer found = m_library.resolve(name);
    if (!found)
        throw Fault{Diagnosis::tr("a broker needs libmosquitto: %1").arg(QLatin1String(name))};
    return found;
}
