// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// A program whose static object uses the library when Qt's own static objects are gone. It ends
// with an error unless every log line is then written as before.

#include "acceptorsettings.h"
#include "filterchain.h"
#include "filterfactory.h"
#include "logcapture.h"
#include "settingsmanager.h"
#include "testtable.h"

#include <cstdio>
#include <cstdlib>
#include <memory>

namespace {

struct Kiosk
{
    ~Kiosk()
    {
        const auto before = log.texts().size();
        chain->setEvents(&events)->validate();
        chain.reset();
        const QVariantMap setting{{"group"_s, "ccnet"_s}, {"key"_s, "a"_s}, {"value"_s, 15}};
        acceptorSettings::SettingsManager().load(quorbus::ClientSettings({setting}));
        const QStringList expected{"debug: Setting events source for the chain"_s,
                                   "debug: Accept filter"_s,
                                   "debug: Reject raised by accept filter"_s,
                                   "debug: Deleting filter chain"_s,
                                   "debug: Clearing chain"_s,
                                   "debug: Parsing settings list..."_s,
                                   "debug: Added [ccnet/a = 15]"_s};
        if (log.texts().mid(before) == expected
            && log.places().last().startsWith("default src/settings/settingsmanager.cpp "_s)
            && AcceptorSettings().fixedDeviceTypes() == QSet<int>{200, 201})
            return;
        std::fputs(log.texts().join(QLatin1Char('\n')).toUtf8().constData(), stderr);
        std::_Exit(1);
    }

    LogCapture log;
    StatesList events{DeviceState()};
    std::unique_ptr<FilterChain> chain;
} kiosk;

} // namespace

int main()
{
    kiosk.chain = std::make_unique<FilterChain>();
    kiosk.chain->add(FilterFactory::createFilter("AcceptFilter"_s, {{"acceptAll"_s, false}}));
    return AcceptorSettings().fixedDeviceTypes().isEmpty() ? 1 : 0;
}
