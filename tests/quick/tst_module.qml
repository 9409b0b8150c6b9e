// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtTest 1.15
import Velmolib 5.0

TestCase {
    id: test
    name: "Module"

    property int changes: 0 // of anything that the state says
    property var rows: [] // what happened to the rows of the devices

    Component {
        id: stateComponent
        ServiceState {
            onPaymentTextChanged: test.changes++
            onCustomerTextChanged: test.changes++
            onAcceptingAllowedChanged: test.changes++
            onReasonsChanged: test.changes++
            onNoteAcceptedChanged: test.changes++
            onCoinAcceptedChanged: test.changes++
            onCardAcceptedChanged: test.changes++
            onInServiceChanged: test.changes++
            onSessionSumChanged: test.changes++
            onLastNoteTextChanged: test.changes++
            onPaidChanged: test.changes++
            onLeftChanged: test.changes++
            onChangeChanged: test.changes++
            onSumRecordedChanged: test.changes++
            onLostSumChanged: test.changes++
            onHasStuckMoneyChanged: test.changes++
            onReportChanged: test.changes++
            onFaultChanged: test.changes++
        }
    }

    function device(id, thread, more) {
        return Object.assign({device_id: id, thread_id: thread, enabled: true, state: "idling"}, more);
    }

    function text(devices, more) {
        return JSON.stringify(Object.assign({device_states: devices}, more));
    }

    function publish(state, devices, more) {
        state.text = text(devices, more);
        update(state);
    }

    // The properties follow within a frame's time; with this at once.
    function update(state) {
        state.settle(0);
    }

    function make(devices, more) {
        return createTemporaryObject(stateComponent, test, {text: text(devices, more)});
    }

    function test_onlyWhatChangedSaysSo() {
        const state = make([device(1, 1), device(100, 2)]);
        changes = 0;
        state.text = text([device(1, 1), device(100, 2)]) + " ";
        update(state);
        compare(changes, 0);
        publish(state, [device(1, 1), device(100, 2, {session_sum: 10})]);
        compare(changes, 1);
        compare(state.sessionSum, 10);
    }

    function test_customerIsInvitedToWhatWorks_data() {
        const full = {stacker_full: true};
        return [
            {tag: "all", devices: [device(1, 1), device(100, 2), device(200, 3, {state: "busy"})],
             text: "Input money or coin", accepted: "note coin card"},
            {tag: "full stacker", devices: [device(1, 1, full), device(100, 2)],
             text: "Input coin", accepted: "coin"},
            {tag: "offline", devices: [device(1, 1, {online: false}), device(100, 2)],
             text: "Input coin", accepted: "coin"},
            {tag: "jam", devices: [device(1, 1, {state: "jammed"}), device(200, 2, {state: "busy"})],
             text: "Pay by card", accepted: "card"},
            {tag: "error", devices: [device(1, 1, {state: "error"}), device(199, 2)],
             text: "Input coin", accepted: "coin"},
            {tag: "note in hand", devices: [device(1, 1, {state: "accepting"}), device(100, 2), device(201, 3)],
             text: "Wait...", accepted: ""},
            {tag: "dispenser only", devices: [device(51, 1)], text: "Out of service", accepted: ""},
            {tag: "halted", devices: [device(7, 1, {halt: true})], text: "Out of service", accepted: ""},
            {tag: "disabled", devices: [device(7, 1, {enabled: false})], text: "Out of service", accepted: ""},
            {tag: "nothing", devices: [], text: "Out of service", accepted: ""}
        ];
    }

    function test_customerIsInvitedToWhatWorks(row) {
        const state = make(row.devices);
        compare(state.customerText, row.text);
        const accepted = ["note", "coin", "card"].filter(kind => state[kind + "Accepted"]);
        compare(accepted.join(" "), row.accepted);
        compare(state.inService, row.text !== "Out of service");
    }

    // Steps of a device: state, note in hand, refusing filter.
    function test_lastNoteIsTold_data() {
        const sum = {name: "SessionSumFilter", params: {sessionSum: 3000}};
        const count = {name: "DenomCountFilter", params: {denom: 500, count: 2}};
        const attempts = {name: "AttemptsFilter", params: {denom: 500, attempts: 2}};
        return [
            {tag: "taken", model: 1, steps: [["accepting", 500], ["stacking", 500], ["stacked", 500]],
             text: "A note of 500 was accepted.", outcome: ServiceState.NoteTaken},
            {tag: "coin", model: 100, steps: [["accepting", 10], ["accepted", 10], ["idling", 0]],
             text: "A coin of 10 was accepted.", outcome: ServiceState.NoteTaken},
            {tag: "in hand", model: 1, steps: [["accepting", 500], ["accepted", 500]],
             text: "Checking a note of 500...", outcome: ServiceState.NoteChecked},
            {tag: "over the limit", model: 1,
             steps: [["accepting", 500, sum], ["returning", 500, sum], ["returned", 500], ["idling", 0]],
             text: "This note would pass the limit of 3000. It comes back to you.",
             outcome: ServiceState.NoteRefused},
            {tag: "refused while returning", model: 1,
             steps: [["accepting", 500], ["returning", 500, sum], ["returned", 500], ["idling", 0]],
             text: "This note would pass the limit of 3000. It comes back to you.",
             outcome: ServiceState.NoteRefused},
            {tag: "too many", model: 1, steps: [["accepting", 500, count]],
             text: "No more notes of 500 are accepted in this payment. It comes back to you.",
             outcome: ServiceState.NoteRefused},
            {tag: "rejections", model: 1, steps: [["accepting", 500, attempts]],
             text: "After several rejections no note of 500 is accepted. It comes back to you; please try another value.",
             outcome: ServiceState.NoteRefused},
            {tag: "filter of the service's own", model: 1, steps: [["accepting", 500, {name: "Own"}]],
             text: "This note cannot be accepted. It comes back to you.", outcome: ServiceState.NoteRefused},
            {tag: "not recognised", model: 1, steps: [["rejected", 0]],
             text: "Your note was not recognised. Please try another one.", outcome: ServiceState.NoteRejected},
            {tag: "coin not recognised", model: 199, steps: [["rejected", 0]],
             text: "Your coin was not recognised. Please try another one.", outcome: ServiceState.NoteRejected},
            {tag: "returned", model: 1, steps: [["accepting", 500], ["returning", 500], ["returned", 0]],
             text: "Your note of 500 was returned. Please take it.", outcome: ServiceState.NoteReturned},
            {tag: "jam", model: 1, steps: [["accepting", 500], ["stacking", 500], ["jammed", 500]],
             text: "The device failed with your note of 500 in it. Please call the staff.",
             outcome: ServiceState.NoteStuck},
            {tag: "lost sight of", model: 1, steps: [["accepting", 500], ["idling", 0]],
             text: "", outcome: ServiceState.NoNote}
        ];
    }

    function test_lastNoteIsTold(row) {
        const state = make([device(row.model, 1, {session_sum: 40}), device(1, 9)]);
        for (const [name, note, filter] of row.steps) {
            const refusals = filter ? [Object.assign({device_id: row.model, thread_id: 1}, filter)] : [];
            publish(state, [device(row.model, 1, {state: name, current_note: note, session_sum: 40}),
                               device(1, 9)], {refusals: refusals});
        }
        compare(state.lastNoteText, row.text);
        compare(state.lastNoteOutcome, row.outcome);
        publish(state, [device(row.model, 1, {session_sum: 0}), device(1, 9)]); // another session
        compare(state.lastNoteText, "");
    }

    function test_noteThatWasInHandAtFirstIsNotTold() {
        const state = make([device(1, 1, {state: "rejected"})]);
        compare(state.lastNoteText, "");
        compare(make([device(1, 1, {state: "accepting", current_note: 100})]).lastNoteText, "");
    }

    function test_sumsStayWhenTheServiceIsLost() {
        const state = make([device(1, 1, {session_sum: 1500}), device(100, 1, {session_sum: 10})]);
        state.available = false;
        compare([state.paymentText, state.acceptingAllowed, state.noteAccepted, state.sessionSum].join(),
                "Out of service,false,false,1510");
        compare(state.reasons, ["The service does not answer."]);
        compare(state.devices.get(0).accepting, false);
        state.available = true;
        compare(state.paymentText, "Input money or coin");
        state.text = "{";
        update(state);
        compare([state.paymentText, state.devices.count, state.sessionSum].join(), "Wait...,0,1510");
        compare(state.fault, "expected a JSON object");
        compare(state.reasons, ["The service's state cannot be read: expected a JSON object."]);
    }

    function spyOn(model) {
        rows = [];
        model.rowsInserted.connect((parent, first, last) => rows.push("insert " + first + "-" + last));
        model.rowsRemoved.connect((parent, first, last) => rows.push("remove " + first + "-" + last));
        model.rowsMoved.connect((parent, first, last, to, row) => rows.push("move " + first + " to " + row));
        model.dataChanged.connect(first => rows.push("change " + first.row));
        model.modelReset.connect(() => rows.push("reset"));
        model.countChanged.connect(() => rows.push("count"));
    }

    function test_rowsChangeOneByOne_data() {
        const [a, b, c, d] = [device(1, 1), device(2, 1), device(100, 2), device(1, 1, {id_string: "X"})];
        return [
            {tag: "same", after: [a, b, c], rows: []},
            {tag: "insert", after: [a, d, b, c], rows: ["insert 1-1", "count"]},
            {tag: "remove", after: [a, c], rows: ["remove 1-1", "count"]},
            {tag: "move", after: [c, a, b], rows: ["move 2 to 0"]},
            {tag: "change", after: [d, b, c], rows: ["change 0"]},
            {tag: "all", after: [], rows: ["remove 2-2", "remove 1-1", "remove 0-0", "count"]}
        ];
    }

    function test_rowsChangeOneByOne(row) {
        const state = make([device(1, 1), device(2, 1), device(100, 2)]);
        spyOn(state.devices);
        publish(state, row.after);
        compare(rows, row.rows);
    }

    function test_twinsAreTwoDevices() {
        const [full, empty] = [{dispenser_registry: [{channel: 1, count: 24}]}, {}];
        const state = make([device(1, 1, full), device(1, 1, empty)]);
        const registries = [state.devices.get(0).registry, state.devices.get(1).registry];
        compare(registries.map(registry => registry.count), [1, 0]);
        spyOn(state.devices);
        publish(state, [device(1, 1, full), device(1, 1, {halt: true})]);
        compare(rows, ["change 1"]);
        publish(state, [device(1, 1, full)]);
        compare(rows, ["change 1", "remove 1-1", "count"]);
        wait(0); // what is gone may be deleted
        compare(state.devices.get(0).registry, registries[0]);
    }

    function test_newNamesAreShown() {
        const state = make([device(1, 1), device(100, 1)]);
        spyOn(state.devices);
        state.names = {"1": "Left"};
        compare(rows, ["change 0"]);
        compare(state.devices.get(0).name, "Left");
        compare(state.devices.get(1).name, "Coin acceptor (CCTalk)");
        verify(state.report.includes("Name: Left\n"), state.report);
    }

    function test_countersAreInFull() {
        const devices = make([device(1, 1, {notes_inserted: 5e9, notes_rejected: 6e9, notes_returned: 7e9})]).devices;
        const {notesInserted, notesRejected, notesReturned} = devices.get(0);
        compare([notesInserted, notesRejected, notesReturned], [5e9, 6e9, 7e9]);
    }

    function test_lampsAreThoseOfTheKind() {
        const lamps = make([device(1, 1), device(100, 1), device(200, 1), device(51, 1)]).devices;
        const names = row => Array.from({length: lamps.get(row).lamps.count},
                                        (_, at) => lamps.get(row).lamps.get(at).name).join(" ");
        compare(names(0), "accepting stacker stackerFull error halted offline");
        compare(names(1), "accepting error halted offline");
        compare(names(2), names(1));
        compare(names(3), "error halted offline");
    }

    function test_paidLeftAndChange_data() {
        return [
            {tag: "nothing", price: 2510, sum: 0, expected: "false,2510,0,none,false"},
            {tag: "part", price: 2510, sum: 1510, recorded: 1510, expected: "false,1000,0,none,true"},
            {tag: "exact", price: 2510, sum: 2510, recorded: 2509, expected: "true,0,0,none,false"},
            {tag: "above", price: 2510, sum: 6010, recorded: 7000, expected: "true,0,3500,none,true"},
            {tag: "any sum", price: 0, sum: 6010, expected: "false,0,0,none,false"}
        ];
    }

    function test_paidLeftAndChange(row) {
        const state = make([device(1, 1, {session_sum: row.sum})], {money: {change: "none", recorded: row.recorded}});
        state.price = row.price;
        const {paid, left, change, changeMode, sumRecorded} = state;
        compare([paid, left, change, changeMode, sumRecorded].join(), row.expected);
        state.available = false; // what was confirmed stays so
        compare(state.sumRecorded, sumRecorded);
    }

    function test_textsFromOutsideAreTamed() {
        const hostile = "<img src=x>\u202e\u0007\u200f" + "A".repeat(1e6);
        const broken = device(1, 1, {state: hostile, id_string: hostile, state_text: hostile, error_critical: true,
                                     error_text: hostile, dispenser_registry: [{channel: 1, currency: hostile, count: 1}]});
        const state = make([broken], {incidents: [{number: hostile, device_id: 1, thread_id: 1}]});
        state.names = {"1": hostile};
        const shown = state.devices.get(0);
        const texts = [shown.idText, shown.status, shown.statusText, shown.description, shown.name, shown.wrong.join(),
                       shown.registry.get(0).currency, state.reasons.join(), state.report,
                       state.openNotes.get(0).incident, state.worstFaults.get(1).text];
        for (const text of texts) {
            verify(text.length < 1500, text.length);
            verify(!/[\u202e\u0007\u200f]/.test(text), JSON.stringify(text));
        }
        verify(shown.idText.startsWith("<img src=x> AAA"), shown.idText);
    }

    function test_staleServiceInvitesNobody() {
        const [all, empty] = [10, 0].map(sum => [device(1, 1, {session_sum: sum}), device(100, 2)]);
        const state = make(all);
        state.staleAfter = 2;
        wait(1100);
        state.take(state.text, state.timestamp); // the same again
        wait(1100);
        compare([state.stale, state.customerText].join(), "false,Input money or coin");
        tryCompare(state, "stale", true);
        compare([state.customerText, state.paymentText, state.acceptingAllowed, state.noteAccepted, state.coinAccepted,
                 state.inService, state.sessionSum, state.devices.count].join(),
                "Out of service,Out of service,false,false,false,false,10,2");
        compare(state.reasons, ["The service has told nothing for 2 s."]);
        compare(state.devices.get(0).accepting, false);
        state.take(state.text, state.timestamp);
        tryCompare(state, "customerText", "Input money or coin");
        publish(state, empty); // it is heard again: that is another session
        compare([state.stale, state.lostSum].join(), "false,0");
        publish(state, all);
        tryCompare(state, "stale", true);
        publish(state, empty);
        compare(state.lostSum, 10);
        tryCompare(state, "stale", true);
        state.staleAfter = 0;
        compare([state.stale, state.customerText].join(), "false,Input money or coin");
    }

    function test_everyStateIsFollowedButNotShown() {
        const state = make([device(1, 1)]);
        let [shown, events] = [0, 0];
        state.sessionSumChanged.connect(() => shown++);
        state.noteEvent.connect(() => events++);
        const start = Date.now();
        for (let i = 1; i <= 300; ++i) {
            state.text = text([device(1, 1, {state: "accepting", current_note: 100})]);
            state.text = text([device(1, 1, {state: "stacked", session_sum: i * 100})]);
        }
        verify(shown <= (Date.now() - start) / 15 + 1, shown);
        tryCompare(state, "sessionSum", 30000);
        compare(events, 600);
    }

    function test_worstFaultIsFirst() {
        const stuck = {number: "1", device_id: 7, thread_id: 4, denomination: 100};
        const state = make([device(1, 1, {enabled: false}), device(2, 3, {stacker_full: true}), device(100, 2, {online: false}),
                            device(7, 4, {error_critical: true}), device(200, 5, {state: "busy"})], {incidents: [stuck]});
        const faults = Array.from({length: state.worstFaults.count}, (_, row) => state.worstFaults.get(row));
        compare(faults.map(fault => [fault.reason, fault.severity, fault.deviceId, fault.threadId].join(" ")),
                ["money 3 7 4", "error 2 7 4", "offline 2 100 2", "stacker_full 1 2 3", "disabled 0 1 1"]);
        compare(faults[2].deviceName + ": " + faults[2].text, "Coin acceptor (CCTalk): The device is offline.");
    }

    function test_lampsKeepTheirRows() {
        const state = make([device(1, 1)]);
        const lamps = state.devices.get(0).lamps;
        spyOn(lamps);
        publish(state, [device(1, 1, {state: "accepting"})]);
        compare(rows, ["change 0"]);
        compare(state.devices.get(0).lamps, lamps);
        compare([lamps.get(0).name, lamps.get(0).lit].join(), "accepting,false");
    }

    function test_registryIsAModelOfItsOwn() {
        const row = {bill_type: 0, channel: 1, denomination: 100, currency: "RUB", count: 24, rejected: 2};
        const state = make([device(7, 1, {dispenser_registry: [row]})]);
        const registry = state.devices.get(0).registry;
        const cassette = registry.get(0);
        compare([cassette.channel, cassette.isCoin, cassette.denomination, cassette.currency, cassette.stock,
                 cassette.rejects].join(), "1,false,100,RUB,24,2");
        spyOn(registry);
        publish(state, [device(7, 1, {dispenser_registry: [Object.assign(row, {count: 23})]})]);
        compare(rows, ["change 0"]);
        compare(state.devices.get(0).registry, registry);
        compare(registry.get(0).stock, 23);
    }
}
