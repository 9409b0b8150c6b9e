// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "benching.h"

#include <QLoggingCategory>

int main(int argc, char** argv)
{
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    benchmark::Initialize(&argc, argv);
    measureRecords();
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
