// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

class QComboBox;

/// Asks which device is added: one of the catalogue.
class ModelDialog : public QDialog
{
    Q_OBJECT

public:
    explicit ModelDialog(QWidget* parent = nullptr);

    QString model() const; ///< its number

private:
    QComboBox* const m_models;
};
