// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "logstream.h"

#include "command.h"
#include "streamlog.h"

#include <QHash>
#include <QPair>

#include <algorithm>
#include <map>
#include <set>
#include <tuple>
#include <vector>

namespace {

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

    QString of(const StreamLog& log) const
    {
        if (m_perFile)
            return log.file().name();
        return log.namedKiosk.isEmpty() && m_named.size() == 1 ? *m_named.begin() : log.namedKiosk;
    }

    // Throws Fault where it cannot be told.
    void take(StreamLog& log)
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

using Logs = std::map<int, StreamLog>; // by index

bool namesDevice(const SessionLine& line)
{
    static const quint32 deviceBit = DeviceReport::bit(deviceStateDescConst::DEVICE_ID);
    return line.isPublished() || line.reports().front().has(deviceBit);
}

// Whether a line that others have as well may have happened again: they end in the second in which
// its log begins. The very same line once more would say nothing new.
bool mayBeAnother(const StreamLog& log, const Logs& logs, const std::vector<int>& others)
{
    return log.moment() == log.begin() && log.moment() % 1000 == 0
        && std::all_of(others.begin(), others.end(), [&](int other) {
               const StreamLog& known = logs.at(other);
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
        doubt(
            {index, 0, m_perFile ? std::set<QString>{m_logs.at(index)} : std::set<QString>(), {}});
    });
    const bool byTimes = logs.size() > 1 && !m_perFile && findBegins(logs, m_notes);

    using Place = std::tuple<qint64, qint64, int>; // moment, where its log begins, which that is
    const auto placeOf = [&](int index, const StreamLog& log) {
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
        StreamLog& log = logs.at(index);
        StreamEntry& entry = log.entry();
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
        const auto tellGap = [&, which = index](const std::set<QString>& of) {
            doubt({which, entry.number, of, entry.moment});
        };
        const bool isShared = byTimes
            && (repeats.isAt(moment) || (!heads.empty() && std::get<0>(*heads.begin()) == moment));
        if (!entry.fault.isNull()) {
            printError(entry.fault);
            ++badLines;
            std::set<QString> known = log.kiosks;
            known.erase(QString()); // its lines are of the first one that was named
            known.insert(kiosk);
            tellGap(known);
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
                    tellGap({kiosk});
                }
            }
            if (const std::set<QString> doubted = kiosks.doubted(); !doubted.empty()) {
                m_notes += Velmo::tr("lines before the one that names kiosk \"%1\" do not say "
                                     "which kiosk they are of: taken to be of \"%2\"")
                               .arg(kiosk, kiosks.first());
                tellGap(doubted);
            }
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
