// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "terminal/editlock.h"

#include "terminal/velmo.h"
#include "text/fault.h"

#include <QFileInfo>
#include <QThread>

#include <cerrno>
#include <sys/file.h>
#include <sys/stat.h>

EditLock::EditLock(const QString& fileName)
    : m_file(fileName)
{
    constexpr int mostTries = 1000;
    for (int i = 0; i < mostTries; ++i) {
        if (!QFileInfo(fileName).isFile() && QFileInfo::exists(fileName)) {
            throw Fault{Velmo::tr("%1: is no regular file to change; --output says where the "
                                  "changed list goes")
                            .arg(fileName)};
        }
        if (!m_file.open(QIODevice::ReadOnly))
            throw Fault{QStringLiteral("%1: %2").arg(fileName, m_file.errorString())};
        const bool isLocked = flock(m_file.handle(), LOCK_EX | LOCK_NB) == 0;
        // Where there are no locks, changes are noticed later.
        if (isLocked ? isStillThere() : errno != EWOULDBLOCK)
            return;
        m_file.close();
        QThread::msleep(10);
    }
    throw Fault{Velmo::tr("%1: another program is changing it").arg(fileName)};
}

// Whoever had the lock before may have replaced the file.
bool EditLock::isStillThere() const
{
    struct stat locked = {};
    struct stat named = {};
    return fstat(m_file.handle(), &locked) == 0
        && stat(QFile::encodeName(m_file.fileName()).constData(), &named) == 0
        && locked.st_dev == named.st_dev && locked.st_ino == named.st_ino;
}
