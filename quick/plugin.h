// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQmlEngineExtensionPlugin>

// Made by qmltyperegistrar; whoever loads the plugin wants the types.
void qml_register_types_Velmolib();

/// The QML module Velmolib.
class VelmolibPlugin : public QQmlEngineExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlEngineExtensionInterface_iid)

public:
    explicit VelmolibPlugin(QObject* parent = nullptr)
        : QQmlEngineExtensionPlugin(parent)
    {
        volatile auto registration = &qml_register_types_Velmolib;
        Q_UNUSED(registration)
    }
};
