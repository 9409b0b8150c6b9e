// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "settings/servicesetting.h"

#include <QObject>

class QWidget;

/// What a value is edited with, as its kind needs it. Values go in and out as texts; those that a
/// person did not change stay as they are.
class ValueEditor : public QObject
{
    Q_OBJECT

public:
    static ValueEditor* make(const ServiceSetting& setting, QWidget* parent);

    virtual void showText(const QString& text) = 0;

    /// What has the keyboard, and a name for those who do not see it.
    virtual QWidget* control() const = 0;

    /// What stands in the form.
    virtual QWidget* widget() const { return control(); }

    virtual bool isTable() const { return false; }

    /// Has what is typed told of, if it was not yet.
    virtual void commit() { }

Q_SIGNALS:
    void edited(const QString& text); ///< by a person, also when one is not done yet
    void finished(); ///< that person is done with what was edited last

protected:
    explicit ValueEditor(QWidget* parent);

    /// To be called for what has the keyboard.
    void watch(QWidget* control);

    bool eventFilter(QObject* watched, QEvent* event) override;
};
