// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "streamlog.h"

#include "command.h"
#include "jsonlines.h"

#include <algorithm>

bool StreamLog::findBegin()
{
    const bool isReadOnce = m_fileName == QLatin1String("-") || m_file->isLive();
    bool anyLine = false;
    while (!m_last && read()) {
        anyLine = anyLine || m_entry.line;
        if (isReadOnce)
            m_ahead.push_back(std::move(m_entry));
    }
    m_begin = m_last;
    if (!isReadOnce)
        open();
    m_entry = {};
    return m_begin || !anyLine;
}

bool StreamLog::next()
{
    m_isFirst = m_lastText.isNull() && m_entry.text.isNull();
    m_lastText = m_entry.text.isNull() ? m_lastText : m_entry.text;
    if (m_ahead.empty())
        return m_hasMore = read();
    m_entry = std::move(m_ahead.front());
    m_ahead.pop_front();
    return true;
}

QString StreamLog::overlap(const StreamLog& other, qint64 commonLines) const
{
    const StreamLog& later = begin() < other.begin() ? other : *this;
    const StreamLog& sooner = moment() < other.moment() ? *this : other;
    const bool areOfOneKiosk = std::any_of(kiosks.begin(), kiosks.end(), [&](const QString& kiosk) {
        return other.kiosks.count(kiosk) > 0;
    });
    if (commonLines == 0 && (!areOfOneKiosk || later.begin() >= sooner.moment()))
        return {};
    return Velmo::tr("%1 and %2 overlap from %3 to %4: %5")
        .arg(m_file->name(), other.m_file->name(), later.m_beginTime.iso(), sooner.m_lastTime.iso(),
             commonLines == 0 ? Velmo::tr("taken together by their times")
                              : Velmo::tr("%n lines that are in both are taken once", nullptr,
                                          int(commonLines)));
}

void StreamLog::open()
{
    m_file.emplace(openInput(m_fileName));
    m_last.reset();
    m_isAtEnd = false;
}

bool StreamLog::read()
{
    if (m_isAtEnd)
        return false;
    m_entry = {};
    m_isAtEnd = !takeLine(
        *m_file, m_keepGoing,
        [this](const QByteArray& text) {
            m_entry.line = SessionLine::read(*m_file, text);
            m_entry.text = text.trimmed();
            passTime(m_entry.line->time());
        },
        [this](const QString& fault) { m_entry.fault = fault; });
    m_entry.number = m_file->lineNumber();
    m_entry.moment = m_last;
    return m_entry.line || !m_entry.fault.isNull();
}

void StreamLog::passTime(const LogTime& time)
{
    const std::optional<qint64> moment = time.moment();
    if (!moment)
        return;
    if (moment < m_last) {
        if (m_clockNote.isNull()) {
            const QString note = Velmo::tr("the clock goes back from %1 to %2; the lines stay "
                                           "in their order");
            m_clockNote =
                m_file->faultAt(m_file->lineNumber(), note.arg(m_lastTime.iso(), time.iso()))
                    .message;
        }
        return;
    }
    if (!m_last)
        m_beginTime = time;
    m_last = moment;
    m_lastTime = time;
}
