// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "idlewatch.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <chrono>

namespace {

// A pointer that moves alone is nobody: it also seems to when a page changes beneath it. Nor is a
// key that something lies on.
bool isUse(const QEvent* event)
{
    switch (event->type()) {
    case QEvent::KeyPress:
        return !static_cast<const QKeyEvent*>(event)->isAutoRepeat();
    case QEvent::MouseMove:
        return static_cast<const QMouseEvent*>(event)->buttons() != Qt::NoButton;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::TouchEnd:
    case QEvent::TabletPress:
    case QEvent::Wheel:
        return true;
    default:
        return false;
    }
}

} // namespace

IdleWatch::IdleWatch(QObject* parent)
    : QObject(parent)
{
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &IdleWatch::idle);
    QCoreApplication::instance()->installEventFilter(this);
}

void IdleWatch::setSeconds(int seconds)
{
    if (seconds == m_seconds)
        return;
    m_seconds = seconds;
    restart();
    Q_EMIT secondsChanged();
}

void IdleWatch::setRunning(bool isRunning)
{
    if (isRunning == m_isRunning)
        return;
    m_isRunning = isRunning;
    restart();
    Q_EMIT runningChanged();
}

bool IdleWatch::eventFilter(QObject* watched, QEvent* event)
{
    if (isUse(event))
        restart();
    return QObject::eventFilter(watched, event);
}

void IdleWatch::restart()
{
    constexpr int most = 1'000'000; // a timer counts milliseconds
    if (m_isRunning && m_seconds > 0)
        m_timer.start(std::chrono::seconds(std::min(m_seconds, most)));
    else
        m_timer.stop();
}
