// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "tableeditor.h"

#include "settings/servicesetting.h"
#include "terminal/velmo.h"

#include <QBuffer>
#include <QComboBox>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPushButton>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>
#include <optional>

namespace {

std::optional<ArrayFile> rowsOf(const QByteArray& text)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->open(QIODevice::ReadWrite);
    const TextInput input(std::move(buffer), {});
    try {
        const ArrayFile rows(input, text.trimmed().isEmpty() ? QByteArrayLiteral("[]") : text, {});
        const bool areObjects =
            std::all_of(rows.values().begin(), rows.values().end(), [](const QVariant& row) {
                return row.userType() == QMetaType::QVariantMap;
            });
        return areObjects ? std::optional<ArrayFile>(rows) : std::nullopt;
    } catch (const Fault&) {
        return {};
    }
}

// A column that has one of a few numbers, each with its word.
class ChoiceDelegate : public QStyledItemDelegate
{
public:
    ChoiceDelegate(const QStringList& choices, QObject* parent)
        : QStyledItemDelegate(parent)
        , m_choices(choices)
    {
    }

    QString displayText(const QVariant& value, const QLocale& /*locale*/) const override
    {
        return m_choices.value(indexOf(value), value.toString());
    }

    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& /*option*/,
                          const QModelIndex& /*index*/) const override
    {
        auto* const box = new QComboBox(parent);
        box->addItems(m_choices);
        return box;
    }

    void setEditorData(QWidget* editor, const QModelIndex& index) const override
    {
        qobject_cast<QComboBox*>(editor)->setCurrentIndex(indexOf(index.data(Qt::EditRole)));
    }

    void setModelData(QWidget* editor, QAbstractItemModel* model,
                      const QModelIndex& index) const override
    {
        const int chosen = qobject_cast<QComboBox*>(editor)->currentIndex();
        if (chosen >= 0)
            model->setData(index, QString::number(chosen));
    }

private:
    // Less than 0 for what is none of the choices, or nothing at all.
    int indexOf(const QVariant& value) const
    {
        bool isNumber = false;
        const int index = value.toString().toInt(&isNumber);
        return isNumber && index < m_choices.size() ? index : -1;
    }

    const QStringList m_choices;
};

} // namespace

QVector<TableEditor::Column> TableEditor::columnsOf(SettingDescription::Kind kind)
{
    if (kind == SettingDescription::AttemptsLimits) {
        return {{QStringLiteral("denom"), Velmo::tr("Face value"), QStringLiteral("1")},
                {QStringLiteral("attempts"), Velmo::tr("Rejections"), QStringLiteral("1")}};
    }
    return {
        {QStringLiteral("currency"), Velmo::tr("Currency"), QStringLiteral("RUB")},
        {QStringLiteral("denomination"), Velmo::tr("Face value"), 0},
        {QStringLiteral("bill_type"), Velmo::tr("Kind"), 0, {Velmo::tr("note"), Velmo::tr("coin")}},
        {QStringLiteral("route"), Velmo::tr("Route"), 0},
        {QStringLiteral("count"), Velmo::tr("Count"), 0}};
}

TableEditor::TableEditor(SettingDescription::Kind kind, QWidget* parent)
    : ValueEditor(parent)
    , m_columns(columnsOf(kind))
    , m_widget(new QWidget(parent))
    , m_table(new QTableWidget(m_widget))
    , m_line(new QLineEdit(m_widget))
    , m_add(new QPushButton(Velmo::tr("Add row"), m_widget))
    , m_remove(new QPushButton(Velmo::tr("Remove row"), m_widget))
{
    QStringList titles;
    for (const Column& column : m_columns)
        titles += column.title;
    m_table->setColumnCount(int(m_columns.size()));
    m_table->setHorizontalHeaderLabels(titles);
    for (int i = 0; i < m_columns.size(); ++i) {
        if (!m_columns.at(i).choices.isEmpty())
            m_table->setItemDelegateForColumn(i, new ChoiceDelegate(m_columns.at(i).choices, this));
    }
    m_table->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    m_table->verticalHeader()->setDefaultSectionSize(m_table->fontMetrics().height() + 8);
    m_table->setTabKeyNavigation(false); // the key goes on to the next setting
    m_table->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_table->setEditTriggers(QAbstractItemView::DoubleClicked | QAbstractItemView::SelectedClicked
                             | QAbstractItemView::EditKeyPressed
                             | QAbstractItemView::AnyKeyPressed);
    m_line->setMaxLength(std::numeric_limits<int>::max());
    m_line->hide();

    auto* const buttons = new QHBoxLayout;
    buttons->addWidget(m_add);
    buttons->addWidget(m_remove);
    buttons->addStretch();
    auto* const layout = new QVBoxLayout(m_widget);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_table);
    layout->addWidget(m_line);
    layout->addLayout(buttons);
    for (QWidget* const control : {static_cast<QWidget*>(m_table), static_cast<QWidget*>(m_line)})
        watch(control);
    m_widget->setFocusProxy(m_table);

    connect(m_table, &QTableWidget::cellChanged, this, &TableEditor::changeCell);
    connect(m_add, &QPushButton::clicked, this, &TableEditor::addRow);
    connect(m_remove, &QPushButton::clicked, this, &TableEditor::removeRow);
    connect(m_line, &QLineEdit::textEdited, this, &ValueEditor::edited);
}

QWidget* TableEditor::control() const
{
    return m_line->isHidden() ? static_cast<QWidget*>(m_table) : m_line;
}

// A cell that is being edited is taken when it loses the keyboard.
void TableEditor::commit()
{
    const QWidget* const typing = m_table->focusWidget();
    if (typing && typing != m_table && typing->hasFocus() && m_table->isAncestorOf(typing))
        m_table->setFocus();
}

void TableEditor::showText(const QString& text)
{
    if (text == m_text && (m_table->rowCount() > 0 || !m_line->isHidden()))
        return;
    m_text = text;
    const std::optional<ArrayFile> rows = rowsOf(text.toUtf8());
    m_table->setVisible(rows.has_value());
    m_add->setVisible(rows.has_value());
    m_remove->setVisible(rows.has_value());
    m_line->setVisible(!rows);
    if (m_line->text() != text)
        m_line->setText(text);
    if (rows)
        fill(*rows);
}

void TableEditor::fill(const ArrayFile& rows)
{
    m_isFilling = true;
    const int count = int(rows.values().size());
    m_table->setRowCount(count);
    for (int row = 0; row < count; ++row) {
        const QVariantMap map = rows.values().at(row).toMap();
        for (int i = 0; i < m_columns.size(); ++i) {
            if (!m_table->item(row, i))
                m_table->setItem(row, i, new QTableWidgetItem);
            m_table->item(row, i)->setText(map.value(m_columns.at(i).key).toString());
        }
    }
    m_isFilling = false;
    m_remove->setEnabled(count > 0);
    showRows(count);
}

// As high as its rows.
void TableEditor::showRows(int count)
{
    constexpr int mostShown = 12;
    const int rows = std::max(1, std::min(count, mostShown));
    m_table->setVerticalScrollBarPolicy(count > mostShown ? Qt::ScrollBarAsNeeded
                                                          : Qt::ScrollBarAlwaysOff);
    m_table->setFixedHeight(m_table->horizontalHeader()->sizeHint().height()
                            + rows * m_table->verticalHeader()->defaultSectionSize()
                            + 2 * m_table->frameWidth());
}

void TableEditor::take(const QByteArray& text)
{
    m_text = QString::fromUtf8(text);
    Q_EMIT edited(m_text);
    Q_EMIT finished();
}

void TableEditor::changeCell(int row, int column)
{
    std::optional<ArrayFile> rows = m_isFilling ? std::nullopt : rowsOf(m_text.toUtf8());
    if (!rows)
        return;
    const QString key = m_columns.at(column).key;
    const QString text = m_table->item(row, column)->text();
    const QVariant old = rows->values().at(row).toMap().value(key);
    if (old.isValid() && old.toString() == text)
        return;
    // Of the type that stands there; what does not fit is seen to be wrong.
    const int type = old.isValid() ? old.userType() : int(QMetaType::LongLong);
    rows->setMember(row, key, jsonOfType(type, text).value_or(text));
    take(rows->text());
}

void TableEditor::addRow()
{
    std::optional<ArrayFile> rows = rowsOf(m_text.toUtf8());
    if (!rows)
        return;
    QVector<ArrayFile::Member> members;
    for (const Column& column : m_columns)
        members += ArrayFile::Member{column.key, column.start};
    std::sort(members.begin(), members.end(),
              [](const auto& a, const auto& b) { return a.key < b.key; });
    const int count = int(rows->values().size());
    rows->insert(count, members);
    take(rows->text());
    fill(*rows);
    m_table->setFocus();
    m_table->setCurrentCell(count, 0);
}

void TableEditor::removeRow()
{
    std::optional<ArrayFile> rows = rowsOf(m_text.toUtf8());
    const int row = m_table->currentRow();
    if (!rows || row < 0)
        return;
    rows->remove(row);
    take(rows->text());
    fill(*rows);
    m_table->setCurrentCell(std::min(row, m_table->rowCount() - 1), 0);
}

bool TableEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::KeyPress && watched == m_table
        && static_cast<const QKeyEvent*>(event)->key() == Qt::Key_Delete) {
        removeRow();
        return true;
    }
    return ValueEditor::eventFilter(watched, event);
}
