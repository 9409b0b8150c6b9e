// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "text/conditions.h"

#include "text/diagnosis.h"

namespace {

QString errorOf(const QString& text)
{
    return text.isEmpty() ? Diagnosis::tr("no description") : text;
}

namespace stateKeys = deviceStateDescConst;

} // namespace

const Condition Condition::table[] = {
    {"disabled", stateKeys::ENABLED, &DeviceState::enabled, &PublishedDevice::enabled, false, false,
     QT_TRANSLATE_NOOP("Diagnosis", "disabled"),
     QT_TRANSLATE_NOOP("Diagnosis", "The device was disabled (since line %1)."),
     QT_TRANSLATE_NOOP("Diagnosis", "The device is disabled."), nullptr, nullptr},
    {"offline", stateKeys::ONLINE, &DeviceState::online, &PublishedDevice::online, false, true,
     QT_TRANSLATE_NOOP("Diagnosis", "offline"),
     QT_TRANSLATE_NOOP("Diagnosis", "The device was offline (since line %1)."),
     QT_TRANSLATE_NOOP("Diagnosis", "The device is offline."), "offline",
     QT_TRANSLATE_NOOP("Diagnosis", "Offline")},
    {"halted", stateKeys::HALT, &DeviceState::halt, &PublishedDevice::halt, true, true,
     QT_TRANSLATE_NOOP("Diagnosis", "halted"),
     QT_TRANSLATE_NOOP("Diagnosis", "The device was halted (since line %1)."),
     QT_TRANSLATE_NOOP("Diagnosis", "The device is halted."), "halted",
     QT_TRANSLATE_NOOP("Diagnosis", "Halted")},
    {"error", stateKeys::ERROR_CRITICAL, &DeviceState::errCritical, &PublishedDevice::errorCritical,
     true, true, QT_TRANSLATE_NOOP("Diagnosis", "critical error"),
     QT_TRANSLATE_NOOP("Diagnosis", "The device had a critical error (since line %1): %2."),
     QT_TRANSLATE_NOOP("Diagnosis", "The device has a critical error: %1."), "error",
     QT_TRANSLATE_NOOP("Diagnosis", "Critical error")},
    {"stacker_missing", stateKeys::STACKER_PRESENT, &DeviceState::stackerPresent,
     &PublishedDevice::stackerPresent, false, false,
     QT_TRANSLATE_NOOP("Diagnosis", "stacker missing"),
     QT_TRANSLATE_NOOP("Diagnosis", "The stacker was missing (since line %1)."),
     QT_TRANSLATE_NOOP("Diagnosis", "The stacker is missing."), "stacker",
     QT_TRANSLATE_NOOP("Diagnosis", "Stacker")},
    {"stacker_full", stateKeys::STACKER_FULL, &DeviceState::stackerFull,
     &PublishedDevice::stackerFull, true, false, QT_TRANSLATE_NOOP("Diagnosis", "stacker full"),
     QT_TRANSLATE_NOOP("Diagnosis", "The stacker was full (since line %1)."),
     QT_TRANSLATE_NOOP("Diagnosis", "The stacker is full."), "stackerFull",
     QT_TRANSLATE_NOOP("Diagnosis", "Stacker full")},
};

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
