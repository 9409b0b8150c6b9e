// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "plugin.h"

// Made by qmltyperegistrar; whoever loads the plugin wants the types.
void qml_register_types_Velmolib();

VelmolibPlugin::VelmolibPlugin(QObject* parent)
    : QQmlEngineExtensionPlugin(parent)
{
    volatile auto registration = &qml_register_types_Velmolib;
    Q_UNUSED(registration)
}
