// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settingscheck.h"

#include <QTabWidget>

class QListWidget;
class SettingsDocument;

/// What is wrong with the list, and which filters follow from it.
class FindingsPanel : public QTabWidget
{
    Q_OBJECT

public:
    explicit FindingsPanel(SettingsDocument& document, QWidget* parent = nullptr);

    /// Goes to the finding behind the last one, or to the first.
    void goToNext();

Q_SIGNALS:
    void findingChosen(const SettingsFinding& finding);

private:
    void refresh();
    void choose(int row);

    SettingsDocument& m_document;
    QListWidget* const m_findings;
    QListWidget* const m_filters;
};
