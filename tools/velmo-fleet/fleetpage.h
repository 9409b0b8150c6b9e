// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

/// The page of a worker's kiosks, in the language that is shown. It asks for their table and their
/// histories itself.
struct FleetPage
{
    FleetPage();

    QByteArray html;
    QByteArray policy; ///< the Content-Security-Policy under which it works: nothing from elsewhere
};
