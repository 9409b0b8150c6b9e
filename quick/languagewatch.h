// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QEvent>

#include <functional>

/// Tells an object that the application has other translators. A member of it or a child.
class LanguageWatch : public QObject
{
public:
    explicit LanguageWatch(std::function<void()> changed, QObject* parent = nullptr)
        : QObject(parent)
        , m_changed(std::move(changed))
    {
        QCoreApplication::instance()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        if (event->type() == QEvent::LanguageChange && watched == QCoreApplication::instance())
            m_changed();
        return false;
    }

private:
    const std::function<void()> m_changed;
};
