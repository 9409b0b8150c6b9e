#include "acceptorsettings.h"
#include "arrayfile.h"
#include "fault.h"
#include "filtersfile.h"
#include "fuzzing.h"
#include "replay.h"
#include "sessionline.h"
#include "settingscheck.h"
#include "settingsedit.h"

#include <QBuffer>

namespace {

ArrayFile arrayFile(const QByteArray& text, const char* name)
{
    auto device = std::make_unique<QBuffer>();
    device->setData(text);
    CHECK(device->open(QIODevice::ReadOnly));
    TextInput input(std::move(device), QLatin1String(name));
    return {input, QLatin1String(name)};
}

void checkSession(const QByteArray& text, const ArrayFile& filters)
{
    Replay replay(loadFilters, filters);
    for (const QByteArray& line : text.split('\n')) {
        try {
            const QJsonObject object = QJsonDocument::fromJson(line).object();
            const SessionLine session(object);
            // What a line says is what the state then holds.
            DeviceState state;
            session.applyTo(state);
            const QJsonObject taken = QJsonObject::fromVariantMap(state.toMap());
            for (auto field = object.begin(); field != object.end(); ++field) {
                const bool isEmptyList =
                    field.value().isArray() && field.value().toArray().isEmpty();
                CHECK(field.key() == QLatin1String("session") || isEmptyList
                      || field.value().isArray() || taken.value(field.key()) == field.value());
            }
            const ReplayStep step = replay.take(session);
            CHECK((step.verdict == AbstractFilter::FILTER_ACCEPT) == !step.refusedBy);
        } catch (const Fault& fault) {
            CHECK(!fault.message.isEmpty());
        }
    }
}

void checkSettings(const ArrayFile& file)
{
    try {
        checkSettings(file);
        const QJsonArray edited = editSettings(file.elements(), {});
        CHECK(edited == file.elements());
        const Assignment sum{QStringLiteral("acceptor_common"), QStringLiteral("maxSumm"),
                             QStringLiteral("12345")};
        AcceptorSettings().setList(editSettings(file.elements(), {sum}).toVariantList());
        CHECK(AcceptorSettings::maxSumm() == 12345);
    } catch (const Fault& fault) {
        CHECK(!fault.message.isEmpty());
    }
}

} // namespace

// Bytes before the first zero are a filters file, then a settings file, then a session.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QList<QByteArray> parts = input.split('\0');
    try {
        checkSession(parts.value(2), arrayFile(parts.value(0), "filters"));
    } catch (const Fault& fault) {
        CHECK(fault.message.startsWith(QLatin1String("filters")));
    }
    try {
        const ArrayFile settings = arrayFile(parts.value(1), "settings");
        checkSettings(settings);
        FilterChain chain;
        filtersOfSettings(settings, chain);
    } catch (const Fault& fault) {
        CHECK(fault.message.startsWith(QLatin1String("settings")));
    }
    AcceptorSettings().setList({});
    return 0;
}
