// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "languagewatch.h"

#include <QDeadlineTimer>
#include <QFileSystemWatcher>
#include <QObject>
#include <QTimer>
#include <QtQml>

/// What stands before the screens of the staff: a PIN of 4 to 12 digits, which the program's own
/// settings give or a file has. It keeps a digest of it only. Without a valid PIN nothing opens.
///
/// Wrong tries count for as long as the object lives: a program has one, which outlives the page
/// that asks for the PIN.
class PinLock : public QObject
{
    Q_OBJECT
    QML_ELEMENT

    /// A file whose first line is the PIN. It counts as it is at each check(), and ready and fault
    /// follow it.
    Q_PROPERTY(QString file READ file WRITE setFile NOTIFY fileChanged)

    /// The PIN itself, to be written; unless it is empty the file is not looked at. It reads as an
    /// empty text.
    Q_PROPERTY(QString pin READ pin WRITE setPin NOTIFY pinChanged)

    /// Whether there is a valid PIN.
    Q_PROPERTY(bool ready READ isReady NOTIFY faultChanged)

    /// Why there is none: a sentence that names the file; empty when there is one.
    Q_PROPERTY(QString fault READ fault NOTIFY faultChanged)

    /// The wait after the third wrong try in a row, in seconds, 1 to 900, initially 30. Each
    /// further one doubles it, to 15 minutes at most.
    Q_PROPERTY(int firstWait READ firstWait WRITE setFirstWait NOTIFY firstWaitChanged)

    /// How long no try is looked at, in seconds, counted down; 0 when one is.
    Q_PROPERTY(int waitSeconds READ waitSeconds NOTIFY waitSecondsChanged)

public:
    explicit PinLock(QObject* parent = nullptr);

    QString file() const { return m_file; }
    void setFile(const QString& file);
    QString pin() const { return {}; }
    void setPin(const QString& pin);
    bool isReady() const { return m_fault.isEmpty(); }
    QString fault() const { return m_fault; }
    int firstWait() const { return m_firstWait; }
    void setFirstWait(int seconds);
    int waitSeconds() const { return m_waitSeconds; }

    /// Whether it is the PIN. False without a look during a wait and while there is no valid PIN;
    /// neither counts as a wrong try. The right one ends the count of the wrong ones.
    Q_INVOKABLE bool check(const QString& tried);

Q_SIGNALS:
    void fileChanged();
    void pinChanged();
    void faultChanged();
    void firstWaitChanged();
    void waitSecondsChanged();

private:
    void look();
    QByteArray readFile(QString* fault);
    void watchFile();
    void countDown();

    QString m_file;
    bool m_isGiven = false; // the digest is that of the property, not of the file
    QByteArray m_digest; // empty without a valid PIN
    QString m_fault;
    int m_firstWait = 30;
    int m_wrongTries = 0;
    int m_waitSeconds = 0;
    QDeadlineTimer m_waitEnd;
    QTimer m_countDown;
    QFileSystemWatcher m_watcher;
    LanguageWatch m_language;
};
