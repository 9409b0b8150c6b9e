// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QVector>

#include <optional>

/// The indexes of devices after some were removed or changed places with others.
class DeviceNumbering
{
public:
    /// Those behind it have the index before theirs.
    void remove(int device) { m_steps += Step{device, {}}; }

    void swap(int device, int other) { m_steps += Step{device, other}; }

    void then(const DeviceNumbering& other) { m_steps += other.m_steps; }

    /// The index of what was this device; of one that was removed the one that it had.
    int now(int device) const
    {
        for (const Step& step : m_steps) {
            if (!step.other)
                device -= device > step.device ? 1 : 0;
            else if (device == step.device)
                device = *step.other;
            else if (device == *step.other)
                device = step.device;
        }
        return device;
    }

private:
    struct Step
    {
        int device;
        std::optional<int> other; // none for a removal
    };

    QVector<Step> m_steps;
};
