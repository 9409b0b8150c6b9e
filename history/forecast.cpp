// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "forecast.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace {

// Student's t that 5 % exceed, of 2 degrees of freedom on.
constexpr double student[] = {2.920, 2.353, 2.132, 2.015, 1.943, 1.895,
                              1.860, 1.833, 1.812, 1.796, 1.782, 1.771};

static_assert(std::size(student) == Forecast::mostDays - Forecast::fewestDays + 1);

} // namespace

Forecast::Forecast(const std::vector<double>& hours)
    : m_days(int(hours.size()) / hoursOfDay)
{
    if (m_days == 0)
        return;
    std::vector<double> totals(std::size_t(m_days), 0.);
    for (std::size_t hour = 0; hour < std::size_t(m_days) * hoursOfDay; ++hour) {
        totals[hour / hoursOfDay] += hours[hour];
        m_shares[hoursOfDay - 1 - hour % hoursOfDay] += std::max(hours[hour], 0.);
    }
    m_mean = std::accumulate(totals.begin(), totals.end(), 0.) / m_days;
    for (const double total : totals)
        m_variance += (total - m_mean) * (total - m_mean);
    // Single pieces vary by their number at least, also where a few days happen to be alike.
    m_variance = std::max(m_variance / std::max(m_days - 1, 1), m_mean);
    const double all = std::accumulate(m_shares.begin(), m_shares.end(), 0.);
    for (double& share : m_shares)
        share = all > 0 ? share / all : 1. / hoursOfDay;
}

std::optional<Forecast::Range> Forecast::usedUp(qint64 pieces) const
{
    if (pieces <= 0)
        return Range{0, 0};
    if (m_days < fewestDays || m_mean <= 0)
        return {};
    const double t = student[std::min(m_days, mostDays) - fewestDays];
    const double spread = t * t * m_variance;
    const double a = m_mean * m_mean - spread / m_days;
    const double b = 2 * double(pieces) * m_mean + spread;
    const double c = double(pieces) * double(pieces);
    const double root = b * b - 4 * a * c;
    if (a <= 0 || root < 0)
        return {};
    const double latest = (b + std::sqrt(root)) / (2 * a);
    return Range{hoursUntil(c / (a * latest)), hoursUntil(latest)};
}

double Forecast::hoursUntil(double days) const
{
    double rest = days - std::floor(days);
    double hours = std::floor(days) * hoursOfDay;
    for (const double share : m_shares) {
        if (rest < share)
            return hours + rest / share;
        rest -= share;
        ++hours;
    }
    return hours;
}
