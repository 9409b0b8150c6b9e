// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/settingscheck.h"
#include "settings/settingslist.h"

#include <QWidget>

class QLabel;
class QToolButton;
class ValueEditor;

/// One setting of a form: its label, its value, where the value comes from, what it is for and what
/// is wrong with it.
class SettingField : public QWidget
{
    Q_OBJECT

public:
    explicit SettingField(const SettingsList::Used& used, QWidget* parent = nullptr);

    QString path() const { return m_setting.path(); }

    /// What people call it: its label, or its key where it has none.
    static QString labelOf(const ServiceSetting& setting);

    /// @param text of the value, as SettingsDocument::shownText() has it
    void showValue(const SettingsList::Used& used, const QString& text,
                   const QList<SettingsFinding>& findings);

    /// What a person types stays as it is typed until this is called.
    void endEditing();

    QWidget* control() const;
    QLabel* label() const { return m_label; }

    /// Whether it can be taken out of the list, or get its default.
    bool isListed() const { return m_used.isListed(); }
    bool hasOtherDefault() const;
    QString defaultText() const { return m_setting.defaultValue().toString(); }

Q_SIGNALS:
    void edited(const QString& path, const QString& text);
    void finished(); ///< what was edited last is done
    void menuAsked(const QPoint& place); ///< on the screen

private:
    void makeLayout();
    QString helpText() const;
    QString markText() const;

    const ServiceSetting m_setting;
    SettingsList::Used m_used;
    QLabel* const m_label;
    ValueEditor* const m_editor;
    QLabel* const m_mark;
    QToolButton* const m_menu;
    QLabel* const m_help;
    QLabel* const m_finding;
    bool m_isSound = true; // the text is read as what it says
    bool m_isEdited = false; // by a person who is not done yet
};
