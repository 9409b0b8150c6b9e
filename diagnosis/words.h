// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

/// The words of what is diagnosed, in the language that is shown: Diagnosis::tr("...").
class Diagnosis
{
    Q_DECLARE_TR_FUNCTIONS(Diagnosis)
};
