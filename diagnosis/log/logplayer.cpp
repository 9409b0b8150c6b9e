// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "log/logplayer.h"

#include "acceptors.h"
#include "log/logposition.h"
#include "text/devicename.h"
#include "text/diagnosis.h"
#include "text/fault.h"

#include <QMap>

#include <algorithm>
#include <tuple>

namespace {

const quint32 deviceBit = DeviceReport::bit(deviceStateDescConst::DEVICE_ID);
const quint32 threadBit = DeviceReport::bit(deviceStateDescConst::THREAD_ID);

} // namespace

LogDevice::LogDevice(const FilterSet& filters, quint32 deviceId, quint32 threadId)
    : m_name(deviceName(int(deviceId), filters.deviceNames().value(deviceId)))
    , m_deviceId(deviceId)
    , m_threadId(threadId)
    , m_worker(std::make_unique<DeviceStateWorker>())
    , m_chain(std::make_unique<FilterChain>())
{
    const QList<AbstractFilter*> made = filters.addTo(*m_chain);
    for (AbstractFilter* const filter : made)
        m_filters.emplace_back(*filter);
    m_worker->setDeviceId(deviceId);
    m_worker->setThreadId(threadId);
}

QVector<const FilterMemory*> LogDevice::refusing() const
{
    QVector<const FilterMemory*> found;
    for (const FilterMemory& filter : m_filters) {
        if (filter.refuses())
            found += &filter;
    }
    return found;
}

QVector<MachineCondition> LogDevice::conditions() const
{
    QVector<MachineCondition> found;
    for (size_t i = 0; i < m_conditionSince.size(); ++i) {
        const qint64 since = m_conditionSince.at(i);
        if (since == 0)
            continue;
        const Condition& condition = Condition::table[i];
        found.append(
            {QLatin1String(condition.key), condition.word, since, condition.told(state(), since)});
    }
    return found;
}

bool LogDevice::stopsOn(qint64 line) const
{
    for (size_t i = 0; i < m_conditionSince.size(); ++i) {
        if (Condition::table[i].stopsNotes && m_conditionSince.at(i) == line)
            return true;
    }
    return false;
}

QString LogDevice::name() const
{
    return m_showThread ? Diagnosis::tr("%1, thread %2").arg(m_name).arg(m_threadId) : m_name;
}

void LogDevice::startSession(int number, qint64 skippedLines)
{
    m_session = number;
    m_sessionStartSeen = true;
    m_skippedBefore = skippedLines;
    m_worker->startSession();
    for (FilterMemory& filter : m_filters)
        filter.startSession();
}

void LogDevice::take(const DeviceReport& report, qint64 line)
{
    static const std::array<quint32, Condition::count> bits = [] {
        std::array<quint32, Condition::count> found{};
        std::transform(
            std::begin(Condition::table), std::end(Condition::table), found.begin(),
            [](const Condition& condition) { return DeviceReport::bit(condition.stateKey); });
        return found;
    }();
    report.applyTo(*m_worker->getState());
    m_known |= report.reported;
    m_conditionBits = 0;
    for (size_t i = 0; i < bits.size(); ++i) {
        // What was never reported is not known.
        const bool holds = (m_known & bits.at(i)) != 0 && Condition::table[i].holds(state());
        qint64& since = m_conditionSince.at(i);
        since = !holds ? 0 : since == 0 ? line : since;
        m_conditionBits |= holds ? 1U << i : 0U;
    }
}

bool LogDevice::send(qint64 line)
{
    if (!m_worker->checkState())
        return false;
    m_worker->saveState();
    StatesList& sent = *m_worker->getStatesList();
    if (sent.size() > 2)
        sent.removeFirst();
    for (FilterMemory& filter : m_filters)
        filter.add(state(), line);
    return true;
}

LogPlayer::LogPlayer(const FilterSet& filters)
    : m_filters(filters)
{
}

const std::vector<LogStep>& LogPlayer::take(const SessionLine& line, qint64 lineNumber)
{
    if (!m_kiosk.isEmpty() && !line.kiosk().isEmpty() && line.kiosk() != m_kiosk) {
        throw Fault{
            Diagnosis::tr("the log is of kiosk \"%1\" so far, and of \"%2\" here; velmo cash "
                          "tells kiosks apart")
                .arg(m_kiosk, line.kiosk())};
    }
    m_kiosk = line.kiosk().isEmpty() ? m_kiosk : line.kiosk();
    m_steps.clear();
    LogDevice*& lastOfLog = m_lastOf[LogPosition::log(lineNumber)];
    m_last = lastOfLog ? lastOfLog : m_lastOfAny;
    const std::vector<DeviceReport>& reports = line.reports();
    const bool namesDevice = !line.isPublished() && reports.front().has(deviceBit | threadBit);
    if (line.startsSession() && !namesDevice)
        startEverySession();
    // Looked up before any is new, so that it makes no difference in which order they are
    // published.
    m_reporting.clear();
    for (const DeviceReport& report : reports)
        m_reporting.push_back(knownDevice(report));
    for (size_t i = 0; i < reports.size(); ++i) {
        const DeviceReport& report = reports.at(i);
        // A start alone is nobody's report.
        if (line.startsSession() && report.reported == 0)
            continue;
        LogDevice& device = m_reporting.at(i) ? *m_reporting.at(i) : newDevice(report);
        if (line.startsSession() && namesDevice)
            startSession(device);
        else if (device.m_session == 0)
            device.m_session = m_session = qMax(m_session, 1);
        device.take(report, lineNumber);
        LogStep& step = stepOf(device);
        step.reported |= report.reported;
        step.notesInserted = report.notesInserted;
        if (line.isPublished())
            continue;
        device.m_lastOwnLine = ++m_ownLines;
        m_last = m_lastOfAny = lastOfLog = &device;
    }
    for (LogStep& step : m_steps)
        step.sent = step.device->send(lineNumber);
    return m_steps;
}

LogDevice* LogPlayer::knownDevice(const DeviceReport& report) const
{
    const auto fits = [&](const LogDevice& device) {
        return (!report.has(deviceBit) || device.deviceId() == report.fields.deviceId)
            && (!report.has(threadBit) || device.threadId() == report.fields.threadId);
    };
    return m_last && fits(*m_last) ? m_last : lastDevice(fits);
}

// Of those that fit; null when none does.
template <typename Fits>
LogDevice* LogPlayer::lastDevice(Fits fits) const
{
    const auto rank = [](const LogDevice& device) {
        return std::make_tuple(-device.m_lastOwnLine, device.deviceId(), device.threadId());
    };
    LogDevice* found = nullptr;
    for (const auto& device : m_devices) {
        if (fits(*device) && (!found || rank(*device) < rank(*found)))
            found = device.get();
    }
    return found;
}

LogDevice& LogPlayer::newDevice(const DeviceReport& report)
{
    const LogDevice* const last =
        m_last ? m_last : lastDevice([](const LogDevice&) { return true; });
    const quint32 device = report.has(deviceBit) ? report.fields.deviceId
        : last                                   ? last->deviceId()
                                                 : 0;
    const quint32 thread = report.has(threadBit) ? report.fields.threadId : 0;
    LogDevice* const twice = lastDevice([=](const LogDevice& known) {
        return known.deviceId() == device && known.threadId() == thread;
    });
    return twice ? *twice : addDevice(device, thread); // published twice in one list
}

LogDevice& LogPlayer::addDevice(quint32 deviceId, quint32 threadId)
{
    m_devices.push_back(std::make_unique<LogDevice>(m_filters, deviceId, threadId));
    LogDevice& added = *m_devices.back();
    added.m_sessionStartSeen = m_everySessionStarted;
    added.m_skippedBefore = m_skippedBefore;
    for (const auto& device : m_devices) {
        if (device.get() != &added && device->deviceId() == deviceId)
            device->m_showThread = added.m_showThread = true;
    }
    return added;
}

void LogPlayer::startSession(LogDevice& device)
{
    if (device.m_session == m_session)
        ++m_session;
    device.startSession(m_session, m_skippedLines);
    stepOf(device).startsSession = true;
}

void LogPlayer::startEverySession()
{
    const bool isNewest =
        std::any_of(m_devices.begin(), m_devices.end(),
                    [this](const auto& device) { return device->m_session == m_session; });
    if (isNewest || m_session == 0)
        ++m_session;
    m_everySessionStarted = true;
    m_skippedBefore = m_skippedLines;
    for (const auto& device : m_devices) {
        device->startSession(m_session, m_skippedLines);
        stepOf(*device).startsSession = true;
    }
}

LogStep& LogPlayer::stepOf(LogDevice& device)
{
    const auto found = std::find_if(m_steps.begin(), m_steps.end(),
                                    [&](const LogStep& step) { return step.device == &device; });
    return found == m_steps.end() ? m_steps.emplace_back(LogStep{&device, false, false, 0, {}})
                                  : *found;
}
