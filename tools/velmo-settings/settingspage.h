// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QScrollArea>

#include <optional>

class SettingField;
class SettingsDocument;

/// The settings of the service or of one device as a form, by groups. It follows the document.
class SettingsPage : public QScrollArea
{
    Q_OBJECT

public:
    explicit SettingsPage(SettingsDocument& document, QWidget* parent = nullptr);

    std::optional<int> device() const { return m_device; }

    /// What the Tab key leaves for the page.
    void setPredecessor(QWidget* widget) { m_predecessor = widget; }

    /// Shows those of a device or, without one, of the service.
    void showDevice(std::optional<int> device);

    /// What the pages are called: "Service", "Device 0: Bill validator (CCNet)".
    static QString title(const SettingsDocument& document, std::optional<int> device);

    /// Scrolls to a setting of the page and gives it the keyboard.
    void goTo(const QString& path);
    void goToFirst();

    /// The field that has the keyboard; null without one.
    SettingField* currentField() const { return fieldOf(focusWidget()); }

    /// The field that a widget belongs to; null without one.
    SettingField* fieldOf(const QWidget* widget) const;

    SettingField* field(const QString& path) const { return m_fields.value(path); }

    /// Takes what was typed and shows it as the list has it.
    void endEditing();

Q_SIGNALS:
    void edited(const QString& path, const QString& text);
    void menuAsked(const QPoint& place);

private:
    void refresh();
    void build(const QStringList& paths);

    SettingsDocument& m_document;
    QWidget* m_predecessor = nullptr;
    std::optional<int> m_device;
    QStringList m_paths; // in the order of the form
    QHash<QString, SettingField*> m_fields;
};
