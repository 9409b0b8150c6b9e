// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/conditions.h"

#include "text/diagnosis.h"

#include <algorithm>

namespace {

QString errorOf(const QString& text)
{
    return text.isEmpty() ? Diagnosis::tr("no description") : text;
}

} // namespace

const std::array<Condition, Condition::count>& Condition::table()
{
    using namespace deviceStateDescConst;
    using S = DeviceState;
    using P = PublishedDevice;
    // Indexed by Kind.
    static const std::array<Condition, count> table{{
        {"disabled", ENABLED, &S::enabled, &P::enabled, false, false,
         QT_TRANSLATE_NOOP("Diagnosis", "disabled"),
         QT_TRANSLATE_NOOP("Diagnosis", "The device was disabled (since line %1)."),
         QT_TRANSLATE_NOOP("Diagnosis", "The device is disabled."), nullptr, nullptr},
        {"offline", ONLINE, &S::online, &P::isOnline, false, true,
         QT_TRANSLATE_NOOP("Diagnosis", "offline"),
         QT_TRANSLATE_NOOP("Diagnosis", "The device was offline (since line %1)."),
         QT_TRANSLATE_NOOP("Diagnosis", "The device is offline."), "offline",
         QT_TRANSLATE_NOOP("Diagnosis", "Offline")},
        {"halted", HALT, &S::halt, &P::halt, true, true, QT_TRANSLATE_NOOP("Diagnosis", "halted"),
         QT_TRANSLATE_NOOP("Diagnosis", "The device was halted (since line %1)."),
         QT_TRANSLATE_NOOP("Diagnosis", "The device is halted."), "halted",
         QT_TRANSLATE_NOOP("Diagnosis", "Halted")},
        {"error", ERROR_CRITICAL, &S::errCritical, &P::errorCritical, true, true,
         QT_TRANSLATE_NOOP("Diagnosis", "critical error"),
         QT_TRANSLATE_NOOP("Diagnosis", "The device had a critical error (since line %1): %2."),
         QT_TRANSLATE_NOOP("Diagnosis", "The device has a critical error: %1."), "error",
         QT_TRANSLATE_NOOP("Diagnosis", "Critical error")},
        {"stacker_missing", STACKER_PRESENT, &S::stackerPresent, &P::stackerPresent, false, false,
         QT_TRANSLATE_NOOP("Diagnosis", "stacker missing"),
         QT_TRANSLATE_NOOP("Diagnosis", "The stacker was missing (since line %1)."),
         QT_TRANSLATE_NOOP("Diagnosis", "The stacker is missing."), "stacker",
         QT_TRANSLATE_NOOP("Diagnosis", "Stacker")},
        {"stacker_full", STACKER_FULL, &S::stackerFull, &P::stackerFull, true, false,
         QT_TRANSLATE_NOOP("Diagnosis", "stacker full"),
         QT_TRANSLATE_NOOP("Diagnosis", "The stacker was full (since line %1)."),
         QT_TRANSLATE_NOOP("Diagnosis", "The stacker is full."), "stackerFull",
         QT_TRANSLATE_NOOP("Diagnosis", "Stacker full")},
    }};
    return table;
}

QString Condition::told(const DeviceState& device, qint64 sinceLine) const
{
    const QString text = Diagnosis::tr(was).arg(sinceLine);
    return field == &DeviceState::errCritical ? text.arg(errorOf(device.errorText)) : text;
}

QString Condition::told(const PublishedDevice& device) const
{
    if (field != &DeviceState::errCritical)
        return Diagnosis::tr(is);
    const QString error = device.errorText().isEmpty() ? device.stateText() : device.errorText();
    return Diagnosis::tr(is).arg(errorOf(error));
}

QString conditionWord(const QString& key)
{
    const auto known =
        std::find_if(Condition::table().begin(), Condition::table().end(),
                     [&](const Condition& row) { return key == QLatin1String(row.key); });
    return Diagnosis::tr(known->word);
}
