// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "answerjson.h"
#include "commands.h"
#include "input.h"
#include "jsonlines.h"
#include "terminal/table.h"

#include <atomic>
#include <future>
#include <thread>

namespace {

// What a log led to.
struct LogResult
{
    QString text; // of the differences
    QStringList faults; // that were passed over
    int skipped = 0; // lines
    ComparisonTotals totals;
};

// Compares A and B over logs on all cores, a log at a time on each.
class Comparison
{
public:
    Comparison(const Arguments& arguments, FilterSet a, FilterSet b)
        : m_logs(arguments.operands().mid(2))
        , m_json(arguments.isSet(options::json))
        , m_keepGoing(arguments.isSet(options::keepGoing))
        , m_a(std::move(a))
        , m_b(std::move(b))
    {
        for (const QString& log : m_logs) {
            m_tasks.emplace_back([this, log] { return resultOf(log); });
            m_results.push_back(m_tasks.back().get_future());
        }
        const size_t cores = std::max(1U, std::thread::hardware_concurrency());
        for (size_t i = 0; i < std::min(cores, m_tasks.size()); ++i)
            m_workers.push_back(std::async(std::launch::async, [this] { work(); }));
    }

    ~Comparison() { m_stopped = true; } // and the workers, when they are destroyed

    // Hands over the result of each log in their order. Throws what reading it threw.
    template <typename Receiver>
    void forEachResult(Receiver receive)
    {
        for (std::future<LogResult>& result : m_results)
            receive(result.get());
    }

private:
    void work()
    {
        for (size_t i = m_next++; i < m_tasks.size() && !m_stopped; i = m_next++)
            m_tasks.at(i)();
    }

    LogResult resultOf(const QString& log) const
    {
        try {
            return compare(log);
        } catch (const Fault& fault) {
            if (!m_keepGoing)
                throw;
            return {{}, {fault.message}, 0, {}}; // the log cannot be opened
        }
    }

    LogResult compare(const QString& log) const
    {
        LogResult result;
        TextInput file = openInput(log);
        LogComparer comparer(m_a, m_b, [&](const Difference& difference) {
            result.text += m_json
                ? QString::fromUtf8(jsonOf(log, difference)) + QLatin1Char('\n')
                : wrapped(
                    printableLines(QStringLiteral("%1: %2").arg(file.name(), difference.text())), 4,
                    outputWidth());
        });
        const auto take = [&](const QByteArray& line) {
            const SessionLine said = SessionLine::read(file, line);
            file.placing([&] { comparer.take(said, file.lineNumber()); });
        };
        const auto skip = [&](const QString& fault) {
            result.faults += fault;
            ++result.skipped;
            comparer.skipLine();
        };
        while (!m_stopped && takeLine(file, m_keepGoing, take, skip)) { }
        comparer.finish();
        result.totals = comparer.totals();
        return result;
    }

    const QStringList m_logs;
    const bool m_json;
    const bool m_keepGoing;
    const FilterSet m_a;
    const FilterSet m_b;
    std::vector<std::packaged_task<LogResult()>> m_tasks; // one a log
    std::vector<std::future<LogResult>> m_results;
    std::atomic<size_t> m_next{0};
    std::atomic<bool> m_stopped{false};
    std::vector<std::future<void>> m_workers; // the first to go: waits for them
};

QString summaryJson(const ComparisonTotals& totals, const QString& a, const QString& b)
{
    const auto side = [](const QString& file, const Tally& refused) {
        return JsonText::object({{"file", file}, {"refused", jsonOf(refused)}});
    };
    return QString::fromUtf8(JsonText::object({{"kind", QStringLiteral("summary")},
                                               {"sessions", totals.sessions},
                                               {"offered", jsonOf(totals.offered)},
                                               {"differences", jsonOf(totals.differences)},
                                               {"a", side(a, totals.refusedByA)},
                                               {"b", side(b, totals.refusedByB)}}));
}

QString summaryText(const ComparisonTotals& totals)
{
    const auto notes = [](const Tally& tally) {
        return Velmo::tr("%n notes (%1)", nullptr, int(tally.count)).arg(tally.sum);
    };
    return Velmo::tr("In these %n sessions, A refused %1, B %2; they differ on %3.", nullptr,
                     totals.sessions)
        .arg(notes(totals.refusedByA), notes(totals.refusedByB), notes(totals.differences));
}

} // namespace

int compareCommand(const Arguments& arguments)
{
    const QStringList& files = arguments.operands();
    if (files.count(QStringLiteral("-")) > 1)
        throw Fault{Velmo::tr("standard input can be read only once")};
    FiltersInput a = readFilters(files.at(0));
    FiltersInput b = readFilters(files.at(1));
    a.filters.addDeviceNames(b.filters);
    b.filters.addDeviceNames(a.filters);
    const bool json = arguments.isSet(options::json);
    if (!json) {
        print(a.rulesText(QStringLiteral("A (%1):").arg(a.fileName)));
        print(b.rulesText(QStringLiteral("B (%1):").arg(b.fileName)));
    }

    ComparisonTotals totals;
    int skipped = 0;
    bool isWhole = true;
    Comparison comparison(arguments, a.filters, b.filters);
    comparison.forEachResult([&](const LogResult& result) {
        for (const QString& fault : result.faults)
            printError(fault);
        isWhole = isWhole && result.faults.isEmpty();
        print(result.text);
        totals.add(result.totals);
        skipped += result.skipped;
    });
    if (!json && totals.differences.count > 0)
        print(QStringLiteral("\n"));
    print((json ? summaryJson(totals, a.fileName, b.fileName)
                : wrapped(summaryText(totals), 0, outputWidth()).trimmed())
          + QLatin1Char('\n'));
    if (skipped > 0)
        printError(Velmo::tr("bad lines skipped: %1").arg(skipped));
    if (!isWhole)
        return exitBadInput;
    return totals.differences.count > 0 ? exitFindings : exitSuccess;
}
