// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "brokeroptions.h"
#include "terminal/velmo.h"

#include <QCommandLineParser>

#include <limits>

/// What may stand for an operand or for the value of an option.
enum class Kind {
    None, ///< for a switch
    Text,
    File,
    SettingPath, ///< GROUP/KEY
    Assignment, ///< GROUP/KEY=VALUE
    DeviceAssignment, ///< KEY=VALUE, of one device
    Model,
    DeviceIndex,
    Language,
    FilterName,
    Outcome, ///< of a note
    Condition, ///< of a kiosk
    Reason, ///< of a kiosk's fault
    Count, ///< what kiosks are counted by
    Number,
};

/// What an operand or the value of an option is; a switch has none.
struct Value
{
    static constexpr qint64 unlimited = std::numeric_limits<int>::max();

    constexpr Value() = default;
    constexpr Value(const char* itsName, Kind itsKind, qint64 from = 0, qint64 to = unlimited)
        : name(itsName)
        , kind(itsKind)
        , least(from)
        , most(to)
    {
    }

    const char* name = nullptr; ///< in the usage
    Kind kind = Kind::None;
    qint64 least = 0; ///< of a number
    qint64 most = unlimited; ///< of a number; told where it is less
};

/// An option of the command line. Its help is a source text of Velmo::tr().
struct Option
{
    const char* name; ///< without dashes
    const char* letter; ///< its short form; null without one
    Value value;
    const char* help;
    const char* usual = nullptr; ///< the value where it is not given; null for none

    QString dashedName() const { return QStringLiteral("--") + QLatin1String(name); }

    QString withValue() const; ///< "--output OUT"
    QString usage() const; ///< "-o, --output OUT"

    /// For a parser; its help is in the language that is shown now.
    QCommandLineOption forParser() const;
};

/// The options that a program was called with.
class GivenOptions
{
public:
    explicit GivenOptions(const QCommandLineParser& parser)
        : m_parser(parser)
    {
    }

    bool isSet(const Option& option) const { return m_parser.isSet(QLatin1String(option.name)); }
    QString value(const Option& option) const { return m_parser.value(QLatin1String(option.name)); }

    /// Of one that may be given several times.
    QStringList values(const Option& option) const
    {
        return m_parser.values(QLatin1String(option.name));
    }

    /// Throws Fault for a value that is no number or out of the range.
    qint64 number(const Option& option) const;

    /// What the options of a connection say. Throws Fault as BrokerOptions does.
    BrokerOptions broker() const;

    /// Throws Fault for an empty value, as where a script's variable is not set: it means nothing,
    /// least of all the usual value.
    void requireValue(const Option& option) const;

private:
    const QCommandLineParser& m_parser;
};

/// The options of a connection to a broker.
namespace options {

constexpr Option broker{"broker", nullptr, Value("HOST:PORT", Kind::Text),
                        QT_TRANSLATE_NOOP("Velmo", "The broker; localhost:1883 without it.")};
constexpr Option passwordFile{"password-file", nullptr, Value("FILE", Kind::File),
                              QT_TRANSLATE_NOOP("Velmo", "A file with USER:PASSWORD.")};
constexpr Option tlsCa{"tls-ca", nullptr, Value("PEM", Kind::File),
                       QT_TRANSLATE_NOOP("Velmo", "Connect by TLS and trust these certificates.")};
constexpr Option tlsCert{"tls-cert", nullptr, Value("PEM", Kind::File),
                         QT_TRANSLATE_NOOP("Velmo", "The client's own certificate.")};
constexpr Option tlsKey{"tls-key", nullptr, Value("PEM", Kind::File),
                        QT_TRANSLATE_NOOP("Velmo", "Its key.")};

} // namespace options

/// Shows the program's texts in a language, empty for the system's. Throws Fault for one that there
/// are no texts in.
void loadLanguage(const QString& language);

/// Shows them in the language that the program's arguments ask for, before further options are made
/// in it. Throws as loadLanguage().
/// @return that language; empty for the system's
QString loadAskedLanguage(const Option& option);

/// The languages that there are translations for.
QStringList translationLanguages();
