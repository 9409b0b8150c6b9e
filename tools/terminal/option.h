// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include "brokeroptions.h"
#include "terminal/velmo.h"

#include <QCommandLineOption>

#include <limits>

class QCommandLineParser;

/// What stands for an operand or for the value of an option.
struct Value
{
    enum Kind {
        Text,
        File,
        SettingPath, ///< GROUP/KEY
        Assignment, ///< GROUP/KEY=VALUE
        DeviceAssignment, ///< KEY=VALUE, of one device
        Model,
        DeviceIndex,
        Language,
        FilterName,
        Number,
    };

    static constexpr qint64 unlimited = std::numeric_limits<int>::max();

    constexpr Value(const char* valueName = nullptr, Kind valueKind = Text, qint64 leastNumber = 0,
                    qint64 mostNumber = unlimited)
        : name(valueName)
        , kind(valueKind)
        , least(leastNumber)
        , most(mostNumber)
    {
    }

    const char* name; ///< in the usage; null where there is none
    Kind kind;
    qint64 least; ///< of a number
    qint64 most; ///< the same; told where it is less than unlimited
};

constexpr Value noValue; ///< of a switch

/// An option of the command line. Its help is a source text of Velmo::tr().
struct Option
{
    const char* name; ///< without dashes
    const char* letter; ///< its short form; null without one
    Value value;
    const char* help;
    const char* usual = ""; ///< its value where it is not given

    QString dashedName() const { return QStringLiteral("--") + QLatin1String(name); }

    QString withValue() const; ///< "--output OUT"
    QString usage() const; ///< "-o, --output OUT"

    /// For a parser; its help is in the language that is shown now.
    QCommandLineOption forParser() const;

    bool isSet(const QCommandLineParser& parser) const;
    QString valueIn(const QCommandLineParser& parser) const;

    /// Throws Fault for what is no number or out of the range.
    qint64 numberIn(const QCommandLineParser& parser) const;

    /// Throws Fault for one that is given with an empty value, as where a script's variable is not
    /// set: it means nothing, least of all the usual value.
    void requireValue(const QCommandLineParser& parser) const;
};

/// The options of a program that connects to a broker.
namespace options {

constexpr Option broker{"broker", nullptr, Value("HOST:PORT"),
                        QT_TRANSLATE_NOOP("Velmo", "The broker; localhost:1883 without it.")};
constexpr Option passwordFile{"password-file", nullptr, Value("FILE", Value::File),
                              QT_TRANSLATE_NOOP("Velmo", "A file with USER:PASSWORD.")};
constexpr Option tlsCa{"tls-ca", nullptr, Value("PEM", Value::File),
                       QT_TRANSLATE_NOOP("Velmo", "Connect by TLS and trust these certificates.")};
constexpr Option tlsCert{"tls-cert", nullptr, Value("PEM", Value::File),
                         QT_TRANSLATE_NOOP("Velmo", "The client's own certificate.")};
constexpr Option tlsKey{"tls-key", nullptr, Value("PEM", Value::File),
                        QT_TRANSLATE_NOOP("Velmo", "Its key.")};

} // namespace options

/// What these options say. Throws Fault as BrokerOptions does.
BrokerOptions brokerOptions(const QCommandLineParser& parser);
