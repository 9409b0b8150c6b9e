// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/noteanswer.h"
#include "period.h"

/// What of the answers is asked for.
struct Question
{
    /// Throws Fault for options that do not say it.
    explicit Question(const Arguments& arguments);

    const std::optional<int> session;
    const std::optional<int> device;
    const std::optional<int> note;
    const std::optional<Outcome> outcome;
    const Period period;
    const bool refusalsOnly;
    const bool summaryOnly;

    bool isAbout(int sessionNumber, quint32 deviceId) const
    {
        return (!session || sessionNumber == *session) && (!device || deviceId == quint32(*device));
    }

    /// But for the time.
    bool isAbout(const NoteAnswer& answer) const
    {
        return isAbout(answer.session, answer.device) && (!note || answer.note == *note)
            && (!outcome || answer.countsAs(*outcome));
    }

    bool isAboutAll() const { return !session && !device && period.isAll() && !choosesNotes(); }

    /// Whether sessions count by their notes.
    bool choosesNotes() const { return note || outcome; }

    bool shows(const NoteAnswer& answer) const
    {
        return !summaryOnly && (!refusalsOnly || answer.outcome == Outcome::Refused);
    }
};
