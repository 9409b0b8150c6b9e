// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <array>
#include <optional>
#include <vector>

/// When pieces will be used up that are used as they were on the days before.
///
/// The totals of days are taken for independent and normal. Then what is used within the next h
/// days is, with nine of ten, mean * h +- t * s * sqrt(h + h * h / n): h days vary by s * s each,
/// and the mean of n days is itself known only to s * s / n; t is Student's, of n - 1 degrees of
/// freedom. The pieces are used up between the h for which the upper bound reaches them and that
/// for which the lower one does, the roots of one quadratic equation. Within a day the use follows
/// the hours of the days before.
class Forecast
{
public:
    static constexpr int fewestDays = 3;
    static constexpr int mostDays = 14;
    static constexpr int hoursOfDay = 24;

    /// @param hours the pieces used in each hour, the last one first, of whole days, mostDays at
    /// most
    explicit Forecast(const std::vector<double>& hours);

    int days() const { return m_days; }
    double perDay() const { return m_mean; }

    /// In hours from now.
    struct Range
    {
        double earliest;
        double latest;
    };

    /// Nullopt where the days are too few or too different to say.
    std::optional<Range> usedUp(qint64 pieces) const;

private:
    double hoursUntil(double days) const;

    int m_days;
    double m_mean = 0;
    double m_variance = 0;
    std::array<double, hoursOfDay> m_shares{}; // of a day's use, of the hours from now on
};
