// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "valueeditor.h"

#include "acceptorsettings.h"
#include "tableeditor.h"
#include "terminal/velmo.h"
#include "text/devicename.h"

#include <QCheckBox>
#include <QComboBox>
#include <QKeyEvent>
#include <QLineEdit>

#include <limits>

namespace {

class LineEditor : public ValueEditor
{
public:
    LineEditor(const ServiceSetting& setting, QWidget* parent)
        : ValueEditor(parent)
        , m_line(new QLineEdit(parent))
    {
        m_line->setMaxLength(std::numeric_limits<int>::max()); // a longer text would be cut
        connect(m_line, &QLineEdit::textEdited, this, &ValueEditor::edited);
        watch(m_line);
        if (setting.kind() == SettingDescription::Number)
            m_line->setFixedWidth(m_line->fontMetrics().averageCharWidth() * 24);
    }

    void showText(const QString& text) override
    {
        if (m_line->text() != text)
            m_line->setText(text);
    }

    QWidget* control() const override { return m_line; }

private:
    QLineEdit* const m_line;
};

class SwitchEditor : public ValueEditor
{
public:
    explicit SwitchEditor(QWidget* parent)
        : ValueEditor(parent)
        , m_box(new QCheckBox(Velmo::tr("on"), parent))
    {
        connect(m_box, &QCheckBox::clicked, this, [this](bool isOn) {
            Q_EMIT edited(isOn ? QStringLiteral("1") : QStringLiteral("0"));
        });
        watch(m_box);
    }

    void showText(const QString& text) override
    {
        m_box->setChecked(text == QLatin1String("1") || text == QLatin1String("true"));
    }

    QWidget* control() const override { return m_box; }

private:
    QCheckBox* const m_box;
};

class ChoiceEditor : public ValueEditor
{
public:
    ChoiceEditor(const ServiceSetting& setting, QWidget* parent)
        : ValueEditor(parent)
        , m_setting(setting)
        , m_box(new QComboBox(parent))
    {
        const bool isModel = setting.key() == AcceptorSettings::DEVICE_ID;
        const QStringList choices = setting.choices();
        for (const QString& choice : choices)
            m_box->addItem(isModel ? deviceName(choice.toInt()) : choice, choice);
        m_box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
        m_box->setMinimumContentsLength(12);
        connect(m_box, QOverload<int>::of(&QComboBox::activated), this,
                [this](int index) { Q_EMIT edited(m_box->itemData(index).toString()); });
        watch(m_box);
    }

    void showText(const QString& text) override
    {
        const bool isKnown = m_setting.accepts(text);
        const QString value = isKnown ? m_setting.readAs(text) : text;
        int index = m_box->findData(value);
        if (index < 0) {
            // What the list has is shown, though nobody can choose it.
            m_box->addItem(text.isEmpty() ? Velmo::tr("(empty)") : text, text);
            index = m_box->count() - 1;
        }
        m_box->setCurrentIndex(index);
    }

    QWidget* control() const override { return m_box; }

private:
    const ServiceSetting m_setting;
    QComboBox* const m_box;
};

} // namespace

ValueEditor* ValueEditor::make(const ServiceSetting& setting, QWidget* parent)
{
    switch (setting.kind()) {
    case SettingDescription::Switch:
        return new SwitchEditor(parent);
    case SettingDescription::Choice:
        return new ChoiceEditor(setting, parent);
    case SettingDescription::AttemptsLimits:
    case SettingDescription::RouteMap:
        return new TableEditor(setting.kind(), parent);
    default:
        return new LineEditor(setting, parent);
    }
}

ValueEditor::ValueEditor(QWidget* parent)
    : QObject(parent)
{
}

void ValueEditor::watch(QWidget* control)
{
    control->setFocusPolicy(Qt::StrongFocus);
    control->installEventFilter(this);
}

// A wheel that scrolls the page changes no value that it comes upon; undo is the window's.
bool ValueEditor::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        event->ignore();
        return true;
    }
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* const key = static_cast<const QKeyEvent*>(event);
        if (key->matches(QKeySequence::Undo) || key->matches(QKeySequence::Redo)) {
            event->ignore();
            return true;
        }
        // These open a combo box, and nothing else then.
        if (key->modifiers() == Qt::AltModifier && qobject_cast<const QComboBox*>(watched)
            && (key->key() == Qt::Key_Up || key->key() == Qt::Key_Down)) {
            event->accept();
            return true;
        }
    }
    return QObject::eventFilter(watched, event);
}
