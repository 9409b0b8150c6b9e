// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "pagelist.h"

#include "findingicon.h"
#include "settingfield.h"
#include "settingsdocument.h"
#include "settingspage.h"
#include "terminal/velmo.h"

#include <QKeyEvent>
#include <QLineEdit>
#include <QListWidget>
#include <QTextDocument>
#include <QVBoxLayout>

#include <algorithm>

namespace {

constexpr int deviceRole = Qt::UserRole; // invalid for the service
constexpr int pathRole = Qt::UserRole + 1;

QVariant toVariant(std::optional<int> device)
{
    return device ? QVariant(*device) : QVariant();
}

std::optional<int> deviceOf(const QListWidgetItem& item)
{
    const QVariant device = item.data(deviceRole);
    return device.isValid() ? std::optional<int>(device.toInt()) : std::nullopt;
}

// The worst that is found on a page.
std::optional<SettingsFinding::Level> worstOf(const SettingsDocument& document,
                                              std::optional<int> device)
{
    std::optional<SettingsFinding::Level> worst;
    for (const SettingsFinding& finding : document.findings()) {
        if (finding.device == device && (!worst || finding.level < *worst))
            worst = finding.level;
    }
    return worst;
}

} // namespace

PageList::PageList(SettingsDocument& document, QWidget* parent)
    : QWidget(parent)
    , m_document(document)
    , m_search(new QLineEdit(this))
    , m_pages(new QListWidget(this))
    , m_results(new QListWidget(this))
{
    m_search->setPlaceholderText(Velmo::tr("Search settings"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_search->installEventFilter(this);
    m_results->installEventFilter(this);
    m_pages->setAccessibleName(Velmo::tr("Service and devices"));
    m_results->setAccessibleName(Velmo::tr("Settings that match"));
    m_results->hide();
    m_results->setWordWrap(true);
    m_results->setAlternatingRowColors(true);
    m_pages->setIconSize(findingIconSize);
    for (QListWidget* const list : {m_pages, m_results})
        list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    auto* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_search);
    layout->addWidget(m_pages);
    layout->addWidget(m_results);

    connect(&document, &SettingsDocument::changed, this, &PageList::refresh);
    connect(m_search, &QLineEdit::textChanged, this, &PageList::search);
    connect(m_search, &QLineEdit::returnPressed, this,
            [this] { choose(std::max(0, m_results->currentRow())); });
    connect(m_results, &QListWidget::itemActivated, this,
            [this](QListWidgetItem* item) { choose(m_results->row(item)); });
    connect(m_results, &QListWidget::itemClicked, this,
            [this](QListWidgetItem* item) { choose(m_results->row(item)); });
    connect(m_pages, &QListWidget::itemActivated, this, &PageList::pageEntered);
    connect(m_pages, &QListWidget::currentItemChanged, this, [this](QListWidgetItem* item) {
        if (m_isFilling || !item)
            return;
        m_device = deviceOf(*item);
        Q_EMIT pageChosen(m_device);
    });
}

QWidget* PageList::pages() const
{
    return m_pages;
}

void PageList::startSearch()
{
    m_search->setFocus();
    m_search->selectAll();
}

void PageList::refresh()
{
    m_isFilling = true;
    QList<std::optional<int>> devices{std::nullopt};
    const QList<int> listed = m_document.list().devices().keys();
    for (const int device : listed)
        devices += device;
    while (m_pages->count() > devices.size())
        delete m_pages->takeItem(m_pages->count() - 1);
    for (int i = 0; i < devices.size(); ++i) {
        const std::optional<int> device = devices.at(i);
        if (i == m_pages->count())
            m_pages->addItem(QString());
        QListWidgetItem* const item = m_pages->item(i);
        const auto worst = worstOf(m_document, device);
        const QString title = SettingsPage::title(m_document, device);
        item->setText(title);
        item->setToolTip(Qt::convertFromPlainText(title));
        item->setIcon(findingIcon(worst));
        item->setData(deviceRole, toVariant(device));
        item->setData(Qt::AccessibleTextRole,
                      worst ? title + QStringLiteral(", ") + findingWord(*worst) : title);
        if (device == m_device)
            m_pages->setCurrentRow(i);
    }
    m_isFilling = false;
    if (m_results->isVisible())
        search();
}

void PageList::select(std::optional<int> device)
{
    m_device = device;
    refresh();
}

void PageList::search()
{
    const QStringList words = m_search->text().simplified().split(QLatin1Char(' '));
    const bool isSearching = !m_search->text().trimmed().isEmpty() && m_document.isOpen();
    m_pages->setVisible(!isSearching);
    m_results->setVisible(isSearching);
    m_results->clear();
    if (!isSearching)
        return;
    const auto areIn = [&words](const QString& text) {
        return std::all_of(words.begin(), words.end(), [&text](const QString& word) {
            return text.contains(word, Qt::CaseInsensitive);
        });
    };
    int labels = 0; // that have all the words: they come first
    for (const SettingsList::Used& used : m_document.list().used()) {
        const ServiceSetting& setting = used.setting;
        const QString label = SettingField::labelOf(setting);
        const QString text =
            QStringLiteral("%1\n%2\n%3")
                .arg(label, SettingsPage::title(m_document, setting.device()), setting.path());
        if (!areIn(text))
            continue;
        auto* const item = new QListWidgetItem(text);
        item->setData(deviceRole, toVariant(setting.device()));
        item->setData(pathRole, setting.path());
        m_results->insertItem(areIn(label) ? labels++ : m_results->count(), item);
    }
    if (m_results->count() > 0)
        return m_results->setCurrentRow(0);
    auto* const nothing = new QListWidgetItem(Velmo::tr("No setting matches."), m_results);
    nothing->setFlags(Qt::NoItemFlags);
}

void PageList::choose(int result)
{
    const QListWidgetItem* const item = m_results->item(result);
    if (!item || item->data(pathRole).isNull())
        return;
    const std::optional<int> device = deviceOf(*item);
    const QString path = item->data(pathRole).toString();
    m_search->clear();
    Q_EMIT settingChosen(device, path);
}

// Escape ends a search; the arrows go through what it found.
bool PageList::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::KeyPress)
        return QWidget::eventFilter(watched, event);
    const int key = static_cast<const QKeyEvent*>(event)->key();
    if (key == Qt::Key_Escape) {
        m_search->clear();
        m_pages->setFocus();
        return true;
    }
    const bool isArrow = key == Qt::Key_Down || key == Qt::Key_Up;
    if (watched == m_search && isArrow && m_results->isVisible()) {
        const int next = m_results->currentRow() + (key == Qt::Key_Down ? 1 : -1);
        m_results->setCurrentRow(std::max(0, std::min(next, m_results->count() - 1)));
        return true;
    }
    return QWidget::eventFilter(watched, event);
}
