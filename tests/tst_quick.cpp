// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include <QtQuickTest>

QUICK_TEST_MAIN(quick)
