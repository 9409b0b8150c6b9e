// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/comparison.h"

#include "text/diagnosis.h"

QString Difference::text() const
{
    const QString verdict = refusedByA ? Diagnosis::tr("%1: %2 refused by A, accepted by B. A: %3")
                                       : Diagnosis::tr("%1: %2 accepted by A, refused by B. B: %3");
    QStringList reasons;
    for (const Objection& objection : note.objections)
        reasons += objection.text;
    reasons += note.doubts();
    return verdict.arg(note.place(), note.what(), reasons.join(QLatin1Char(' ')));
}

void ComparisonTotals::add(const ComparisonTotals& other)
{
    sessions += other.sessions;
    offered.add(other.offered);
    refusedByA.add(other.refusedByA);
    refusedByB.add(other.refusedByB);
    differences.add(other.differences);
}

LogComparer::LogComparer(const FilterSet& a, const FilterSet& b, Receiver receiver)
    : m_a(a, [this](const NoteAnswer& answer) { m_answersOfA.push_back(answer); })
    , m_b(b, [this](const NoteAnswer& answer) { m_answersOfB.push_back(answer); })
    , m_receiver(std::move(receiver))
{
}

void LogComparer::take(const SessionLine& line, qint64 lineNumber)
{
    m_a.take(line, lineNumber);
    m_b.take(line, lineNumber);
    compareAnswers();
}

void LogComparer::skipLine()
{
    m_a.skipLine();
    m_b.skipLine();
}

void LogComparer::finish()
{
    m_a.finish();
    m_b.finish();
    compareAnswers();
    m_totals.sessions = m_a.sessions();
}

// Which notes there are and when they are clear depends on the events alone: the answers pair up.
void LogComparer::compareAnswers()
{
    for (; !m_answersOfA.empty(); m_answersOfA.pop_front(), m_answersOfB.pop_front()) {
        const NoteAnswer& a = m_answersOfA.front();
        const NoteAnswer& b = m_answersOfB.front();
        const bool refusedByA = a.outcome == Outcome::Refused;
        const bool refusedByB = b.outcome == Outcome::Refused;
        if (a.hasValue())
            m_totals.offered.add(a.note);
        if (refusedByA)
            m_totals.refusedByA.add(a.note);
        if (refusedByB)
            m_totals.refusedByB.add(b.note);
        if (refusedByA == refusedByB)
            continue;
        m_totals.differences.add(a.note);
        m_receiver({refusedByA ? a : b, refusedByA});
    }
}
