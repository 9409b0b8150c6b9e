// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorsettings.h"
#include "filtersfile.h"
#include "fuzzing.h"
#include "log/explanation.h"
#include "log/replay.h"
#include "settings/arrayfile.h"
#include "settings/settingscheck.h"
#include "settings/settingsedit.h"
#include "settings/settingslist.h"
#include "text/fault.h"

#include <QBuffer>

#include <algorithm>

namespace {

ArrayFile arrayFile(const QByteArray& text, const char* name)
{
    auto device = std::make_unique<QBuffer>();
    device->setData(text);
    CHECK(device->open(QIODevice::ReadOnly));
    TextInput input(std::move(device), QLatin1String(name));
    return {input, QLatin1String(name)};
}

// What a report says is what the state then holds.
void checkReport(const SessionLine& line, const QString& text)
{
    if (line.isPublished() || hasDoubledKeys(text))
        return;
    DeviceState state;
    line.reports().front().applyTo(state);
    const QJsonObject said = QJsonDocument::fromJson(text.toUtf8()).object();
    const QJsonObject taken = QJsonObject::fromVariantMap(state.toMap());
    for (auto field = said.begin(); field != said.end(); ++field) {
        CHECK(field.key() == QLatin1String("session") || field.key() == QLatin1String("time")
              || field.key() == QLatin1String("kiosk") || field.value().isArray()
              || taken.value(field.key()) == field.value());
    }
}

void checkAnswer(const NoteAnswer& answer, qint64& lastLine)
{
    CHECK(answer.line >= lastLine);
    lastLine = answer.line;
    CHECK((answer.outcome == Outcome::Refused) == !answer.objections.isEmpty());
    for (const Objection& objection : answer.objections) {
        CHECK(std::is_sorted(objection.evidence.begin(), objection.evidence.end()));
        CHECK(objection.evidence.isEmpty() || objection.evidence.constLast() <= answer.line);
    }
    CHECK(answer.text().startsWith(answer.headline()));
}

void checkSession(const QByteArray& text, const FilterSet& filters)
{
    Replay replay(filters);
    qint64 lastLine = 0;
    LogExplainer explainer(filters,
                           [&](const NoteAnswer& answer) { checkAnswer(answer, lastLine); });
    qint64 number = 0;
    for (const QByteArray& bytes : text.split('\n')) {
        const QString line = QString::fromUtf8(bytes);
        ++number;
        try {
            const SessionLine said(line);
            checkReport(said, line);
            explainer.take(said, number);
            for (const ReplayStep& step : replay.take(said, number))
                CHECK((step.verdict == ReplayStep::Refused) == (step.refusedBy != nullptr));
        } catch (const Fault& fault) {
            CHECK(!fault.message.isEmpty());
            explainer.skipLine();
        }
    }
    explainer.finish();
}

// However it is compressed or broken.
void checkText(const QByteArray& bytes)
{
    auto device = std::make_unique<QBuffer>();
    device->setData(bytes);
    CHECK(device->open(QIODevice::ReadOnly));
    TextInput input(std::move(device), QStringLiteral("text"));
    try {
        QByteArray line;
        while (input.readLine(line))
            CHECK(!line.contains('\n'));
    } catch (const Fault& fault) {
        CHECK(fault.message.startsWith(QLatin1String("text:")));
    }
}

void checkSettingsFile(const ArrayFile& file)
{
    try {
        checkSettings(file);
        SettingsEdit edit(file);
        CHECK(edit.file().text() == file.text());
        edit.set({{QStringLiteral("acceptor_common/maxSumm"), QStringLiteral("12345")}});
        AcceptorSettings().setList(edit.file().values());
        CHECK(AcceptorSettings::maxSumm() == 12345);
        const auto devices = SettingsList(file).devices();
        CHECK(SettingsList(edit.file()).devices().keys() == devices.keys());
    } catch (const Fault& fault) {
        CHECK(!fault.message.isEmpty());
    }
}

} // namespace

// Bytes before the first zero are a filters file, then a settings file, then a session log. All are
// also read as a text, which may be compressed.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    silenceLog();
    const QByteArray input(reinterpret_cast<const char*>(data), static_cast<int>(size));
    const QList<QByteArray> parts = input.split('\0');
    try {
        checkSession(parts.value(2),
                     filterSetOf(arrayFile(parts.value(0), "filters"), ListKind::Filters));
    } catch (const Fault& fault) {
        CHECK(fault.message.startsWith(QLatin1String("filters")));
    }
    try {
        const ArrayFile settings = arrayFile(parts.value(1), "settings");
        checkSettingsFile(settings);
        CHECK(filterSetOf(settings, ListKind::Settings).rules().size() > 0);
    } catch (const Fault& fault) {
        CHECK(fault.message.startsWith(QLatin1String("settings")));
    }
    AcceptorSettings().setList({});
    checkText(input);
    return 0;
}
