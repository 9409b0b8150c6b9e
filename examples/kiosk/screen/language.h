// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QTranslator>
#include <QVariantList>

#include <memory>
#include <vector>

/// The language of all texts: the screen's own and those of the library and its modules.
class Language : public QObject
{
    Q_OBJECT

    /// The code of the one that is spoken, such as "de".
    Q_PROPERTY(QString current READ current WRITE setCurrent NOTIFY currentChanged)

    /// The one that a customer finds.
    Q_PROPERTY(QString first MEMBER m_first CONSTANT)

    /// All that there are, as LanguageKey takes them: a list of {code, name}, the name in the
    /// language itself.
    Q_PROPERTY(QVariantList all READ all CONSTANT)

public:
    explicit Language(const QString& language, QObject* parent = nullptr);

    QString current() const { return m_current; }
    void setCurrent(const QString& language);

    /// English, which the screen's sources are in, and those that the screen's texts are translated
    /// into.
    static QStringList codes();
    static QVariantList all();

    /// Tells on stderr of which languages no font has the letters: people would see boxes.
    static void checkFonts();

Q_SIGNALS:
    void currentChanged();

private:
    void load();

    QString m_first;
    QString m_current;
    std::vector<std::unique_ptr<QTranslator>> m_translators;
};
