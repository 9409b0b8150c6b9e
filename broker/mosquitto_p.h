// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLibrary>

#include <mosquitto.h>
#include <mqtt_protocol.h>

/// The functions of libmosquitto that are used, under their names without "mosquitto_".
class Mosquitto
{
    // A function of any type.
    struct Function
    {
        QFunctionPointer address;

        template <typename Type>
        operator Type*() const
        {
            return reinterpret_cast<Type*>(address);
        }
    };

    Mosquitto();
    Function find(const char* name);

    QLibrary m_library;

public:
    /// Loads the library at the first call; throws Fault when it is not there.
    static const Mosquitto& library();

    decltype(mosquitto_lib_init)* const lib_init = find("mosquitto_lib_init");
    decltype(mosquitto_new)* const create = find("mosquitto_new");
    decltype(mosquitto_destroy)* const destroy = find("mosquitto_destroy");
    decltype(mosquitto_int_option)* const int_option = find("mosquitto_int_option");
    decltype(mosquitto_threaded_set)* const threaded_set = find("mosquitto_threaded_set");
    decltype(mosquitto_username_pw_set)* const username_pw_set = find("mosquitto_username_pw_set");
    decltype(mosquitto_tls_set)* const tls_set = find("mosquitto_tls_set");
    decltype(mosquitto_connect_v5_callback_set)* const connect_v5_callback_set =
        find("mosquitto_connect_v5_callback_set");
    decltype(mosquitto_message_callback_set)* const message_callback_set =
        find("mosquitto_message_callback_set");
    decltype(mosquitto_publish_callback_set)* const publish_callback_set =
        find("mosquitto_publish_callback_set");
    decltype(mosquitto_subscribe_callback_set)* const subscribe_callback_set =
        find("mosquitto_subscribe_callback_set");
    decltype(mosquitto_unsubscribe_callback_set)* const unsubscribe_callback_set =
        find("mosquitto_unsubscribe_callback_set");
    decltype(mosquitto_connect_bind_v5)* const connect_bind_v5 = find("mosquitto_connect_bind_v5");
    decltype(mosquitto_disconnect_v5)* const disconnect_v5 = find("mosquitto_disconnect_v5");
    decltype(mosquitto_subscribe_v5)* const subscribe_v5 = find("mosquitto_subscribe_v5");
    decltype(mosquitto_unsubscribe)* const unsubscribe = find("mosquitto_unsubscribe");
    decltype(mosquitto_publish)* const publish = find("mosquitto_publish");
    decltype(mosquitto_socket)* const socket = find("mosquitto_socket");
    decltype(mosquitto_want_write)* const want_write = find("mosquitto_want_write");
    decltype(mosquitto_loop_read)* const loop_read = find("mosquitto_loop_read");
    decltype(mosquitto_loop_write)* const loop_write = find("mosquitto_loop_write");
    decltype(mosquitto_loop_misc)* const loop_misc = find("mosquitto_loop_misc");
    decltype(mosquitto_property_add_int32)* const property_add_int32 =
        find("mosquitto_property_add_int32");
    decltype(mosquitto_property_free_all)* const property_free_all =
        find("mosquitto_property_free_all");
    decltype(mosquitto_strerror)* const strerror = find("mosquitto_strerror");
    decltype(mosquitto_reason_string)* const reason_string = find("mosquitto_reason_string");
};
