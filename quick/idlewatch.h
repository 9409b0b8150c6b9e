// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QTimer>
#include <QtQml>

/// Notices that nobody uses the application any more: to close what the staff left open, to go back
/// to the first page and language.
class IdleWatch : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    /// After how long without a touch, click, turn of the wheel or key, in seconds; 0, the initial
    /// value, means never.
    Q_PROPERTY(int seconds READ seconds WRITE setSeconds NOTIFY secondsChanged)

    /// Whether it watches; initially it does. The time begins anew when it becomes true.
    Q_PROPERTY(bool running READ isRunning WRITE setRunning NOTIFY runningChanged)

public:
    explicit IdleWatch(QObject* parent = nullptr);

    int seconds() const { return m_seconds; }
    void setSeconds(int seconds);
    bool isRunning() const { return m_isRunning; }
    void setRunning(bool isRunning);

    /// Somebody is there who touches nothing, who pays for one: the time begins anew.
    Q_INVOKABLE void restart();

    bool eventFilter(QObject* watched, QEvent* event) override;

Q_SIGNALS:
    /// Nobody used it for so long. It comes once, and again only after it was used again.
    void idle();

    void secondsChanged();
    void runningChanged();

private:
    int m_seconds = 0;
    bool m_isRunning = true;
    QTimer m_timer;
};
