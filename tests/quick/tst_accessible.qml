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

    property string chosen: ""

    Component { id: prompt; PaymentPrompt { width: 900; service: kiosk } }
    Component { id: strip; MoneyStrip { width: 900; service: kiosk } }
    Component { id: note; NoteBanner { width: 900; service: kiosk; contact: "8 800" } }
    Component { id: fault; FaultBanner { width: 900; service: kiosk } }
    Component { id: cards; DeviceCards { width: 900; height: 700; service: kiosk } }
    Component { id: money; OpenMoney { width: 900; service: kiosk } }
    Component { id: gate; PinGate { width: 900; height: 700; lock: staffLock; onOpened: test.chosen = "opened" } }
    Component { id: form; SettingsForm { width: 900; height: 700; settings: list } }
    Component {
        id: language
        LanguageKey {
            languages: [{code: "en", name: "English"}, {code: "ru", name: "По-русски"}, {code: "de", name: "Deutsch"}]
            current: "en"
            onChosen: code => test.chosen = code
        }
    }

    function init() {
        chosen = "";
    }

    function read() {
        return host.accessibles(test.Window.window).map(line => line.replace(/\u00a0/g, " "));
    }

    // What of it has to be there, as parts of lines.
    function test_everyControlSaysWhatItIs_data() {
        return [
            {make: prompt, tag: "prompt", says: ["AlertMessage: Input money", "Graphic: Notes"]},
            {make: strip, tag: "strip", says: ["StatusBar: Left to pay: 2,510", "Paid: 0 of 2,510"]},
            {make: note, tag: "note", says: ["AlertMessage: The device failed with your note of 1,000", "No. 0418-0001", "Help: 8 800"]},
            {make: fault, tag: "fault", says: ["AlertMessage: Bill validator (CCNet)", "Other faults: 1"]},
            {make: cards, tag: "cards", says: ["List: Devices: 2, with faults: 1", "Grouping: Note recycler",
                                               "Indicator: Stacker full: on", "Indicator: Offline: off",
                                               "Table: Content by the device", "Row: Cassette 1, 100 RUB, 24, 2"]},
            {make: money, tag: "money", says: ["AlertMessage: Bill validator (CCNet)", "No. 0418-0001", "Button: Settled"]},
            {make: gate, tag: "gate", says: ["StaticText: Digits entered: 0", "Button: 1", "Button: Delete", "Button: OK"]},
            {make: form, tag: "form", says: ["Form: Settings", "EditableText: Response time", "AlertMessage: Enter a whole number",
                                             "RadioButton: Interface: tcp"]},
            {make: language, tag: "language", says: ["Button: По-русски", "Button: Deutsch"]}
        ];
    }

    function test_everyControlSaysWhatItIs(row) {
        createTemporaryObject(row.make, test);
        tryVerify(() => row.says.every(part => read().some(line => line.includes(part))), 1000, read().join("\n"));
        compare(read().filter(line => line.trim().endsWith(":")), []); // nothing without a name
    }

    function test_readerPressesKeys() {
        createTemporaryObject(language, test);
        verify(host.press(test.Window.window, "Button: По-русски"));
        compare(chosen, "ru");
        createTemporaryObject(gate, test);
        for (const key of ["1", "2", "3", "4"])
            verify(host.press(test.Window.window, "Button: " + key), key);
        verify(read().includes("StaticText: Digits entered: 4"), read().join("\n"));
        verify(host.press(test.Window.window, "Button: OK"));
        compare(chosen, "opened");
        createTemporaryObject(form, test);
        verify(host.press(test.Window.window, "RadioButton: Parity: odd"));
        compare(list.values["device0/hw_interface/parity"], "odd");
        verify(host.press(test.Window.window, "RadioButton: Parity: odd")); // which it stays
        compare(list.values["device0/hw_interface/parity"], "odd");
    }
}
