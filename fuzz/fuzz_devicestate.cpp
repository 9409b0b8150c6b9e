// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "devicestate.h"
#include "fuzzing.h"

namespace {

// How parse() is described: Qt's reading of the text, then the map's.
bool plainParse(DeviceState& state, const QString& text)
{
    bool isJson = false;
    const QVariantMap map = qtJson(text.toUtf8(), &isJson).toMap();
    return isJson && state.fromMap(map);
}

QString plainSerialize(const DeviceState& state)
{
    const QJsonDocument document(QJsonObject::fromVariantMap(state.toMap()));
    return QString::fromUtf8(document.toJson(QJsonDocument::Compact));
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    // Odd inputs are taken as UTF-16, which can hold lone surrogates.
    const QString text = size % 2 == 1 && size > 2 && data[0] == 0xff
        ? QString(reinterpret_cast<const QChar*>(data + 1), static_cast<int>(size / 2))
        : textInput(data, size);
    DeviceState state;
    DeviceState reference;
    state.deviceId = reference.deviceId = 77;
    state.stateText = reference.stateText = QStringLiteral("idle"); // which a text may have too
    const bool accepted = state.parse(text);
    if (!hasDoubledKeys(text)) {
        CHECK(accepted == plainParse(reference, text));
        CHECK(state == reference);
        for (const auto field :
             {&DeviceState::errorText, &DeviceState::stateText, &DeviceState::idString})
            CHECK((state.*field).isNull() == (reference.*field).isNull());
    }
    const DeviceState once = state;
    CHECK(state.parse(text) == accepted);
    CHECK(state == once);

    const DeviceState before = state;
    const QString written = state.serialize();
    CHECK(state == before);
    CHECK(written == plainSerialize(state));
    DeviceState read;
    CHECK(read.parse(written));
    CHECK(read.toMap() == state.toMap() || read.serialize() == written);

    DeviceState fromMap;
    CHECK(fromMap.fromMap(state.toMap()));
    CHECK(fromMap == state);
    return 0;
}
