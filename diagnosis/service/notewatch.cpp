// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "service/notewatch.h"

#include "devicestatesconst.h"
#include "text/devicename.h"

#include <QSet>

#include <algorithm>
#include <iterator>

using namespace deviceStatesConst;

namespace {

// Beyond so many the oldest are given up: a service that makes them up must not fill the memory.
constexpr size_t mostPieces = 200;

bool isOf(const QVariantMap& refusal, const AcceptorStateItem& device)
{
    return refusal.value(deviceStateDescConst::DEVICE_ID).toInt() == device.deviceId()
        && refusal.value(deviceStateDescConst::THREAD_ID, device.threadId()).toInt()
        == device.threadId();
}

bool hasFailed(const PublishedDevice& device)
{
    return device.errorCritical() || device.state() == DS_JAMMED || device.state() == DS_ERROR;
}

// Whether a device with that state has a piece in its hand.
bool isHeld(const QString& state)
{
    return state == DS_ACCEPTING || state == DS_ACCEPTED || state == DS_STACKING;
}

bool isLostSight(NoteWatch::Outcome outcome)
{
    return outcome == NoteWatch::Stuck || outcome == NoteWatch::Lost;
}

} // namespace

bool NoteWatch::Note::isOpen() const
{
    return outcome == Checked || isLostSight(outcome);
}

bool NoteWatch::Note::isToldBack() const
{
    return outcome == Refused || outcome == Returned;
}

NoteWatch::Reading::Reading(const PublishedDevice& device)
    : sum(device.sessionSum)
    , rejected(device.rejectedInFull)
    , returned(device.returnedInFull)
{
}

std::vector<NoteWatch::Note> NoteWatch::take(const PublishedState& state, const QDateTime& time)
{
    m_events.clear();
    m_time = time;
    m_currency = state.money.currency;
    m_isSettledByService = state.incidents.has_value();
    const qint64 sum = state.sessionSum();
    const bool isAnotherSession = sum < m_sum;
    if (isAnotherSession && m_last.outcome != Checked)
        m_last = Note();
    m_sum = sum;
    ++m_turn;
    QMap<std::pair<int, int>, int> twins;
    for (const PublishedDevice& device : state.devices) {
        if (moneyOf(device.deviceId()) == Money::Card)
            continue; // it has no piece of money in its hand
        const std::pair<int, int> key(device.deviceId(), device.threadId());
        Track& track = m_tracks[Key(key.first, key.second, twins[key]++)];
        track.turn = m_turn;
        follow(device, track, state.refusals);
    }
    for (auto track = m_tracks.begin(); track != m_tracks.end();) {
        if (track->turn == m_turn || miss(*track))
            ++track;
        else
            track = m_tracks.erase(track);
    }
    if (state.incidents)
        heed(*state.incidents);
    if (isAnotherSession && !m_last.isOpen())
        m_last = Note(); // it was of the session before
    m_isFirst = false;
    return m_events;
}

void NoteWatch::follow(const PublishedDevice& device, Track& track, const QVariantList& refusals)
{
    const QString name = device.state();
    const qint64 note = device.currentNote;
    const bool isNew = track.state != name || (name == DS_ACCEPTING && track.note != note);
    // Otherwise it has come to know what the piece in its hand is worth.
    const bool isAnother = track.state != name || track.isAway || !find(track.hand);
    const bool isMisfed = name == DS_JAMMED && note > 0 && track.note == 0 && !find(track.hand);
    if (!m_isFirst && ((name == DS_ACCEPTING && isNew && isAnother) || isMisfed))
        begin(device, track);
    track.state = name;
    track.note = note;
    if (Note* const piece = find(track.hand)) {
        look(device, track.phase, *piece, refusals);
        move(device, track, isNew);
    } else if (isNew && !m_isFirst && name == DS_REJECTED) {
        Note rejected = pieceOf(device);
        tell(rejected, Rejected);
    }
    if (!device.online())
        miss(track);
}

// The device is not there, or cannot be asked. False when there is nothing to remember of it.
bool NoteWatch::miss(Track& track)
{
    Note* const piece = find(track.hand);
    if (!piece || track.phase == Out)
        return false;
    track.isAway = true;
    if (!isLostSight(piece->outcome))
        tell(*piece, Lost);
    return true;
}

NoteWatch::Note NoteWatch::pieceOf(const PublishedDevice& device)
{
    return {++m_lastId, None, device.deviceId(), device.threadId(), 0, m_currency, m_time};
}

void NoteWatch::begin(const PublishedDevice& device, Track& track)
{
    if (find(track.hand))
        rest(device, track);
    track.hand = add(pieceOf(device)).id;
    track.phase = Entering;
    track.start = Reading(device);
    track.isAway = false;
}

// What the piece is worth, and whether a filter refuses it.
void NoteWatch::look(const PublishedDevice& device, Phase phase, Note& piece,
                     const QVariantList& refusals)
{
    const QString name = device.state();
    const bool isValued = phase == Entering && device.currentNote > 0
        && device.currentNote != piece.value && piece.outcome <= Checked;
    if (isValued)
        piece.value = device.currentNote;
    const bool isRefusable = name == DS_ACCEPTING || name == DS_RETURNING;
    for (const QVariant& refusal : refusals) {
        if (isRefusable && piece.outcome <= Checked && isOf(refusal.toMap(), device)) {
            piece.refusal = refusal.toMap();
            tell(piece, Refused);
        }
    }
    if (isValued && piece.outcome <= Checked && isHeld(name) && !hasFailed(device))
        tell(piece, Checked);
}

void NoteWatch::move(const PublishedDevice& device, Track& track, bool isNew)
{
    const QString name = device.state();
    Note& piece = *find(track.hand);
    if (name == DS_STACKED) {
        end(track, Taken);
    } else if (name == DS_RETURNED) {
        if (track.phase != Out && !piece.isToldBack())
            tell(piece, Returned);
        track.phase = Out;
    } else if (name == DS_REJECTED) {
        if (isNew || track.isAway)
            end(track, piece.outcome == Refused ? None : Rejected);
    } else if (hasFailed(device) && track.phase != Out) {
        if (piece.outcome != Stuck) {
            track.start = Reading(device);
            tell(piece, Stuck);
        }
    } else if (name == DS_IDLING || name == DS_BUSY) {
        rest(device, track);
    } else if (isHeld(name)) {
        track.phase = name == DS_ACCEPTING ? Entering : In;
        track.isAway = false;
        if (piece.outcome == Lost)
            tell(piece, Checked);
    } else if (name == DS_RETURNING) {
        track.phase = GoingOut;
        track.isAway = false;
        if (!piece.isToldBack() && piece.outcome != Stuck)
            tell(piece, Returned);
    }
}

// The device has the piece no more, or did not say so: it waits, or goes on to another one.
void NoteWatch::rest(const PublishedDevice& device, Track& track)
{
    Note& piece = *find(track.hand);
    const bool isUnsure = track.isAway || isLostSight(piece.outcome);
    const Reading now(device);
    Outcome outcome = None;
    const bool isCounted = piece.value > 0 && now.sum - track.start.sum >= piece.value;
    const bool isBack = now.returned > track.start.returned;
    if (isCounted || (!isBack && !isUnsure && track.phase == In))
        outcome = Taken;
    else if (isBack)
        outcome = Returned;
    else if (now.rejected > track.start.rejected)
        outcome = Rejected;

    const bool isAtPeace = !isUnsure || outcome != None;
    if (track.phase == Out || (piece.isToldBack() && outcome != Taken && isAtPeace)) {
        release(track);
    } else if (isAtPeace) {
        end(track, outcome);
    } else {
        if (!isLostSight(piece.outcome))
            tell(piece, Lost);
        if (device.state() != DS_BUSY) // then it may still be at that piece
            release(track);
    }
}

// None is silence: it came and went, and the device has nothing to say of it.
void NoteWatch::end(Track& track, Outcome outcome)
{
    Note& piece = *find(track.hand);
    if (outcome != None)
        tell(piece, outcome);
    else if (piece.incident.isEmpty())
        forget(piece);
    release(track);
}

void NoteWatch::release(Track& track)
{
    if (!find(track.hand)->isOpen())
        drop(track.hand);
    track.hand = 0;
    track.isAway = false;
}

void NoteWatch::tell(Note& piece, Outcome outcome)
{
    if (!piece.incident.isEmpty() && outcome != Stuck)
        return; // the service says when it is settled
    const bool isSaid = piece.value > 0 || isLostSight(outcome) || outcome == Rejected;
    if (!isSaid && piece.isOpen())
        forget(piece);
    if (!isSaid)
        return;
    piece.outcome = outcome;
    m_events.push_back(piece);
    m_last = piece;
}

void NoteWatch::forget(Note& piece)
{
    piece.outcome = None;
    if (m_last.id == piece.id)
        m_last = Note();
}

// Which pieces the service has open, under which numbers.
void NoteWatch::heed(const std::vector<Incident>& incidents)
{
    QSet<QString> open;
    for (const Incident& incident : incidents) {
        open.insert(incident.number);
        if (std::any_of(m_pieces.begin(), m_pieces.end(),
                        [&](const Note& piece) { return piece.incident == incident.number; }))
            continue;
        Note* piece = pieceOf(incident);
        if (!piece) {
            piece = &add({++m_lastId, None, incident.device, incident.thread, incident.denomination,
                          m_currency, m_time});
        }
        if (!incident.currency.isEmpty())
            piece->currency = incident.currency;
        if (incident.time.isValid())
            piece->time = incident.time; // that of the service's log
        piece->incident = incident.number;
        if (piece->value == 0)
            piece->value = incident.denomination;
        if (m_isFirst)
            piece->outcome = Stuck;
        else if (piece->outcome != Stuck)
            tell(*piece, Stuck);
    }
    for (const Note& piece : std::vector<Note>(m_pieces)) {
        if (!piece.incident.isEmpty() && !open.contains(piece.incident))
            drop(piece.id);
    }
}

// The oldest that may be meant; of those that a device has in hand, one that it was seen with.
NoteWatch::Note* NoteWatch::pieceOf(const Incident& incident)
{
    const auto isMeant = [&](const Note& piece, bool isFailed) {
        return piece.incident.isEmpty() && piece.device == incident.device
            && piece.thread == incident.thread && piece.isOpen()
            && isLostSight(piece.outcome) == isFailed
            && (piece.value == incident.denomination
                || (isFailed && (piece.value == 0 || incident.denomination == 0)));
    };
    for (const bool isFailed : {true, false}) {
        const auto found = std::find_if(m_pieces.begin(), m_pieces.end(), [&](const Note& piece) {
            return isMeant(piece, isFailed);
        });
        if (found != m_pieces.end())
            return &*found;
    }
    return nullptr;
}

void NoteWatch::lose()
{
    for (Track& track : m_tracks) {
        Note* const piece = find(track.hand);
        track.isAway = piece != nullptr;
        if (piece && piece->outcome == None)
            piece->outcome = Checked; // it is inside, whatever it is worth
    }
}

QString NoteWatch::settle(quint64 id)
{
    const Note* const piece = find(id);
    if (!piece || !isLostSight(piece->outcome))
        return {};
    const QString incident = piece->incident;
    if (incident.isEmpty() || !m_isSettledByService)
        drop(id);
    return incident;
}

std::vector<NoteWatch::Note> NoteWatch::open() const
{
    std::vector<Note> open;
    std::copy_if(m_pieces.begin(), m_pieces.end(), std::back_inserter(open),
                 [](const Note& piece) { return piece.isOpen(); });
    std::stable_sort(open.begin(), open.end(),
                     [](const Note& a, const Note& b) { return a.time < b.time; });
    return open;
}

NoteWatch::Note& NoteWatch::add(const Note& piece)
{
    if (m_pieces.size() >= mostPieces)
        drop(m_pieces.front().id);
    m_pieces.push_back(piece);
    return m_pieces.back();
}

NoteWatch::Note* NoteWatch::find(quint64 id)
{
    const auto found = std::find_if(m_pieces.begin(), m_pieces.end(),
                                    [id](const Note& piece) { return piece.id == id; });
    return found == m_pieces.end() ? nullptr : &*found;
}

void NoteWatch::drop(quint64 id)
{
    if (m_last.id == id && m_last.isOpen())
        m_last = Note();
    m_pieces.erase(std::remove_if(m_pieces.begin(), m_pieces.end(),
                                  [id](const Note& piece) { return piece.id == id; }),
                   m_pieces.end());
}
