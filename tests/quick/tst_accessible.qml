// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Window 2.15
import QtTest 1.15
import Velmolib 5.0
import Velmolib.Controls 5.0

// The controls as a screen reader finds them.
TestCase {
    id: test
    name: "Accessible"
    when: windowShown
    width: 1000
    height: 800
    visible: true

    ServiceState {
        id: kiosk
        text: JSON.stringify({
            device_states: [
                {device_id: 1, thread_id: 1, enabled: true, state: "idling"},
                {device_id: 7, thread_id: 2, enabled: true, state: "idling", stacker_full: true,
                 dispenser_registry: [{bill_type: 0, channel: 1, denomination: 100, currency: "RUB", count: 24, rejected: 2}]}],
            incidents: [{number: "0418-0001", device_id: 1, thread_id: 1, denomination: 1000, currency: "RUB",
                         time: "2026-11-26T13:05:00.123Z", settled: false}]
        })
        locale: "en"
        price: 2510
    }
    PinLock {
        id: staffLock
        pin: "1234"
    }
    SettingDescriptions {
        id: list
        device: 0
        model: 1
        values: ({"device0/ccnet/response_time": "soon"})
    }

    Component { id: prompt; PaymentPrompt { width: 900; service: kiosk } }
    Component { id: strip; MoneyStrip { width: 900; service: kiosk } }
    Component { id: note; NoteBanner { width: 900; service: kiosk; contact: "8 800" } }
    Component { id: fault; FaultBanner { width: 900; service: kiosk } }
    Component { id: card; DeviceCard { width: 900; service: kiosk; entry: kiosk.devices.get(1) } }
    Component { id: cards; DeviceCards { width: 900; height: 700; service: kiosk } }
    Component { id: money; OpenMoney { width: 900; service: kiosk } }
    Component { id: gate; PinGate { width: 900; height: 700; lock: staffLock } }
    Component { id: form; SettingsForm { width: 900; height: 700; settings: list } }
    Component { id: language; LanguageKey { languages: [{code: "en", name: "English"}, {code: "ru", name: "По-русски"}]; current: "en" } }

    function test_everyControlSaysWhatItIs_data() {
        return [
            {tag: "prompt", make: prompt},
            {tag: "strip", make: strip},
            {tag: "note", make: note},
            {tag: "fault", make: fault},
            {tag: "card", make: card},
            {tag: "cards", make: cards},
            {tag: "money", make: money},
            {tag: "gate", make: gate},
            {tag: "form", make: form},
            {tag: "language", make: language}
        ];
    }

    function test_everyControlSaysWhatItIs(row) {
        const control = createTemporaryObject(row.make, test);
        waitForRendering(control);
        const lines = host.accessibles(test.Window.window);
        console.log("\n" + lines.join("\n"));
    }
}
