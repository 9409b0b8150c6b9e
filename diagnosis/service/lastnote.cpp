// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/lastnote.h"

#include "devicestatesconst.h"
#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/filterwords.h"

#include <utility>

using namespace deviceStatesConst;

namespace {

// Said of a note and of a coin; %1 is the face value.
struct Words
{
    const char* note;
    const char* coin;

    QString of(int model) const
    {
        return Diagnosis::tr(moneyOf(model) == Money::Coin ? coin : note);
    }
};

// By LastNote::Outcome; of a refused note the filter has them.
constexpr Words outcomes[] = {
    {},
    {QT_TRANSLATE_NOOP("Diagnosis", "Checking a note of %1..."),
     QT_TRANSLATE_NOOP("Diagnosis", "Checking a coin of %1...")},
    {QT_TRANSLATE_NOOP("Diagnosis", "A note of %1 was accepted."),
     QT_TRANSLATE_NOOP("Diagnosis", "A coin of %1 was accepted.")},
    {},
    {QT_TRANSLATE_NOOP("Diagnosis", "Your note was not recognised. Please try another one."),
     QT_TRANSLATE_NOOP("Diagnosis", "Your coin was not recognised. Please try another one.")},
    {QT_TRANSLATE_NOOP("Diagnosis", "Your note of %1 was returned. Please take it."),
     QT_TRANSLATE_NOOP("Diagnosis", "Your coin of %1 was returned. Please take it.")},
    {QT_TRANSLATE_NOOP("Diagnosis",
                       "The device failed with your note of %1 in it. Please call the staff."),
     QT_TRANSLATE_NOOP("Diagnosis",
                       "The device failed with your coin of %1 in it. Please call the staff.")},
};

std::pair<int, int> keyOf(const AcceptorStateItem& device)
{
    return {device.deviceId(), device.threadId()};
}

bool isOf(const QVariantMap& refusal, const AcceptorStateItem& device)
{
    return refusal.value(deviceStateDescConst::DEVICE_ID).toInt() == device.deviceId()
        && refusal.value(deviceStateDescConst::THREAD_ID, device.threadId()).toInt()
        == device.threadId();
}

} // namespace

void LastNote::take(const PublishedState& state)
{
    const qint64 sum = state.sessionSum();
    if (sum < m_sum)
        m_outcome = None; // of a session before
    m_sum = sum;
    for (const PublishedDevice& device : state.devices)
        follow(device, state.refusals);
    m_isFirst = false;
}

void LastNote::follow(const PublishedDevice& device, const QVariantList& refused)
{
    const qint32 note = device.currentNote;
    const std::pair<int, int> key = keyOf(device);
    const QString state = device.state();
    const Event before = std::exchange(m_events[key], {state, note});
    const bool isNew = before.state != state || (state == DS_ACCEPTING && before.note != note);
    if (isNew && !m_isFirst && state == DS_ACCEPTING && note > 0) {
        m_device = key;
        m_note = note;
        m_outcome = Checked;
    }
    if (m_outcome == None || m_device != key) {
        if (isNew && !m_isFirst && state == DS_REJECTED) {
            m_device = key;
            m_note = 0;
            m_outcome = Rejected;
        }
        return;
    }
    const bool isHeld = state == DS_ACCEPTING || state == DS_RETURNING;
    for (const QVariant& refusal : refused) {
        if (m_outcome == Checked && isHeld && isOf(refusal.toMap(), device)) {
            m_outcome = Refused;
            m_refusal = refusal.toMap();
        }
    }
    const bool isResting = state == DS_IDLING || state == DS_BUSY;
    const bool wasIn = before.state == DS_ACCEPTED || before.state == DS_STACKING;
    if (state == DS_STACKED || (wasIn && isResting))
        m_outcome = Taken;
    else if (m_outcome == Checked && isResting)
        m_outcome = None; // nobody says what became of it
    else if (m_outcome == Checked
             && (device.errorCritical() || state == DS_JAMMED || state == DS_ERROR))
        m_outcome = Stuck;
    else if (m_outcome != Refused && isNew && state == DS_REJECTED)
        m_outcome = Rejected;
    else if (m_outcome != Refused && isNew && (state == DS_RETURNING || state == DS_RETURNED))
        m_outcome = Returned;
}

QString LastNote::text() const
{
    if (m_outcome == None)
        return {};
    const FilterWords& filter = filterWords(m_refusal.value(QStringLiteral("name")).toString());
    const QVariantMap params = m_refusal.value(QStringLiteral("params")).toMap();
    const bool isRefused = m_outcome == Refused;
    const Words words =
        isRefused ? Words{filter.noteRefused, filter.coinRefused} : outcomes[m_outcome];
    QString text = words.of(m_device.first);
    text.replace(QLatin1String("%1"), QString::number(m_note));
    return text.replace(QLatin1String("%2"),
                        params.value(QLatin1String(filter.refusalParameter)).toString());
}
