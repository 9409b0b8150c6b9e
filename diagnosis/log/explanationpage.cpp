// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/explanationpage.h"

#include "log/pageparts.h"
#include "log/sessionlook.h"
#include "text/diagnosis.h"
#include "text/htmltext.h"
#include "text/textoutput.h"

#include <algorithm>
#include <climits>

namespace {

// The others are folded.
constexpr int unfoldedParts = 10;

// The further links of a sentence are left out: they would lead to the same place.
constexpr int mostLinks = 12;

QString link(const QString& anchor, const QString& text)
{
    return QStringLiteral("<a href=\"#%1\">%2</a>").arg(anchor, htmlText(text));
}

// The lines that a sentence speaks of, as links to their places in the pictures.
QString evidenceLinks(const SessionRecord& session, const NoteAnswer& note,
                      const SessionPicture& picture)
{
    QStringList links;
    const auto add = [&](Anchor kind, qint64 line, const QString& what = {}) {
        const QString to = link(anchorName(kind, session, line, note.device, note.thread, what),
                                Diagnosis::tr("line %1").arg(line));
        if (links.size() < mostLinks && !links.contains(to))
            links += to;
    };
    for (const Objection& objection : note.objections) {
        for (const qint64 line : objection.evidence)
            add(Anchor::Evidence, line);
    }
    for (const MachineCondition& condition : note.machine) {
        if (picture.hasAnchor(anchorName(Anchor::Condition, session, condition.line, note.device,
                                         note.thread, condition.what)))
            add(Anchor::Condition, condition.line, condition.what);
    }
    if (links.isEmpty())
        return {};
    return QStringLiteral(" <span class=\"see\">%1 %2</span>")
        .arg(htmlText(Diagnosis::tr("Show:")), links.join(QStringLiteral(", ")));
}

QString answerItem(const SessionRecord& session, const NoteAnswer& note,
                   const SessionPicture& picture)
{
    const auto anchor = [&](Anchor kind) {
        return anchorName(kind, session, note.line, note.device, note.thread);
    };
    const bool isQuiet = note.outcome == Outcome::Taken || note.outcome == Outcome::Unknown;
    return QStringLiteral("<li class=\"answer%1\" id=\"%2\"><a href=\"#%3\">%4%5</a> %6%7</li>\n")
        .arg(isQuiet ? QStringLiteral(" quiet") : QString(), anchor(Anchor::Sentence),
             anchor(Anchor::Mark), markGlyph(note.outcome), htmlText(note.headline()),
             htmlText(note.details().join(QLatin1Char(' '))),
             evidenceLinks(session, note, picture));
}

QString contradictionItem(const SessionRecord& session, const Contradiction& found)
{
    const auto anchor = [&](Anchor kind) {
        return anchorName(kind, session, found.line, found.device, found.thread, found.ruleKey());
    };
    return QStringLiteral(
               "<li class=\"contradiction\" id=\"%1\"><a href=\"#%2\">%3%4</a> %5</li>\n")
        .arg(anchor(Anchor::WrongSentence), anchor(Anchor::Wrong), wrongGlyph(),
             htmlText(found.headline()), htmlText(found.details()));
}

// How many of the notes that are told of had which outcome, with its mark.
QString tallies(const SessionRecord& session, const std::vector<NoteAnswer>::const_iterator& begin,
                const std::vector<NoteAnswer>::const_iterator& end)
{
    QString text;
    for (const OutcomeWords& words : outcomeWords()) {
        const auto count = std::count_if(begin, end, [&](const NoteAnswer& note) {
            return note.outcome == words.outcome && session.isTold(note);
        });
        if (count > 0) {
            text += QStringLiteral("<span>%1%2</span>\n")
                        .arg(markGlyph(words.outcome),
                             htmlText(Diagnosis::tr(words.tally, nullptr, int(count))));
        }
    }
    return text;
}

QString wrongTally(qint64 count)
{
    return count == 0
        ? QString()
        : QStringLiteral("<span>%1%2</span>\n")
              .arg(wrongGlyph(),
                   htmlText(Diagnosis::tr("%n that do not add up", nullptr, int(count))));
}

QString legend()
{
    return QStringLiteral(
               "<section class=\"legend\">\n<ul>\n%1</ul>\n<ul>\n%2</ul>\n%3</section>\n")
        .arg(markLegend(), stateLegend(),
             htmlElement(
                 "p",
                 Diagnosis::tr("Where much happens at once, the pictures are stretched. A mark "
                               "leads to its sentence, a sentence to its mark and to what it "
                               "speaks of.")));
}

} // namespace

ExplanationPage::ExplanationPage(Subject subject, QIODevice& sections)
    : m_subject(std::move(subject))
    , m_sections(sections)
{
}

void ExplanationPage::beginLog(const QString& name)
{
    m_logs += name;
    writeText(m_sections,
              QStringLiteral("<section class=\"log\">\n%1").arg(htmlElement("h2", name)).toUtf8());
}

SessionRecord& ExplanationPage::session(int number)
{
    SessionRecord& session = m_open[number];
    session.log = int(m_logs.size());
    session.number = number;
    return session;
}

void ExplanationPage::add(const LogDevice& device, const LogTime& time, qint64 line)
{
    session(device.session()).add(device, time, line);
}

void ExplanationPage::add(const NoteAnswer& answer)
{
    session(answer.session).answers.push_back(answer);
}

void ExplanationPage::add(const Contradiction& found)
{
    if (found.session < m_finished)
        m_doubts += found.text(); // it came late
    else
        session(found.session).contradictions.push_back(found);
}

void ExplanationPage::finishSessions(int before, Told told, const std::set<int>* only)
{
    m_finished = before;
    while (!m_open.empty() && m_open.begin()->first < before) {
        SessionRecord session = std::move(m_open.begin()->second);
        m_open.erase(m_open.begin());
        if (only && only->count(session.number) == 0)
            continue;
        session.told = told;
        const bool anyTold = told == Told::All
            || (told == Told::Contradictions && !session.contradictions.empty())
            || std::any_of(session.answers.begin(), session.answers.end(),
                           [&](const NoteAnswer& answer) { return session.isTold(answer); });
        if (!session.moments.empty() && anyTold)
            writeSession(session);
    }
}

void ExplanationPage::endLog(qint64 skipped, Told told, const std::set<int>* only)
{
    finishSessions(INT_MAX, told, only);
    m_finished = 0;
    if (skipped > 0) {
        m_doubts += QStringLiteral("%1: %2").arg(
            m_logs.constLast(),
            Diagnosis::tr("%n lines could not be read and were skipped", nullptr,
                          int(qMin<qint64>(skipped, INT_MAX))));
    }
    writeText(m_sections, "</section>\n");
}

void ExplanationPage::writeSession(const SessionRecord& session)
{
    SessionPicture picture(session, m_subject.sumLimit);
    const std::vector<size_t> parts = session.parts();
    QString title = Diagnosis::tr("Session %1").arg(session.number);
    const LogTime& start = session.moments.front().time;
    if (start.isKnown())
        title += QStringLiteral(", ") + start.iso().left(10) + QLatin1Char(' ') + start.clock();
    auto note = session.answers.begin();
    for (size_t i = 0; i + 1 < parts.size(); ++i) {
        const bool isLast = i + 2 == parts.size();
        const qint64 firstLine = session.moments.at(parts.at(i)).line;
        const qint64 lastLine = session.moments.at(parts.at(i + 1) - 1).line;
        const auto begin = note;
        while (note != session.answers.end() && (isLast || note->line <= lastLine))
            ++note;
        const QString drawn = picture.draw(parts.at(i), parts.at(i + 1));
        QString sentences;
        qint64 wrong = 0;
        for (const Contradiction& found : session.contradictions) {
            const bool isHere =
                (i == 0 || found.line >= firstLine) && (isLast || found.line <= lastLine);
            if (!isHere || !session.isTold(found))
                continue;
            sentences += contradictionItem(session, found);
            ++wrong;
        }
        for (auto shown = begin; shown != note; ++shown) {
            if (session.isTold(*shown))
                sentences += answerItem(session, *shown, picture);
        }
        const QString range = Diagnosis::tr("lines %1 to %2").arg(firstLine).arg(lastLine);
        writeText(m_sections,
                  QStringLiteral("<details class=\"fold\"%1>\n<summary><strong>%2 <span "
                                 "class=\"file\">%3</span></strong>\n%4</summary>\n<div "
                                 "class=\"picture\" tabindex=\"0\" role=\"group\" "
                                 "aria-label=\"%5\">\n%6</div>\n%7</details>\n")
                      .arg(m_written++ < unfoldedParts ? QStringLiteral(" open") : QString(),
                           htmlText(title), htmlText(range),
                           tallies(session, begin, note) + wrongTally(wrong),
                           htmlText(Diagnosis::tr("Picture, %1").arg(range)), drawn,
                           sentences.isEmpty()
                               ? QStringLiteral("<p class=\"none\">%1</p>\n")
                                     .arg(htmlText(Diagnosis::tr("No note to tell of.")))
                               : QStringLiteral("<ol>\n%1</ol>\n").arg(sentences))
                      .toUtf8());
    }
}

QString ExplanationPage::warnings() const
{
    const QStringList texts = m_subject.warnings + m_doubts;
    if (texts.isEmpty())
        return {};
    return QStringLiteral("<section class=\"warning\">\n%1%2</section>\n")
        .arg(htmlElement("h3", Diagnosis::tr("The answers may be wrong")), htmlList(texts));
}

void ExplanationPage::write(QIODevice& page, const Summary& summary)
{
    const QString title = Diagnosis::tr("What became of each note, and why");
    const QStringList rules = m_subject.rules.isEmpty()
        ? QStringList(Diagnosis::tr("None: every note is accepted."))
        : m_subject.rules;
    writeText(page, pageHead(title, m_logs, markShapes()));
    writeText(
        page,
        QStringLiteral("<header>\n%1</header>\n<main>\n%2<div class=\"top\">\n%3<section "
                       "class=\"card\">\n<h3>%4 <span class=\"file\">%5</span></h3>\n%6</section>\n"
                       "</div>\n%7")
            .arg(htmlElement("h1", title), warnings(), totalsCard(summary.sessions, summary.rows()),
                 htmlText(Diagnosis::tr("Filters in force")), htmlText(m_subject.filtersFile),
                 htmlList(rules), legend())
            .toUtf8());
    if (!m_sections.seek(0))
        throw faultOf(m_sections);
    while (!m_sections.atEnd()) {
        const QByteArray chunk = m_sections.read(1 << 20);
        if (chunk.isEmpty())
            throw faultOf(m_sections);
        writeText(page, chunk);
    }
    writeText(page, "</main>\n</body>\n</html>\n");
}
