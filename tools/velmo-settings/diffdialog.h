// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

/// Asks whether a file is to be written: shows the lines that change, byte for byte.
class DiffDialog : public QDialog
{
    Q_OBJECT

public:
    /// @param warnings what people should know before they say yes
    DiffDialog(const QString& fileName, const QByteArray& before, const QByteArray& after,
               const QStringList& warnings, QWidget* parent = nullptr);
};
