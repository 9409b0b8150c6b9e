// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "logstream.h"

#include "command.h"
#include "input.h"
#include "jsonlines.h"

#include <QHash>
#include <QPair>

#include <algorithm>
#include <deque>
#include <limits>
#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace {

// What stands at a place of a log.
struct Entry
{
    std::optional<SessionLine> line; // none where it is skipped
    QString fault; // why it is
    QByteArray text;
    qint64 number = 0;
    std::optional<qint64> moment;
};

// One of the logs, read as far as its entry.
class Log
{
public:
    Log(const QString& fileName, bool keepGoing)
        : m_fileName(fileName)
        , m_keepGoing(keepGoing)
    {
        open();
    }

    // Looks for the first time, which the lines before it need. False if there are lines and none
    // has one.
    bool findBegin()
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

    bool next()
    {
        m_isFirst = m_lastText.isNull() && m_entry.text.isNull();
        m_lastText = m_entry.text.isNull() ? m_lastText : m_entry.text;
        if (m_ahead.empty())
            return m_hasMore = read();
        m_entry = std::move(m_ahead.front());
        m_ahead.pop_front();
        return true;
    }

    bool hasMore() const { return m_hasMore; }

    // Whether no line was before the entry, and what the last one says.
    bool isFirst() const { return m_isFirst; }
    const QByteArray& lastText() const { return m_lastText; }

    const TextInput& file() const { return *m_file; }
    Entry& entry() { return m_entry; }
    const Entry& entry() const { return m_entry; }

    // Where the entry stands among those of other logs.
    qint64 moment() const { return m_last.value_or(begin()); }
    qint64 begin() const { return m_begin.value_or(std::numeric_limits<qint64>::min()); }

    const QString& clockNote() const { return m_clockNote; }

    // How the times of this log and another one overlap; empty if they do not.
    QString overlap(const Log& other, qint64 commonLines) const
    {
        const Log& later = begin() < other.begin() ? other : *this;
        const Log& sooner = moment() < other.moment() ? *this : other;
        const bool areOfOneKiosk =
            std::any_of(kiosks.begin(), kiosks.end(),
                        [&](const QString& kiosk) { return other.kiosks.count(kiosk) > 0; });
        if (commonLines == 0 && (!areOfOneKiosk || later.begin() >= sooner.moment()))
            return {};
        return Velmo::tr("%1 and %2 overlap from %3 to %4: %5")
            .arg(m_file->name(), other.m_file->name(), later.m_beginTime.iso(),
                 sooner.m_lastTime.iso(),
                 commonLines == 0 ? Velmo::tr("taken together by their times")
                                  : Velmo::tr("%n lines that are in both are taken once", nullptr,
                                              int(commonLines)));
    }

    QString namedKiosk; // by the last line that names one
    std::set<QString> kiosks; // that its lines are of
    bool isCopied = false; // the line before the entry
    bool isDoubted = false; // whether its beginning is a copy

private:
    void open()
    {
        m_file.emplace(openInput(m_fileName));
        m_last.reset();
        m_isAtEnd = false;
    }

    bool read()
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

    void passTime(const LogTime& time)
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

    const QString m_fileName;
    const bool m_keepGoing;
    std::optional<TextInput> m_file;
    bool m_isAtEnd = false;
    bool m_hasMore = true;
    bool m_isFirst = true;
    QByteArray m_lastText;
    Entry m_entry;
    std::deque<Entry> m_ahead; // read already, before the entry
    std::optional<qint64> m_begin; // where it was looked for
    std::optional<qint64> m_last;
    LogTime m_beginTime;
    LogTime m_lastTime;
    QString m_clockNote;
};

// The lines that several logs have at one moment.
class Repeats
{
public:
    bool isAt(qint64 moment) const { return m_moment == moment; }

    // The other logs that had this line as often before.
    std::vector<int> logsWith(qint64 moment, int log, const QString& kiosk, const QByteArray& text)
    {
        if (!isAt(moment))
            m_counts.clear();
        m_moment = moment;
        std::map<int, int>& counts = m_counts[{kiosk, text}];
        const int count = ++counts[log];
        std::vector<int> logs;
        for (const auto& [other, otherCount] : counts) {
            if (other != log && otherCount >= count)
                logs.push_back(other);
        }
        return logs;
    }

    void addCommon(int log, const std::vector<int>& others)
    {
        for (const int other : others)
            ++m_common[std::minmax(log, other)];
    }

    qint64 between(int log, int other) const
    {
        const auto found = m_common.find(std::minmax(log, other));
        return found == m_common.end() ? 0 : found->second;
    }

private:
    std::optional<qint64> m_moment;
    QHash<QPair<QString, QByteArray>, std::map<int, int>> m_counts; // by log
    std::map<std::pair<int, int>, qint64> m_common;
};

// Which kiosk the lines are of.
class Kiosks
{
public:
    explicit Kiosks(bool perFile)
        : m_perFile(perFile)
    {
    }

    QString of(const Log& log) const
    {
        if (m_perFile)
            return log.file().name();
        return log.namedKiosk.isEmpty() && m_named.size() == 1 ? *m_named.begin() : log.namedKiosk;
    }

    // Throws Fault where it cannot be told.
    void take(Log& log)
    {
        m_isNew = false;
        const QString named = log.entry().line->kiosk();
        const auto fault = [&](const QString& what) {
            return log.file().faultAt(log.entry().number, what);
        };
        if (!named.isEmpty() && named != log.namedKiosk) {
            if (m_perFile && !log.namedKiosk.isEmpty())
                throw fault(Velmo::tr(R"(a line of kiosk "%1" in the log of "%2")")
                                .arg(named, log.namedKiosk));
            log.namedKiosk = named;
            m_isNew = m_named.insert(named).second;
            m_first = m_first.isEmpty() ? named : m_first;
        }
        m_anyUnnamed = m_anyUnnamed || log.namedKiosk.isEmpty();
        if (!m_perFile && log.namedKiosk.isEmpty() && m_named.size() > 1)
            throw fault(Velmo::tr("the line does not say which kiosk it is of"));
    }

    // The kiosks that lines without a name may be of, when the line that was taken names one more.
    std::set<QString> doubted() const
    {
        const bool areDoubted = m_isNew && m_anyUnnamed && m_named.size() > 1 && !m_perFile;
        return areDoubted ? m_named : std::set<QString>();
    }
    QString first() const { return m_first; }

private:
    const bool m_perFile;
    std::set<QString> m_named;
    QString m_first; // that was named
    bool m_isNew = false; // what the line names
    bool m_anyUnnamed = false; // line
};

using Logs = std::map<int, Log>; // by index

bool namesDevice(const SessionLine& line)
{
    static const quint32 deviceBit = DeviceReport::bit(deviceStateDescConst::DEVICE_ID);
    return line.isPublished() || line.reports().front().has(deviceBit);
}

// Whether a line that others have as well may have happened again: they end in the second in which
// its log begins. The very same line once more would say nothing new.
bool mayBeAnother(const Log& log, const Logs& logs, const std::vector<int>& others)
{
    return log.moment() == log.begin() && log.moment() % 1000 == 0
        && std::all_of(others.begin(), others.end(), [&](int other) {
               const Log& known = logs.at(other);
               return !known.hasMore() && !(log.isFirst() && known.lastText() == log.entry().text);
           });
}

// Those that can be opened.
Logs openLogs(const QStringList& fileNames, bool keepGoing,
              const std::function<void(int index)>& skipped)
{
    Logs logs;
    for (int index = 0; index < fileNames.size(); ++index) {
        try {
            logs.try_emplace(index, fileNames.at(index), keepGoing);
        } catch (const Fault& fault) {
            if (!keepGoing)
                throw;
            printError(fault.message);
            skipped(index);
        }
    }
    return logs;
}

// Whether the logs have times by which they can be ordered.
bool findBegins(Logs& logs, QStringList& notes)
{
    for (auto& [index, log] : logs) {
        if (log.findBegin())
            continue;
        notes += Velmo::tr("%1: no line has a time; the logs are taken in the order in which they "
                           "are given")
                     .arg(log.file().name());
        return false;
    }
    return true;
}

QStringList overlaps(const Logs& logs, const Repeats& repeats)
{
    QStringList notes;
    for (auto log = logs.begin(); log != logs.end(); ++log) {
        for (auto other = std::next(log); other != logs.end(); ++other)
            notes += log->second.overlap(other->second, repeats.between(log->first, other->first));
    }
    return notes;
}

} // namespace

LogStream::LogStream(const QStringList& logs, bool perFile, bool keepGoing)
    : m_logs(logs)
    , m_perFile(perFile)
    , m_keepGoing(keepGoing)
{
    if (logs.count(QStringLiteral("-")) > 1)
        throw Fault{Velmo::tr("standard input can be given only once")};
}

int LogStream::read(const Take& take, const Doubt& doubt)
{
    Logs logs = openLogs(m_logs, m_keepGoing, [&](int index) {
        doubt({index, 0, m_perFile ? std::set<QString>{m_logs.at(index)} : std::set<QString>(), {}});
    });
    const bool byTimes = logs.size() > 1 && !m_perFile && findBegins(logs, m_notes);

    using Place = std::tuple<qint64, qint64, int>; // moment, where its log begins, which that is
    const auto placeOf = [&](int index, const Log& log) {
        return byTimes ? Place(log.moment(), log.begin(), index) : Place(0, 0, index);
    };
    std::set<Place> heads; // of the logs that are not at their end
    for (auto& [index, log] : logs) {
        if (!byTimes && m_logs.indexOf(m_logs.at(index)) < index)
            m_notes += Velmo::tr("%1: given more than once, taken once").arg(log.file().name());
        else if (log.next())
            heads.insert(placeOf(index, log));
    }

    Kiosks kiosks(m_perFile);
    Repeats repeats;
    qint64 badLines = 0;
    while (!heads.empty()) {
        auto head = heads.extract(heads.begin());
        const auto [moment, begin, index] = head.value();
        Log& log = logs.at(index);
        Entry& entry = log.entry();
        try {
            if (entry.line)
                kiosks.take(log);
        } catch (const Fault& fault) {
            if (!m_keepGoing)
                throw;
            entry.fault = fault.message;
        }
        const QString kiosk = kiosks.of(log);
        if (byTimes)
            entry.moment = moment;
        StreamGap gap{index, entry.number, {kiosk}, entry.moment};
        const bool isShared = byTimes
            && (repeats.isAt(moment) || (!heads.empty() && std::get<0>(*heads.begin()) == moment));
        if (!entry.fault.isNull()) {
            printError(entry.fault);
            ++badLines;
            log.kiosks.erase(QString());
            gap.kiosks.insert(log.kiosks.begin(), log.kiosks.end());
            doubt(gap);
        } else {
            log.kiosks.insert(kiosk);
            std::vector<int> others;
            if (isShared)
                others = repeats.logsWith(moment, index, kiosk, entry.text);
            const bool isInRun = log.isFirst() || log.isCopied || namesDevice(*entry.line);
            log.isCopied = !others.empty() && isInRun;
            if (!log.isCopied) {
                take({std::move(*entry.line), index, entry.number, kiosk, entry.moment});
            } else {
                repeats.addCommon(index, others);
                if (!log.isDoubted && mayBeAnother(log, logs, others)) {
                    log.isDoubted = true;
                    m_notes += Velmo::tr("%1 begins in the second in which %2 ends, with lines of "
                                         "that: taken once, though they may have happened twice")
                                   .arg(log.file().name(), logs.at(others.front()).file().name());
                    doubt(gap);
                }
            }
        }
        gap.kiosks = kiosks.doubted();
        if (!gap.kiosks.empty()) {
            m_notes += Velmo::tr("lines before the one that names kiosk \"%1\" do not say which "
                                 "kiosk they are of: taken to be of \"%2\"")
                           .arg(kiosk, kiosks.first());
            doubt(gap);
        }
        if (log.next()) {
            head.value() = placeOf(index, log);
            heads.insert(std::move(head));
        }
    }

    for (const auto& [index, log] : logs)
        m_notes += log.clockNote();
    if (byTimes)
        m_notes += overlaps(logs, repeats);
    m_notes.removeAll({});
    m_notes.removeDuplicates();
    if (badLines > 0)
        printError(Velmo::tr("bad lines skipped: %1").arg(badLines));
    return badLines > 0 || int(logs.size()) < m_logs.size() ? exitBadInput : exitSuccess;
}
