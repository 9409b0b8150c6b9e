// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "findingspanel.h"

#include "findingicon.h"
#include "settingsdocument.h"
#include "terminal/output.h"
#include "terminal/velmo.h"

#include <QListWidget>

#include <algorithm>

FindingsPanel::FindingsPanel(SettingsDocument& document, QWidget* parent)
    : QTabWidget(parent)
    , m_document(document)
    , m_findings(new QListWidget(this))
    , m_filters(new QListWidget(this))
{
    m_findings->setAccessibleName(Velmo::tr("What is found in the list"));
    m_filters->setAccessibleName(Velmo::tr("Filters that follow from the settings"));
    m_findings->setIconSize(findingIconSize);
    for (QListWidget* const list : {m_findings, m_filters})
        list->setWordWrap(true);
    addTab(m_findings, {});
    addTab(m_filters, Velmo::tr("Fi&lters that follow"));
    connect(&document, &SettingsDocument::changed, this, &FindingsPanel::refresh);
    const auto chosen = [this](QListWidgetItem* item) { choose(m_findings->row(item)); };
    connect(m_findings, &QListWidget::itemClicked, this, chosen);
    connect(m_findings, &QListWidget::itemActivated, this, chosen);
    setTabText(0, Velmo::tr("Fi&ndings"));
}

void FindingsPanel::refresh()
{
    const int current = m_findings->currentRow();
    m_findings->clear();
    const QList<SettingsFinding>& findings = m_document.findings();
    for (const SettingsFinding& finding : findings) {
        QString place = findingWord(finding.level);
        if (finding.element >= 0) {
            const int line = m_document.file().lineOf(finding.element);
            place = Velmo::tr("%1 in line %2").arg(place, QString::number(line));
        }
        const QString text = finding.path.isEmpty()
            ? finding.text
            : finding.path + QStringLiteral(": ") + finding.text;
        auto* const item = new QListWidgetItem(
            findingIcon(finding.level), printable(place + QStringLiteral(": ") + text), m_findings);
        item->setData(Qt::AccessibleTextRole, item->text());
    }
    m_findings->setCurrentRow(std::min(current, m_findings->count() - 1));
    if (findings.isEmpty()) {
        auto* const nothing = new QListWidgetItem(Velmo::tr("Nothing is wrong."), m_findings);
        nothing->setFlags(Qt::NoItemFlags);
    }
    setTabText(0,
               findings.isEmpty() ? Velmo::tr("Fi&ndings")
                                  : Velmo::tr("Fi&ndings (%1)").arg(findings.size()));
    m_filters->clear();
    m_filters->addItems(m_document.filters());
}

void FindingsPanel::choose(int row)
{
    if (row >= 0 && row < m_document.findings().size())
        Q_EMIT findingChosen(m_document.findings().at(row));
}

void FindingsPanel::goToNext()
{
    if (m_document.findings().isEmpty())
        return;
    setCurrentIndex(0);
    m_findings->setCurrentRow((m_findings->currentRow() + 1) % int(m_document.findings().size()));
    choose(m_findings->currentRow());
}
