// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "cashanswer.h"
#include "commands.h"
#include "input.h"
#include "log/cashpage.h"
#include "logstream.h"
#include "period.h"

#include <algorithm>
#include <map>
#include <memory>

namespace {

// The ledgers of the kiosks that the logs are of.
class CashReading
{
public:
    explicit CashReading(const Arguments& arguments)
        : m_logs(arguments.operands())
        , m_period(arguments)
        , m_utc(arguments.isSet(options::utc))
    {
        if (arguments.isSet(options::device))
            m_device = quint32(arguments.number(options::device));
    }

    void take(const StreamLine& line)
    {
        m_isAnyTimed = m_isAnyTimed || line.moment;
        if (m_period.isBefore(line.moment)) {
            const auto known = m_kiosks.find(line.kiosk);
            if (known != m_kiosks.end())
                known->second->isCut = true;
            return;
        }
        Kiosk& kiosk = ledgerOf(line.kiosk);
        const qint64 position = LogPosition::of(line.log, line.number);
        SessionLine shown = line.line;
        if (m_utc && shown.time().isKnown())
            shown.setTime(shown.time().utc());
        if (!kiosk.hasBegun && !m_period.isAfter(line.moment))
            kiosk.begin(position, shown.time());
        kiosk.ledger.take(shown, position);
    }

    void doubt(const StreamGap& gap)
    {
        m_isLogMissing = m_isLogMissing || gap.number == 0;
        if (m_period.isBefore(gap.moment))
            return;
        for (const auto& [name, known] : m_kiosks) {
            if (gap.kiosks.empty() || gap.kiosks.count(QString()) > 0 || gap.kiosks.count(name) > 0)
                known->ledger.skipLine(LogPosition::of(gap.log, gap.number));
        }
    }

    CashAnswer answer(const QStringList& notes)
    {
        CashAnswer answer;
        answer.logs = m_logs;
        answer.notes = notes;
        if (!m_period.isAll() && !m_isAnyTimed && !m_kiosks.empty())
            throw Fault{Velmo::tr("no line has a time: nothing can be selected by it")};
        for (const auto& [name, known] : m_kiosks) {
            if (!known->hasBegun) // all was before
                known->begin(0, {});
            known->isOver = known->isCut;
            known->ledger.finish();
            answer.kiosks.push_back({name,
                                     known->ledger.periods(m_isLogMissing),
                                     std::move(known->contradictions),
                                     {},
                                     {},
                                     known->isCut});
            answer.summary.add(known->ledger.summary());
            answer.devices += known->ledger.devices();
        }
        if (m_device && answer.devices == 0)
            throw Fault{Velmo::tr("the logs have nothing of the device that is asked for")};
        return answer;
    }

private:
    struct Kiosk
    {
        Kiosk(const QStringList& logs, std::optional<quint32> device)
            : ledger(logs, device, [this](const Contradiction& found) {
                if (!isOver)
                    contradictions.push_back(found);
            })
        {
        }

        // The time that is asked for begins.
        void begin(qint64 position, const LogTime& time)
        {
            hasBegun = true;
            contradictions.clear();
            ledger.beginHere(position, time);
        }

        std::vector<Contradiction> contradictions;
        CashLedger ledger;
        bool hasBegun = false;
        bool isCut = false; // lines came behind the time that is asked for
        bool isOver = false; // what does not add up at its end, those may clear
    };

    Kiosk& ledgerOf(const QString& name)
    {
        const auto known = m_kiosks.find(name);
        if (known != m_kiosks.end())
            return *known->second;
        // What was told before the first kiosk was named is of that one.
        const auto nameless = m_kiosks.find(QString());
        std::unique_ptr<Kiosk>& made = m_kiosks[name];
        if (nameless != m_kiosks.end()) {
            made = std::move(nameless->second);
            m_kiosks.erase(nameless);
        } else {
            made = std::make_unique<Kiosk>(m_logs, m_device);
        }
        return *made;
    }

    const QStringList m_logs;
    const Period m_period;
    const bool m_utc;
    std::optional<quint32> m_device;
    bool m_isAnyTimed = false;
    bool m_isLogMissing = false;
    std::map<QString, std::unique_ptr<Kiosk>> m_kiosks;
};

void compareCounts(CashAnswer& answer, const std::vector<CashCount>& counts)
{
    for (const CashCount& count : counts) {
        try {
            std::vector<KioskCash>& kiosks = answer.kiosks;
            const auto kiosk = std::find_if(kiosks.begin(), kiosks.end(), [&](const KioskCash& k) {
                return kiosks.size() == 1 ? count.kiosk.isEmpty() || k.kiosk == count.kiosk
                                          : k.kiosk == count.kiosk;
            });
            if (kiosk == kiosks.end())
                throw Fault{Velmo::tr("the logs have no such kiosk")};
            CashDifference difference = compareCount(count, kiosk->periods);
            for (const CashDifference& other : kiosk->differences) {
                if (other.isOfRowOf(difference))
                    throw Fault{Velmo::tr("the same is counted at %1").arg(other.count.where)};
            }
            kiosk->differences.push_back(std::move(difference));
        } catch (const Fault& fault) {
            throw Fault{QStringLiteral("%1: %2").arg(count.where, fault.message)};
        }
    }
    for (KioskCash& kiosk : answer.kiosks)
        kiosk.notCounted = rowsNotCounted(kiosk.differences, kiosk.periods);
}

// Leaves the newest period of each device, and what does not add up in it.
void leaveLast(KioskCash& kiosk)
{
    std::vector<CashPeriod>& periods = kiosk.periods;
    std::vector<CashPeriod> last;
    for (size_t i = 0; i < periods.size(); ++i) {
        if (i + 1 == periods.size() || !periods.at(i).isOfSameDevice(periods.at(i + 1)))
            last.push_back(std::move(periods.at(i)));
    }
    const auto isBefore = [](const Contradiction& found, const CashPeriod& period) {
        return found.device == period.device && found.thread == period.thread
            && LogMoment{found.line, found.time}.isBefore({period.fromPosition, period.from});
    };
    std::vector<Contradiction>& all = kiosk.contradictions;
    all.erase(std::remove_if(all.begin(), all.end(),
                             [&](const Contradiction& found) {
                                 return std::any_of(last.begin(), last.end(),
                                                    [&](const CashPeriod& period) {
                                                        return isBefore(found, period);
                                                    });
                             }),
              all.end());
    periods = std::move(last);
}

} // namespace

int cashCommand(const Arguments& arguments)
{
    const bool json = arguments.isSet(options::json);
    const bool csv = arguments.isSet(options::csv);
    const bool html = arguments.isSet(options::html);
    if (json + csv + html > 1)
        throw Fault{Velmo::tr("--json, --csv and --html exclude each other")};
    std::vector<CashCount> counts;
    const QString countsFile = arguments.value(options::counted);
    if (arguments.isSet(options::counted)) {
        if (countsFile == QLatin1String("-") && arguments.operands().contains(countsFile))
            throw Fault{Velmo::tr("log and counts cannot both come from standard input")};
        TextInput file = openInput(countsFile);
        counts = readCashCounts(file);
    }
    std::optional<OutputFile> page;
    if (html)
        page.emplace(arguments.value(options::html),
                     arguments.operands() + QStringList{countsFile});
    CashReading reading(arguments);
    LogStream stream(arguments.operands(), arguments.isSet(options::perFile),
                     arguments.isSet(options::keepGoing));
    const int exitCode = stream.read([&](const StreamLine& line) { reading.take(line); },
                                     [&](const StreamGap& gap) { reading.doubt(gap); });
    CashAnswer answer = reading.answer(stream.notes());
    compareCounts(answer, counts);
    bool isSound = true;
    for (KioskCash& kiosk : answer.kiosks) {
        if (arguments.isSet(options::last))
            leaveLast(kiosk);
        answer.summary.contradictions += qint64(kiosk.contradictions.size());
        isSound = isSound && kiosk.contradictions.empty() && kiosk.areCountsRight();
    }
    for (const QString& note : stream.notes()) {
        if (json || csv)
            printError(note);
    }
    if (page) {
        writeCashPage(page->device(), answer);
        page->commit();
    } else {
        print(json      ? QString::fromUtf8(cashJson(answer))
                  : csv ? QString::fromUtf8(cashCsv(answer))
                        : cashText(answer));
    }
    if (exitCode == exitSuccess && !isSound && arguments.isSet(options::exitCode))
        return exitFindings;
    return exitCode;
}
