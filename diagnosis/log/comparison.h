// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "log/explanation.h"

#include <deque>

/// A note that one of two sets of filters, A and B, refuses and the other accepts.
struct Difference
{
    NoteAnswer note; ///< as the set that refuses it explains it
    bool refusedByA = false; ///< else by B

    /// Place, both verdicts and the reasons, in one line.
    QString text() const;
};

/// What A and B said of the notes that were offered.
struct ComparisonTotals
{
    int sessions = 0;
    Tally offered;
    Tally refusedByA;
    Tally refusedByB;
    Tally differences;

    void add(const ComparisonTotals& other);
};

/// Lets two sets of filters judge what happened in a session log. Both judge the same events: what
/// would have followed another verdict, a log does not say.
class LogComparer
{
public:
    using Receiver = std::function<void(const Difference& difference)>;

    /// @param receiver is given each difference, in the order of their lines, once it is clear
    LogComparer(const FilterSet& a, const FilterSet& b, Receiver receiver);

    void take(const SessionLine& line, qint64 lineNumber);

    /// Tells that a line could not be read.
    void skipLine();

    /// Gives away what is still open at the end of the log.
    void finish();

    const ComparisonTotals& totals() const { return m_totals; }

private:
    void compareAnswers();

    std::deque<NoteAnswer> m_answersOfA; // that B has not given yet
    std::deque<NoteAnswer> m_answersOfB;
    LogExplainer m_a;
    LogExplainer m_b;
    const Receiver m_receiver;
    ComparisonTotals m_totals;
};
