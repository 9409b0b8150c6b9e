// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTranslator>

#include <memory>
#include <vector>

/// The language of all texts: the screen's own and those of the library and its modules.
class Language : public QObject
{
    Q_OBJECT

    /// "en" or "ru".
    Q_PROPERTY(QString current READ current WRITE setCurrent NOTIFY currentChanged)

    /// The one that a customer finds.
    Q_PROPERTY(QString first MEMBER m_first CONSTANT)

public:
    static const QStringList LANGUAGES;

    explicit Language(const QString& language, QObject* parent = nullptr);

    QString current() const { return m_current; }
    void setCurrent(const QString& language);

    /// Tells on stderr of which alphabet no font has letters: people would see boxes.
    static void checkFonts();

Q_SIGNALS:
    void currentChanged();

private:
    void load();

    QString m_first;
    QString m_current;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
