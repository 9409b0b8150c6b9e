// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingfield.h"

#include "findingicon.h"
#include "terminal/velmo.h"
#include "valueeditor.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>
#include <limits>

namespace {

QLabel* plainLabel(QWidget* parent)
{
    auto* const label = new QLabel(parent);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

// Less loud than what one reads first.
void quieten(QLabel* label)
{
    QPalette palette = label->palette();
    QColor color = palette.color(QPalette::WindowText);
    color.setAlphaF(0.7F);
    palette.setColor(QPalette::WindowText, color);
    label->setPalette(palette);
}

} // namespace

QString SettingField::labelOf(const ServiceSetting& setting)
{
    return setting.label().isEmpty() ? setting.key() : setting.label();
}

SettingField::SettingField(const SettingsList::Used& used, QWidget* parent)
    : QWidget(parent)
    , m_setting(used.setting)
    , m_used(used)
    , m_label(plainLabel(this))
    , m_editor(ValueEditor::make(used.setting, this))
    , m_mark(plainLabel(this))
    , m_menu(new QToolButton(this))
    , m_help(plainLabel(this))
    , m_finding(plainLabel(this))
{
    setObjectName(m_setting.path());
    m_finding->setObjectName(QStringLiteral("finding"));
    m_label->setText(labelOf(m_setting));
    m_label->setToolTip(m_setting.path());
    m_label->setBuddy(m_editor->control());
    m_help->setText(helpText());
    m_help->setVisible(!m_help->text().isEmpty());
    m_menu->setText(QStringLiteral("\u22ef"));
    m_menu->setAutoRaise(true);
    m_menu->setFocusPolicy(Qt::NoFocus); // the window's menu has the same
    m_menu->setToolTip(Velmo::tr("Default and removal"));
    m_menu->setAccessibleName(m_menu->toolTip());
    quieten(m_mark);
    quieten(m_help);
    makeLayout();
    connect(m_editor, &ValueEditor::edited, this, [this](const QString& text) {
        m_isEdited = true;
        Q_EMIT edited(m_setting.path(), text);
    });
    connect(m_editor, &ValueEditor::finished, this, [this] {
        m_isEdited = false;
        Q_EMIT finished();
    });
    connect(m_menu, &QToolButton::clicked, this, [this] {
        control()->setFocus();
        Q_EMIT menuAsked(m_menu->mapToGlobal(QPoint(0, m_menu->height())));
    });
}

void SettingField::endEditing()
{
    m_editor->commit();
    m_isEdited = false;
}

void SettingField::makeLayout()
{
    auto* const layout = new QGridLayout(this);
    layout->setContentsMargins(0, 2, 0, 6);
    layout->setHorizontalSpacing(12);
    layout->setVerticalSpacing(2);
    layout->setColumnStretch(1, 3);
    layout->setColumnStretch(2, 2);
    const bool isTable = m_editor->isTable();
    layout->addWidget(m_label, 0, 0, Qt::AlignTop);
    QWidget* const value = m_editor->widget();
    const bool isNarrow = value->maximumWidth() < QWIDGETSIZE_MAX;
    layout->addWidget(value, isTable ? 1 : 0, 1, 1, isTable ? 2 : 1,
                      isNarrow ? Qt::AlignLeft : Qt::Alignment());
    layout->addWidget(m_mark, 0, isTable ? 1 : 2, Qt::AlignTop);
    layout->addWidget(m_menu, 0, 3, Qt::AlignTop);
    layout->addWidget(m_finding, 2, 1, 1, 3);
    layout->addWidget(m_help, 3, 1, 1, 3);
    for (QLabel* const label : {m_label, m_mark})
        label->setContentsMargins(0, 4, 0, 0); // beside the first line of the value
    m_mark->setMinimumWidth(fontMetrics().averageCharWidth() * 17);
}

QString SettingField::helpText() const
{
    QString text = m_setting.help();
    if (m_setting.kind() == SettingDescription::Number) {
        const qint64 most = m_setting.maximum().toLongLong();
        const QString range = most >= std::numeric_limits<int>::max()
            ? Velmo::tr("%1 or more.").arg(m_setting.minimum().toString())
            : Velmo::tr("%1 to %2.").arg(m_setting.minimum().toString(), QString::number(most));
        text += (text.isEmpty() ? QString() : QStringLiteral(" ")) + range;
    }
    return text;
}

QString SettingField::markText() const
{
    const bool hasDefault = m_setting.defaultValue().isValid();
    const QString shown = m_setting.defaultValue().toString();
    if (!m_used.isListed())
        return hasDefault ? Velmo::tr("not in the list: the default")
                          : Velmo::tr("not in the list");
    if (!m_used.isForDevice)
        return Velmo::tr("not used by this device");
    if (hasDefault && m_isSound && m_used.value == m_setting.defaultValue())
        return Velmo::tr("the default");
    if (m_setting.kind() == SettingDescription::Switch)
        return Velmo::tr("default: %1")
            .arg(shown == QLatin1String("1") ? Velmo::tr("on") : Velmo::tr("off"));
    if (m_editor->isTable())
        return Velmo::tr("default: no rows");
    // One that is refused stands for nothing.
    return shown.isEmpty() || !m_setting.accepts(shown) ? QString()
                                                        : Velmo::tr("default: %1").arg(shown);
}

bool SettingField::hasOtherDefault() const
{
    return m_setting.defaultValue().isValid() && m_setting.accepts(defaultText())
        && m_used.value != m_setting.defaultValue();
}

QWidget* SettingField::control() const
{
    return m_editor->control();
}

void SettingField::showValue(const SettingsList::Used& used, const QString& text,
                             const QList<SettingsFinding>& findings)
{
    m_used = used;
    m_isSound = m_setting.accepts(text);
    if (!m_isEdited)
        m_editor->showText(text);
    m_mark->setText(markText());
    m_menu->setEnabled(isListed() || hasOtherDefault());
    QStringList lines;
    bool isError = false;
    for (const SettingsFinding& finding : findings) {
        lines += findingWord(finding.level) + QStringLiteral(": ") + finding.text;
        isError = isError || finding.level == SettingsFinding::Error;
    }
    m_finding->setText(lines.join(QLatin1Char('\n')));
    m_finding->setVisible(!lines.isEmpty());
    QPalette colors = palette();
    colors.setColor(
        QPalette::WindowText,
        findingColor(isError ? SettingsFinding::Error : SettingsFinding::Warning, colors));
    m_finding->setPalette(colors);
    const QStringList told{m_finding->text(), m_mark->text(), m_help->text()};
    control()->setAccessibleName(m_label->text());
    control()->setAccessibleDescription(told.join(QLatin1Char('\n')).trimmed());
}
