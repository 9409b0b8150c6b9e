// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtTest 1.15
import Velmolib 5.0
import Velmolib.Controls 5.0

// The controls of the screens for the staff, as the staff use them: with fingers and keys.
Item {
    id: root
    width: 1080
    height: 1920

    Component {
        id: lockComponent
        PinLock {}
    }
    Component {
        id: gateComponent
        PinGate {
            property int openings: 0
            property int cancels: 0
            width: 800
            height: 600
            onOpened: openings++
            onCancelled: cancels++
        }
    }
    Component {
        id: settingsComponent
        SettingDescriptions {}
    }
    Component {
        id: formComponent
        SettingsForm {
            width: 800
            height: 600
        }
    }
    Component {
        id: stateComponent
        ServiceState {}
    }
    Component {
        id: bannerComponent
        FaultBanner {
            width: 740
        }
    }
    Component {
        id: cardsComponent
        Column {
            id: cards
            property ServiceState service
            property var content: null
            property bool dimmed: false
            width: 740
            Repeater {
                model: cards.service ? cards.service.devices : null
                DeviceCard {
                    required property var model
                    objectName: "card"
                    width: cards.width
                    service: cards.service
                    entry: model
                    content: cards.content
                    dimmed: cards.dimmed
                }
            }
        }
    }

    Component {
        id: iconComponent
        KioskIcon {
            width: 60
            height: 60
            kind: "good"
        }
    }

    Component {
        id: listComponent
        Rectangle {
            width: 200
            height: 200
            Flickable {
                width: 200
                height: 100
                contentHeight: 200
                clip: true
                KioskIcon {
                    y: 140
                    width: 60
                    height: 60
                    kind: "lampOn"
                    color: "black"
                }
            }
        }
    }

    TestCase {
        id: test
        name: "ServiceControls"
        when: windowShown

        function cleanup() {
            KioskTheme.density = 3.78;
            KioskTheme.largeText = false;
        }

        // Everything below an item that is seen.
        function seen(item) {
            return Array.from(item.children).filter(child => child.visible).reduce(
                (found, child) => found.concat([child], seen(child)), []);
        }

        function named(item, name) {
            return seen(item).find(child => child.objectName === name) || null;
        }

        function isText(item) {
            return item instanceof KioskText;
        }

        function words(item) {
            return seen(item).filter(child => isText(child) && child.text !== "").map(child => child.text).join("\n");
        }

        function state(devices, more) {
            return createTemporaryObject(stateComponent, root, {text: text(devices, more)});
        }

        function text(devices, more) {
            return JSON.stringify(Object.assign({device_states: devices.map(
                device => Object.assign({thread_id: 1, enabled: true, state: "idling"}, device))}, more));
        }

        // Digits are typed, in <> is what is clicked, a letter is another key.
        function use(gate, steps) {
            const keys = {R: Qt.Key_Return, E: Qt.Key_Enter, B: Qt.Key_Backspace, X: Qt.Key_Escape, T: Qt.Key_Tab,
                          S: Qt.Key_Space};
            for (const step of steps.match(/<[^>]*>|./g)) {
                if (step === "H") {
                    gate.visible = false;
                    gate.visible = true;
                } else if (step.startsWith("<")) {
                    const key = named(gate, step.slice(1, -1));
                    verify(key, step);
                    mouseClick(key);
                } else {
                    keyClick(keys[step] || step);
                }
            }
        }

        function test_gateOpensToThePinAlone_data() {
            return [
                {tag: "keys", steps: "2468R", openings: 1},
                {tag: "fingers", steps: "<key-2><key-4><key-6><key-8><key-enter>", openings: 1},
                {tag: "Return after a finger", steps: "2<key-4>68R", openings: 1},
                {tag: "focus on the pad", steps: "TS246<key-8>", says: "enter the PIN", dots: 5},
                {tag: "pressed on and on", steps: "2468RRRE<key-enter>2468R", openings: 1},
                {tag: "erased", steps: "29B4<key-6>7<key-delete>8E", openings: 1},
                {tag: "wrong", steps: "2469R", says: "Wrong PIN. Try again."},
                {tag: "wrong, next try", steps: "2469R2", says: "enter the PIN", dots: 1},
                {tag: "a part of it", steps: "246R", says: "Wrong PIN. Try again."},
                {tag: "more than it", steps: "24680R", says: "Wrong PIN. Try again."},
                {tag: "nothing is no try", steps: "RRRR<key-enter>", says: "enter the PIN"},
                {tag: "right one in the wait", steps: "1R2R3R2468R<key-2><key-enter>", says: "Wrong PIN. Wait 30 s."},
                {tag: "hidden with digits", steps: "24H68R", says: "Wrong PIN"},
                {tag: "used anew", steps: "2468RHR", openings: 1, says: "enter the PIN"},
                {tag: "used twice", steps: "2468RH2468R", openings: 2},
                {tag: "Escape", steps: "24X", cancels: 1, says: "enter the PIN"},
                {tag: "Cancel", steps: "24<cancelKey>68R", cancels: 1, says: "Wrong PIN"},
                {tag: "no PIN", pin: "", steps: "R2468R0000RX<cancelKey>", cancels: 2, says: "/no/such/file", closed: true},
                {tag: "PIN of letters", pin: "abcd", steps: "R2468R", says: "stay closed", closed: true}
            ];
        }

        function test_gateOpensToThePinAlone(row) {
            const pin = row.pin === undefined ? "2468" : row.pin;
            const lock = createTemporaryObject(lockComponent, root, {file: "/no/such/file", pin: pin});
            const gate = createTemporaryObject(gateComponent, root, {lock: lock});
            use(gate, row.steps);
            compare(gate.openings, row.openings || 0);
            compare(gate.cancels, row.cancels || 0);
            verify(words(gate).includes(row.says || ""), words(gate));
            compare(named(gate, "pad") === null, row.closed === true);
            if (!row.closed) {
                compare(named(gate, "dots").Accessible.name, "Digits entered: " + (row.dots || 0));
            }
        }

        function test_gateWithoutALockStaysClosed() {
            const gate = createTemporaryObject(gateComponent, root);
            use(gate, "2468R");
            compare(gate.openings, 0);
            compare(named(gate, "pad"), null);
        }

        // Neither what is seen nor what a screen reader reads has two of the digits.
        function test_digitsStandNowhere() {
            const lock = createTemporaryObject(lockComponent, root, {pin: "2468"});
            const gate = createTemporaryObject(gateComponent, root, {lock: lock});
            use(gate, "24<key-6>8");
            compare(named(gate, "dots").Accessible.name, "Digits entered: 4");
            for (const item of [gate].concat(seen(gate))) {
                for (const said of [item.text, item.Accessible.name, item.Accessible.description, item.objectName]) {
                    verify(!/24|46|68/.test(said || ""), item + said);
                }
            }
        }

        function settingOf(form, path) {
            const row = seen(form).find(item => item.objectName === path);
            verify(row, path);
            return row;
        }

        function test_formByKeysAlone_data() {
            return [
                {tag: "number", path: "acceptor_common/maxSumm", keys: "500", value: "500"},
                {tag: "no number", path: "acceptor_common/maxSumm", keys: "5x", value: "5x", fault: "0 or more"},
                {tag: "out of range", path: "acceptor_common/reset_stats", keys: "7", value: "7", fault: "0 to 4"},
                {tag: "empty number", path: "service/devices_count", keys: "", value: "", fault: "0 to 32767"},
                {tag: "on", path: "acceptor_common/port_logging", choice: "choice-1", value: "1"},
                {tag: "off", path: "acceptor_common/acceptAll", choice: "choice-0", value: "0"},
                {tag: "choice", device: 1, path: "device1/hw_interface/parity", choice: "choice-even", value: "even"},
                {tag: "text", device: 1, path: "device1/hw_interface/portname", keys: "/dev/x", value: "/dev/x"},
                {tag: "no text", device: 1, path: "device1/hw_interface/portname", keys: "", value: undefined,
                 fault: "Enter a text"}
            ];
        }

        function test_formByKeysAlone(row) {
            const settings = createTemporaryObject(settingsComponent, root,
                                                   {device: row.device === undefined ? -1 : row.device, model: 1});
            const form = createTemporaryObject(formComponent, root, {settings: settings});
            form.forceActiveFocus();
            const setting = settingOf(form, row.path);
            const editor = named(setting, row.choice || "field");
            for (let presses = 0; !editor.activeFocus && presses < 100; ++presses) {
                keyClick(Qt.Key_Tab);
            }
            verify(editor.activeFocus);
            const top = editor.mapToItem(form, 0, 0).y;
            verify(top >= 0 && top + editor.height <= form.height, top); // the form moved to where the keys are
            if (row.choice) {
                keyClick(Qt.Key_Space);
                verify(editor.checked && editor.Accessible.checked);
            } else {
                keyClick(Qt.Key_A, Qt.ControlModifier);
                keyClick(Qt.Key_Backspace);
                for (const key of row.keys) {
                    keyClick(key);
                }
            }
            compare(settings.values[row.path], row.value);
            const fault = named(setting, "fault");
            compare(fault === null, row.fault === undefined);
            if (fault) {
                verify(fault.text.includes(row.fault), fault.text);
                compare(fault.kind, "bad");
                verify(editor.Accessible.description.includes(fault.text));
            }
            verify(editor.Accessible.name.startsWith(setting.label));
        }

        function test_formSaysWhatIsDefault_data() {
            return [
                {tag: "default", path: "acceptor_common/reset_stats", says: "0 to 4 · this is the default"},
                {tag: "given", path: "acceptor_common/reset_stats", value: "3", says: "0 to 4 · default: 0"},
                {tag: "switch", path: "acceptor_common/acceptAll", value: "0", says: "default: on"},
                {tag: "switch in other words", device: 0, path: "device0/debug/port_logging", value: "true",
                 says: "default: off", checked: "choice-1"},
                {tag: "no default", device: 0, path: "device0/hw_interface/portname", says: ""},
                {tag: "default that is none", device: 0, path: "device0/device/device_id", says: ""},
                {tag: "another spelling", device: 0, path: "device0/hw_interface/parity", value: "Even",
                 says: "default: none", checked: "choice-even"},
                {tag: "none of them", device: 0, path: "device0/hw_interface/parity", value: "maybe",
                 says: "default: none", fault: "“maybe” is none of the choices"}
            ];
        }

        function test_formSaysWhatIsDefault(row) {
            const values = {};
            if (row.value !== undefined) {
                values[row.path] = row.value;
            }
            const settings = createTemporaryObject(settingsComponent, root,
                {device: row.device === undefined ? -1 : row.device, model: 1, values: values});
            const form = createTemporaryObject(formComponent, root, {settings: settings});
            const setting = settingOf(form, row.path);
            const bounds = named(setting, "bounds");
            compare(bounds ? bounds.text : "", row.says);
            const checked = seen(setting).filter(item => item.checked).map(item => item.objectName);
            if (row.checked) {
                compare(checked, [row.checked]);
            } else if (row.fault) {
                compare(checked, []);
                verify(named(setting, "fault").text.includes(row.fault));
            }
        }

        function test_fieldFollowsWhatIsUndoneElsewhere() {
            const settings = createTemporaryObject(settingsComponent, root);
            const form = createTemporaryObject(formComponent, root, {settings: settings});
            const field = named(settingOf(form, "acceptor_common/maxSumm"), "field");
            field.forceActiveFocus();
            keyClick("5");
            verify(settings.values["acceptor_common/maxSumm"] !== undefined);
            settings.values = {};
            compare(field.text, "0");
        }

        function test_limitsAndRoutesAreReadOnly_data() {
            return [{tag: "acceptor_common/attempts_filter_settings"}, {tag: "dispenser/route_map"}];
        }

        function test_limitsAndRoutesAreReadOnly(row) {
            const values = {};
            values[row.tag] = "[<b>1</b>]";
            const settings = createTemporaryObject(settingsComponent, root, {values: values});
            const form = createTemporaryObject(formComponent, root, {settings: settings});
            const setting = settingOf(form, row.tag);
            compare(seen(setting).filter(item => item.activeFocusOnTab).length, 0);
            verify(words(setting).includes("[<b>1</b>]"));
            verify(words(setting).includes("velmo settings"));
            verify(words(setting).includes("cannot work with this"));
        }

        function test_worstFaultFirst_data() {
            const full = {device_id: 1, stacker_full: true};
            const offline = {device_id: 100, thread_id: 2, online: false};
            const disabled = {device_id: 200, thread_id: 3, enabled: false};
            return [
                {tag: "nothing", devices: [{device_id: 1}], kind: "good", says: "No device has a fault."},
                {tag: "one", devices: [full], kind: "warn", says: "The stacker is full.", others: ""},
                {tag: "three", devices: [full, disabled, offline], kind: "bad", says: "The device is offline.", others: "2"},
                {tag: "disabled", devices: [disabled], kind: "info", says: "The device is disabled.", others: ""},
                {tag: "lost", devices: [{device_id: 1}], set: {available: false}, kind: "bad", says: "does not answer"},
                {tag: "lost with a fault", devices: [offline], set: {available: false}, kind: "bad", says: "offline"},
                {tag: "stale", devices: [{device_id: 1}], set: {staleAfter: 1}, kind: "bad", says: "service"},
                {tag: "another text", devices: [{device_id: 1, error_critical: true, error_text: "motor"}],
                 then: [{device_id: 1, error_critical: true, error_text: "belt"}], kind: "bad", says: "belt"},
                {tag: "no device", devices: [], kind: "bad", says: "device"},
                {tag: "no state", devices: [{device_id: 1}], set: {text: "<b>"}, kind: "bad", says: "cannot be read"},
                {tag: "repaired", devices: [offline], then: [{device_id: 100, thread_id: 2}], kind: "good", says: "No device"},
                {tag: "worse", devices: [full], then: [full, offline], kind: "bad", says: "offline", others: "1"},
                {tag: "another", devices: [full], then: [{device_id: 1, halt: true}], kind: "bad", says: "halted", others: ""}
            ];
        }

        function test_worstFaultFirst(row) {
            const service = state(row.devices);
            const banner = createTemporaryObject(bannerComponent, root, {service: service});
            if (row.then) {
                wait(20);
                service.text = text(row.then);
            }
            Object.assign(service, row.set || {});
            tryVerify(() => banner.kind === row.kind && banner.Accessible.name.includes(row.says), 5000,
                      banner.Accessible.name);
            compare((banner.detail.match(/Other faults: (\d+)/) || ["", ""])[1], row.others || "");
        }

        // Qt 5 has no picture to look at without a screen.
        function test_iconThatChangedUnseenIsTheNewOne() {
            const icons = [createTemporaryObject(iconComponent, root), createTemporaryObject(iconComponent, root)];
            Object.assign(icons[1], {kind: "bad", x: 100});
            waitForRendering(icons[0]);
            icons[0].visible = false;
            icons[0].kind = "bad";
            wait(100);
            icons[0].visible = true;
            waitForRendering(icons[0]);
            verify(grabImage(icons[0]).equals(grabImage(icons[1])));
        }

        function test_iconsAreCutOffWithTheirList() {
            const list = createTemporaryObject(listComponent, root);
            waitForRendering(list);
            const image = grabImage(list);
            for (let at = 0; image.width > 0 && at < 60; ++at) {
                compare(image.pixel(at, 140 + at), Qt.rgba(1, 1, 1, 1), at);
            }
        }

        readonly property var everythingWrong: ({device_id: 1, state: "jammed", state_text: "<b>jam</b>", halt: true,
            online: false, error_critical: true, error_text: "<img src='http://127.0.0.1/x'>", stacker_full: true,
            stacker_present: false, id_string: "<i>id</i>"})
        readonly property var rubles: ({currency: "RUB", digits: 2})

        function test_cardSaysWhatLiesThere_data() {
            const registry = [
                {channel: 2, bill_type: 0, denomination: 100000, currency: "RUB", count: 1204, rejected: 3},
                {channel: 1, bill_type: 1, denomination: 500, currency: "EUR", count: 7, rejected: 0}];
            const places = [{place: "cassette", denomination: 10000, currency: "RUB", min: 160, max: 160},
                            {place: "channel", channel: 2, denomination: 500, currency: "EUR", min: 3, max: 5},
                            {place: "reject", denomination: 10000, currency: "RUB", min: 2}];
            const since = "2026-11-26T13:05:00.123Z";
            return [
                {tag: "registry", device: {dispenser_registry: registry}, money: rubles,
                 lines: ["Cassette 2, %1, 1,204, 3", "Hopper 1, 5.00 EUR, 7, 0"]},
                {tag: "no money", device: {dispenser_registry: registry},
                 lines: ["Cassette 2, 100,000 RUB, 1,204, 3", "Hopper 1, 500 EUR, 7, 0"]},
                {tag: "ledger first", device: {dispenser_registry: registry}, money: rubles, content: {places: places, pieces: []},
                 lines: ["Cassette, %2, 160", "Channel 2, 5.00 EUR, 3 to 5", "Rejects, %2, at least 2"]},
                {tag: "pieces", money: rubles, content: {places: [], pieces: [
                    {denomination: 100000, count: 1, stuck: true, since: since}, {count: 2, stuck: false, since: "<b>"}]},
                 lines: [], stuck: "Stuck: 1\u00a0×\u00a0%1, since ", onTheirWay: "On its way: 2\u00a0×\u00a0?, since ?"},
                {tag: "hostile", content: {places: [null, {place: "<b>", channel: "<b>", currency: "<b>", min: [], max: {}}],
                                           pieces: [null, 7, {stuck: true}]},
                 lines: ["Channel ?, ?, at least ?", "Channel ?, ?, 0 to ?"], stuck: "Stuck: ?\u00a0×\u00a0?, since ?"},
                {tag: "no list", content: {places: "<b>", pieces: {}}, lines: []}
            ];
        }

        function test_cardSaysWhatLiesThere(row) {
            const service = state([Object.assign({device_id: 7}, row.device)], row.money ? {money: row.money} : {});
            service.locale = "en_US";
            const cards = createTemporaryObject(cardsComponent, root, {service: service});
            cards.content = row.content || null;
            const spaced = given => given.replace(/\u00a0/g, " ");
            const told = given => spaced(given.replace("%1", service.moneyText(100000))
                                              .replace("%2", service.moneyText(10000)));
            const lines = seen(cards).filter(item => item.Accessible.role === Accessible.Row)
                              .map(item => spaced(item.Accessible.name));
            compare(lines.slice(1), row.lines.map(told));
            for (const name of ["stuck", "onTheirWay"]) {
                const item = named(cards, name);
                compare(item ? spaced(item.text).slice(0, told(row[name] || "").length) : "", told(row[name] || ""));
                compare(item === null, row[name] === undefined);
            }
        }

        function test_cardIsAsHighAsItsText() {
            const service = state([{device_id: 1}]);
            const cards = createTemporaryObject(cardsComponent, root, {service: service});
            const card = named(cards, "card");
            const low = card.height;
            service.text = text([everythingWrong]);
            tryVerify(() => card.height > low * 1.5);
            const bottom = Math.max(...seen(card).map(item => item.mapToItem(card, 0, item.height).y));
            verify(bottom <= card.height && bottom > card.height - 2 * KioskTheme.gap, bottom + " " + card.height);
            verify(named(card, "wrong").mapToItem(card, 0, 0).y < card.height / 3);
            compare(named(card, "sign").kind, "bad");
            service.text = text([{device_id: 1}]);
            tryCompare(card, "height", low);
        }

        function test_signOfACard_data() {
            return [
                {tag: "works", device: {}, sign: "good"},
                {tag: "jam", device: {state: "jammed", state_text: "transport"}, sign: "bad", says: ": transport"},
                {tag: "stacker", device: {stacker_full: true}, sign: "warn", says: "The stacker is full."},
                {tag: "error", device: {state: "error"}, sign: "bad", says: "error"},
                {tag: "offline", device: {online: false}, sign: "bad", says: "The device is offline."},
                {tag: "off", device: {enabled: false}, sign: "info", says: "The device is disabled."},
                {tag: "off and wrong", device: {enabled: false, halt: true}, sign: "bad", says: "The device is halted."}
            ];
        }

        function test_signOfACard(row) {
            const service = state([Object.assign({device_id: 1}, row.device)]);
            const cards = createTemporaryObject(cardsComponent, root, {service: service});
            compare(named(cards, "sign").kind, row.sign);
            const wrong = named(cards, "wrong");
            compare(wrong ? wrong.kind : "", row.sign === "good" ? "" : row.sign);
            verify((wrong ? wrong.text : "").includes(row.says || ""), wrong && wrong.text);
        }

        function test_cardOfASilentServiceIsDimmed() {
            const service = state([everythingWrong]);
            const cards = createTemporaryObject(cardsComponent, root, {service: service});
            const card = named(cards, "card");
            const ground = String(card.color);
            compare(named(card, "lastKnown"), null);
            cards.dimmed = true;
            verify(named(card, "lastKnown"));
            compare(named(card, "sign").kind, "wait");
            verify(String(card.color) !== ground);
        }

        // What a card shows stays the same items while they change, however fast.
        function test_itemsStayWhileStatesFollow_data() {
            return [{tag: "ledger", content: count => ({places: [{place: "cassette", denomination: 1, min: count, max: count}]})},
                    {tag: "registry", content: () => null}];
        }

        function test_itemsStayWhileStatesFollow(row) {
            const device = count => ({device_id: 51, stacker_full: count % 2 === 1, halt: count % 2 === 1, notes_inserted: count,
                dispenser_registry: [{channel: 1, bill_type: 0, denomination: 1, currency: "", count: count, rejected: 0}]});
            const service = state([device(0)]);
            const cards = createTemporaryObject(cardsComponent, root, {service: service, content: row.content(0)});
            wait(20);
            const before = seen(named(cards, "places"));
            const lamps = seen(cards).filter(item => item.Accessible.role === Accessible.Indicator);
            for (let i = 1; i <= 200; ++i) {
                service.text = text([device(i)]);
                cards.content = row.content(i);
            }
            tryVerify(() => named(cards, "counters").text.includes("200"));
            tryVerify(() => words(named(cards, "places")).includes("200"));
            const after = new Set(seen(cards));
            verify(lamps.length > 0 && before.concat(lamps).every(item => after.has(item)));
        }

        function test_everythingFitsAndMeetsAFinger_data() {
            const rows = [];
            for (const size of [[800, 600, 3.8], [1080, 1920, 2.7]]) {
                for (const largeText of [false, true]) {
                    for (const control of ["gate", "closed gate", "waiting gate", "form", "device form", "banner", "card",
                                         "registry"]) {
                        rows.push({tag: `${control} ${size[0]} ${largeText}`, control: control, width: size[0],
                                   height: size[1], density: size[2], largeText: largeText});
                    }
                }
            }
            return rows;
        }

        function makeControl(row) {
            const size = {width: row.width, height: row.height};
            if (row.control.endsWith("gate")) {
                const lock = createTemporaryObject(lockComponent, root, row.control === "closed gate"
                                                   ? {file: "/no/such/folder/of/a/kiosk/with/its/file"} : {pin: "2468"});
                const gate = createTemporaryObject(gateComponent, root, Object.assign({lock: lock}, size));
                if (row.control === "waiting gate") {
                    use(gate, "1R2R3R");
                }
                return gate;
            }
            if (row.control.endsWith("form")) {
                const settings = createTemporaryObject(settingsComponent, root,
                    {device: row.control === "form" ? -1 : 0, model: 1, values: {"acceptor_common/acceptAll": "maybe"}});
                return createTemporaryObject(formComponent, root, Object.assign({settings: settings}, size));
            }
            const service = state([]);
            const text = test.text([everythingWrong, {device_id: 51, dispenser_registry: [
                {channel: 1, bill_type: 0, denomination: 500000000, currency: "RUB", count: 12000, rejected: 3}]}],
                {money: rubles});
            const given = {service: service, width: row.width - 60};
            if (row.control === "card") {
                given.content = {pieces: [], places: [{place: "channel", channel: 12, denomination: 500000000,
                                                       currency: "RUB", min: 120000, max: 130000}]};
            }
            const control = createTemporaryObject(row.control === "banner" ? bannerComponent : cardsComponent, root, given);
            service.text = text; // which the control follows
            return control;
        }

        function isOverwritten(control) {
            const texts = seen(control).filter(item => isText(item) && item.text !== "").map(item => ({
                from: item.mapToItem(control, 0, 0), to: item.mapToItem(control, item.width, item.height)}));
            return texts.some(one => texts.some(two => one !== two && one.to.x > two.from.x + 1 && two.to.x > one.from.x + 1
                                                && one.to.y > two.from.y + 1 && two.to.y > one.from.y + 1));
        }

        function test_everythingFitsAndMeetsAFinger(row) {
            KioskTheme.density = 2;
            const control = makeControl(row);
            wait(20); // until it has what the service says
            KioskTheme.density = row.density; // as a window does when it is on a screen
            KioskTheme.largeText = row.largeText;
            waitForRendering(control);
            const isScrolled = row.control.endsWith("form") || row.control === "card" || row.control === "registry";
            tryVerify(() => !isOverwritten(control)); // a column places its items a frame later
            for (const item of seen(control)) {
                const left = item.mapToItem(control, 0, 0);
                const right = item.mapToItem(control, item.width, item.height);
                if (isText(item)) {
                    verify(item.contentWidth <= item.width + 1 && !item.truncated, item.text);
                    verify(left.x >= 0 && right.x <= control.width + 1, item.text);
                    verify(isScrolled || (left.y >= 0 && right.y <= control.height + 1), item.text);
                }
                if (item.activeFocusOnTab) {
                    verify(item.width >= KioskTheme.touch && item.height >= KioskTheme.touch, item.objectName);
                    verify(item.width >= (item.implicitContentWidth || 0), item.objectName);
                }
            }
        }
    }
}
