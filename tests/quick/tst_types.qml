// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtTest 1.15
import Velmolib 5.0

TestCase {
    id: test
    name: "Types"

    Catalogue {
        id: catalogue
    }

    SettingDescriptions {
        id: settings
    }

    function test_configurationScreensAskTheModule() {
        compare(catalogue.count, 13);
        compare(catalogue.deviceName(7), "Note recycler (JCM iPRO ID003)");
        compare(catalogue.get(0).modelName, "Ardac Elite ID 003");
        compare(catalogue.get(99), {});
        const services = settings.count;
        verify(services > 0);
        settings.device = 2;
        settings.model = 1;
        const groups = [];
        for (let row = 0; row < settings.count; ++row)
            groups.push(settings.get(row).group);
        verify(groups.every(group => group.startsWith("device2/")), groups);
        verify(groups.includes("device2/ccnet"));
        const keys = () => Array.from({length: settings.count}, (_, row) => settings.get(row).key);
        settings.interfaceType = "tcp";
        verify(keys().includes("tcp_host") && !keys().includes("portname"), keys());
        settings.interfaceType = "rs232";
        verify(keys().includes("portname") && !keys().includes("tcp_host"), keys());
        settings.model = 200;
        verify(settings.count > 0 && settings.count !== groups.length);
        compare(settings.accepts("device2/ccnet", "response_time", "x"), false);
        compare(settings.accepts("device2/ccnet", "response_time", "20"), true);
        compare(settings.readAs("device2/ccnet", "response_time", "x"), "0");
    }
}
