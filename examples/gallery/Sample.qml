// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

import QtQuick 2.15
import Velmolib 5.0
import Velmolib.Controls 5.0

// A page in the state to which the steps of a sample lead, with the sample's name above.
Column {
    id: frame

    property string page
    property var sample
    property size view
    property string language

    readonly property Item shown: loader.item
    readonly property bool whole: shown !== null && shown.whole === true

    spacing: KioskTheme.gap / 2

    function take(steps) {
        let state = {};
        let time = Date.now() - 1000 * (steps.length + 3);
        for (const step of steps) {
            if (step.set) {
                Object.assign(service, step.set);
                continue;
            }
            state = Object.assign({}, state, step);
            state.device_states = (state.device_states || []).map(
                device => Object.assign({thread_id: 1, enabled: true, state: "idling"}, device));
            time += 1000;
            service.take(JSON.stringify(state), new Date(time));
        }
    }

    ServiceState {
        id: service
        locale: frame.language
    }
    KioskText {
        width: frame.width
        text: frame.sample.name
        color: KioskTheme.quiet
    }
    Loader {
        id: loader
        width: frame.whole ? frame.view.width : frame.width
        Binding on height {
            when: frame.whole
            value: frame.view.height
        }
        Component.onCompleted: {
            setSource(frame.page + "Page.qml", {service: service, sample: frame.sample});
            frame.take(frame.sample.steps || []);
        }
    }
}
