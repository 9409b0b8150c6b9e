// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import QtQuick.Window 2.15
import Kiosk 1.0
import Velmolib.Controls 5.0

// A page for each control, with all its states below each other; with a folder it takes pictures of all pages
// in every size and language, and ends.
//
// A page is <Name>Page.qml beside this file and samples/<Name>.json. The file's root has two properties:
//     property ServiceState service   that which the sample's steps were given to (a control has it already)
//     property var sample             the sample, for whatever else the page wants to read from it
// and is as wide as the window and as high as its implicitHeight; with `property bool whole: true` it fills a
// window. The JSON is a list of samples:
//     {"name": "a note jams", "steps": [STEP, STEP, ...]}
// A STEP is what the service publishes next. What it leaves out stays as it was, and what a device leaves out is
// {"thread_id": 1, "enabled": true, "state": "idling"}. {"set": {"available": false, "price": 2510}} sets
// properties of the ServiceState.
Window {
    id: window

    property var gallery
    property var samples: ({})
    property string folder: ""
    property string only: ""

    readonly property var pages: Object.keys(samples).filter(name => name.indexOf(only) >= 0)
    property string page: pages[0] || ""
    property string language: "en"
    property size view: Qt.size(width, height) // of the screen that is shown
    property real density: Screen.pixelDensity

    // Screens as they are in use: with the pixels in a millimetre of 10", 17", 32" and 27".
    readonly property var sizes: [
        {width: 800, height: 600, density: 3.8}, {width: 1280, height: 1024, density: 3.8},
        {width: 1080, height: 1920, density: 2.7}, {width: 3840, height: 2160, density: 6.4}]
    property var jobs: []

    width: 1280
    height: 1024
    visible: true
    title: "Velmolib.Controls"
    color: KioskTheme.ground

    onLanguageChanged: Language.current = language
    Component.onCompleted: {
        if (folder !== "")
            takePictures();
    }

    Binding {
        target: KioskTheme
        property: "density"
        value: window.density
    }
    Binding {
        target: KioskTheme
        property: "scale"
        value: Math.min(window.view.width, window.view.height) / window.density / 158
    }

    function takePictures() {
        KioskTheme.motion = false;
        const list = [];
        for (const size of sizes)
            for (const {code: language} of Language.all)
                for (const page of pages)
                    for (const mode of size === sizes[0] ? ["", "-large", "-contrast"] : [""])
                        list.push({size: size, language: language, page: page, mode: mode,
                                   name: `${size.width}x${size.height}-${language}${mode}`});
        jobs = list;
        next();
    }

    function next() {
        if (jobs.length === 0) {
            Qt.exit(0);
            return;
        }
        const job = jobs[0];
        page = "";
        KioskTheme.largeText = job.mode === "-large";
        KioskTheme.highContrast = job.mode === "-contrast";
        language = job.language;
        density = job.size.density;
        view = Qt.size(job.size.width, job.size.height);
        page = job.page;
        settle.restart();
    }

    // One picture of all samples, or one of each that fills a screen.
    function take(index) {
        const job = jobs[0];
        const frame = frames.itemAt(index);
        const item = frame && frame.whole ? frame.shown : content;
        const file = `${folder}/${job.page}${item === content ? "" : "-" + index}-${job.name}.png`;
        item.grabToImage(result => {
            if (!result.saveToFile(file)) {
                gallery.fail(file);
            } else if (item !== content && index + 1 < frames.count) {
                take(index + 1);
            } else {
                jobs.shift();
                Qt.callLater(next); // which takes away what is grabbed
            }
        });
    }

    Timer { // until what is shown stays as it is
        id: settle
        interval: 150
        onTriggered: window.take(0)
    }

    Flow {
        id: bar
        x: KioskTheme.gap
        y: KioskTheme.gap
        width: window.width - 2 * x
        spacing: KioskTheme.gap / 2
        visible: window.folder === ""

        Repeater {
            model: window.pages
            KioskKey {
                required property string modelData
                text: modelData
                checked: text === window.page
                onClicked: window.page = text
            }
        }
        LanguageKey {
            languages: Language.all
            current: window.language
            onChosen: code => window.language = code
        }
        KioskKey {
            text: "Large text"
            checked: KioskTheme.largeText
            onClicked: KioskTheme.largeText = !KioskTheme.largeText
        }
        KioskKey {
            text: "High contrast"
            checked: KioskTheme.highContrast
            onClicked: KioskTheme.highContrast = !KioskTheme.highContrast
        }
    }
    Flickable {
        anchors.fill: parent
        anchors.topMargin: bar.visible ? bar.height + 2 * bar.y : 0
        contentHeight: content.height
        clip: true

        Rectangle {
            id: content
            width: window.view.width
            height: column.height + 2 * column.y
            color: KioskTheme.ground

            Column {
                id: column
                x: KioskTheme.gap
                y: KioskTheme.gap
                width: parent.width - 2 * x
                spacing: 2 * KioskTheme.gap

                Repeater {
                    id: frames
                    model: window.samples[window.page] || []
                    Sample {
                        required property var modelData
                        width: column.width
                        page: window.page
                        sample: modelData
                        view: window.view
                        language: window.language
                    }
                }
            }
        }
    }
}
