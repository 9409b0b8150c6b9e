// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "terminal/option.h"

#include "text/fault.h"

#include <QCommandLineParser>

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

bool Option::isSet(const QCommandLineParser& parser) const
{
    return parser.isSet(QLatin1String(name));
}

QString Option::valueIn(const QCommandLineParser& parser) const
{
    return parser.value(QLatin1String(name));
}

qint64 Option::numberIn(const QCommandLineParser& parser) const
{
    bool isNumber = false;
    const qint64 number = valueIn(parser).toLongLong(&isNumber);
    if (isNumber && number >= value.least && number <= value.most)
        return number;
    if (value.most < Value::unlimited) {
        throw Fault{Velmo::tr("%1: expected a number from %2 to %3")
                        .arg(dashedName())
                        .arg(value.least)
                        .arg(value.most)};
    }
    throw Fault{Velmo::tr("%1: expected a number").arg(dashedName())};
}

void Option::requireValue(const QCommandLineParser& parser) const
{
    if (value.name && isSet(parser) && valueIn(parser).isEmpty())
        throw Fault{Velmo::tr("%1: expected a value").arg(dashedName())};
}

BrokerOptions brokerOptions(const QCommandLineParser& parser)
{
    BrokerOptions broker;
    broker.take(options::broker.valueIn(parser), options::passwordFile.valueIn(parser),
                options::tlsCa.valueIn(parser), options::tlsCert.valueIn(parser),
                options::tlsKey.valueIn(parser));
    return broker;
}
