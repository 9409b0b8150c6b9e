// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/arrayfile.h"
#include "valueeditor.h"

class QLineEdit;
class QPushButton;
class QTableWidget;

/// A value that is a JSON array of objects, as a table: a row for each. What is no table is shown
/// as the text that it is. Of the text, only what is changed in the table changes.
class TableEditor : public ValueEditor
{
    Q_OBJECT

public:
    TableEditor(SettingDescription::Kind kind, QWidget* parent);

    void showText(const QString& text) override;
    QWidget* control() const override;
    QWidget* widget() const override { return m_widget; }
    bool isTable() const override { return true; }
    void commit() override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Column
    {
        QString key;
        QString title;
        JsonText start; // of a new row
        QStringList choices = {}; // for the numbers from 0 on; empty for any text
    };

    static QVector<Column> columnsOf(SettingDescription::Kind kind);

    void fill(const ArrayFile& rows);
    void changeCell(int row, int column);
    void addRow();
    void removeRow();
    void showRows(int count);
    void take(const QByteArray& text);

    const QVector<Column> m_columns;
    QWidget* const m_widget;
    QTableWidget* const m_table;
    QLineEdit* const m_line;
    QPushButton* const m_add;
    QPushButton* const m_remove;
    QString m_text;
    bool m_isFilling = false;
};
