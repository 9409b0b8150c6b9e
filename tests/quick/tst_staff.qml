// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtTest 1.15
import Velmolib 5.0
import Velmolib.Controls 5.0

TestCase {
    id: test
    name: "Staff"
    when: windowShown
    width: 1000
    height: 800
    visible: true

    Component {
        id: world
        Item {
            property alias state: state
            property alias money: money
            property alias cards: cards
            property alias age: age
            width: 1000
            height: 800
            ServiceState {
                id: state
                locale: "en"
            }
            OpenMoney {
                id: money
                width: parent.width
                service: state
            }
            DeviceCards {
                id: cards
                anchors.fill: parent
                service: state
            }
            StateAge {
                id: age
                service: state
            }
        }
    }

    function publish(state, published) {
        state.take(JSON.stringify(published), new Date());
        for (let turn = 0; turn < 3; ++turn)
            wait(10); // until it is shown, however long a turn of the event loop takes
    }

    function device(more) {
        return Object.assign({device_id: 1, thread_id: 1, enabled: true, state: "idling"}, more);
    }

    function test_moneyIsSettledOnlyWhenAskedTwice() {
        const page = createTemporaryObject(world, test);
        const incident = {number: "1-7", device_id: 1, thread_id: 1, denomination: 500, settled: false,
                          time: "2026-11-26T13:05:00.000Z"};
        publish(page.state, {device_states: [device()]});
        compare(page.money.height, 0);
        publish(page.state, {device_states: [device({state: "accepting", current_note: 500})], incidents: []});
        compare(page.money.height, 0, "what is in hand is no matter for the staff");
        publish(page.state, {device_states: [device({state: "jammed", error_critical: true})], incidents: [incident]});
        const line = Array.from(page.money.children).find(child => child.item).item;
        verify(line.visible && line.title.includes("No.\u00a01-7"), line.title);
        const wanted = createTemporaryQmlObject(
            "import QtTest 1.15; SignalSpy { signalName: 'settleWanted' }", test);
        wanted.target = page.state;
        findChild(line, "settleKey").clicked();
        findChild(line, "noKey").clicked();
        verify(!findChild(line, "reallyKey").visible);
        findChild(line, "settleKey").clicked();
        compare(wanted.count, 0);
        findChild(line, "reallyKey").clicked();
        compare(wanted.count, 1);
        compare(wanted.signalArguments[0][0], "1-7");
        verify(line.visible, "until the service says so");
        page.money.refused = "1-7";
        verify(line.text.includes("did not take it"), line.text);
        publish(page.state, {device_states: [device()], incidents: []});
        tryCompare(page.money, "height", 0);
    }

    function test_onlyWhatIsListedIsCounted() {
        const page = createTemporaryObject(world, test);
        const all = state => [1, 2, 3, 4, 5, 6].map(thread => device({thread_id: thread}))
            .map((one, row) => Object.assign(one, row < 5 ? {state: "accepting", current_note: 500} : state));
        publish(page.state, {device_states: all({}).map(one => device({thread_id: one.thread_id}))});
        publish(page.state, {device_states: all({state: "accepting", current_note: 500})});
        publish(page.state, {device_states: all({state: "jammed", error_critical: true})});
        const lines = Array.from(page.money.children).filter(child => child.item && child.visible);
        compare(lines.length, 1, "behind those that are checked");
        verify(!findChild(page.money, "moreMoney").visible);
    }

    function test_lostSumIsSettled() {
        const page = createTemporaryObject(world, test);
        publish(page.state, {device_states: [device({session_sum: 700})]});
        page.state.available = false;
        page.state.available = true;
        publish(page.state, {device_states: [device({session_sum: 0})]});
        const line = findChild(page.money, "openLoss");
        verify(line.visible && line.title.includes("700"), line.title);
        findChild(line, "settleKey").clicked();
        findChild(line, "reallyKey").clicked();
        tryCompare(page.state, "lostSum", 0);
        tryCompare(page.money, "height", 0);
    }

    // The names of the devices whose cards are made, from top to bottom.
    function cardsOf(cards) {
        return Array.from(cards.contentItem.children).filter(cell => cell.item)
            .sort((one, other) => one.y - other.y || one.x - other.x).map(cell => cell.item.entry.threadId);
    }

    function test_brokenDevicesStandFirst() {
        const page = createTemporaryObject(world, test);
        const devices = Array.from({length: 50}, (_, row) => device({thread_id: row + 1}));
        devices[40] = device({thread_id: 41, state: "jammed", error_critical: true});
        publish(page.state, {device_states: devices});
        tryCompare(page.cards, "faulty", 1);
        compare(page.cards.count, 50);
        tryVerify(() => cardsOf(page.cards).slice(0, 2).join() === "41,1", 5000);
        verify(cardsOf(page.cards).length < 30, "made only for what is seen");
        tryVerify(() => {
            page.cards.contentY = page.cards.contentHeight - page.cards.height; // which grows with the cards
            return cardsOf(page.cards).includes(50);
        }, 5000);
        for (const cell of Array.from(page.cards.contentItem.children).filter(cell => cell.item))
            compare(cell.height, cell.item.implicitHeight, "as high as its text");
    }

    function test_cardsAreDimmedWhenTheServiceIsSilent() {
        const page = createTemporaryObject(world, test);
        publish(page.state, {device_states: [device()]});
        tryVerify(() => cardsOf(page.cards).length === 1);
        const card = Array.from(page.cards.contentItem.children).find(cell => cell.item).item;
        verify(!card.dimmed);
        compare(page.age.isSilent, false);
        page.state.available = false;
        verify(card.dimmed);
        verify(page.age.isSilent);
        page.state.take(page.state.text, new Date(Date.now() - 90000));
        tryVerify(() => /, 9[01] s old/.test(page.age.text), 5000, page.age.text);
    }
}
