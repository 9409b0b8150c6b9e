// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLibrary>

#include <mosquitto.h>
#include <mqtt_protocol.h>

/// The functions of libmosquitto that are used, under their names without "mosquitto_".
class Mosquitto
{
    QLibrary m_library;

    template <typename Function>
    Function* function(const char* name)
    {
        return reinterpret_cast<Function*>(find(name));
    }

    Mosquitto();
    QFunctionPointer find(const char* name);

public:
    /// Loads the library at the first call; throws Fault when it is not there.
    static const Mosquitto& library();

    decltype(mosquitto_lib_init)* lib_init;
    decltype(mosquitto_new)* create;
    decltype(mosquitto_destroy)* destroy;
    decltype(mosquitto_int_option)* int_option;
    decltype(mosquitto_threaded_set)* threaded_set;
    decltype(mosquitto_username_pw_set)* username_pw_set;
    decltype(mosquitto_tls_set)* tls_set;
    decltype(mosquitto_connect_v5_callback_set)* connect_v5_callback_set;
    decltype(mosquitto_message_callback_set)* message_callback_set;
    decltype(mosquitto_publish_callback_set)* publish_callback_set;
    decltype(mosquitto_subscribe_callback_set)* subscribe_callback_set;
    decltype(mosquitto_unsubscribe_callback_set)* unsubscribe_callback_set;
    decltype(mosquitto_connect_bind_v5)* connect_bind_v5;
    decltype(mosquitto_disconnect_v5)* disconnect_v5;
    decltype(mosquitto_subscribe)* subscribe;
    decltype(mosquitto_unsubscribe)* unsubscribe;
    decltype(mosquitto_publish)* publish;
    decltype(mosquitto_socket)* socket;
    decltype(mosquitto_want_write)* want_write;
    decltype(mosquitto_loop_read)* loop_read;
    decltype(mosquitto_loop_write)* loop_write;
    decltype(mosquitto_loop_misc)* loop_misc;
    decltype(mosquitto_property_add_int32)* property_add_int32;
    decltype(mosquitto_property_free_all)* property_free_all;
    decltype(mosquitto_strerror)* strerror;
    decltype(mosquitto_reason_string)* reason_string;
};
