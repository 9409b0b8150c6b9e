#include "acceptorsettings.h"
#include "arrayfile.h"
#include "fault.h"
#include "filtersfile.h"
#include "fuzzing.h"
#include "replay.h"
#include "sessionline.h"
#include "settingscheck.h"
#include "settingsedit.h"

#include <QTemporaryFile>

namespace {

QString fileOf(QTemporaryFile& file, const QByteArray& text)
{
    CHECK(file.open() && file.resize(0) && file.write(text) == text.size() && file.flush());
    return file.fileName();
}

void checkSession(const QByteArray& text, const QString& filtersFile)
{
    Replay replay(loadFilters, filtersFile);
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

void checkSettings(const QString& fileName)
{
    try {
        const ArrayFile file(fileName, QStringLiteral("settings"));
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

void printError(const QString& /*message*/) { }

// Bytes before the first zero are a filters file, then a settings file, then a session.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QList<QByteArray> parts = input.split('\0');
    static QTemporaryFile filtersFile;
    static QTemporaryFile settingsFile;
    const QString filters = fileOf(filtersFile, parts.value(0));
    const QString settings = fileOf(settingsFile, parts.value(1));
    try {
        checkSession(parts.value(2), filters);
    } catch (const Fault& fault) {
        CHECK(fault.message.startsWith(filters));
    }
    try {
        FilterChain chain;
        filtersOfSettings(settings, chain);
    } catch (const Fault& fault) {
        CHECK(fault.message.startsWith(settings));
    }
    checkSettings(settings);
    AcceptorSettings().setList({});
    return 0;
}
