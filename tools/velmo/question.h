// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/sessionrecord.h"
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
    const Told told;
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

    /// But for the time. What does not add up has no outcome.
    bool isAbout(const Contradiction& found) const
    {
        return isAbout(found.session, found.device) && (!note || found.note == *note);
    }

    bool shows(const NoteAnswer& answer) const
    {
        return !summaryOnly
            && (told == Told::All
                || (told == Told::Refusals && answer.outcome == Outcome::Refused));
    }
    bool shows(const Contradiction& /*found*/) const
    {
        return !summaryOnly && told != Told::Refusals;
    }
};
