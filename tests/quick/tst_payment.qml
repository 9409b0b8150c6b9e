// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtTest 1.15
import Velmolib 5.0
import Velmolib.Controls 5.0
import "../../examples/kiosk/screen"

TestCase {
    id: test
    name: "Payment"
    when: windowShown
    visible: true
    width: 640
    height: 480

    Component {
        id: screenComponent
        Column {
            readonly property alias service: state
            readonly property alias prompt: prompt
            readonly property alias banner: banner
            readonly property alias languageKey: languageKey

            spacing: KioskTheme.gap

            ServiceState {
                id: state
                locale: "en_US"
            }
            LanguageKey {
                id: languageKey
                languages: [{code: "en", name: "English"}, {code: "de", name: "Deutsch"}]
                current: "en"
            }
            PaymentPrompt {
                id: prompt
                width: parent.width
                service: state
                contact: "call 1234"
            }
            MoneyStrip {
                width: parent.width
                service: state
            }
            NoteBanner {
                id: banner
                width: parent.width
                service: state
            }
        }
    }
    SignalSpy {
        id: chosen
        signalName: "chosen"
    }
    FontMetrics {
        id: metrics
    }

    // What a state changes is shown a frame later. One turn of the event loop may take all the time that is waited.
    function settle() {
        for (let turn = 0; turn < 6; ++turn)
            wait(10);
    }

    // A step that is a list is the devices, as [model, state, note in hand, sum]; another one sets properties of the
    // ServiceState, settles, or with money, incidents or refusals is what is published beside the devices from then on.
    function take(service, steps) {
        let more = {};
        for (const step of steps) {
            if (Array.isArray(step)) {
                const devices = step.map(([model, state, note, sum], index) => ({device_id: model,
                    thread_id: index + 1, enabled: true, state: state, current_note: note || 0, session_sum: sum || 0}));
                service.take(JSON.stringify(Object.assign({device_states: devices}, more)), new Date());
            } else if (step.money || step.incidents || step.refusals) {
                more = Object.assign({}, more, step);
            } else if (step.settle) {
                settle();
            } else {
                Object.assign(service, step);
            }
        }
    }

    function make(steps, properties) {
        const screen = createTemporaryObject(screenComponent, test, Object.assign({width: 800}, properties));
        take(screen.service, steps);
        settle();
        return screen;
    }

    function visibleItems(item, found) {
        if (item.visible && item.opacity > 0) {
            found.push(item);
            for (let i = 0; i < item.children.length; ++i)
                visibleItems(item.children[i], found);
        }
        return found;
    }

    function texts(screen) {
        return visibleItems(screen, []).filter(item => item.text !== undefined && item.contentHeight !== undefined
                                               && item.text !== "");
    }

    function shown(screen) {
        return texts(screen).map(item => item.text.replace(/\u00a0/g, " ")).join("\n");
    }

    readonly property var sizes: [[800, 600, 3.8], [1280, 1024, 3.8], [1080, 1920, 2.7], [3840, 2160, 6.4]]
    readonly property var languages: ["en English", "de Deutsch", "ru Русский", "pt Português", "id Bahasa Indonesia", "uk Українська"]
        .map(text => ({code: text.slice(0, 2), name: text.slice(3)}))
    readonly property var rubles: ({money: {currency: "RUB", digits: 2}})

    function rublesAnd(more) {
        return {money: Object.assign({}, rubles.money, more)};
    }

    function test_moneyIsToldAsItIs_data() {
        const jam = [[[1, "idling"]], [[1, "accepting", 1000]], [[1, "jammed", 1000]]];
        const lost = [{available: false}, {available: true}];
        const number = {incidents: [{number: "0418-0001", device_id: 1, thread_id: 1, denomination: 1000,
                                     time: "2026-11-26T13:05:00Z", settled: false}]};
        const two = [[[1, "idling"], [100, "idling"]]];
        return [
            {tag: "left", steps: [{price: 251000}, rubles, [[1, "idling", 0, 100000]]],
             says: ["Left to pay", "1,510.00 RUB", "Paid: 1,000.00 RUB of 2,510.00 RUB"], not: ["change"]},
            {tag: "currency comes later", steps: [{price: 251000}, [[1, "idling"]], rubles, [[1, "idling"]]],
             says: ["2,510.00 RUB"], not: ["251,000"]},
            {tag: "stuck beside paid", steps: jam.concat([{price: 500}], [[[1, "jammed", 1000], [100, "idling", 0, 500]]]),
             says: ["Paid. Thank you!", "before you leave", "failed with your note of 1,000"], not: ["Left to pay"]},
            {tag: "stuck stays when another is taken", fresh: 0,
             steps: [[[1, "idling"], [100, "idling"]], [[1, "accepting", 1000], [100, "idling"]],
                     [[1, "jammed", 1000], [100, "idling"]], [[1, "jammed", 1000], [100, "accepting", 10]],
                     [[1, "jammed", 1000], [100, "accepted", 10, 10]], [[1, "jammed", 1000], [100, "idling", 0, 10]]],
             says: ["failed with your note of 1,000"], not: ["was accepted"]},
            {tag: "its number", steps: [jam[0], jam[1], number, jam[2]], says: ["No. 0418-0001"], not: ["Checking"]},
            {tag: "in hand when the service goes", steps: [jam[0], jam[1], {available: false}],
             says: ["Your money is still in the device.", "before you leave", "call 1234"],
             not: ["Checking", "recorded", "another kiosk"]},
            {tag: "nobody confirmed", steps: [[[1, "idling", 0, 500]], {available: false}],
             says: ["Out of service", "before you leave"], not: ["recorded", "another kiosk"]},
            {tag: "confirmed in part", steps: [rublesAnd({recorded: 400}), [[1, "idling", 0, 500]], {available: false}],
             says: ["before you leave"], not: ["recorded"]},
            {tag: "confirmed", steps: [rublesAnd({recorded: 500}), [[1, "idling", 0, 500]], {available: false}],
             says: ["What you have paid is recorded."], not: ["another kiosk"]},
            {tag: "nothing paid", steps: [[[1, "idling"]], {available: false}],
             says: ["Please use another kiosk."], not: ["recorded", "Notes"]},
            {tag: "lost sum", steps: [{price: 2510}, [[1, "idling", 0, 1500]], ...lost, [[1, "idling"]]],
             says: ["you had paid 1,500 more", "Left to pay"], not: ["recorded"]},
            {tag: "lost sum that was stored", steps: [{price: 2510}, {money: {recorded: 1500}}, [[1, "idling", 0, 1500]],
                                                      ...lost, [[1, "idling"]]],
             says: ["you had paid 1,500 more", "It is recorded."], not: []},
            {tag: "no change, before", steps: [{price: 2510}, {money: {change: "none"}}, [[1, "idling"]]],
             says: ["This kiosk gives no change."], not: ["too much."]},
            {tag: "no change, after", steps: [{price: 2510}, {money: {change: "none"}}, [[1, "idling", 0, 6010]]],
             says: ["Paid. Thank you!", "3,500 too much.", "gives no change"], not: ["Left"]},
            {tag: "change paid out", steps: [{price: 2510}, {money: {change: "paid"}}, [[1, "idling", 0, 6010]]],
             says: ["3,500 too much.", "You get your change back. If it does not come"], not: ["no change"]},
            {tag: "change credited", steps: [{price: 2510}, {money: {change: "credited"}}, [[1, "idling", 0, 6010]]],
             says: ["3,500 too much.", "stays on your account"], not: ["no change"]},
            {tag: "change of a service that is lost", steps: [{price: 2510}, {money: {change: "paid"}}, [[1, "idling", 0, 6010]], {available: false}],
             says: ["Paid. Thank you!", "ask the staff for your change", "before you leave"], not: ["You get"]},
            {tag: "credit of a service that is lost", steps: [{price: 2510}, rublesAnd({change: "credited", recorded: 6010}), [[1, "idling", 0, 6010]],
                                                              {available: false}],
             says: ["ask the staff for your change"], not: ["stays on", "before you leave"]},
            {tag: "the newest of many", steps: [{incidents: [1, 2, 3].map(n => ({number: "A" + n, device_id: 1, thread_id: 1, denomination: n,
                                                                                 time: "2020-01-01T00:00:00Z"}))}, ...jam],
             says: ["note of 1,000", "A2", "A3", "and 1 more"], not: ["A1"]},
            {tag: "the newest on top", steps: [...two, {incidents: [["A1", 500], ["A2", 1000]].map(([number, note], minute) =>
                 ({number: number, device_id: 1, thread_id: 1, denomination: note, time: `2020-01-01T00:0${minute}:00Z`}))},
                 [[1, "jammed"], [100, "accepting", 10]]],
             says: ["No. A2\nThe device failed with your note of 500", "Checking a coin of 10"], not: ["more", "A1\nThe"]},
            {tag: "what is checked is not counted", steps: [[[1, "idling"], [100, "idling"], [2, "idling"], [3, "idling"]],
                 [[1, "accepting", 500], [100, "accepting", 10], [2, "accepting", 100], [3, "jammed", 50]]],
             says: ["your note of 50 ", "a note of 500", "a coin of 10", "a note of 100"], not: ["more"]},
            {tag: "it came back, and a coin is taken", steps: [...two, [[1, "accepting", 500], [100, "idling"]],
                 [[1, "returned"], [100, "accepting", 10]], [[1, "idling"], [100, "accepted", 10, 10]], [[1, "idling"], [100, "idling", 0, 10]]],
             says: ["note of 500 was returned.", "coin of 10 was accepted"], not: []},
            {tag: "it came back and goes in again", steps: [...two, [[1, "accepting", 500], [100, "idling"]],
                 [[1, "returned"], [100, "idling"]], [[1, "accepting", 500], [100, "idling"]]],
             says: ["Checking"], not: ["returned"]},
            {tag: "it came back to the customer before", steps: [[[1, "idling"], [100, "idling", 0, 10]],
                 [[1, "accepting", 500], [100, "idling", 0, 10]], [[1, "returned"], [100, "accepting", 5, 10]], {settle: true}, [[1, "idling"], [100, "accepting", 5]]],
             says: ["Checking"], not: ["returned"]},
            {tag: "change not known", steps: [{price: 2510}, [[1, "idling", 0, 6010]]],
             says: ["3,500 too much.", "ask the staff"], not: ["no change", "account"]},
            {tag: "notes only", steps: [[[1, "idling"], [100, "error"]]], says: ["Notes"], not: ["Coins", "Card"]},
            {tag: "markup", steps: [{money: {currency: "<b>"}}, jam[0], jam[1],
                                    {refusals: [{device_id: 1, thread_id: 1, name: "SessionSumFilter",
                                                 params: {sessionSum: "<img src='http://localhost/'>"}}]},
                                    [[1, "returning", 1000]], [[1, "returned"]]],
             says: ["comes back to you"], not: ["<b>"]}
        ];
    }

    function test_moneyIsToldAsItIs(row) {
        const screen = make(row.steps);
        if (row.fresh !== undefined) {
            screen.banner.freshSeconds = row.fresh;
            settle();
        }
        const all = shown(screen);
        for (const part of row.says)
            verify(all.includes(part), part + " in:\n" + all);
        for (const part of row.not)
            verify(!all.includes(part), part + " in:\n" + all);
        for (const item of texts(screen))
            compare(item.textFormat, Text.PlainText);
    }

    // Each refusal is told anew, although its words are the same.
    function test_refusedAgainIsToldAgain() {
        const screen = make([[[1, "idling"]]]);
        screen.banner.freshSeconds = 1;
        const refused = [{refusals: [{device_id: 1, thread_id: 1, name: "Own"}]}, [[1, "accepting", 500]],
                         [[1, "returning", 500]], [[1, "returned"]], [[1, "idling"]]];
        for (let time = 0; time < 2; ++time) {
            take(screen.service, refused);
            wait(700);
            verify(shown(screen).includes("It comes back to you."));
        }
        take(screen.service, [[[1, "rejected"]]]);
        settle();
        verify(shown(screen).includes("not recognised"));
        tryVerify(() => !shown(screen).includes("not recognised"), 2000);
    }

    function test_waitMovesAndEnds() {
        const screen = make([[[1, "idling"]], [[1, "accepting", 500]]]);
        verify(shown(screen).includes("Wait..."));
        const motion = findChild(screen, "motion");
        const step = motion.step;
        tryVerify(() => motion.step !== step, 2000);
        screen.prompt.waitLimit = 0;
        tryVerify(() => shown(screen).includes("This takes longer than usual.") && shown(screen).includes("call 1234"));
        take(screen.service, [[[1, "stacked", 500, 500]], [[1, "idling", 0, 500]]]);
        tryVerify(() => shown(screen).includes("Input money"));
        verify(!shown(screen).includes("longer"));
    }

    function test_staleStateInvitesNobody() {
        const screen = make([{staleAfter: 1}, [[1, "idling"]]]);
        verify(shown(screen).includes("Notes"));
        tryVerify(() => shown(screen).includes("Out of service") && !shown(screen).includes("Notes"), 3000);
    }

    function test_languageKeyKeepsTheFocus() {
        const screen = make([]);
        const key = findChild(screen, "languageKey");
        chosen.target = screen.languageKey;
        chosen.clear();
        compare(key.text, "Deutsch");
        key.forceActiveFocus();
        keyClick(Qt.Key_Return);
        compare(chosen.signalArguments[0][0], "de");
        screen.languageKey.current = "de";
        compare(key.text, "English");
        verify(key.activeFocus);
        mouseClick(key);
        compare(chosen.signalArguments[1][0], "en");
    }

    Component {
        id: customerComponent
        CustomerScreen {
            width: 800
            height: 600
            contact: "8 800 200-00-00"
            languages: test.languages.slice(0, 3)
            language: "en"
            service: ServiceState {
                locale: "en_US"
            }
        }
    }

    // On a small screen with large text, when the sums have much to say too.
    function test_stuckNoteIsInSight_data() {
        const stuck = {incidents: [[1000, 3], [500, 7]].map(([note, minute]) => ({number: "A" + minute, device_id: 1, thread_id: 1,
            denomination: note, time: `2026-11-26T13:0${minute}:00Z`}))};
        return [
            {tag: "too much", steps: [{money: {change: "none"}}, stuck, [[1, "jammed", 0, 3000], [100, "idling"]]]},
            {tag: "a lost sum", steps: [[[1, "idling", 0, 1500]], {available: false}, {available: true}, stuck,
                                        [[1, "jammed"], [100, "idling"]]]},
            {tag: "out of service", steps: [[[1, "idling", 0, 1500]], {available: false}, {available: true}, stuck, [[1, "jammed"]]]}
        ];
    }

    function test_stuckNoteIsInSight(row) {
        const before = {density: KioskTheme.density, scale: KioskTheme.scale, largeText: KioskTheme.largeText};
        Object.assign(KioskTheme, {density: 3.8, largeText: true, scale: 1});
        const screen = createTemporaryObject(customerComponent, test);
        take(screen.service, [{price: 2510}, ...row.steps]);
        settle();
        const note = findChild(screen, "openNote");
        const rest = findChild(screen, "rest");
        const top = item => item.mapToItem(screen, 0, 0).y;
        verify(note.detail.includes("A7"), note.detail);
        verify(top(note) >= 0 && top(note) + note.height <= top(rest), `${top(note)} + ${note.height}, ${top(rest)}`);
        verify(top(rest) + rest.contentHeight <= screen.height, top(rest) + " + " + rest.contentHeight);
        Object.assign(KioskTheme, before);
    }

    function test_languageKeysHaveRoom_data() {
        const rows = [];
        for (const [width, height, density] of sizes) {
            for (const largeText of [false, true])
                for (const count of [2, 3, 6])
                    rows.push({tag: [count, "at", width, largeText ? "large" : ""].join(" "), width: width, height: height,
                               density: density, largeText: largeText, count: count});
        }
        return rows;
    }

    function test_languageKeysHaveRoom(row) {
        const before = {density: KioskTheme.density, scale: KioskTheme.scale, largeText: KioskTheme.largeText};
        Object.assign(KioskTheme, {density: row.density, largeText: row.largeText,
                                   scale: Math.min(row.width, row.height) / row.density / 158});
        const screen = createTemporaryObject(customerComponent, test, {width: row.width, height: row.height,
                                             languages: test.languages.slice(0, row.count)});
        take(screen.service, [rubles, {price: 2510}, [[1, "idling"], [100, "idling", 0, 500]]]);
        wait(60);
        const keys = visibleItems(screen, []).filter(item => item.objectName === "languageKey");
        compare(keys.map(key => key.text), test.languages.slice(1, row.count).map(language => language.name));
        const places = [...keys, ...texts(screen).filter(text => !keys.some(key => key.text === text.text))].map(item => {
            const corner = item.mapToItem(screen, 0, 0);
            return {name: item.text, isKey: keys.includes(item), x: corner.x, y: corner.y, right: corner.x + (item.contentWidth || item.width),
                    bottom: corner.y + item.height};
        });
        for (const key of places.filter(place => place.isKey)) {
            verify(key.right - key.x >= 15 * row.density - 0.5 && key.bottom - key.y >= 15 * row.density - 0.5, key.name);
            verify(key.x >= 0 && key.y >= 0 && key.right <= row.width && key.bottom <= row.height, key.name);
            for (const other of places)
                verify(other === key || key.right <= other.x || other.right <= key.x || key.bottom <= other.y
                       || other.bottom <= key.y, key.name + " over " + other.name);
        }
        Object.assign(KioskTheme, before);
    }

    function test_everythingFits_data() {
        const rows = [];
        for (const [width, height, density] of sizes) {
            for (const largeText of [false, true])
                rows.push({tag: width + (largeText ? " large" : ""), width: width, height: height, density: density,
                           largeText: largeText});
        }
        return rows;
    }

    // With less room by 40 %, as if all texts were that longer.
    function test_everythingFits(row) {
        const before = {density: KioskTheme.density, scale: KioskTheme.scale, largeText: KioskTheme.largeText};
        Object.assign(KioskTheme, {density: row.density, largeText: row.largeText,
                                   scale: Math.min(row.width, row.height) / row.density / 158});
        const all = [[1, "idling"], [100, "idling", 0, 123456789], [200, "busy"]];
        for (const steps of [[rubles, {price: 2000000000}, all],
                             [rublesAnd({change: "none"}), {price: 100}, all],
                             [rubles, {price: 2000000000}, all, {available: false}, {available: true}, [[1, "idling"]],
                              [[1, "accepting", 100000]], [[1, "jammed", 100000]], [[1, "jammed"], [1, "idling"]],
                              [[1, "jammed"], [1, "rejected"]]]]) {
            const screen = make(steps, {width: row.width / 1.4});
            const places = texts(screen).map(item => {
                verify(!item.truncated, item.text);
                verify(item.contentWidth <= item.width + 1, item.text);
                verify(item.contentHeight <= item.height + 1, item.text);
                metrics.font = item.font;
                verify(-metrics.tightBoundingRect("H").y >= 4.8 * row.density - 0.5, item.text);
                const corner = item.mapToItem(screen, 0, 0);
                verify(corner.x >= 0 && corner.y >= 0 && corner.x + item.contentWidth <= screen.width + 1
                       && corner.y + item.contentHeight <= screen.height + 1, item.text);
                const left = item.horizontalAlignment === Text.AlignRight ? item.width - item.contentWidth : 0;
                return {text: item.text, x: corner.x + left, y: corner.y, right: corner.x + left + item.contentWidth,
                        bottom: corner.y + item.contentHeight};
            });
            for (const [index, one] of places.entries()) {
                for (const other of places.slice(index + 1))
                    verify(one.right <= other.x + 1 || other.right <= one.x + 1 || one.bottom <= other.y + 1
                           || other.bottom <= one.y + 1, one.text + " over " + other.text);
            }
            const key = findChild(screen, "languageKey");
            verify(key.width >= 15 * row.density - 0.5 && key.height >= 15 * row.density - 0.5);
        }
        Object.assign(KioskTheme, before);
    }
}
