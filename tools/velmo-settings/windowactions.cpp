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
    QKeySequence keys;
    std::function<void()> run;
};

QMenu* addMenu(QMenuBar* bar, const QString& title, const QVector<Command>& commands)
{
    QMenu* const menu = bar->addMenu(title);
    for (const Command& command : commands) {
        QAction* const action = menu->addAction(Velmo::tr(command.text));
        action->setShortcut(command.keys);
        QObject::connect(action, &QAction::triggered, bar, command.run);
        if (command.action)
            *command.action = action;
    }
    return menu;
}

} // namespace

void SettingsWindow::makeActions()
{
    addMenu(
        menuBar(), Velmo::tr("&File"),
        {{nullptr, QT_TRANSLATE_NOOP("Velmo", "&Open..."), QKeySequence::Open,
          [this] { chooseFile(); }},
         {&m_save, QT_TRANSLATE_NOOP("Velmo", "&Save..."), QKeySequence::Save, [this] { save(); }},
         {&m_saveAs, QT_TRANSLATE_NOOP("Velmo", "Save &as..."),
          QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_S), [this] { saveAs(); }},
         {&m_reload, QT_TRANSLATE_NOOP("Velmo", "&Reload"), QKeySequence(Qt::Key_F5),
          [this] { reload(); }},
         {nullptr, QT_TRANSLATE_NOOP("Velmo", "&Quit"), QKeySequence(Qt::CTRL | Qt::Key_Q),
          [this] { close(); }}});
    addMenu(menuBar(), Velmo::tr("&Edit"),
            {{&m_undo, QT_TRANSLATE_NOOP("Velmo", "&Undo"), QKeySequence(Qt::CTRL | Qt::Key_Z),
              [this] { step(&SettingsDocument::undo); }},
             {&m_redo, QT_TRANSLATE_NOOP("Velmo", "&Redo"), QKeySequence(Qt::CTRL | Qt::Key_Y),
              [this] { step(&SettingsDocument::redo); }},
             {&m_setDefault, QT_TRANSLATE_NOOP("Velmo", "Set the &default"),
              QKeySequence(Qt::CTRL | Qt::Key_D), [this] { setDefault(); }},
             {&m_unset, QT_TRANSLATE_NOOP("Velmo", "&Take out of the list"),
              QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_D), [this] { unset(); }},
             {&m_find, QT_TRANSLATE_NOOP("Velmo", "&Find a setting"), QKeySequence::Find,
              [this] { m_pages->startSearch(); }},
             {&m_nextFinding, QT_TRANSLATE_NOOP("Velmo", "&Next finding"), QKeySequence(Qt::Key_F8),
              [this] { m_findings->goToNext(); }}});
    addMenu(menuBar(), Velmo::tr("&Devices"),
            {{&m_add, QT_TRANSLATE_NOOP("Velmo", "&Add..."), QKeySequence(Qt::CTRL | Qt::Key_N),
              [this] { addDevice(); }},
             {&m_remove, QT_TRANSLATE_NOOP("Velmo", "&Remove"),
              QKeySequence(Qt::CTRL | Qt::Key_Delete), [this] { removeDevice(); }},
             {&m_up, QT_TRANSLATE_NOOP("Velmo", "Move &up"), QKeySequence(Qt::ALT | Qt::Key_Up),
              [this] { moveDevice(-1); }},
             {&m_down, QT_TRANSLATE_NOOP("Velmo", "Move do&wn"),
              QKeySequence(Qt::ALT | Qt::Key_Down), [this] { moveDevice(1); }}});
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
