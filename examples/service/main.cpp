// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

// The service side: a validator's handler keeps the device's state, asks the note filters and
// publishes the service state, here on standard output.

#include <velmolib/devicestateworker.h>
#include <velmolib/filterchain.h>
#include <velmolib/filterfactory.h>

#include <QJsonDocument>
#include <QJsonObject>
#include <QTextStream>

int main()
{
    DeviceStateWorker worker;
    worker.setDeviceId(1);
    worker.setEnabled(true);

    FilterChain chain;
    chain.setEvents(worker.getStatesList())
        ->add(FilterFactory::createFilter(QLatin1String(filters::SESSION_SUM_FILTER),
                                          {{QStringLiteral("sessionSum"), 3000}}));

    QTextStream out(stdout);
    const auto publish = [&out](const DeviceState& state) {
        const QVariantMap published{{QStringLiteral("device_states"), QVariantList{state.toMap()}}};
        const QJsonDocument document(QJsonObject::fromVariantMap(published));
        out << document.toJson(QJsonDocument::Compact) << '\n';
    };
    QObject::connect(&worker, &DeviceStateWorker::deviceStateChanged, publish);

    // As the device reports it; a note of 5000 is above what the session may take.
    worker.startSession();
    const QPair<State, int> reports[] = {{STATE_IDLING, 0}, {STATE_ACCEPTING, 5000}};
    for (const auto& [state, note] : reports) {
        worker.setState(state);
        worker.setCurrentNote(note);
        if (worker.checkState())
            worker.saveState();
    }
    if (chain.validate() != AbstractFilter::FILTER_ACCEPT) {
        worker.setState(STATE_RETURNING);
        worker.checkState();
    }
    return 0;
}
