// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "simulateddevice.h"

#include <velmolib/dispenserregistrymodel.h>
#include <velmolib/filterfactory.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>

#include <stdexcept>
#include <utility>

namespace {

std::runtime_error fault(const QString& place, const QString& what)
{
    return std::runtime_error(QStringLiteral("%1: %2").arg(place, what).toStdString());
}

// All fields of the state, those that the line reports replaced.
QVariantMap merged(const DeviceState& state, const QVariantMap& line)
{
    QVariantMap fields = state.toMap();
    fields.insert(line);
    return fields;
}

} // namespace

SimulatedDevice::SimulatedDevice(const QString& sessionFile, const QJsonArray& filters)
{
    readSession(sessionFile);

    // The event source first: a filter keeps the one that the chain has when it is added.
    m_filters.setEvents(m_worker.getStatesList());
    for (const QJsonValue& description : filters) {
        const QString name = description[QStringLiteral("name")].toString();
        const QVariantMap params = description[QStringLiteral("params")].toObject().toVariantMap();
        AbstractFilter* const filter = FilterFactory::createFilter(name, params);
        if (!filter)
            throw fault(name, QStringLiteral("unknown filter"));
        m_filters.add(filter);
        m_described.append({filter, description.toObject().toVariantMap()});
    }

    QObject::connect(&m_worker, &DeviceStateWorker::deviceStateChanged, &m_worker,
                     [this](const DeviceState& sent) { countNote(sent); });
}

void SimulatedDevice::readSession(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        throw fault(fileName, file.errorString());
    for (int number = 1; !file.atEnd(); ++number) {
        const QJsonDocument document = QJsonDocument::fromJson(file.readLine());
        const QVariantMap line = document.object().toVariantMap();
        if (!document.isObject() || !DeviceState().fromMap(merged(DeviceState(), line))) {
            throw fault(QStringLiteral("%1:%2").arg(fileName).arg(number),
                        QStringLiteral("expected a JSON object with fields of a device state"));
        }
        m_session.append(line);
    }
}

bool SimulatedDevice::step()
{
    if (m_nextLine == m_session.size())
        return false;
    const QVariantMap& line = m_session.at(m_nextLine++);
    m_isKnown = true;
    if (line.contains(QStringLiteral("session")))
        m_worker.startSession();
    DeviceState* const state = m_worker.getState();
    state->fromMap(merged(*state, line));
    // A device state does not read its registry rows itself.
    DispenserRegistryModel registry;
    if (registry.fromMap(line))
        m_worker.setDispenserRegistryList(registry.items());
    if (m_worker.checkState())
        m_worker.saveState();
    followPiece();
    return true;
}

// A piece that got stuck may be freed and go on.
void SimulatedDevice::followPiece()
{
    const DeviceState& state = *m_worker.getState();
    const bool isNew = std::exchange(m_followed, state.state) != state.state;
    m_pieceEnd = Piece::None;
    if (isNew && state.state == STATE_ACCEPTING && state.currentNote > 0) {
        m_piece = state.currentNote;
        m_stuck = 0;
    } else if (state.state == STATE_STACKED || state.state == STATE_RETURNED
               || state.state == STATE_REJECTED) {
        m_pieceEnd = m_stuck > 0 ? Piece::Ended : Piece::None;
        m_piece = m_stuck = 0;
    } else if (m_piece > 0
               && (state.errCritical || state.state == STATE_JAMMED
                   || state.state == STATE_ERROR)) {
        m_pieceEnd = Piece::Stuck;
        m_stuck = std::exchange(m_piece, 0);
    } else if (state.state == STATE_IDLING || state.state == STATE_BUSY) {
        m_piece = 0;
    }
}

QVariantMap SimulatedDevice::lastReport()
{
    QVariantMap report = m_session.at(m_nextLine - 1);
    report.insert(deviceStateDescConst::DEVICE_ID, m_worker.getState()->deviceId);
    report.insert(deviceStateDescConst::THREAD_ID, m_worker.getState()->threadId);
    if (m_pieceEnd == Piece::Stuck) // so that the line alone tells of what
        report.insert(deviceStateDescConst::CURRENT_NOTE, m_stuck);
    return report;
}

QVariantMap SimulatedDevice::toMap()
{
    QVariantMap map = m_worker.getState()->toMap();
    m_counters.addToMap(map);
    return map;
}

QVariantList SimulatedDevice::refusals()
{
    const DeviceState* const state = m_worker.getState();
    QVariantList refusals;
    for (const auto& [filter, description] : std::as_const(m_described)) {
        if (state->currentNote == 0 || filter->validate() == AbstractFilter::FILTER_ACCEPT)
            continue;
        QVariantMap refusal = description;
        refusal.insert(deviceStateDescConst::DEVICE_ID, state->deviceId);
        refusal.insert(deviceStateDescConst::THREAD_ID, state->threadId);
        refusals += refusal;
    }
    return refusals;
}

void SimulatedDevice::countNote(const DeviceState& sent)
{
    // A device may send several states while it is busy with one note.
    if (sent.state == m_counted)
        return;
    m_counted = sent.state;
    if (sent.state == STATE_ACCEPTING)
        ++m_counters.notesInserted;
    else if (sent.state == STATE_REJECTED)
        ++m_counters.notesRejected;
    else if (sent.state == STATE_RETURNED)
        ++m_counters.notesReturned;
}
