// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/cashaccount.h"

#include "text/diagnosis.h"
#include "text/filterwords.h"

#include <algorithm>
#include <climits>

namespace {

constexpr size_t mostExamples = 20;
constexpr size_t mostContents = 2001; // of a course; odd, so that the newest stays

// A currency may be left out: where there is one only, the money without is of it.
CashAccount::Flows merged(const CashAccount::Flows& flows, const std::vector<CashChannel>& channels)
{
    CashAccount::Flows found;
    for (const auto& [kind, flow] : flows) {
        CashKind known = kind;
        int currencies = 0;
        for (const CashChannel& channel : channels) {
            if (channel.denomination != kind.denomination || channel.currency.isEmpty()
                || channel.currency == known.currency)
                continue;
            ++currencies;
            if (kind.currency.isEmpty())
                known = channel.kind();
        }
        if (kind.currency.isEmpty() && currencies > 1)
            known = kind;
        const auto [same, isNew] = found.emplace(known, flow);
        if (isNew)
            continue;
        same->second.opening += flow.opening;
        same->second.in += flow.in;
        same->second.out += flow.out;
        same->second.moved += flow.moved;
        same->second.filled += flow.filled;
        same->second.lost += flow.lost;
    }
    return found;
}

// "line 3", "lines 3 and 6", or with the names of several logs.
QString placesOf(const CashDoubt& doubt, const QStringList& logs)
{
    QVector<qint64> lines;
    QStringList places;
    for (const CashDoubt::Example& example : doubt.examples) {
        const qint64 line = LogPosition::line(example.place.line);
        lines += line;
        places += QStringLiteral("%1:%2").arg(logs.value(LogPosition::log(example.place.line)),
                                              QString::number(line));
    }
    constexpr int mostShown = 8;
    return logs.size() == 1 ? lineList(lines)
                            : QStringList(places.mid(0, mostShown)).join(QStringLiteral(", "));
}

} // namespace

CashFlow& CashAccount::cassetteOf(const CashKind& kind)
{
    const auto found = cassette.find(kind);
    if (found != cassette.end())
        return found->second;
    CashFlow& flow = cassette[kind];
    flow.opening = opening;
    return flow;
}

PieceRange CashAccount::now(const CashFlow& flow) const
{
    PieceRange held = flow.opening;
    held += flow.in;
    held += flow.moved;
    held -= flow.out;
    held.widen(0, ofAnyValue);
    held.min = qMax<qint64>(0, held.min - flow.lost);
    if (isUnbounded)
        held.max.reset();
    return held;
}

PieceRange CashAccount::unseen() const
{
    return now({opening, {}, {}, {}, 0, 0});
}

void CashAccount::addDoubt(const LogPlace& where, DoubtReason reason, qint64 pieces,
                           std::optional<CashPlace> place, int denomination, int channel)
{
    auto found = std::find_if(doubts.begin(), doubts.end(), [&](const CashDoubt& known) {
        return known.reason == reason && known.place == place && known.channel == channel
            && known.denomination == denomination;
    });
    if (found == doubts.end())
        found = doubts.insert(found, {reason, place, channel, denomination, 0, {}});
    found->pieces += pieces;
    if (found->examples.size() < mostExamples)
        found->examples.push_back({where, CashDoubt::textOf(reason, pieces)});
}

// Of a long course, every second one is enough.
void CashAccount::addContent(LogMoment at)
{
    PieceRange sum = PieceRange::exactly(0);
    for (const auto& [kind, flow] : cassette)
        sum += now(flow).times(kind.denomination);
    if (!unseen().isExact())
        sum.max.reset(); // of any value
    if (course.empty()) {
        course.push_back({at, sum});
        return;
    }
    if (!isOpen && course.back().isBefore(at))
        at = {toPosition, to};
    const PieceRange last = course.back().sum;
    auto place = course.end();
    while (place - 1 != course.begin() && !(place - 1)->isBefore(at))
        --place;
    const CashPeriod::Content& before = *(place - 1);
    if (place == course.end() || place->position != at.position) {
        const bool isHere = before.isBefore(at);
        place = course.insert(place, {isHere ? at : LogMoment(before), before.sum});
    }
    for (; place != course.end(); ++place) {
        place->sum.min += sum.min - last.min;
        if (place->sum.max && last.max && sum.max)
            *place->sum.max += *sum.max - *last.max;
        else
            place->sum.max.reset();
    }
    if (course.size() < mostContents)
        return;
    size_t kept = 0;
    for (size_t i = 0; i < course.size(); i += 2)
        course.at(kept++) = course.at(i);
    course.resize(kept);
}

CashPeriod CashAccount::told(const std::vector<CashChannel>& known, const QStringList& logs) const
{
    CashPeriod told = *this;
    told.unseen = unseen();
    const auto add = [&](CashRow row) {
        row.why = whyOf(row, known, logs);
        told.rows.push_back(std::move(row));
    };
    for (const auto& [kind, flow] : merged(cassette, known)) {
        CashRow row{CashPlace::Cassette, 0, kind, flow, now(flow), {}};
        row.flow.in.widen(0, ofAnyValue);
        if (isUnbounded)
            row.flow.in.max.reset();
        add(std::move(row));
    }
    for (size_t i = 0; i < channels.size(); ++i) {
        const CashChannel& channel = known.at(i);
        add({CashPlace::Channel,
             channel.number,
             channel.kind(),
             channels.at(i),
             channelsNow.at(i),
             {}});
    }
    for (const auto& [kind, flow] : merged(rejects, known)) {
        PieceRange held = flow.opening;
        held += flow.moved;
        held -= flow.out;
        if (!areRejectsKnown)
            held.max.reset();
        add({CashPlace::Reject, 0, kind, flow, held, {}});
    }
    return told;
}

QStringList CashAccount::whyOf(const CashRow& row, const std::vector<CashChannel>& known,
                               const QStringList& logs) const
{
    QStringList why;
    if (row.place == CashPlace::Cassette) {
        if (!opening.max && number == 1)
            why += Diagnosis::tr("what lay in it when the log began is not known");
        else if (collections > 0)
            why += Diagnosis::tr("taken to have come back empty");
    }
    if (row.place == CashPlace::Channel) {
        const auto channel =
            std::find_if(known.begin(), known.end(), [&](const CashChannel& other) {
                return other.number == row.channel && other.denomination == row.kind.denomination
                    && other.currency == row.kind.currency;
            });
        if (!channelsTold.at(size_t(channel - known.begin())))
            why += Diagnosis::tr("the registry does not tell of it any more");
        if (row.flow.filled > 0)
            why += Diagnosis::tr("%n pieces were filled in", nullptr,
                                 int(qMin<qint64>(row.flow.filled, INT_MAX)));
    }
    for (const CashDoubt& doubt : doubts) {
        const bool isOfExact = row.place == CashPlace::Channel
            && (doubt.reason == DoubtReason::ChannelUnexplained
                || doubt.reason == DoubtReason::CassetteOut);
        if (!doubt.isAbout(row.place, row.channel, row.kind.denomination)
            || (row.now.isExact() && !isOfExact))
            continue;
        why += QStringLiteral("%1 (%2)").arg(doubt.text(), placesOf(doubt, logs));
    }
    if (why.isEmpty() && !row.now.isExact())
        why += Diagnosis::tr("lines were skipped since it was told");
    return why;
}
