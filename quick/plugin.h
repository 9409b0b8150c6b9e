// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QQmlEngineExtensionPlugin>

/// The QML module Velmolib.
class VelmolibPlugin : public QQmlEngineExtensionPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID QQmlEngineExtensionInterface_iid)

public:
    explicit VelmolibPlugin(QObject* parent = nullptr);
};
