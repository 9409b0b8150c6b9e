// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "logplayer.h"

#include "acceptors.h"
#include "devicename.h"
#include "words.h"

#include <QMap>

#include <algorithm>

namespace {

struct Condition
{
    const char* what;
    const QString& key;
    bool (*holds)(const DeviceState& state);
    const char* text; // %1 is the line
};

const auto& conditionTable()
{
    using namespace deviceStateDescConst;
    static const std::array<Condition, 6> table{{
        {"disabled", ENABLED, [](const DeviceState& s) { return !s.enabled; },
         QT_TRANSLATE_NOOP("Diagnosis", "The device was disabled (since line %1).")},
        {"offline", ONLINE, [](const DeviceState& s) { return !s.online; },
         QT_TRANSLATE_NOOP("Diagnosis", "The device was offline (since line %1).")},
        {"halted", HALT, [](const DeviceState& s) { return s.halt; },
         QT_TRANSLATE_NOOP("Diagnosis", "The device was halted (since line %1).")},
        {"error", ERROR_CRITICAL, [](const DeviceState& s) { return s.errCritical; },
         QT_TRANSLATE_NOOP("Diagnosis", "The device had a critical error (since line %1): %2.")},
        {"stacker_missing", STACKER_PRESENT, [](const DeviceState& s) { return !s.stackerPresent; },
         QT_TRANSLATE_NOOP("Diagnosis", "The stacker was missing (since line %1).")},
        {"stacker_full", STACKER_FULL, [](const DeviceState& s) { return s.stackerFull; },
         QT_TRANSLATE_NOOP("Diagnosis", "The stacker was full (since line %1).")},
    }};
    return table;
}

} // namespace

LogDevice::LogDevice(const FilterSet& filters, quint32 deviceId, quint32 threadId)
    : m_name(deviceName(int(deviceId), filters.deviceNames().value(deviceId)))
    , m_deviceId(deviceId)
    , m_threadId(threadId)
    , m_worker(std::make_unique<DeviceStateWorker>())
    , m_chain(std::make_unique<FilterChain>())
{
    m_chain->setEvents(m_worker->getStatesList());
    m_filters = filters.addTo(*m_chain);
    m_worker->setDeviceId(deviceId);
    m_worker->setThreadId(threadId);
}

QList<const AbstractFilter*> LogDevice::refusing() const
{
    // Filters keep nothing between verdicts: asked again, each says the same.
    QList<const AbstractFilter*> found;
    for (AbstractFilter* const filter : m_filters) {
        if (filter->validate() != AbstractFilter::FILTER_ACCEPT)
            found += filter;
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
        const Condition& condition = conditionTable().at(i);
        QString text = Diagnosis::tr(condition.text).arg(since);
        if (condition.key == deviceStateDescConst::ERROR_CRITICAL) {
            const QString error = state().errorText;
            text = text.arg(error.isEmpty() ? Diagnosis::tr("no description") : error);
        }
        found.append({QLatin1String(condition.what), since, text});
    }
    return found;
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
    m_eventLines.clear();
}

void LogDevice::take(const DeviceReport& report, qint64 line)
{
    static const std::array<quint32, 6> bits = [] {
        std::array<quint32, 6> found{};
        std::transform(conditionTable().begin(), conditionTable().end(), found.begin(),
                       [](const Condition& condition) { return DeviceReport::bit(condition.key); });
        return found;
    }();
    m_lastLine = line;
    report.applyTo(*m_worker->getState());
    m_known |= report.reported;
    for (size_t i = 0; i < bits.size(); ++i) {
        // What was never reported is not known.
        const bool holds = (m_known & bits.at(i)) != 0 && conditionTable().at(i).holds(state());
        qint64& since = m_conditionSince.at(i);
        since = !holds ? 0 : since == 0 ? line : since;
    }
}

bool LogDevice::send(qint64 line)
{
    if (!m_worker->checkState())
        return false;
    m_worker->saveState();
    m_eventLines.append(line);
    return true;
}

LogPlayer::LogPlayer(const FilterSet& filters)
    : m_filters(filters)
{
}

const std::vector<LogStep>& LogPlayer::take(const SessionLine& line, qint64 lineNumber)
{
    static const quint32 namingBits = DeviceReport::bit(deviceStateDescConst::DEVICE_ID)
        | DeviceReport::bit(deviceStateDescConst::THREAD_ID);
    m_steps.clear();
    const std::vector<DeviceReport>& reports = line.reports();
    const bool namesDevice = !line.isPublished() && reports.front().has(namingBits);
    if (line.startsSession() && !namesDevice)
        startEverySession();
    for (const DeviceReport& report : reports) {
        // A start alone is nobody's report.
        if (line.startsSession() && report.reported == 0)
            continue;
        LogDevice& device = deviceOf(report);
        if (line.startsSession() && namesDevice)
            startSession(device);
        else if (device.m_session == 0)
            device.m_session = m_session = qMax(m_session, 1);
        device.take(report, lineNumber);
        stepOf(device);
        m_last = &device;
    }
    for (LogStep& step : m_steps)
        step.sent = step.device->send(lineNumber);
    return m_steps;
}

LogDevice& LogPlayer::deviceOf(const DeviceReport& report)
{
    static const quint32 deviceBit = DeviceReport::bit(deviceStateDescConst::DEVICE_ID);
    static const quint32 threadBit = DeviceReport::bit(deviceStateDescConst::THREAD_ID);
    const bool hasDevice = report.has(deviceBit);
    const bool hasThread = report.has(threadBit);
    const auto fits = [&](const LogDevice& device) {
        return (!hasDevice || device.deviceId() == report.fields.deviceId)
            && (!hasThread || device.threadId() == report.fields.threadId);
    };
    if (m_last && fits(*m_last))
        return *m_last;
    LogDevice* found = nullptr;
    for (const auto& device : m_devices) {
        if (fits(*device) && (!found || found->m_lastLine <= device->m_lastLine))
            found = device.get();
    }
    if (found)
        return *found;
    const quint32 lastDevice = m_last ? m_last->deviceId() : 0;
    return addDevice(hasDevice ? report.fields.deviceId : lastDevice,
                     hasThread ? report.fields.threadId : 0);
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
    return found == m_steps.end() ? m_steps.emplace_back(LogStep{&device, false, false}) : *found;
}
