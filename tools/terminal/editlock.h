// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QFile>

/// Keeps others of these programs from changing a file until it is written. Throws Fault for what
/// is no regular file, and when another program keeps it for ten seconds.
class EditLock
{
public:
    explicit EditLock(const QString& fileName);

private:
    bool isStillThere() const;

    QFile m_file;
};
