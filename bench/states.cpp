// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// Device and service states as JSON text: the library, and the same work with what people would use
// instead, from and to the same records and texts.

#include "benching.h"

#include <nlohmann/json.hpp>
#include <rapidjson/document.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#include <simdjson.h>

namespace {

using Utf16 = rapidjson::UTF16<char16_t>;

template <typename Writer>
void rapidString(Writer& writer, const QString& text)
{
    writer.String(reinterpret_cast<const char16_t*>(text.utf16()), unsigned(text.size()));
}

template <typename Writer>
void rapidWrite(Writer& w, const DeviceState& s)
{
    w.StartObject();
    w.Key(u"cash"), w.Uint(s.cash);
    w.Key(u"current_channel"), w.Int(s.currentChannel);
    w.Key(u"current_note"), w.Int(s.currentNote);
    w.Key(u"device_id"), w.Uint(s.deviceId);
    w.Key(u"dispensed_sum"), w.Uint(s.dispensedSum);
    if (!s.dispenserRegistry.isEmpty()) {
        w.Key(u"dispenser_registry"), w.StartArray();
        for (const DispenserRegistryItem& row : s.dispenserRegistry) {
            w.StartObject();
            w.Key(u"bill_type"), w.Int(row.billType);
            w.Key(u"channel"), w.Int(row.channel);
            w.Key(u"count"), w.Int(row.count);
            w.Key(u"currency"), rapidString(w, row.currency);
            w.Key(u"denomination"), w.Int(row.denomination);
            w.Key(u"device_id"), w.Int(row.deviceId);
            w.Key(u"rejected"), w.Int(row.rejected);
            w.Key(u"thread_id"), w.Int(row.threadId);
            w.EndObject();
        }
        w.EndArray();
    }
    w.Key(u"enabled"), w.Bool(s.enabled);
    w.Key(u"error_critical"), w.Bool(s.errCritical);
    w.Key(u"error_text"), rapidString(w, s.errorText);
    w.Key(u"halt"), w.Bool(s.halt);
    w.Key(u"id_string"), rapidString(w, s.idString);
    w.Key(u"online"), w.Bool(s.online);
    w.Key(u"session_sum"), w.Int(s.sessionSum);
    w.Key(u"stacker_full"), w.Bool(s.stackerFull);
    w.Key(u"stacker_present"), w.Bool(s.stackerPresent);
    w.Key(u"state"), rapidString(w, s.stateAsString());
    w.Key(u"state_text"), rapidString(w, s.stateText);
    w.Key(u"thread_id"), w.Uint(s.threadId);
    w.EndObject();
}

QString rapidSerialize(const DeviceState& state)
{
    rapidjson::GenericStringBuffer<Utf16> buffer;
    rapidjson::Writer<decltype(buffer), Utf16, Utf16> writer(buffer);
    rapidWrite(writer, state);
    return QString(reinterpret_cast<const QChar*>(buffer.GetString()),
                   int(buffer.GetSize() / sizeof(char16_t)));
}

bool rapidParse(DeviceState& s, const QString& text)
{
    rapidjson::GenericDocument<Utf16> d;
    d.Parse(reinterpret_cast<const char16_t*>(text.utf16()));
    if (d.HasParseError() || !d.IsObject())
        return false;
    const auto string = [&d](const char16_t* key) {
        const auto& value = d[key];
        return QString(reinterpret_cast<const QChar*>(value.GetString()),
                       int(value.GetStringLength()));
    };
    s.enabled = d[u"enabled"].GetBool();
    if (!DeviceState::stateFromString(string(u"state"), s.state))
        return false;
    s.stackerPresent = d[u"stacker_present"].GetBool();
    s.stackerFull = d[u"stacker_full"].GetBool();
    s.cash = d[u"cash"].GetUint();
    s.errorText = string(u"error_text");
    s.errCritical = d[u"error_critical"].GetBool();
    s.halt = d[u"halt"].GetBool();
    s.stateText = string(u"state_text");
    s.threadId = d[u"thread_id"].GetUint();
    s.deviceId = d[u"device_id"].GetUint();
    s.sessionSum = d[u"session_sum"].GetInt();
    s.currentNote = d[u"current_note"].GetInt();
    s.currentChannel = static_cast<qint16>(d[u"current_channel"].GetInt());
    s.dispensedSum = d[u"dispensed_sum"].GetUint();
    s.idString = string(u"id_string");
    s.online = d[u"online"].GetBool();
    return true;
}

bool nlohmannParse(DeviceState& s, const QString& text)
{
    const nlohmann::json d = nlohmann::json::parse(text.toStdString(), nullptr, false);
    if (!d.is_object())
        return false;
    const auto string = [&d](const char* key) {
        return QString::fromStdString(d[key].get_ref<const std::string&>());
    };
    s.enabled = d["enabled"];
    if (!DeviceState::stateFromString(string("state"), s.state))
        return false;
    s.stackerPresent = d["stacker_present"];
    s.stackerFull = d["stacker_full"];
    s.cash = d["cash"];
    s.errorText = string("error_text");
    s.errCritical = d["error_critical"];
    s.halt = d["halt"];
    s.stateText = string("state_text");
    s.threadId = d["thread_id"];
    s.deviceId = d["device_id"];
    s.sessionSum = d["session_sum"];
    s.currentNote = d["current_note"];
    s.currentChannel = d["current_channel"];
    s.dispensedSum = d["dispensed_sum"];
    s.idString = string("id_string");
    s.online = d["online"];
    return true;
}

// Its text is UTF-8 with room after it, which whoever holds a QString must make. The keys are asked
// for in the order of the text, which suits it best.
bool simdParse(DeviceState& s, const QString& text)
{
    static simdjson::ondemand::parser parser; // which keeps its memory, as its authors advise
    const QByteArray utf8 = text.toUtf8();
    const simdjson::padded_string padded(utf8.constData(), size_t(utf8.size()));
    simdjson::ondemand::document document;
    if (parser.iterate(padded).get(document) != simdjson::SUCCESS)
        return false;
    const auto number = [&document](const char* key) { return document[key].get_int64().value(); };
    const auto boolean = [&document](const char* key) { return document[key].get_bool().value(); };
    const auto string = [&document](const char* key) {
        const std::string_view value = document[key].get_string();
        return QString::fromUtf8(value.data(), int(value.size()));
    };
    try {
        s.cash = quint32(number("cash"));
        s.currentChannel = qint16(number("current_channel"));
        s.currentNote = int(number("current_note"));
        s.deviceId = quint32(number("device_id"));
        s.dispensedSum = quint32(number("dispensed_sum"));
        s.enabled = boolean("enabled");
        s.errCritical = boolean("error_critical");
        s.errorText = string("error_text");
        s.halt = boolean("halt");
        s.idString = string("id_string");
        s.online = boolean("online");
        s.sessionSum = int(number("session_sum"));
        s.stackerFull = boolean("stacker_full");
        s.stackerPresent = boolean("stacker_present");
        if (!DeviceState::stateFromString(string("state"), s.state))
            return false;
        s.stateText = string("state_text");
        s.threadId = quint32(number("thread_id"));
        return true;
    } catch (const simdjson::simdjson_error&) {
        return false;
    }
}

bool plainParse(DeviceState& state, const QString& text)
{
    QJsonParseError error;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8(), &error);
    return error.error == QJsonParseError::NoError && state.fromMap(document.toVariant().toMap());
}

QString librarySerialize(const DeviceState& state)
{
    return state.serialize();
}

QString plainSerialize(const DeviceState& state)
{
    return plainJson(state.toMap());
}

bool libraryParse(DeviceState& state, const QString& text)
{
    return state.parse(text);
}

template <auto Serialize>
void serialize(benchmark::State& bench)
{
    const DeviceState state = sampleState(static_cast<int>(bench.range(0)));
    mustBeEqual(Serialize(state) == plainSerialize(state), "serialize");
    const CountAllocations count(bench);
    for (auto _ : bench)
        benchmark::DoNotOptimize(Serialize(state));
}

template <auto Parse>
void parse(benchmark::State& bench)
{
    // Texts that are the same as before are kept by the library: here they never are.
    DeviceState other = sampleState(static_cast<int>(bench.range(0)));
    other.state = STATE_STACKED;
    other.stateText = QStringLiteral("note in the stacker");
    other.idString = QStringLiteral("IPRO-RC-100 041803");
    const QString texts[] = {sampleState(static_cast<int>(bench.range(0))).serialize(),
                             other.serialize()};
    DeviceState state;
    mustBeEqual(Parse(state, texts[0]) && state == sampleState(0), "parse");
    const CountAllocations count(bench);
    int turn = 0;
    for (auto _ : bench)
        benchmark::DoNotOptimize(Parse(state, texts[++turn % 2]));
}

QString serviceText()
{
    QVariantList devices;
    for (int i = 0; i < 8; ++i)
        devices.append(sampleState(8).toMap());
    return plainJson({{QStringLiteral("device_states"), devices}});
}

AcceptorState libraryLoad(const QString& text)
{
    AcceptorState state;
    AcceptorState::loadFromClientState(quorbus::ClientState(text, {}), state);
    return state;
}

AcceptorState plainLoad(const QString& text)
{
    AcceptorState state;
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    AcceptorState::loadFromStateMap(document.toVariant().toMap(), state);
    return state;
}

// Into the same entries, the rows as variant maps under their composite keys.
AcceptorState nlohmannLoad(const QString& text)
{
    const nlohmann::json d = nlohmann::json::parse(text.toStdString(), nullptr, false);
    const auto string = [](const nlohmann::json& value) {
        return QString::fromStdString(value.get_ref<const std::string&>());
    };
    QList<AcceptorStateItem> devices;
    for (const nlohmann::json& device : d["device_states"]) {
        AcceptorStateItem item;
        item.setDeviceId(device["device_id"]);
        item.setThreadId(device["thread_id"]);
        item.setEnabled(device["enabled"]);
        item.setState(string(device["state"]));
        item.setStateText(string(device["state_text"]));
        item.setStackerPresent(device["stacker_present"]);
        item.setStackerFull(device["stacker_full"]);
        item.setErrorCritical(device["error_critical"]);
        item.setErrorText(string(device["error_text"]));
        item.setHalt(device["halt"]);
        item.setIdString(string(device["id_string"]));
        QVariantMap registry;
        for (const nlohmann::json& row : device["dispenser_registry"]) {
            const auto number = [&row](const char* key) { return row[key].get<qlonglong>(); };
            const QString currency = string(row["currency"]);
            registry.insert(QStringLiteral("%1_%2_%3_%4")
                                .arg(QString::number(number("bill_type")),
                                     QString::number(number("channel")),
                                     QString::number(number("denomination")), currency),
                            QVariantMap{{QStringLiteral("bill_type"), number("bill_type")},
                                        {QStringLiteral("count"), number("count")},
                                        {QStringLiteral("currency"), currency},
                                        {QStringLiteral("denomination"), number("denomination")},
                                        {QStringLiteral("rejected"), number("rejected")}});
        }
        item.setDispRegistry(registry);
        devices.append(item);
    }
    AcceptorState state;
    state.setDeviceStates(devices);
    return state;
}

template <auto Load>
void load(benchmark::State& bench)
{
    const QString text = serviceText();
    const AcceptorState expected = plainLoad(text);
    const AcceptorState loaded = Load(text);
    mustBeEqual(loaded.systemStatusDescr({}) == expected.systemStatusDescr({})
                    && loaded.deviceStates().constLast().dispRegistry()
                        == expected.deviceStates().constLast().dispRegistry(),
                "service state");
    const CountAllocations count(bench);
    for (auto _ : bench)
        benchmark::DoNotOptimize(Load(text));
}

} // namespace

BENCHMARK(serialize<librarySerialize>)->Name("serialize/library")->Arg(0)->Arg(8);
BENCHMARK(serialize<rapidSerialize>)->Name("serialize/rapidjson")->Arg(0)->Arg(8);
BENCHMARK(serialize<plainSerialize>)->Name("serialize/qt")->Arg(0)->Arg(8);
BENCHMARK(parse<libraryParse>)->Name("parse/library")->Arg(0)->Arg(8);
BENCHMARK(parse<rapidParse>)->Name("parse/rapidjson")->Arg(0)->Arg(8);
BENCHMARK(parse<simdParse>)->Name("parse/simdjson")->Arg(0)->Arg(8);
BENCHMARK(parse<nlohmannParse>)->Name("parse/nlohmann")->Arg(0)->Arg(8);
BENCHMARK(parse<plainParse>)->Name("parse/qt")->Arg(0)->Arg(8);
BENCHMARK(load<libraryLoad>)->Name("service_state/library");
BENCHMARK(load<nlohmannLoad>)->Name("service_state/nlohmann");
BENCHMARK(load<plainLoad>)->Name("service_state/qt");
