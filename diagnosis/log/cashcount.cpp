// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashcount.h"

#include "text/diagnosis.h"
#include "text/fault.h"

#include <algorithm>
#include <array>
#include <set>

namespace {

constexpr std::array<const char*, cashPlaceCount> placeKeys{"cassette", "channel", "reject"};

const CashPeriod& periodOf(const CashCount& count, const std::vector<CashPeriod>& periods)
{
    const CashPeriod* found = nullptr;
    bool isOther = false; // one of another thread fits as well
    for (const CashPeriod& period : periods) {
        if (period.device != count.device || (count.thread && period.thread != *count.thread)
            || (count.period && period.number != *count.period))
            continue;
        isOther = isOther || (found && found->thread != period.thread);
        if (!found || !period.isOpen)
            found = &period;
    }
    if (!found)
        throw Fault{Diagnosis::tr("the logs have no such device or period")};
    if (isOther)
        throw Fault{Diagnosis::tr("several threads drive the device: say which in a column "
                                  "\"thread\"")};
    return *found;
}

bool isOf(const CashRow& row, const CashCount& count)
{
    return row.place == count.place && row.kind.denomination == count.denomination
        && (count.place != CashPlace::Channel || !count.channel || row.channel == *count.channel)
        && (count.currency.isEmpty() || row.kind.currency.isEmpty()
            || row.kind.currency == count.currency);
}

// How likely it is that a contradiction explains a difference, 0 being the likeliest; none when it
// does not.
std::optional<int> rankOf(const Contradiction& found, const CashCount& count, bool isShort)
{
    const bool isOfKind = found.note == count.denomination;
    const bool isOfPayout = found.rule == Rule::PayoutDiffers
        || found.rule == Rule::PayoutUnfinished || found.rule == Rule::RegistryChanged;
    if (!isOfPayout && count.place != CashPlace::Cassette)
        return {};
    switch (found.rule) {
    case Rule::NotCredited:
        return isShort && isOfKind ? std::optional<int>(0) : std::nullopt;
    case Rule::CreditedNotTaken:
        return !isShort && isOfKind ? std::optional<int>(0) : std::nullopt;
    case Rule::CreditDiffers:
        return isOfKind ? 1 : 3;
    case Rule::CounterJump:
    case Rule::CreditWithoutNote:
        return isShort ? std::nullopt : std::optional<int>(2);
    case Rule::PayoutDiffers:
    case Rule::PayoutUnfinished:
    case Rule::RegistryChanged:
        return count.place == CashPlace::Cassette ? 4 : 0;
    case Rule::CreditFell:
        break;
    }
    return {};
}

// Whether what is counted may be less for it, too.
bool explainsShort(DoubtReason reason)
{
    return reason == DoubtReason::LinesSkipped || reason == DoubtReason::CollectionUnseen
        || reason == DoubtReason::ChannelUnexplained || reason == DoubtReason::EndMissing;
}

// The row that a count is of; null for one of a value that the cassette has no row of.
const CashRow* rowOf(const CashCount& count, const std::vector<CashRow>& rows)
{
    std::vector<const CashRow*> fitting;
    for (const CashRow& row : rows) {
        if (!isOf(row, count))
            continue;
        if (!count.currency.isEmpty() && row.kind.currency == count.currency && !fitting.empty()
            && fitting.back()->kind.currency.isEmpty())
            fitting.clear();
        fitting.push_back(&row);
    }
    if (fitting.size() > 1)
        throw Fault{Diagnosis::tr("several rows fit: say which in a column \"channel\" or "
                                  "\"currency\"")};
    if (fitting.empty() && count.place != CashPlace::Cassette)
        throw Fault{Diagnosis::tr("the device has no such place")};
    return fitting.empty() ? nullptr : fitting.front();
}

} // namespace

QString placeKey(CashPlace place)
{
    return QLatin1String(placeKeys.at(size_t(place)));
}

QString CashDifference::placeName() const
{
    CashRow row;
    row.place = count.place;
    row.channel = channel.value_or(0);
    return row.placeName();
}

QString CashDifference::verdict() const
{
    if (difference == 0)
        return Diagnosis::tr("right");
    return difference < 0 ? Diagnosis::tr("%1 short").arg(-difference)
                          : Diagnosis::tr("%1 over").arg(difference);
}

bool CashDifference::isOfPlaceOf(const CashDifference& other) const
{
    return count.device == other.count.device && thread == other.thread && period == other.period
        && count.place == other.count.place
        && (count.place != CashPlace::Channel || channel == other.channel);
}

bool CashDifference::isOfRowOf(const CashDifference& other) const
{
    return isOfPlaceOf(other) && count.denomination == other.count.denomination
        && count.currency == other.count.currency;
}

CashDifference compareCount(const CashCount& count, const std::vector<CashPeriod>& periods)
{
    const CashPeriod& period = periodOf(count, periods);
    CashDifference answer{count, period.thread, count.channel, period.number, {}, 0, {}};
    answer.expected = period.unseen;
    if (const CashRow* const row = rowOf(count, period.rows)) {
        answer.expected = row->now;
        answer.count.currency = row->kind.currency;
        if (count.place == CashPlace::Channel)
            answer.channel = row->channel;
    }
    if (count.count < answer.expected.min)
        answer.difference = count.count - answer.expected.min;
    else if (answer.expected.max && count.count > *answer.expected.max)
        answer.difference = count.count - *answer.expected.max;
    if (answer.difference == 0)
        return answer;
    const bool isShort = answer.difference < 0;
    std::vector<std::pair<int, CashDoubt::Example>> reasons;
    for (const Contradiction& contradiction : period.contradictions) {
        if (const auto rank = rankOf(contradiction, count, isShort))
            reasons.push_back({*rank, {contradiction, contradiction.sentence}});
    }
    for (const CashDoubt& doubt : period.doubts) {
        if (!doubt.isAbout(count.place, answer.channel.value_or(0), count.denomination)
            || (isShort && !explainsShort(doubt.reason)))
            continue;
        for (const CashDoubt::Example& example : doubt.examples)
            reasons.emplace_back(doubt.denomination == 0 ? 3 : 1, example);
    }
    std::stable_sort(reasons.begin(), reasons.end(),
                     [](const auto& a, const auto& b) { return a.first < b.first; });
    std::set<qint64> lines;
    for (auto& reason : reasons) {
        if (lines.insert(reason.second.place.line).second)
            answer.explanations.push_back(std::move(reason.second));
    }
    return answer;
}

std::vector<CashDifference> rowsNotCounted(const std::vector<CashDifference>& counts,
                                           const std::vector<CashPeriod>& periods)
{
    std::vector<CashDifference> found;
    for (const CashPeriod& period : periods) {
        for (const CashRow& row : period.rows) {
            if (row.now.min == 0 && row.now.max)
                continue;
            CashDifference missing;
            missing.count.device = period.device;
            missing.count.place = row.place;
            missing.count.denomination = row.kind.denomination;
            missing.count.currency = row.kind.currency;
            missing.thread = period.thread;
            if (row.place == CashPlace::Channel)
                missing.channel = row.channel;
            missing.period = period.number;
            missing.expected = row.now;
            const auto isOfPlace = [&](const CashDifference& d) { return d.isOfPlaceOf(missing); };
            const auto isOfRow = [&](const CashDifference& d) { return d.isOfRowOf(missing); };
            if (std::any_of(counts.begin(), counts.end(), isOfPlace)
                && std::none_of(counts.begin(), counts.end(), isOfRow))
                found.push_back(missing);
        }
    }
    return found;
}
