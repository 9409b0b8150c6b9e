// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// What can be done in the window, in the order of its menus.

#include "findingspanel.h"
#include "pagelist.h"
#include "settingswindow.h"
#include "terminal/output.h"
#include "terminal/velmo.h"

#include <QAction>
#include <QMenuBar>
#include <QMessageBox>
#include <QPushButton>

namespace {

struct Command
{
    QAction** action; // null where nobody needs it
    const char* text;
    const char* keys;
    std::function<void()> run;
};

QMenu* addMenu(QMenuBar* bar, const QString& title, const QVector<Command>& commands)
{
    QMenu* const menu = bar->addMenu(title);
    for (const Command& command : commands) {
        QAction* const action = menu->addAction(Velmo::tr(command.text));
        action->setShortcut(QKeySequence(QLatin1String(command.keys)));
        QObject::connect(action, &QAction::triggered, bar, command.run);
        if (command.action)
            *command.action = action;
    }
    return menu;
}

} // namespace

void SettingsWindow::makeActions()
{
    addMenu(menuBar(), Velmo::tr("&File"),
            {{nullptr, QT_TRANSLATE_NOOP("Velmo", "&Open..."), "Ctrl+O", [this] { chooseFile(); }},
             {&m_save, QT_TRANSLATE_NOOP("Velmo", "&Save..."), "Ctrl+S", [this] { save(); }},
             {&m_saveAs, QT_TRANSLATE_NOOP("Velmo", "Save &as..."), "Ctrl+Shift+S",
              [this] { saveAs(); }},
             {&m_reload, QT_TRANSLATE_NOOP("Velmo", "&Reload"), "F5", [this] { reload(); }},
             {nullptr, QT_TRANSLATE_NOOP("Velmo", "&Quit"), "Ctrl+Q", [this] { close(); }}});
    addMenu(menuBar(), Velmo::tr("&Edit"),
            {{&m_undo, QT_TRANSLATE_NOOP("Velmo", "&Undo"), "Ctrl+Z",
              [this] { step(&SettingsDocument::undo); }},
             {&m_redo, QT_TRANSLATE_NOOP("Velmo", "&Redo"), "Ctrl+Y",
              [this] { step(&SettingsDocument::redo); }},
             {&m_setDefault, QT_TRANSLATE_NOOP("Velmo", "Set the &default"), "Ctrl+D",
              [this] { setDefault(); }},
             {&m_unset, QT_TRANSLATE_NOOP("Velmo", "&Take out of the list"), "Ctrl+Shift+D",
              [this] { unset(); }},
             {&m_find, QT_TRANSLATE_NOOP("Velmo", "&Find a setting"), "Ctrl+F",
              [this] { m_pages->startSearch(); }},
             {&m_nextFinding, QT_TRANSLATE_NOOP("Velmo", "&Next finding"), "F8",
              [this] { m_findings->goToNext(); }}});
    addMenu(
        menuBar(), Velmo::tr("&Devices"),
        {{&m_add, QT_TRANSLATE_NOOP("Velmo", "&Add..."), "Ctrl+N", [this] { addDevice(); }},
         {&m_remove, QT_TRANSLATE_NOOP("Velmo", "&Remove"), "Ctrl+Del", [this] { removeDevice(); }},
         {&m_up, QT_TRANSLATE_NOOP("Velmo", "Move &up"), "Alt+Up", [this] { moveDevice(-1); }},
         {&m_down, QT_TRANSLATE_NOOP("Velmo", "Move do&wn"), "Alt+Down",
          [this] { moveDevice(1); }}});
}

// Which of the answers a person gives: its place, and the last one for none.
int SettingsWindow::ask(const QString& message, const QStringList& answers)
{
    QMessageBox box(this);
    box.setIcon(QMessageBox::Warning);
    box.setTextFormat(Qt::PlainText);
    box.setText(printableLines(message));
    QList<QAbstractButton*> buttons;
    for (const QString& answer : answers)
        buttons += box.addButton(answer, QMessageBox::ActionRole);
    box.setDefaultButton(qobject_cast<QPushButton*>(buttons.constFirst()));
    box.setEscapeButton(buttons.constLast());
    box.exec();
    const auto place = buttons.indexOf(box.clickedButton());
    return int(place < 0 ? buttons.size() - 1 : place);
}
