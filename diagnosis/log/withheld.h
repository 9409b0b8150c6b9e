// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/contradiction.h"

#include <utility>
#include <vector>

/// Contradictions that are only some if the log tells of a field at all: that it stayed as it was.
class Withheld
{
public:
    /// @param field its bit
    void add(quint32 field, const Contradiction& found);

    /// Those of which the log tells the field now.
    std::vector<Contradiction> take(quint32 reported);

private:
    std::vector<std::pair<quint32, Contradiction>> m_all;
};
