// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "filterchain.h"
#include "filterfactory.h"
#include "fuzzing.h"

#include <vector>

namespace {

enum Kind { Accept, Attempts, DenomCount, SessionSum };

// A parameter as a caller may bring it: mostly a number, at times a text, a switch or junk.
QVariant parameter(Bytes& bytes)
{
    const std::uint8_t kind = bytes.byte();
    const qint32 number = bytes.number();
    switch (kind) {
    case 251:
        return QString::number(number);
    case 252:
        return double(number) / 3;
    case 253:
        return number > 0;
    case 254:
        return QVariantList{number};
    case 255:
        return QStringLiteral("junk");
    default:
        return number;
    }
}

struct Filter
{
    Kind kind;
    int denom;
    int limit;
};

// The rules once more, written from their description and in another way than the library: over
// plain vectors, forwards, with 64-bit sums brought back to 32 bits.

bool acceptsAttempts(const Filter& filter, const StatesList& events)
{
    if (events.isEmpty())
        return false;
    if (events.last().currentNote != filter.denom)
        return true;
    // From the newest to the second oldest, up to and including the last stacked note.
    int rejections = 0;
    for (int i = events.size() - 1; i >= 1; --i) {
        const bool rejected = events.at(i).state == STATE_REJECTED;
        rejections += rejected ? 1 : 0;
        if (rejections >= filter.limit)
            return false;
        if (events.at(i).state == STATE_STACKED)
            break;
    }
    return true;
}

bool acceptsCount(const Filter& filter, const StatesList& events)
{
    if (events.isEmpty())
        return false;
    if (events.last().currentNote != filter.denom)
        return true;
    int taken = 0;
    for (int i = 1; i < events.size(); ++i) {
        const bool endsRun = i + 1 == events.size() || events.at(i + 1).state != STATE_ACCEPTED;
        const DeviceState& event = events.at(i);
        if (event.state == STATE_ACCEPTED && endsRun && event.currentNote == filter.denom)
            ++taken;
    }
    return events.size() < 2 || taken < filter.limit;
}

bool acceptsSum(const Filter& filter, const StatesList& events)
{
    if (events.isEmpty())
        return false;
    qint64 sum = qint64(events.last().sessionSum) + events.last().currentNote;
    constexpr qint64 range = qint64(1) << 32;
    if (sum > INT32_MAX)
        sum -= range;
    else if (sum < INT32_MIN)
        sum += range;
    return sum <= filter.limit;
}

bool accepts(const Filter& filter, const StatesList& events)
{
    switch (filter.kind) {
    case Accept:
        return filter.limit != 0;
    case Attempts:
        return acceptsAttempts(filter, events);
    case DenomCount:
        return acceptsCount(filter, events);
    case SessionSum:
        return acceptsSum(filter, events);
    }
    return false;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    Bytes bytes(data, size);
    std::vector<Filter> plain;
    StatesList events;
    FilterChain chain;
    chain.setEvents(&events);
    static const char* const names[] = {filters::ACCEPT_FILTER, filters::ATTEMPTS_FILTER,
                                        filters::DENOM_COUNT_FILTER, filters::SESSION_SUM_FILTER};
    static const char* const limitNames[] = {"acceptAll", "attempts", "count", "sessionSum"};
    for (int i = bytes.byte() % 5; i > 0; --i) {
        const auto kind = static_cast<Kind>(bytes.byte() % 4);
        const QLatin1String limitName(limitNames[kind]);
        AbstractFilter* const filter =
            FilterFactory::createFilter(QLatin1String(names[kind]),
                                        {{QStringLiteral("denom"), parameter(bytes)},
                                         {limitName, parameter(bytes)},
                                         {QStringLiteral("junk"), parameter(bytes)}});
        CHECK(filter);
        // What the property made of the number is what counts.
        plain.push_back(
            {kind, filter->property("denom").toInt(), filter->property(limitName.data()).toInt()});
        chain.add(filter);
    }
    while (!bytes.atEnd() && events.size() < 300) {
        DeviceState event;
        event.state = static_cast<State>(bytes.byte() % 20);
        event.currentNote = bytes.number();
        event.sessionSum = bytes.number();
        events.append(event);
    }

    bool expected = true;
    for (const Filter& filter : plain)
        expected = expected && accepts(filter, events);
    const StatesList before = events;
    const AbstractFilter::FilterResult verdict = chain.validate();
    CHECK((verdict == AbstractFilter::FILTER_ACCEPT) == expected);
    CHECK(chain.validate() == verdict);
    CHECK(events == before);
    return 0;
}
