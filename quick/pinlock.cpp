// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "pinlock.h"

#include "text/diagnosis.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

namespace {

constexpr int shortest = 4;
constexpr int longest = 12;
constexpr int triesBeforeWait = 3;
constexpr int longestWait = 15 * 60; // seconds

bool isPin(const QByteArray& text)
{
    return text.size() >= shortest && text.size() <= longest
        && std::all_of(text.begin(), text.end(), [](char c) { return c >= '0' && c <= '9'; });
}

QByteArray digestOf(const QByteArray& text)
{
    return QCryptographicHash::hash(text, QCryptographicHash::Sha256);
}

// Takes as long for any two digests.
bool areEqual(const QByteArray& first, const QByteArray& second)
{
    int difference = 0;
    for (int i = 0; i < first.size(); ++i)
        difference |= first.at(i) ^ second.at(i);
    return difference == 0;
}

} // namespace

PinLock::PinLock(QObject* parent)
    : QObject(parent)
    , m_language([this] { look(); })
{
    m_countDown.setSingleShot(true);
    m_countDown.setTimerType(Qt::PreciseTimer);
    connect(&m_countDown, &QTimer::timeout, this, &PinLock::countDown);
    connect(&m_watcher, &QFileSystemWatcher::fileChanged, this, &PinLock::look);
    connect(&m_watcher, &QFileSystemWatcher::directoryChanged, this, &PinLock::look);
    look();
}

void PinLock::setFile(const QString& file)
{
    if (file == m_file)
        return;
    m_file = file;
    look();
    Q_EMIT fileChanged();
}

void PinLock::setPin(const QString& pin)
{
    m_isGiven = !pin.isEmpty();
    m_digest = isPin(pin.toUtf8()) ? digestOf(pin.toUtf8()) : QByteArray();
    look();
    Q_EMIT pinChanged();
}

void PinLock::setFirstWait(int seconds)
{
    const int wait = std::clamp(seconds, 1, longestWait);
    if (wait == m_firstWait)
        return;
    m_firstWait = wait;
    Q_EMIT firstWaitChanged();
}

bool PinLock::check(const QString& tried)
{
    countDown();
    if (m_waitSeconds > 0)
        return false;
    look();
    if (!isReady())
        return false;
    if (areEqual(digestOf(tried.toUtf8()), m_digest)) {
        m_wrongTries = 0;
        return true;
    }
    if (++m_wrongTries >= triesBeforeWait) {
        const int doublings = std::min(m_wrongTries - triesBeforeWait, 10);
        m_waitEnd.setRemainingTime(
            std::chrono::seconds(std::min(m_firstWait << doublings, longestWait)));
        countDown();
    }
    return false;
}

// Brings up to date what is known of the PIN.
void PinLock::look()
{
    QString fault;
    if (!m_isGiven) {
        const QByteArray pin = readFile(&fault);
        m_digest = fault.isEmpty() ? digestOf(pin) : QByteArray();
    } else if (m_digest.isEmpty()) {
        fault =
            Diagnosis::tr("The PIN given has to have %1 to %2 digits.").arg(shortest).arg(longest);
    }
    watchFile();
    if (fault == m_fault)
        return;
    m_fault = fault;
    Q_EMIT faultChanged();
}

QByteArray PinLock::readFile(QString* fault)
{
    if (m_file.isEmpty()) {
        *fault = Diagnosis::tr("No PIN is given.");
        return {};
    }
    QFile file(m_file);
    const QFileInfo info(m_file);
    if (info.exists() && !info.isFile()) { // reading a pipe would not end
        *fault = Diagnosis::tr("%1: is not a file").arg(m_file);
        return {};
    }
    if (!file.open(QIODevice::ReadOnly)) {
        *fault = QStringLiteral("%1: %2").arg(m_file, file.errorString());
        return {};
    }
    QByteArray line = file.readLine(longest + 4); // with an end and what makes it too long
    while (line.endsWith('\n') || line.endsWith('\r'))
        line.chop(1);
    if (!isPin(line)) {
        *fault = Diagnosis::tr("%1: line 1: expected a PIN of %2 to %3 digits")
                     .arg(m_file, QString::number(shortest), QString::number(longest));
    }
    return line;
}

// An editor puts another file in the place of the old one: only the folder tells of that.
void PinLock::watchFile()
{
    const QString folder = QFileInfo(m_file).absolutePath();
    QStringList wanted;
    if (!m_isGiven && !m_file.isEmpty())
        wanted = QStringList{folder, m_file};
    const QStringList watched = m_watcher.files() + m_watcher.directories();
    for (const QString& path : watched) {
        if (!wanted.contains(path))
            m_watcher.removePath(path);
    }
    for (const QString& path : wanted) {
        if (!watched.contains(path) && QFileInfo::exists(path))
            m_watcher.addPath(path);
    }
}

void PinLock::countDown()
{
    const int left = int(m_waitEnd.remainingTime()); // milliseconds
    const int seconds = (left + 999) / 1000;
    if (seconds > 0)
        m_countDown.start(left - (seconds - 1) * 1000);
    if (seconds == m_waitSeconds)
        return;
    m_waitSeconds = seconds;
    Q_EMIT waitSecondsChanged();
}
