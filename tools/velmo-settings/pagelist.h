// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include <optional>

class QLineEdit;
class QListWidget;
class SettingsDocument;

/// What there is to choose from: the service and the devices, or, while something is searched for,
/// the settings that match.
class PageList : public QWidget
{
    Q_OBJECT

public:
    explicit PageList(SettingsDocument& document, QWidget* parent = nullptr);

    /// Chooses a page without telling.
    void select(std::optional<int> device);

    void startSearch();
    QWidget* pages() const;

Q_SIGNALS:
    void pageChosen(std::optional<int> device);
    void pageEntered(); ///< the one that was chosen
    void settingChosen(std::optional<int> device, const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void refresh();
    void search();
    void choose(int result);

    SettingsDocument& m_document;
    QLineEdit* const m_search;
    QListWidget* const m_pages;
    QListWidget* const m_results;
    std::optional<int> m_device;
    bool m_isFilling = false;
};
