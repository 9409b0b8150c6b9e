// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorbus.h"
#include "paymentscreen.h"
#include "testtable.h"

#include <QtDBus>
#include <QtWidgets>

namespace {

QDBusMessage callService(const QString& method)
{
    return QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
        acceptorBus::SERVICE, acceptorBus::PATH, acceptorBus::INTERFACE, method));
}

QString text(const PaymentScreen& screen, const QString& label)
{
    return screen.findChild<QLabel*>(label)->text();
}

// Payment text and session sum; status and lamps of each device: stacker present, stacker full,
// critical error, accepting.
QString shown(const PaymentScreen& screen)
{
    QStringList cells{text(screen, "paymentText"_s), text(screen, "sessionSum"_s)};
    const auto* const devices = screen.findChild<QTableWidget*>("devices"_s);
    for (int row = 0; row < devices->rowCount(); ++row) {
        cells += devices->item(row, 1)->text() + " "_s;
        for (int column = 2; column < devices->columnCount(); ++column)
            cells.last() += devices->item(row, column)->text() == "●"_s ? "+"_s : "-"_s;
    }
    return cells.join(" | "_s).remove("Session sum: "_s);
}

// What the screen does not show: each device's verdict and its inserted, rejected and returned
// notes.
QString published()
{
    const QDBusReply<QString> reply = callService("currentState"_s);
    const QJsonDocument state = QJsonDocument::fromJson(reply.value().toUtf8());
    const QJsonArray devices = state["device_states"_s].toArray();
    QStringList cells;
    for (const QJsonValue& device : devices) {
        cells += state["verdicts"_s][device["device_id"_s].toVariant().toString()].toString();
        for (const QString& counter : {"inserted"_s, "rejected"_s, "returned"_s})
            cells.last() += " %1"_s.arg(device["notes_"_s + counter].toInt(-1));
    }
    return cells.join(" | "_s);
}

} // namespace

class tst_Bus : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_service.terminate();
        QVERIFY(m_service.state() == QProcess::NotRunning || m_service.waitForFinished());
    }

    // The expected lines, one for each step; the folder and names of the devices' sessions.
    void screenFollowsTheService_data()
    {
        addRows(R"(
            fished-note | samples            | fished-note
            jam         | samples            | jam
            kiosk       | examples/bus/kiosk | validator recycler coins terminal)"_s);
    }

    void screenFollowsTheService()
    {
        const auto [name, folder, sessions] = cells<3>();
        QFile file(EXPECTED "/%1.expected"_s.arg(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        startService(folder, sessions);
        PaymentScreen screen({{1, "Note validator"_s},
                              {2, "Note recycler"_s},
                              {100, "Coin acceptor"_s},
                              {200, "Card terminal"_s}});
        screen.resize(900, 600);
        for (QDBusReply<bool> more = callService("step"_s); more; more = callService("step"_s)) {
            const QString expected = QString::fromUtf8(file.readLine()).trimmed();
            QTRY_COMPARE(shown(screen) + " => "_s + published(), expected);
        }
        QVERIFY(file.atEnd());
        QFile log(m_folder.filePath("log.jsonl"_s));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QJsonObject first = QJsonDocument::fromJson(log.readLine()).object();
        QCOMPARE(first["session"_s], QJsonValue("start"_s));
        QVERIFY(first["device_id"_s].toInt() > 0 && first["thread_id"_s].toInt() > 0);
        QVERIFY(QDateTime::fromString(first["time"_s].toString(), Qt::ISODate).isValid());
        QVERIFY(log.readAll().endsWith("}\n"));
        const QString report = screen.findChild<QPlainTextEdit*>("serviceReport"_s)->toPlainText();
        QVERIFY(report.startsWith("DeviceId: 1,ThreadId: 1\nName: Note validator\n"_s));
        const QString picture = qEnvironmentVariable("VELMOLIB_SCREENSHOT");
        QVERIFY(picture.isEmpty() || screen.grab().save(picture, "PNG"));
    }

    void screenOutlivesTheService()
    {
        const PaymentScreen screen({});
        for (int run = 0; run < 2; ++run) {
            QTRY_VERIFY(text(screen, "serviceStatus"_s).contains("not on the bus"_s));
            QCOMPARE(shown(screen), "Wait... | 0"_s);
            startService("samples"_s, "jam"_s);
            QTRY_VERIFY(text(screen, "serviceStatus"_s).startsWith("State of "_s));
            callService("step"_s);
            QTRY_COMPARE(shown(screen), "Input money | 0 | wait money +---"_s);
            cleanup();
        }
    }

private:
    void startService(const QString& folder, const QString& sessions)
    {
        QStringList arguments{"--step"_s,    "0"_s,
                              "--filters"_s, "samples/filters.json"_s,
                              "--record"_s,  m_folder.filePath("log.jsonl"_s)};
        for (const QString& session : sessions.split(QLatin1Char(' ')))
            arguments += folder + "/"_s + session + ".jsonl"_s;
        m_service.setWorkingDirectory(QStringLiteral(SOURCES));
        m_service.start(QStringLiteral(ACCEPTORSERVICE), arguments);
        const QDBusConnectionInterface* const bus = QDBusConnection::sessionBus().interface();
        QTRY_VERIFY(bus->isServiceRegistered(acceptorBus::SERVICE));
    }

    QProcess m_service;
    QTemporaryDir m_folder;
};

QTEST_MAIN(tst_Bus)
#include "tst_bus.moc"
