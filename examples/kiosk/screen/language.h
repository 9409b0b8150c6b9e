// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QTranslator>

#include <memory>
#include <vector>

/// The language of all texts: the screen's own and those of the library and its module.
class Language : public QObject
{
    Q_OBJECT

    /// "en" or "ru".
    Q_PROPERTY(QString current READ current WRITE setCurrent NOTIFY currentChanged)

public:
    explicit Language(const QString& language, QObject* parent = nullptr);

    QString current() const { return m_current; }
    void setCurrent(const QString& language);

Q_SIGNALS:
    void currentChanged();

private:
    void load();

    QString m_current;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
