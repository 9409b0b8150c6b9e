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

// Declares a function that the library has as mosquitto_NAME.
#define FUNCTION(name) decltype(mosquitto_##name)* const name = find("mosquitto_" #name);
    FUNCTION(lib_init)
    decltype(mosquitto_new)* const create = find("mosquitto_new");
    FUNCTION(destroy)
    FUNCTION(int_option)
    FUNCTION(threaded_set)
    FUNCTION(username_pw_set)
    FUNCTION(tls_set)
    FUNCTION(connect_v5_callback_set)
    FUNCTION(message_callback_set)
    FUNCTION(publish_v5_callback_set)
    FUNCTION(will_set_v5)
    FUNCTION(subscribe_callback_set)
    FUNCTION(unsubscribe_callback_set)
    FUNCTION(connect_bind_v5)
    FUNCTION(disconnect_v5)
    FUNCTION(subscribe_v5)
    FUNCTION(unsubscribe)
    FUNCTION(publish_v5)
    FUNCTION(socket)
    FUNCTION(want_write)
    FUNCTION(loop_read)
    FUNCTION(loop_write)
    FUNCTION(loop_misc)
    FUNCTION(property_add_int32)
    FUNCTION(property_free_all)
    FUNCTION(strerror)
    FUNCTION(reason_string)
#undef FUNCTION
};
