// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

/// The programs' own words, in the language that is shown: Velmo::tr("...").
class Velmo
{
    Q_DECLARE_TR_FUNCTIONS(Velmo)
};
