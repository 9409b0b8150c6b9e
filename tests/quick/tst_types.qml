// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtTest 1.15
import Velmolib 5.0

TestCase {
    id: test
    name: "Types"
    when: windowShown
    width: 100
    height: 100

    property var given: ({}) // the values of a settings list
    property var edits: []
    property int idles: 0
    property real idleSince: 0

    Catalogue {
        id: catalogue
    }

    SettingDescriptions {
        id: settings
        values: test.given
        onValueEdited: (group, key, text) => {
            test.edits.push([group, key, text].join());
            test.given = Object.assign({}, test.given, {[group + "/" + key]: text});
        }
    }

    Component {
        id: lockComponent
        PinLock {}
    }

    IdleWatch {
        id: idleWatch
        running: false
        onIdle: {
            test.idles++;
            test.idleSince = Date.now();
        }
    }

    function cleanup() {
        host.setMarked(false);
        given = {};
        edits = [];
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

    function rowOf(key) {
        for (let row = 0; row < settings.count; ++row) {
            if (settings.get(row).key === key)
                return row;
        }
        fail("no row of " + key);
    }

    function test_onlyTheEditedSettingChanges() {
        settings.device = 2;
        settings.model = 1;
        settings.interfaceType = "rs232";
        const row = rowOf("response_time");
        const shown = () => {
            const {value, isDefault, valid} = settings.get(row);
            return [value, isDefault, valid].join();
        };
        const edit = text => {
            settings.setValue("device2/ccnet", "response_time", text);
            return host.takeChanges();
        };
        host.listenTo(settings);
        const byDefault = settings.get(row).defaultValue;
        compare(settings.get(rowOf("device_id")).valid, false); // the default is no model
        compare(settings.get(row).path, "device2/ccnet/response_time");
        compare(shown(), byDefault + ",true,true");
        compare(edit("soon"), [row + ": value isDefault valid"]);
        compare(shown(), "soon,false,false");
        compare(edit("soon"), []);
        compare(edit("20"), [row + ": value valid"]);
        compare(edit(byDefault), [row + ": value isDefault"]);
        compare(edits, ["soon", "20", byDefault].map(text => "device2/ccnet,response_time," + text));
        settings.setValue("device2/ccnet", "no_such_key", "1");
        compare(edits.length, 3);
        // From the program, as a list that was read from JSON has it, and of another device.
        given = {"device2/ccnet/response_time": 30, "device3/ccnet/response_time": "40", "x": null};
        compare(shown(), "30,false,true");
        settings.device = 3;
        compare(shown(), "40,false,true");
        given = {};
        compare(shown(), byDefault + ",true,true");
    }

    function test_wordsFollowTheLanguage() {
        settings.device = 0;
        const kind = catalogue.get(0).kind;
        const allRows = (model, roles) => Array.from({length: model.count}, (_, row) => row + ": " + roles);
        host.listenTo(catalogue);
        host.setMarked(true);
        compare(host.takeChanges(), allRows(catalogue, "kind"));
        host.listenTo(settings);
        host.setMarked(false);
        compare(host.takeChanges(), allRows(settings, "label help"));
        host.setMarked(true);
        compare(catalogue.get(0).kind, "~" + kind);
        verify(settings.get(0).label.startsWith("~"), settings.get(0).label);
        host.setMarked(false);
        compare(catalogue.get(0).kind, kind);
    }

    function test_pinFile_data() {
        const expected = "FILE: line 1: expected a PIN of 4 to 12 digits";
        return [
            {tag: "four digits", text: "0042\n", pin: "0042", fault: ""},
            {tag: "twelve digits, no end of line", text: "123456789012", pin: "123456789012", fault: ""},
            {tag: "of another system", text: "1234\r\n", pin: "1234", fault: ""},
            {tag: "more lines", text: "1234\nfor the staff\n", pin: "1234", fault: ""},
            {tag: "missing", fault: "FILE: No such file or directory"},
            {tag: "empty", text: "", fault: expected},
            {tag: "empty line", text: "\n1234\n", fault: expected},
            {tag: "letters", text: "12a4\n", fault: expected},
            {tag: "blank", text: "1234 \n", fault: expected},
            {tag: "three digits", text: "123\n", fault: expected},
            {tag: "thirteen digits", text: "1234567890123\n", fault: expected},
            {tag: "endless line", text: "1".repeat(100000), fault: expected},
            {tag: "digits that no key has", text: "\u0661\u0662\u0663\u0664\n", fault: expected}
        ];
    }

    function test_pinFile(row) {
        const name = row.tag + " %2";
        const file = row.text === undefined ? host.path(name) : host.write(name, row.text);
        const lock = createTemporaryObject(lockComponent, test, {file: file});
        compare(lock.fault, row.fault.replace("FILE", file));
        compare(lock.ready, row.fault === "");
        for (const tried of ["", "1234x", "12345", "01234", "1234\n"]) {
            compare(lock.check(tried), false, tried);
            compare(lock.check(row.pin || row.text || ""), lock.ready); // which ends the count of wrong tries
        }
        compare(lock.waitSeconds, 0); // also where there was nothing to try
    }

    function test_whatIsNoFileIsNotRead() {
        for (const file of [host.path("."), host.makePipe("pipe"), "/dev/zero"])
            compare(createTemporaryObject(lockComponent, test, {file: file}).fault, file + ": is not a file");
    }

    function test_pinIsWhatTheFileHasNow() {
        const lock = createTemporaryObject(lockComponent, test, {file: host.write("changed", "1111\n")});
        verify(lock.check("1111"));
        host.replace("changed", "2222\n");
        verify(!lock.check("1111"));
        verify(lock.check("2222"));
        host.remove("changed");
        tryCompare(lock, "ready", false);
        verify(!lock.check("2222"));
        host.write("changed", "33");
        tryVerify(() => lock.fault.includes("line 1"));
        host.setMarked(true);
        verify(lock.fault.startsWith("~"), lock.fault);
        host.replace("changed", "3333\n");
        tryCompare(lock, "ready", true);
        verify(lock.check("3333"));
    }

    function test_pinOfTheSettingsGoesBeforeTheFile() {
        const lock = createTemporaryObject(lockComponent, test);
        compare(lock.fault, "No PIN is given.");
        verify(!lock.check(""));
        lock.file = host.write("given", "1111\n");
        lock.pin = "22";
        compare(lock.fault, "The PIN given has to have 4 to 12 digits.");
        verify(!lock.check("22") && !lock.check("1111"));
        lock.pin = "2222";
        verify(lock.ready && lock.check("2222") && !lock.check("1111"));
        compare(lock.pin, ""); // whoever draws the page need not know it
        lock.pin = "";
        verify(lock.check("1111"));
    }

    function test_wrongTriesHaveToWait() {
        const lock = createTemporaryObject(lockComponent, test, {pin: "1234", firstWait: 0});
        compare(lock.firstWait, 1);
        const tryWrong = times => {
            for (let i = 0; i < times; ++i)
                lock.check("0000");
            return lock.waitSeconds;
        };
        compare(tryWrong(2), 0);
        verify(lock.check("1234"));
        compare(tryWrong(2), 0); // counted anew
        compare(tryWrong(1), 1);
        const start = Date.now();
        verify(!lock.check("1234"));
        compare(tryWrong(5), 1); // not looked at, so not counted
        tryCompare(lock, "waitSeconds", 0);
        verify(Date.now() - start >= 900);
        compare(tryWrong(1), 2);
        tryCompare(lock, "waitSeconds", 1); // counts down
        tryCompare(lock, "waitSeconds", 0);
        lock.firstWait = 500;
        compare(tryWrong(1), 900); // not 2000
    }

    function test_onlyUseKeepsTheApplicationFromIdling() {
        idles = 0;
        idleWatch.seconds = 1;
        idleWatch.running = true;
        let used = 0;
        const uses = [
            () => mouseClick(test), () => keyClick(Qt.Key_1), () => mouseWheel(test, 9, 9, 0, 120),
            () => touchEvent(test).press(1, test, 9, 9).commit(), () => touchEvent(test).release(1, test, 9, 9).commit()
        ];
        for (const use of uses) {
            wait(600); // one that does not count lets the second pass
            compare(idles, 0);
            use();
            used = Date.now();
        }
        wait(600);
        mouseMove(test, 20, 20);
        host.repeatKey();
        tryCompare(test, "idles", 1);
        verify(idleSince - used >= 950 && idleSince - used < 1550, idleSince - used);
        wait(1200);
        compare(idles, 1); // once
        mouseClick(test);
        tryCompare(test, "idles", 2);
        mouseClick(test);
        idleWatch.running = false;
        mouseClick(test);
        idleWatch.running = true;
        idleWatch.seconds = 2147483647; // more than a timer counts
        wait(1200);
        compare(idles, 2);
    }
}
