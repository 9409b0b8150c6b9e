// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#pragma once

#include <sanitizer/lsan_interface.h>

#include <QByteArray>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSet>
#include <QString>
#include <QVariant>

#include "json/jsonreader.h"

#include <cstdint>
#include <cstdio>
#include <cstdlib>

/// Ends the program, which the fuzzer reports with its input, unless a property holds.
#define CHECK(property)                                                                            \
    do {                                                                                           \
        if (!(property)) {                                                                         \
            std::fprintf(stderr, "%s:%d: does not hold: %s\n", __FILE__, __LINE__, #property);     \
            std::abort();                                                                          \
        }                                                                                          \
    } while (false)

/// Keeps the library's log lines out of the fuzzer's output.
inline void silenceLog()
{
    static const QtMessageHandler silent = [](QtMsgType, const QMessageLogContext&,
                                              const QString&) {};
    qInstallMessageHandler(silent);
}

/// Qt's reading of JSON text. Its parser leaks when a key stands twice, which is not looked at.
inline QVariant qtJson(const QByteArray& text, bool* isJson = nullptr)
{
    const __lsan::ScopedDisabler disabler;
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text, &error);
    if (isJson)
        *isJson = error.error == QJsonParseError::NoError;
    return document.toVariant();
}

/// Reads a value and sets @p doubled if an object in it has a key twice for Qt, to which keys are
/// the same up to a NUL, and half a surrogate pair is the replacement character.
inline bool readLookingForDoubledKeys(JsonReader& json, bool& doubled)
{
    QSet<QByteArray> keys;
    const auto readElement = [&] { return readLookingForDoubledKeys(json, doubled); };
    const auto readMember = [&](QStringView view) {
        const QString key = view.toString();
        const QString compared =
            key.left(key.indexOf(QChar(0))).replace(QChar(0xfffd), QChar(u'?'));
        const auto count = keys.size();
        keys.insert(compared.toUtf8());
        doubled = doubled || keys.size() == count;
        return readElement();
    };
    if (json.isAtObject())
        return json.readObject(readMember);
    return json.isAtArray() ? json.readArray(readElement) : json.skipValue();
}

/// Whether JSON text has a doubled key: which of the values Qt's parser then keeps depends on how
/// its sorting goes, while the library keeps the last.
inline bool hasDoubledKeys(const QString& text)
{
    JsonReader json(text);
    bool doubled = false;
    readLookingForDoubledKeys(json, doubled);
    return doubled;
}

/// The input as bytes that a target takes apart; what is used up reads as 0.
class Bytes
{
public:
    Bytes(const std::uint8_t* data, std::size_t size)
        : m_data(data)
        , m_end(data + size)
    {
    }

    bool atEnd() const { return m_data == m_end; }
    std::uint8_t byte() { return atEnd() ? std::uint8_t(0) : *m_data++; }

    /// A number that is often small or at the end of its range.
    qint32 number()
    {
        static constexpr qint32 likely[] = {0, 1, 2, 100, 500, 1000, INT32_MAX, INT32_MIN};
        const std::uint8_t kind = byte();
        if (kind < 128)
            return likely[kind % 8];
        const quint32 high = byte();
        const quint32 low = byte();
        return static_cast<qint32>((high << (kind % 24)) ^ low);
    }

private:
    const std::uint8_t* m_data;
    const std::uint8_t* m_end;
};

/// The input as JSON; null when it is none.
inline QVariant jsonInput(const std::uint8_t* data, std::size_t size)
{
    return qtJson(QByteArray(reinterpret_cast<const char*>(data), static_cast<int>(size)));
}

inline QString textInput(const std::uint8_t* data, std::size_t size)
{
    return QString::fromUtf8(reinterpret_cast<const char*>(data), static_cast<int>(size));
}
