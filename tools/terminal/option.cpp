// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "terminal/option.h"

#include "text/diagnosis.h"
#include "text/fault.h"

namespace {

// What Qt's parser of options says, for which Qt's own translations may not be installed.
[[maybe_unused]] constexpr const char* parserTexts[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Arguments:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help including Qt specific options."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays help on commandline options."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Displays version information."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Options:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Usage: %1"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "[options]")};

// The same place in the build folder and where the program is installed.
QString translationsFolder()
{
    return QCoreApplication::applicationDirPath() + QStringLiteral("/../" TRANSLATIONS);
}

} // namespace

QString Option::withValue() const
{
    return dashedName() + (value.name ? QLatin1Char(' ') + QLatin1String(value.name) : QString());
}

QString Option::usage() const
{
    return (letter ? QStringLiteral("-%1, ").arg(QLatin1String(letter)) : QString()) + withValue();
}

QCommandLineOption Option::forParser() const
{
    QStringList names{QLatin1String(name)};
    if (letter)
        names.prepend(QLatin1String(letter));
    return {names, Velmo::tr(help), QLatin1String(value.name), QLatin1String(usual)};
}

qint64 GivenOptions::number(const Option& option) const
{
    bool isNumber = false;
    const qint64 number = value(option).toLongLong(&isNumber);
    if (isNumber && number >= option.value.least && number <= option.value.most)
        return number;
    throw Fault{option.value.most < Value::unlimited
                    ? Velmo::tr("%1: expected a number from %2 to %3")
                          .arg(option.dashedName())
                          .arg(option.value.least)
                          .arg(option.value.most)
                    : Velmo::tr("%1: expected a number").arg(option.dashedName())};
}

BrokerOptions GivenOptions::broker() const
{
    BrokerOptions broker;
    broker.take(value(options::broker), value(options::passwordFile), value(options::tlsCa),
                value(options::tlsCert), value(options::tlsKey));
    return broker;
}

void GivenOptions::requireValue(const Option& option) const
{
    if (isSet(option) && option.value.kind != Kind::None && value(option).isEmpty())
        throw Fault{Velmo::tr("%1: expected a value").arg(option.dashedName())};
}

void loadLanguage(const QString& language)
{
    loadTranslations(translationsFolder(), {QStringLiteral("velmo")}, language);
}

QString loadAskedLanguage(const Option& option)
{
    QCommandLineParser early;
    early.addOption(option.forParser());
    early.parse(QCoreApplication::arguments());
    const QString language = GivenOptions(early).value(option);
    loadLanguage(language);
    return language;
}

QStringList translationLanguages()
{
    return translationLanguages(translationsFolder());
}
