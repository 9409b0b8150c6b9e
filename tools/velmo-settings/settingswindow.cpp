// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingswindow.h"

#include "diffdialog.h"
#include "findingicon.h"
#include "findingspanel.h"
#include "modeldialog.h"
#include "pagelist.h"
#include "settingfield.h"
#include "settingspage.h"
#include "terminal/output.h"
#include "terminal/velmo.h"

#include <QApplication>
#include <QCloseEvent>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QScreen>
#include <QSplitter>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

constexpr int messageTime = 10000; // ms

} // namespace

SettingsWindow::SettingsWindow()
    : m_pages(new PageList(m_document, this))
    , m_page(new SettingsPage(m_document, this))
    , m_findings(new FindingsPanel(m_document, this))
    , m_views(new QStackedWidget(this))
{
    resize(QSize(1100, 800).boundedTo(QGuiApplication::primaryScreen()->availableSize()));
    makeActions();
    makeLayout();
    connect(m_pages, &PageList::pageChosen, this, &SettingsWindow::showPage);
    connect(m_pages, &PageList::pageEntered, m_page, &SettingsPage::goToFirst);
    connect(m_pages, &PageList::settingChosen, this,
            [this](std::optional<int> /*device*/, const QString& path) { showSetting(path); });
    connect(m_page, &SettingsPage::edited, this, [this](const QString& path, const QString& text) {
        attempt([&] { m_document.set(path, text); });
    });
    connect(m_page, &SettingsPage::menuAsked, this, [this](const QPoint& place) {
        QMenu menu;
        menu.addActions({m_setDefault, m_unset});
        menu.exec(place);
    });
    connect(m_findings, &FindingsPanel::findingChosen, this,
            [this](const SettingsFinding& finding) {
                const QString path = m_document.settingOf(finding);
                if (!path.isEmpty())
                    showSetting(path);
                else
                    showPage(finding.device);
            });
    connect(&m_document, &SettingsDocument::changed, this, &SettingsWindow::follow);
    connect(qApp, &QApplication::focusChanged, this, &SettingsWindow::followFocus);
    setWindowTitle(Velmo::tr("Settings of cash devices"));
    follow();
}

// What shows the document goes before it.
SettingsWindow::~SettingsWindow()
{
    disconnect(qApp, nullptr, this, nullptr);
    m_document.disconnect();
    delete takeCentralWidget();
}

void SettingsWindow::makeLayout()
{
    auto* const left = new QWidget(this);
    auto* const column = new QVBoxLayout(left);
    column->addWidget(m_pages);
    auto* const buttons = new QGridLayout;
    column->addLayout(buttons);
    for (QAction* const action : {m_add, m_remove, m_up, m_down}) {
        auto* const button = new QToolButton(left);
        button->setDefaultAction(action);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        buttons->addWidget(button, buttons->count() / 2, buttons->count() % 2);
        m_page->setPredecessor(button);
    }
    auto* const right = new QSplitter(Qt::Vertical, this);
    right->addWidget(m_page);
    right->addWidget(m_findings);
    right->setStretchFactor(0, 1);
    right->setSizes({560, 150});
    right->setChildrenCollapsible(false);
    auto* const both = new QSplitter(this);
    both->addWidget(left);
    both->addWidget(right);
    both->setStretchFactor(1, 1);
    both->setSizes({width() * 3 / 10, width() * 7 / 10});
    both->setChildrenCollapsible(false);
    auto* const nothing =
        new QLabel(Velmo::tr("No settings list is open.\nCtrl+O opens one."), this);
    nothing->setAlignment(Qt::AlignCenter);
    m_views->addWidget(nothing);
    m_views->addWidget(both);
    setCentralWidget(m_views);
    statusBar();
}

void SettingsWindow::open(const QString& fileName)
{
    m_document.open(fileName);
    m_views->setCurrentIndex(1);
    showPage({});
    m_pages->pages()->setFocus();
}

// Shows what may be done now.
void SettingsWindow::follow()
{
    const bool isOpen = m_document.isOpen();
    if (isOpen) {
        setWindowFilePath(m_document.fileName());
        setWindowTitle(QStringLiteral("%1[*] \u2013 %2")
                           .arg(printable(QFileInfo(m_document.fileName()).fileName()),
                                Velmo::tr("Settings of cash devices")));
    }
    setWindowModified(m_document.isModified());
    for (QAction* const action : {m_save, m_saveAs, m_reload, m_find, m_nextFinding, m_add})
        action->setEnabled(isOpen);
    m_undo->setEnabled(isOpen && m_document.canUndo());
    m_redo->setEnabled(isOpen && m_document.canRedo());
    const std::optional<int> device = m_page->device();
    if (isOpen && device && !m_document.list().devices().contains(*device))
        return showPage({});
    m_remove->setEnabled(isOpen && device);
    m_up->setEnabled(neighbour(-1).has_value());
    m_down->setEnabled(neighbour(1).has_value());
    const SettingField* const field = m_page->currentField();
    m_setDefault->setEnabled(field && field->hasOtherDefault());
    m_unset->setEnabled(field && field->isListed());
}

// Who goes on to another setting is done with the one before.
void SettingsWindow::followFocus(QWidget* before, QWidget* now)
{
    const SettingField* const field = m_page->fieldOf(before);
    if (!field || m_page->fieldOf(now) == field)
        return follow();
    m_document.closeStep();
    m_page->endEditing();
    follow();
}

void SettingsWindow::chooseFile()
{
    if (!mayGo())
        return;
    const QString name = QFileDialog::getOpenFileName(
        this, Velmo::tr("Open a settings list"), QFileInfo(m_document.fileName()).path(),
        Velmo::tr("Settings lists (*.json);;All files (*)"));
    if (!name.isEmpty())
        attempt([&] { open(name); });
}

void SettingsWindow::reload()
{
    if (mayGo())
        attempt([this] { open(m_document.fileName()); });
}

bool SettingsWindow::save()
{
    m_page->endEditing();
    m_document.closeStep();
    if (!m_document.isModified()) {
        statusBar()->showMessage(Velmo::tr("Nothing has changed."), messageTime);
        return true;
    }
    return write(m_document.fileName());
}

bool SettingsWindow::saveAs()
{
    m_page->endEditing();
    m_document.closeStep();
    const QString name = QFileDialog::getSaveFileName(
        this, Velmo::tr("Save the settings list as"), m_document.fileName(),
        Velmo::tr("Settings lists (*.json);;All files (*)"));
    return !name.isEmpty() && write(name);
}

// Writes the list once a person has seen what changes in it.
bool SettingsWindow::write(const QString& fileName)
{
    try {
        m_document.requireSound();
        if (fileName == m_document.fileName())
            m_document.requireUnchanged();
        const QByteArray before = SettingsDocument::textOf(fileName);
        if (before != m_document.text()) {
            QStringList warnings;
            for (const SettingsFinding& finding : m_document.newFindings()) {
                warnings += QStringLiteral("%1: %2: %3")
                                .arg(findingWord(finding.level), finding.path, finding.text);
            }
            DiffDialog dialog(fileName, before, m_document.text(), warnings, this);
            if (dialog.exec() != QDialog::Accepted)
                return false;
        }
        m_document.saveAs(fileName);
        statusBar()->showMessage(Velmo::tr("Saved %1.").arg(printable(m_document.fileName())),
                                 messageTime);
        return true;
    } catch (const ChangedOnDisk& fault) {
        return resolveChange(fault.message);
    } catch (const Fault& fault) {
        tell(fault.message);
        return false;
    }
}

bool SettingsWindow::resolveChange(const QString& message)
{
    enum Answer { SaveAs, Reload }; // the first is what Return gives: it loses nothing
    const int answer = ask(message + QLatin1Char('\n')
                               + Velmo::tr("Reloading drops the changes that were made here."),
                           {Velmo::tr("Save &as..."), Velmo::tr("&Reload"), Velmo::tr("&Cancel")});
    if (answer == Reload)
        attempt([this] { open(m_document.fileName()); });
    return answer == SaveAs && saveAs();
}

// Asks about changes that would be lost.
bool SettingsWindow::mayGo()
{
    enum Answer { Save, Drop };
    m_page->endEditing();
    if (!m_document.isModified())
        return true;
    const int answer =
        ask(Velmo::tr("%1: has changes that are not saved.").arg(m_document.fileName()),
            {Velmo::tr("&Save..."), Velmo::tr("&Discard"), Velmo::tr("&Cancel")});
    return answer == Drop || (answer == Save && save());
}

void SettingsWindow::closeEvent(QCloseEvent* event)
{
    event->setAccepted(mayGo());
}

void SettingsWindow::attempt(const std::function<void()>& action)
{
    try {
        action();
    } catch (const Fault& fault) {
        tell(fault.message);
    }
}

void SettingsWindow::step(QString (SettingsDocument::*way)())
{
    m_page->endEditing();
    const QString path = (m_document.*way)();
    if (!path.isEmpty())
        showSetting(path);
}

void SettingsWindow::addDevice()
{
    ModelDialog dialog(this);
    if (dialog.exec() == QDialog::Accepted)
        attempt([&] { showPage(m_document.addDevice(dialog.model())); });
}

void SettingsWindow::removeDevice()
{
    const std::optional<int> device = m_page->device();
    m_page->endEditing();
    if (device)
        attempt([&] { m_document.removeDevice(*device); });
}

// The device of the list that stands so far behind the one that is shown.
std::optional<int> SettingsWindow::neighbour(int by) const
{
    if (!m_document.isOpen() || !m_page->device())
        return {};
    const QList<int> devices = m_document.list().devices().keys();
    const auto place = devices.indexOf(*m_page->device()) + by;
    return place >= 0 && place < devices.size() ? std::optional<int>(devices.at(place))
                                                : std::nullopt;
}

void SettingsWindow::moveDevice(int by)
{
    const std::optional<int> other = neighbour(by);
    if (!other)
        return;
    attempt([&] {
        m_document.moveDevice(*m_page->device(), *other);
        showPage(other);
    });
}

void SettingsWindow::setDefault()
{
    if (const SettingField* const field = m_page->currentField()) {
        m_page->endEditing();
        m_document.closeStep();
        attempt([&] { m_document.set(field->path(), field->defaultText()); });
    }
}

void SettingsWindow::unset()
{
    if (const SettingField* const field = m_page->currentField()) {
        m_page->endEditing();
        attempt([&] { m_document.unset(field->path()); });
    }
}

void SettingsWindow::showPage(std::optional<int> device)
{
    m_page->showDevice(device);
    m_pages->select(device);
    follow();
}

void SettingsWindow::showSetting(const QString& path)
{
    const std::optional<int> device =
        SettingDescription::deviceOf(path.section(QLatin1Char('/'), 0, -2));
    if (device != m_page->device())
        showPage(device);
    m_page->goTo(path);
}

void SettingsWindow::tell(const QString& message)
{
    ask(message, {Velmo::tr("&OK")});
}
