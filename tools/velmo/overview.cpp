// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "overview.h"

#include "answerjson.h"
#include "terminal/table.h"

namespace {

constexpr size_t mostSpans = 10; // of a device, in text

} // namespace

Overview::Overview(const Question& question, bool isJson, bool hasSeveralLogs)
    : m_question(question)
    , m_isJson(isJson)
    , m_hasSeveralLogs(hasSeveralLogs)
{
}

void Overview::beginLog(const QString& log, const QString& name)
{
    m_log = log;
    m_name = name;
    m_timeline.emplace([this](const ConditionSpan& span) { take(span); });
    m_asked.clear();
    m_totals.clear();
    m_logTotals = {};
    m_lastSpans.clear();
    m_askedLine = 0;
    m_askedLast = nullptr;
    m_end = {};
}

void Overview::follow(const LogPlayer& player, const LogTime& time, qint64 lineNumber)
{
    m_timeline->take(player.steps(), time, lineNumber);
    if (!m_question.period.isAll())
        m_end = time.latestMoment();
    for (const LogStep& step : player.steps()) {
        const LogDevice& device = *step.device;
        if (device.session() == m_question.session)
            m_askedLine = lineNumber;
        if (&device != m_askedLast && m_question.isAbout(device.session(), device.deviceId())) {
            m_asked.insert(&device);
            m_askedLast = &device;
        }
    }
}

void Overview::add(const NoteAnswer& answer, bool isAsked)
{
    m_timeline->take(answer);
    if (!isAsked)
        return;
    m_totals[{answer.device, answer.thread}].add(answer);
    if (m_hasSeveralLogs)
        m_logTotals.add(answer);
}

void Overview::endLog()
{
    m_timeline->finish();
    std::map<DeviceAndThread, const LogDevice*> devices; // in the order in which they are told
    for (const LogDevice* const device : m_asked)
        devices[{device->deviceId(), device->threadId()}] = device;
    for (const auto& [key, device] : devices) {
        if (m_isJson)
            m_json += jsonOf(m_log, *device, m_totals[key]) + '\n';
        else
            addRow(device->name(), m_totals[key]);
    }
    if (!m_isJson && m_hasSeveralLogs && devices.size() > 1)
        addRow(Velmo::tr("all devices"), m_logTotals);
    if (m_hasSeveralLogs && !m_lastSpans.empty())
        m_spans += printable(m_name) + QStringLiteral(":\n");
    for (auto& [key, spans] : m_lastSpans) {
        if (spans.before > 0)
            spans.texts.push_front(Velmo::tr("%1: earlier ones, not shown: %2")
                                       .arg(spans.device, QString::number(spans.before)));
        for (const QString& text : spans.texts)
            m_spans += wrapped(QStringLiteral("  - ") + printable(text), 4, outputWidth());
    }
}

void Overview::take(const ConditionSpan& span)
{
    if (!isAsked(span))
        return;
    if (m_isJson) {
        m_json += jsonOf(m_log, span) + '\n';
        return;
    }
    LastSpans& spans = m_lastSpans[{span.device, span.thread}];
    spans.device = span.deviceName;
    spans.texts.push_back(span.text());
    if (spans.texts.size() > mostSpans) {
        spans.texts.pop_front();
        ++spans.before;
    }
}

// A span ends before the line that ends it is of any session.
bool Overview::isAsked(const ConditionSpan& span) const
{
    const std::optional<qint64> end = span.to.line > 0 ? span.to.time.latestMoment() : m_end;
    return (!m_question.device || span.device == quint32(*m_question.device))
        && (!m_question.session || m_askedLine >= span.from.line)
        && m_question.period.overlaps(span.from.time.latestMoment(), end);
}

void Overview::addRow(const QString& device, const Summary& summary)
{
    const auto count = [&](const Tally& tally) { return QString::number(tally.count); };
    m_rows += QStringList{m_name,
                          device,
                          count(summary.offered),
                          count(summary.of(Outcome::Taken)),
                          count(summary.of(Outcome::Rejected)),
                          summary.percent(Outcome::Rejected),
                          summary.percent(Outcome::Refused),
                          count(summary.of(Outcome::Stuck))};
    if (!m_hasSeveralLogs)
        m_rows.last().removeFirst();
}

QString Overview::text() const
{
    QString text;
    if (m_rows.size() > 1) {
        QStringList head{Velmo::tr("Log"),
                         Velmo::tr("Device"),
                         QLatin1Char('>') + Velmo::tr("Offered"),
                         QLatin1Char('>') + Velmo::tr("Taken"),
                         QLatin1Char('>') + Velmo::tr("Rejected"),
                         QLatin1Char('>') + Velmo::tr("Rejected %"),
                         QLatin1Char('>') + Velmo::tr("Refused %"),
                         QLatin1Char('>') + Velmo::tr("Stuck")};
        if (!m_hasSeveralLogs)
            head.removeFirst();
        text += QLatin1Char('\n') + printableLines(formatTable(head, m_rows));
    }
    if (!m_spans.isEmpty())
        text += QLatin1Char('\n') + Velmo::tr("What was the matter:") + QLatin1Char('\n') + m_spans;
    return text;
}
