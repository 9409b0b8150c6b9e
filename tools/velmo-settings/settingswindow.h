// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settingsdocument.h"

#include <QMainWindow>

#include <functional>

class FindingsPanel;
class PageList;
class QStackedWidget;
class SettingsPage;

/// The window: a settings list as forms, which is changed, checked and written here.
class SettingsWindow : public QMainWindow
{
    Q_OBJECT

public:
    SettingsWindow();
    ~SettingsWindow() override;

    /// Throws Fault when the file is no settings list; the window stays as it is.
    void open(const QString& fileName);

    SettingsDocument& document() { return m_document; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    void makeActions();
    void makeLayout();
    void follow();
    void followFocus(QWidget* before, QWidget* now);

    void chooseFile();
    void reload();
    bool save();
    bool saveAs();
    bool write(const QString& fileName);
    bool resolveChange(const QString& message);
    bool mayGo();

    void attempt(const std::function<void()>& action);
    void step(QString (SettingsDocument::*way)());
    void addDevice();
    void removeDevice();
    void moveDevice(int by);
    void setDefault();
    void unset();

    void showPage(std::optional<int> device);
    void showSetting(const QString& path);
    std::optional<int> neighbour(int by) const;
    void tell(const QString& message);
    int ask(const QString& message, const QStringList& answers);

    SettingsDocument m_document;
    PageList* const m_pages;
    SettingsPage* const m_page;
    FindingsPanel* const m_findings;
    QStackedWidget* const m_views;
    QAction* m_save = nullptr;
    QAction* m_saveAs = nullptr;
    QAction* m_reload = nullptr;
    QAction* m_undo = nullptr;
    QAction* m_redo = nullptr;
    QAction* m_setDefault = nullptr;
    QAction* m_unset = nullptr;
    QAction* m_find = nullptr;
    QAction* m_nextFinding = nullptr;
    QAction* m_add = nullptr;
    QAction* m_remove = nullptr;
    QAction* m_up = nullptr;
    QAction* m_down = nullptr;
};
