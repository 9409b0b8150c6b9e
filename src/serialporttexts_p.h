// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLatin1String>
#include <QSerialPort>
#include <QString>

#include <algorithm>
#include <iterator>

/// The texts of serial-port parameters in the three forms of the settings, side by side.
namespace SerialPortTexts {

/// The forms in which settings travel; also the columns of the tables below.
enum Form : qint32 { ListForm, FormattedMap, FlatRecord };

template <typename Value>
struct Row
{
    Value value;
    QLatin1String texts[3]; ///< as each form writes it; empty where the form has no text for it
    QLatin1String otherText; ///< read in the settings as well; upper case
};

// What no row has is written and read as the last row. List form and formatted map are read alike:
// in any case, and each other's texts, so that the list form's text in upper case is that of the
// formatted map or the other text. The flat record reads its own texts only, with case.

inline const Row<QSerialPort::FlowControl> flowControls[] = {
    {QSerialPort::HardwareControl,
     {QLatin1String("hardware"), QLatin1String("HARDWARE"), QLatin1String("hardware")},
     QLatin1String("DTR/STR")},
    {QSerialPort::SoftwareControl,
     {QLatin1String("xonxoff"), QLatin1String("XON/XOFF"), QLatin1String("xonxoff")},
     QLatin1String("XONXOFF")},
    {QSerialPort::NoFlowControl,
     {QLatin1String("none"), QLatin1String("OFF"), QLatin1String("none")},
     QLatin1String("NONE")},
};

inline const Row<QSerialPort::Parity> parities[] = {
    {QSerialPort::EvenParity,
     {QLatin1String("even"), QLatin1String("EVEN"), QLatin1String("even")},
     {}},
    {QSerialPort::OddParity,
     {QLatin1String("odd"), QLatin1String("ODD"), QLatin1String("odd")},
     {}},
    {QSerialPort::SpaceParity, {QLatin1String("space"), QLatin1String("SPACE"), {}}, {}},
    {QSerialPort::NoParity,
     {QLatin1String("none"), QLatin1String("NONE"), QLatin1String("none")},
     {}},
};

template <typename Value, std::size_t Size>
QString text(const Row<Value> (&rows)[Size], Form form, Value value)
{
    for (const Row<Value>& row : rows) {
        if (row.value == value && !row.texts[form].isEmpty())
            return row.texts[form];
    }
    return std::rbegin(rows)->texts[form];
}

/// The value of a text in the list form or the formatted map.
/// @param isKnown set to whether a row has the text, unless it is null
template <typename Value, std::size_t Size>
Value valueInSettings(const Row<Value> (&rows)[Size], const QString& text, bool* isKnown = nullptr)
{
    const QString upper = text.toUpper();
    const auto row = std::find_if(std::begin(rows), std::end(rows), [&upper](const auto& r) {
        return upper == r.texts[FormattedMap] || (!r.otherText.isEmpty() && upper == r.otherText);
    });
    if (isKnown)
        *isKnown = row != std::end(rows);
    return row == std::end(rows) ? std::rbegin(rows)->value : row->value;
}

/// The value of a text in the flat record.
template <typename Value, std::size_t Size>
Value valueInRecord(const Row<Value> (&rows)[Size], const QString& text)
{
    for (const Row<Value>& row : rows) {
        if (!row.texts[FlatRecord].isEmpty() && text == row.texts[FlatRecord])
            return row.value;
    }
    return std::rbegin(rows)->value;
}

} // namespace SerialPortTexts
