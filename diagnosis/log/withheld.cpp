// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/withheld.h"

void Withheld::add(quint32 field, const Contradiction& found)
{
    // A log that is silent for so long began to tell the field later, if ever.
    constexpr size_t most = 1000;
    if (m_all.size() >= most)
        m_all.clear();
    m_all.emplace_back(field, found);
}

std::vector<Contradiction> Withheld::take(quint32 reported)
{
    std::vector<Contradiction> told;
    std::vector<std::pair<quint32, Contradiction>> kept;
    for (auto& withheld : m_all) {
        if ((reported & withheld.first) != 0)
            told.push_back(std::move(withheld.second));
        else
            kept.push_back(std::move(withheld));
    }
    m_all = std::move(kept);
    return told;
}
