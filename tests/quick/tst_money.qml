// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtTest 1.15
import Velmolib 5.0

// What the state says of a customer's money.
TestCase {
    id: test
    name: "Money"

    readonly property var outcomes: ["none", "checked", "taken", "refused", "rejected", "returned", "stuck", "lost"]
    readonly property var note: ["", "1 accepting 1000"] // is inserted
    property var events: []
    property var wanted: [] // to be settled
    property var devices: ({})
    property var refusals: []
    property var more: ({}) // what is published besides
    property int count: 0 // of states

    Component {
        id: stateComponent
        ServiceState {
            names: ({"1": "Notes"})
            locale: "en"
            onNoteEvent: (outcome, value, currency, device, text) => test.events.push(test.outcomes[outcome] + " " + value)
            onSettleWanted: incident => test.wanted.push(incident)
        }
    }

    function init() {
        events = [];
        wanted = [];
        more = {};
        refusals = [];
        devices = {1: {device_id: 1, thread_id: 1}, 100: {device_id: 100, thread_id: 2}, 200: {device_id: 200, thread_id: 2}};
    }

    function make() {
        return createTemporaryObject(stateComponent, test);
    }

    // A step: parts "device state note word..." that change what is published, or a change of the link.
    function step(state, text) {
        if (text === "lost" || text === "back")
            state.available = text === "back";
        if (text === "lost")
            return;
        for (const part of text === "back" ? [] : text.split("; ")) {
            const [id, name, value, ...words] = part.split(" ");
            if (name === undefined)
                continue;
            const before = devices[id] || {};
            const has = word => words.includes(word);
            const after = {device_id: Number(id), thread_id: id === "1" ? 1 : 2, enabled: true, state: name,
                           current_note: Number(value || 0), session_sum: before.session_sum || 0,
                           notes_returned: before.notes_returned || 0, notes_rejected: before.notes_rejected || 0,
                           error_critical: has("critical"), online: !has("offline"), gone: has("gone")};
            for (const word of words.filter(w => w.includes("=")))
                after[word.split("=")[0]] = Number(word.split("=")[1]);
            devices[id] = after;
            refusals = has("refused") ? [{device_id: Number(id), name: "SessionSumFilter", params: {sessionSum: 3000}}] : [];
        }
        const published = Object.values(devices).filter(device => !device.gone);
        state.text = JSON.stringify(Object.assign({device_states: published, refusals: refusals, count: ++count}, more));
    }

    // The properties follow within a frame's time; with this at once.
    function update(state) {
        state.settle(0);
    }

    function open(state) {
        update(state);
        return Array.from({length: state.openNotes.count}, (_, row) => {
            const {outcome, value, incident} = state.openNotes.get(row);
            return [outcomes[outcome], value, incident].join(" ").trim();
        }).join(", ");
    }

    function test_whatBecomesOfEachPieceIsTold_data() {
        const back = ["1 returning 1000", "1 returned 1000", "1 idling"];
        const refused = ["1 accepting 1000 refused", ...back];
        const rows = [
            {tag: "the same note refused twice", steps: [...refused, ...refused], events: "refused 1000, refused 1000"},
            {tag: "refused, then another rejected", steps: [...refused, "1 rejected", "1 idling"],
             events: "refused 1000, rejected 0"},
            {tag: "refused, which the device calls rejected", steps: ["1 accepting 1000 refused", "1 rejected", "1 idling"],
             events: "refused 1000"},
            {tag: "rejected twice", steps: ["1 rejected", "1 idling", "1 rejected", "1 rejected"],
             events: "rejected 0, rejected 0"},
            {tag: "two devices at once",
             steps: ["1 accepting 1000", "100 accepting 10", "1 stacking 1000; 100 accepted 10", "100 idling", "1 stacked"],
             events: "checked 1000, checked 10, taken 10, taken 1000"},
            {tag: "two at once, one jams", open: "stuck 1000",
             steps: ["1 accepting 1000; 100 accepting 10", "1 jammed 1000", "100 accepted 10", "100 idling"],
             events: "checked 1000, checked 10, stuck 1000, taken 10"},
            {tag: "worth more than it seemed", steps: ["1 accepting 0", "1 accepting 500", "1 accepting 1000", "1 stacked"],
             events: "checked 500, checked 1000, taken 1000"},
            {tag: "another one at once", steps: ["1 accepting 500", "1 accepted 500", "1 accepting 100", "1 stacked"],
             events: "checked 500, taken 500, checked 100, taken 100"},
            {tag: "drawn back", steps: ["1 accepting 500", "1 idling"], events: "checked 500"},
            {tag: "drawn back, as the counters say", steps: ["1 accepting 500", "1 idling 0 notes_returned=1"],
             events: "checked 500, returned 500"},
            {tag: "returned, as the counters say", steps: ["1 accepting 500", "1 stacking 500", "1 idling 0 notes_returned=1"],
             events: "checked 500, returned 500"},
            {tag: "a card is no note", steps: ["200 accepting 500", "200 accepted 500", "200 error 500", "200 rejected"], events: ""},
            {tag: "jam of a note that nobody read", steps: ["1 accepting 0", "1 jammed"], events: "stuck 0", open: "stuck 0"},
            {tag: "jam at once", steps: ["1 jammed 1000"], events: "stuck 1000", open: "stuck 1000"},
            {tag: "jam with the note from before", steps: ["1 accepting 500", "1 stacked 500", "1 idling 500", "1 jammed 500"],
             events: "checked 500, taken 500"},
            {tag: "jam of what is counted already", steps: ["1 accepting 500", "1 accepted 500 session_sum=500", "1 jammed 500", "1 idling"],
             events: "checked 500, stuck 500", open: "stuck 500"},
            {tag: "fails without the note", steps: ["1 accepting 500", "1 returned 500", "1 error", "1 idling"],
             events: "checked 500, returned 500"},
            {tag: "jam that the device ends", steps: ["1 accepting 500", "1 jammed 500", "1 stacking 500", "1 stacked"],
             events: "checked 500, stuck 500, taken 500"},
            {tag: "jam that it gives back", steps: ["1 accepting 500", "1 jammed 500", "1 busy 500", "1 returned", "1 idling"],
             events: "checked 500, stuck 500, returned 500"},
            {tag: "jam that the counters end", steps: ["1 accepting 500", "1 jammed 500", "1 idling 0 session_sum=500"],
             events: "checked 500, stuck 500, taken 500"},
            {tag: "jam, and then another note", open: "stuck 500",
             steps: ["1 accepting 500", "1 jammed 500", "1 idling", "1 rejected", "1 accepting 500", "1 stacked 500"],
             events: "checked 500, stuck 500, rejected 0, checked 500, taken 500"},
            {tag: "jam again", open: "stuck 500, stuck 100",
             steps: ["1 accepting 500", "1 jammed 500", "1 jammed 500", "1 idling", "1 accepting 100", "1 jammed 100"],
             events: "checked 500, stuck 500, checked 100, stuck 100"},
            {tag: "jam beside a coin, over the next session", open: "stuck 1000",
             steps: ["1 accepting 1000", "1 jammed 1000", "1 idling 0", "100 accepting 10", "100 accepted 10 session_sum=10",
                     "100 idling 0", "100 idling 0 session_sum=0"],
             events: "checked 1000, stuck 1000, checked 10, taken 10"},
            {tag: "stacked behind the service's back", steps: ["1 accepting 1000", "lost", "1 idling 0 session_sum=1000", "back"],
             events: "checked 1000, taken 1000"},
            {tag: "goes on after a loss", steps: ["1 accepting 1000", "lost", "back", "1 stacked"],
             events: "checked 1000, taken 1000"},
            {tag: "another one after a loss", steps: ["1 accepting 1000", "lost", "1 accepting 100"], open: "lost 1000, checked 100",
             events: "checked 1000, lost 1000, checked 100"},
            {tag: "nobody knows what it was", steps: ["1 accepting 0", "lost", "1 idling", "back"], events: "lost 0", open: "lost 0"},
            {tag: "known after a loss", steps: ["1 accepting 0", "lost", "back", "1 accepting 500", "1 stacked 500"],
             events: "checked 500, taken 500"},
            {tag: "offline, but goes on", steps: ["1 accepting 1000 offline", "1 stacking 1000", "1 stacked"],
             events: "checked 1000, lost 1000, checked 1000, taken 1000"},
            {tag: "gone after it was returned", steps: ["1 accepting 1000", "1 returned 1000", "1 idling 0 gone", "1 idling"],
             events: "checked 1000, returned 1000"}
        ];
        const troubles = {"jammed": ["1 jammed 1000"], "critical error": ["1 PHASE 1000 critical"], "error": ["1 error 1000"],
                          "idle with a critical error": ["1 idling 0 critical"], "offline": ["1 PHASE 1000 offline"],
                          "gone": ["1 PHASE 1000 gone"], "service lost": ["lost", "1 idling 0", "back"]};
        for (const phase of ["accepting", "accepted", "stacking", "returning"]) {
            for (const [trouble, steps] of Object.entries(troubles)) {
                const end = ["offline", "gone", "service lost"].includes(trouble) ? "lost 1000" : "stuck 1000";
                rows.push({tag: trouble + " while " + phase, open: end,
                           steps: ["1 accepting 1000", "1 " + phase + " 1000",
                                   ...steps.map(text => text.replace("PHASE", phase)), "1 idling"],
                           events: "checked 1000, " + (phase === "returning" ? "returned 1000, " : "") + end});
            }
        }
        return rows;
    }

    function test_whatBecomesOfEachPieceIsTold(row) {
        const state = make();
        for (const text of ["", ...row.steps])
            step(state, text);
        compare(events.join(", "), row.events);
        compare(open(state), row.open || "");
        const isStuck = /stuck|lost/.test(row.open || "");
        compare(state.hasStuckMoney, isStuck);
        compare(state.worstFaults.count > 0 && state.worstFaults.get(0).reason === "money", isStuck);
    }

    function test_noteInHandStaysOpenWhileTheServiceIsLost() {
        const state = make();
        for (const text of ["", "1 accepting 1000", "lost"])
            step(state, text);
        compare(open(state), "checked 1000");
        compare(state.hasStuckMoney, false);
        state.available = true;
        state.text = "{"; // nor can it be read
        compare(open(state), "checked 1000");
    }

    function incident(more) {
        return Object.assign({number: "0418-1", device_id: 1, thread_id: 1, denomination: 1000, currency: "RUB",
                              time: "2026-11-26T13:05:00.123Z", settled: false}, more);
    }

    function test_serviceSaysWhatIsSettled_data() {
        return [
            {tag: "settled", incidents: [incident({settled: true})]},
            {tag: "gone", incidents: []},
            {tag: "not settled", incidents: [incident()], open: "stuck 1000 0418-1"},
            {tag: "another one", incidents: [incident(), incident({number: "0418-2"})],
             open: "stuck 1000 0418-1, stuck 1000 0418-2"},
            {tag: "no list any more", open: "stuck 1000 0418-1"}
        ];
    }

    function test_serviceSaysWhatIsSettled(row) {
        const state = make();
        more = {incidents: []};
        for (const text of ["", "1 accepting 1000", "1 jammed 1000"])
            step(state, text);
        compare(open(state), "stuck 1000");
        more = {incidents: [incident()]};
        for (const text of ["1 jammed 1000", "1 stacked", "1 idling", "100 accepting 10", "100 accepted 10", "100 idling"])
            step(state, text);
        compare(open(state), "stuck 1000 0418-1"); // whatever the device says
        const noteId = state.openNotes.get(0).noteId;
        state.settle(noteId);
        compare(wanted, ["0418-1"]);
        compare(open(state), "stuck 1000 0418-1");
        more = row.incidents ? {incidents: row.incidents} : {};
        step(state, "1 idling");
        compare(open(state), row.open || "");
        compare(events.join(", "), "checked 1000, stuck 1000, checked 10, taken 10"
                + (row.tag === "another one" ? ", stuck 1000" : ""));
        if (!row.incidents) {
            state.settle(noteId); // nobody else will
            compare(open(state), "");
        }
    }

    function test_staffSettlesWhatOnlyTheDeviceKnows() {
        const state = make();
        for (const text of ["", "1 accepting 1000", "1 jammed 1000", "1 idling", "1 accepting 100"])
            step(state, text);
        compare(open(state), "stuck 1000, checked 100");
        state.settle(state.openNotes.get(1).noteId); // not one that the device has in hand
        state.settle(99);
        compare(open(state), "stuck 1000, checked 100");
        state.settle(state.openNotes.get(0).noteId);
        compare(open(state), "checked 100");
        compare(wanted, []);
    }

    function test_twinsHoldTheirOwn() {
        const state = make();
        for (const [name, note] of [["idling", 0], ["accepting", 500], ["stacking", 500], ["stacked", 500]]) {
            const twin = more => Object.assign({device_id: 1, thread_id: 1, enabled: true, state: "idling"}, more);
            more = {device_states: [twin({state: name, current_note: note}), twin()]};
            step(state, "");
        }
        compare(events.join(", "), "checked 500, taken 500");
    }

    function test_incidentIsOfItsDevice() {
        const state = make();
        step(state, "");
        more = {incidents: [incident({device_id: 100}), incident({number: "2", thread_id: 7}), incident({number: "3", denomination: 5})]};
        for (const text of ["1 accepting 1000", "1 jammed 1000"])
            step(state, text);
        compare(open(state).split(", ").sort(), ["stuck 1000", "stuck 1000 0418-1", "stuck 1000 2", "stuck 5 3"]);
    }

    function test_incidentOfUnknownValueIsNotWhatIsInHand() {
        const state = make();
        step(state, "");
        more = {incidents: [incident({denomination: null})]};
        step(state, "1 accepting 1000");
        compare(open(state).split(", ").sort().join(), "checked 1000,stuck 0 0418-1");
    }

    function test_noteThatIsLostWithTheSumIsTold() {
        const state = make();
        for (const text of ["1 idling 0 session_sum=10", "1 accepting 1000", "lost", "1 idling 0 session_sum=0", "back"])
            step(state, text);
        compare(state.lastNoteText, "It is not known what became of your note of 1,000. Please call the staff.");
        step(state, "1 idling 0 session_sum=10");
        step(state, "1 idling 0 session_sum=0"); // the next customer's, who did not insert it
        compare(open(state), "lost 1000");
        compare(state.lastNoteText, "");
    }

    function test_incidentsFromBeforeAreKnown() {
        const state = make();
        more = {incidents: [incident({denomination: "<img>"})], money: {currency: "RUB", digits: 2}};
        step(state, "");
        compare(open(state), "stuck 0 0418-1");
        compare(events, []);
        const {amountText, time, timeText, text, deviceName} = state.openNotes.get(0);
        compare([amountText, text, deviceName].join("|"),
                "|The device failed with your note in it. Please call the staff.|Notes");
        compare(time.getTime(), Date.parse("2026-11-26T13:05:00.123Z"));
        verify(timeText.includes("26"), timeText);
    }

    // What is of a wrong type is as if it were not there.
    function test_wrongTypesAreNotPublished_data() {
        return ["x", 7, null, [], {}, [[]], [{}], {currency: 5, digits: "2", recorded: {}, change: 1},
                {currency: "<b>", digits: 9, recorded: 1e300, change: "much"}, {digits: -1}, {digits: 1.5},
                [incident({number: 5})], [incident({device_id: "1"})], [incident({thread_id: 1e10})]
               ].map(value => ({tag: JSON.stringify(value), value: value}));
    }

    function test_wrongTypesAreNotPublished(row) {
        const state = make();
        more = {money: row.value, incidents: row.value, refusals: row.value};
        for (const text of ["", "1 accepting 1000", "1 accepted 1000", "1 idling 0 session_sum=1000"])
            step(state, text);
        update(state);
        compare([state.currency, state.digits, state.changeMode, state.sumRecorded, state.openNotes.count].join(), ",0,,false,0");
        compare(state.lastNoteText, "A note of 1,000 was accepted.");
    }

    function test_limitThatIsNoNumberIsNotTold() {
        const state = make();
        step(state, "");
        more = {refusals: [{device_id: 1, name: "SessionSumFilter", params: {sessionSum: "<img src=http://x>"}}]};
        step(state, "1 accepting 1000");
        update(state);
        compare(state.lastNoteText, "This note cannot be accepted. It comes back to you.");
    }

    function test_moneyIsWrittenInOneWay_data() {
        const rub = {currency: "RUB", digits: 2};
        return [
            {tag: "plain", value: 1510, en: "1,510", ru: "1_510"},
            {tag: "with currency", money: rub, value: 300000, en: "3,000.00_RUB", ru: "3_000,00_RUB"},
            {tag: "below one", money: rub, value: 5, en: "0.05_RUB", ru: "0,05_RUB"},
            {tag: "negative", money: rub, value: -5, en: "-0.05_RUB", ru: "-0,05_RUB"},
            {tag: "no digits", money: {currency: "JPY"}, value: 3000, en: "3,000_JPY", ru: "3_000_JPY"},
            {tag: "most digits", money: {currency: "TND", digits: 4}, value: 12345678, en: "1,234.5678_TND", ru: "1_234,5678_TND"},
            {tag: "no number", value: NaN, en: "", ru: ""},
            {tag: "largest", money: {digits: 2}, value: 8999999999999999, en: "89,999,999,999,999.99", ru: "89_999_999_999_999,99"}
        ];
    }

    function test_moneyIsWrittenInOneWay(row) {
        const state = make();
        more = row.money ? {money: row.money} : {};
        step(state, "");
        const limit = [{device_id: 1, name: "SessionSumFilter", params: {sessionSum: row.value}}];
        for (const language of ["en", "ru"]) {
            state.locale = language;
            compare(state.moneyText(row.value).replace(/[\u00a0\u202f]/g, "_").replace("\u2212", "-"), row[language]);
        }
        if (!(row.value > 0 && row.value < 2e9))
            return;
        state.locale = "en";
        more.refusals = limit;
        step(state, "1 accepting " + row.value);
        update(state);
        compare(state.lastNoteText, "This note would pass the limit of " + state.moneyText(row.value) + ". It comes back to you.");
        more.refusals = [];
        step(state, "1 idling");
        step(state, "1 accepting " + row.value);
        update(state);
        compare(state.lastNoteText, "Checking a note of " + state.moneyText(row.value) + "...");
        compare(state.openNotes.get(0).amountText, state.moneyText(row.value));
    }

    function test_sumsAreWhole_data() {
        return [[2147483648, 2147483648], [-2147483649, -2147483649], [9007199254740991, 9007199254740991],
                [9007199254740992, 0], [10.5, 0], ["1510", 0], [true, 0]
               ].map(([value, sum]) => ({tag: JSON.stringify(value), value: value, sum: sum}));
    }

    function test_sumsAreWhole(row) {
        const state = make();
        state.text = JSON.stringify({device_states: [{device_id: 1, thread_id: 1, session_sum: row.value}]});
        compare(state.sessionSum, row.sum);
    }

    function test_sumThatFellAfterALossIsTold_data() {
        const paid = "1 idling 0 session_sum=1510", empty = "1 idling 0 session_sum=0";
        return [
            {tag: "new session", steps: [paid, empty], lost: 0},
            {tag: "service lost", steps: [paid, "lost", empty, "back"], lost: 1510},
            {tag: "recorded", recorded: 1510, steps: [paid, "lost", empty, "back"], lost: 1510, isRecorded: true},
            {tag: "recorded in part", recorded: 1500, steps: [paid, "lost", empty, "back"], lost: 1510},
            {tag: "payment complete", price: 1510, steps: [paid, "lost", empty, "back"], lost: 0},
            {tag: "payment complete and recorded", price: 1510, recorded: 1510, steps: [paid, "lost", empty, "back"], lost: 0},
            {tag: "payment complete, not recorded", price: 1510, recorded: 1500, steps: [paid, "lost", empty, "back"], lost: 1510},
            {tag: "payment not complete", price: 1511, steps: [paid, "lost", empty, "back"], lost: 1510},
            {tag: "lost in part", steps: [paid, "lost", "1 idling 0 session_sum=1000", "back"], lost: 510},
            {tag: "cannot be read", steps: [paid, "unreadable", empty], lost: 1510},
            {tag: "a state that comes late", steps: [paid, "lost", paid, empty, "back"], lost: 1510},
            {tag: "device gone", steps: [paid, "1 idling 0 gone"], lost: 1510},
            {tag: "device gone with a part", steps: [paid + "; 100 idling 0 session_sum=10", "100 idling 0 gone"], lost: 10},
            {tag: "device gone, session over", steps: [paid, empty, "1 idling 0 gone"], lost: 0},
            {tag: "device gone after the payment", price: 1510, steps: [paid, "1 idling 0 gone"], lost: 0},
            {tag: "device comes back with it", steps: [paid, "1 idling 0 gone", paid], lost: 0},
            {tag: "device has another number", steps: [paid, "1 idling 0 gone; 7 idling 0 session_sum=1510"], lost: 0},
            {tag: "sum comes back", steps: [paid, "lost", empty, "back", paid], lost: 0},
            {tag: "other money", lost: 1510,
             steps: [paid, "lost", empty, "back", "1 accepting 2000", "1 accepted 2000 session_sum=2000", "1 stacked",
                     "1 idling 0 session_sum=2000", "1 idling 0 session_sum=0"]},
            {tag: "other money without a word", lost: 1510,
             steps: [paid, "lost", empty, "back", "1 idling 0 session_sum=1000", "1 idling 0 session_sum=2000"]},
            {tag: "sum comes back beside other money", lost: 0,
             steps: [paid, "lost", empty, "back", "1 accepting 100", "1 stacked 100 session_sum=100", "1 idling 0 session_sum=1610"]},
            {tag: "twice", lost: 1610,
             steps: [paid, "lost", empty, "back", "1 accepting 100", "1 stacked 100 session_sum=100", "1 idling", "lost", empty, "back"]},
            {tag: "other money behind the service's back", lost: 1510,
             steps: [paid, "lost", empty, "back", "1 accepting 2000", "lost", "1 idling 0 session_sum=2000", "back"]},
            {tag: "paid by card", lost: 1510, steps: [paid, "lost", empty, "back", "200 busy 0 session_sum=2000"]},
            {tag: "never away in vain", steps: [paid, "lost", "back"], lost: 0}
        ];
    }

    function test_sumThatFellAfterALossIsTold(row) {
        const state = make();
        state.price = row.price || 0;
        more = row.recorded ? {money: {recorded: row.recorded}} : {};
        for (const text of ["", ...row.steps]) {
            if (text === "unreadable")
                state.text = "{";
            else
                step(state, text);
            if (text === "lost")
                more = {};
        }
        update(state);
        compare([state.lostSum, state.lostSumRecorded, state.hasStuckMoney].join(),
                [row.lost, row.isRecorded === true, row.lost > 0].join());
        state.settleLoss();
        compare([state.lostSum, state.hasStuckMoney].join(), "0,false");
    }
}
