// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorbus.h"
#include "screen/language.h"
#include "screen/servicelink.h"
#include "testtable.h"

#include <QtDBus>
#include <QtQml>
#include <QtQuick>

#include <ctime>

namespace {

constexpr int longest = 60000; // milliseconds, for what comes at once unless the machine is busy

QDBusMessage callService(const QString& method)
{
    return QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
        acceptorBus::SERVICE, acceptorBus::PATH, acceptorBus::INTERFACE, method));
}

// The program's window, as its main() makes it.
class Kiosk
{
public:
    explicit Kiosk(Language& language, const QVariantMap& properties = {})
    {
        qmlRegisterSingletonInstance("Kiosk", 1, 0, "Language", &language);
        qmlRegisterSingletonInstance("Kiosk", 1, 0, "ServiceLink", &m_link);
        QObject::connect(&language, &Language::currentChanged, &m_engine, &QQmlEngine::retranslate);
        QObject::connect(&m_engine, &QQmlEngine::warnings, [this](const QList<QQmlError>& errors) {
            for (const QQmlError& error : errors)
                m_warnings += error.toString();
        });
        m_engine.addImportPath(QStringLiteral(MODULES));
        m_engine.setInitialProperties(properties);
        m_engine.load(QUrl("qrc:/screen/Main.qml"_s));
    }

    QQuickWindow* window() const
    {
        return qobject_cast<QQuickWindow*>(m_engine.rootObjects().value(0));
    }
    ServiceLink& link() { return m_link; }
    QStringList warnings() const { return m_warnings; }

    QQuickItem* item(const QString& name) const { return window()->findChild<QQuickItem*>(name); }

    QString text(const QString& name) const
    {
        const QQuickItem* const found = item(name);
        return found && found->isVisible() && found->parentItem()->opacity() > 0
            ? found->property("text").toString()
            : QString();
    }

    QObject* state() const
    {
        return item("customerScreen"_s)->property("service").value<QObject*>();
    }

    // What the customer sees: what to do, the pictures of what is accepted, the sum, and what
    // became of the last note.
    QString customer() const
    {
        QString pictures;
        for (const QString& kind : {"note"_s, "coin"_s, "card"_s})
            pictures += item(kind + "Picture"_s)->isVisible() ? kind + " "_s : QString();
        return QStringList{text("headline"_s), pictures.trimmed(), text("sum"_s),
                           text("outOfService"_s) + text("lastNote"_s)}
            .join(" | "_s);
    }

    // The devices as the engineer sees them: status, the lamps that are lit, what is wrong,
    // counters.
    QString devices() const
    {
        auto* const model = state()->property("devices").value<QAbstractItemModel*>();
        const QHash<int, QByteArray> roles = model->roleNames();
        QStringList texts;
        for (int row = 0; row < model->rowCount(); ++row) {
            const auto value = [&](const char* role) {
                return model->index(row, 0).data(roles.key(role));
            };
            QStringList lit;
            for (const QVariant& lamp : value("lamps").toList()) {
                if (lamp.toMap()["lit"_s].toBool())
                    lit += lamp.toMap()["name"_s].toString();
            }
            texts += "%1 (%2) %3/%4/%5"_s.arg(
                value("statusText").toString(), lit.join(","_s), value("notesInserted").toString(),
                value("notesRejected").toString(), value("notesReturned").toString());
        }
        return texts.join("; "_s);
    }

    // What lies in the devices as the engineer sees it, "T" being a time.
    QString contents() const
    {
        static const QRegularExpression time("[0-9.]{10} [0-9:]{5}"_s);
        QMap<qreal, QString> cards; // from left to right
        if (const QQuickItem* const grid = item("devices"_s)) {
            for (QQuickItem* cell :
                 grid->property("contentItem").value<QQuickItem*>()->childItems())
                cards[cell->x()] += contentOf(cell).join(" / "_s).replace(time, "T"_s);
        }
        QStringList texts = cards.values();
        texts.removeAll(QString());
        return texts.join("; "_s)
            .replace("\n"_s, ", "_s)
            .replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    }

private:
    static QStringList contentOf(QQuickItem* item)
    {
        static const QStringList names{"places"_s, "onTheirWay"_s, "stuck"_s};
        QStringList texts;
        if (names.contains(item->objectName()) && item->isVisible())
            texts += item->property("text").toString();
        for (QQuickItem* child : item->childItems())
            texts += contentOf(child);
        return texts;
    }

    ServiceLink m_link;
    QStringList m_warnings;
    QQmlApplicationEngine m_engine;
};

qint64 residentPages()
{
    QFile file("/proc/self/statm"_s);
    return file.open(QIODevice::ReadOnly) ? file.readAll().split(' ').at(1).toLongLong() : 0;
}

} // namespace

class tst_Kiosk : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        m_service.terminate();
        QVERIFY(m_service.state() == QProcess::NotRunning || m_service.waitForFinished(longest));
    }

    // The expected lines, one for each step; the folder and names of the devices' sessions.
    void screenFollowsTheService_data()
    {
        addRows(R"(
            fished-note     | samples             | fished-note
            jam             | samples             | jam
            note-count      | samples             | note-count
            plain-payment   | samples             | plain-payment
            recycler-payout | samples             | recycler-payout
            session-sum     | samples             | session-sum
            show            | examples/kiosk/show | validator recycler coins terminal)"_s);
    }

    void screenFollowsTheService()
    {
        const auto [name, folder, sessions] = cells<3>();
        QFile file(EXPECTED "/%1.expected"_s.arg(name));
        QVERIFY(file.open(QIODevice::ReadOnly));
        startService(folder, sessions);
        Kiosk kiosk(m_language, {{"price"_s, 2510}});
        for (QDBusReply<bool> more = callService("step"_s); more; more = callService("step"_s)) {
            QString expected;
            for (int line = 0; line < 3; ++line)
                expected += QString::fromUtf8(file.readLine());
            const auto shown = [&] {
                return kiosk.customer().trimmed() + "\n"_s + kiosk.devices() + "\n"_s
                    + kiosk.state()->property("reasons").toStringList().join(" "_s) + "\n"_s;
            };
            QTRY_COMPARE_WITH_TIMEOUT(shown(), expected, longest);
        }
        QVERIFY(file.atEnd());
        QCOMPARE(kiosk.warnings(), QStringList());
        checkLog();
    }

    // The content of each device on the service screen after so many steps.
    void contentIsTold_data()
    {
        addRows(R"(
            samples             | plain-payment   | 3  | Cassette: at least 0 × 100 / On its way: 1 × 100, since T
            samples             | jam             | 4  | Cassette: at least 0 × 1000 / On its way: 1 × 1000, since T
            samples             | jam             | 5  | Stuck: 1 × 1000, since T / Cassette: at least 0 × 1000
            samples             | jam             | 7  | Stuck: 1 × 1000, since T / Cassette: 0 to 1 × 1000
            samples             | jam             | 99 | Stuck: 1 × 1000, since T / Cassette: 0 to 1 × 1000
            samples             | recycler-payout | 3  | Cassette: at least 1 × 1000, Channel 1: 24 × 100 RUB, Channel 2: 9 × 500 RUB, Rejects: 0 × 100 RUB, 0 × 500 RUB
            samples             | recycler-payout | 5  | Cassette: at least 0 × 500 RUB, at least 1 × 1000, Channel 1: 24 × 100 RUB, Channel 2: 0 to 9 × 500 RUB, Rejects: 0 × 100 RUB, 0 × 500 RUB
            samples             | recycler-payout | 99 | Cassette: at least 1 × 1000, Channel 1: 22 × 100 RUB, Channel 2: 8 × 500 RUB, Rejects: 1 × 100 RUB, 0 × 500 RUB
            examples/kiosk/show | validator recycler coins terminal | 99 | Cassette: at least 1 × 500, at least 2 × 1000, at least 0 × 2000; Stuck: 1 × 100, since T / Cassette: at least 0 × 100 RUB, Channel 1: 24 × 100 RUB, Channel 2: 8 × 500 RUB, Rejects: 0 × 100 RUB, 1 × 500 RUB; Cassette: at least 1 × 10)"_s);
    }

    void contentIsTold()
    {
        const auto [folder, sessions, steps, expected] = cells<4>();
        startService(folder, sessions);
        Kiosk kiosk(m_language);
        for (int step = 0; step < steps.toInt(); ++step)
            callService("step"_s);
        kiosk.window()->setProperty("serviceShown", true);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.contents(), expected, longest);
        m_language.setCurrent("ru"_s);
        QTRY_VERIFY_WITH_TIMEOUT(
            !kiosk.contents().remove("RUB"_s).contains(QRegularExpression("[A-Za-z]{2}"_s)),
            longest);
        m_language.setCurrent("en"_s);
        kiosk.window()->setProperty("serviceShown", false);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.contents(), QString(), longest);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    void sumOutlivesTheService()
    {
        Kiosk kiosk(m_language);
        const QString lost = "Out of service |  | Paid: %1 | %2"_s;
        QCOMPARE(kiosk.customer(), lost.arg("0"_s, "Please use another kiosk."_s));
        for (int run = 0; run < 2; ++run) {
            startService("samples"_s, "plain-payment"_s);
            QTRY_VERIFY_WITH_TIMEOUT(kiosk.state()->property("available").toBool(), longest);
            for (int step = 0; step < 6; ++step)
                callService("step"_s);
            QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("sum"_s), "Paid: 100"_s, longest);
            m_service.kill(); // in the middle of the payment
            QTRY_COMPARE_WITH_TIMEOUT(
                kiosk.customer(),
                lost.arg("100"_s, "What you have paid is recorded. Please call the staff."_s),
                longest);
            QCOMPARE(kiosk.state()->property("reasons").toStringList(),
                     QStringList("The service does not answer."_s));
            cleanup();
        }
    }

    void languageChangesAllTexts()
    {
        startService("samples"_s, "plain-payment"_s);
        callService("step"_s);
        Kiosk kiosk(m_language);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("headline"_s), "Input money"_s, longest);
        kiosk.window()->setProperty("serviceShown", true);
        QTRY_VERIFY_WITH_TIMEOUT(kiosk.item("reportKey"_s), longest);
        QMetaObject::invokeMethod(kiosk.item("languageKey"_s), "clicked");
        QCOMPARE(m_language.current(), "ru"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.item("headline"_s)->property("text").toString(),
                                  "Внесите купюры"_s, longest);
        QCOMPARE(kiosk.item("sum"_s)->property("text").toString(), "Внесено: 0"_s);
        QCOMPARE(kiosk.devices(), "ожидание денег (accepting,stacker) 0/0/0"_s);
        const QRegularExpression latin("[A-Za-z]{2}"_s); // the language key alone has some
        for (QQuickItem* item : kiosk.window()->findChildren<QQuickItem*>()) {
            QString text = item->property("text").toString();
            if (item->objectName() != "languageKey"_s && text != "English"_s)
                QVERIFY2(!text.remove("CCNet"_s).remove("CCNET-0418"_s).contains(latin),
                         qPrintable(text));
        }
        m_language.setCurrent("en"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.item("headline"_s)->property("text").toString(),
                                  "Input money"_s, longest);
    }

    void floodLeavesTheScreenInTime()
    {
        Kiosk kiosk(m_language);
        const auto stateOf = [](int number) {
            QJsonArray devices;
            for (int device = 0; device < 3; ++device) {
                devices += QJsonObject{{"device_id"_s, device + 1},
                                       {"thread_id"_s, 1},
                                       {"enabled"_s, true},
                                       {"state"_s, number % 2 ? "idling"_s : "accepting"_s},
                                       {"session_sum"_s, number},
                                       {"current_note"_s, number % 2 ? 0 : 100}};
            }
            const QJsonObject state{{"device_states"_s, devices}};
            return QString::fromUtf8(QJsonDocument(state).toJson(QJsonDocument::Compact));
        };
        const auto send = [&](int number) {
            Q_EMIT kiosk.link().stateReceived(stateOf(number), QDateTime::currentDateTime());
            QCoreApplication::processEvents();
        };
        for (int i = 0; i < FLOOD / 10; ++i)
            send(i);
        // Time of the processor, in times that it takes to write a state: whatever the machine is,
        // and whatever else it does.
        std::clock_t start = std::clock();
        for (int i = 0; i < FLOOD; ++i)
            QVERIFY(!stateOf(i).isEmpty());
        const double writing = double(std::clock() - start);
        const qint64 before = residentPages();
        start = std::clock();
        for (int i = 0; i < FLOOD; ++i)
            send(i);
        const double times = double(std::clock() - start) / writing;
        QVERIFY2(times < 100 * PATIENCE, qPrintable(QString::number(times)));
        QCOMPARE(kiosk.state()->property("sessionSum").toInt(), 3 * (FLOOD - 1));
        QVERIFY2(residentPages() - before < 4096 * PATIENCE,
                 qPrintable(QString::number(residentPages() - before)));
    }

    void manyDevicesAreShown()
    {
        Kiosk kiosk(m_language);
        kiosk.window()->setProperty("serviceShown", true);
        QJsonArray devices;
        for (int device = 0; device < 200; ++device)
            devices += QJsonObject{{"device_id"_s, 1 + device % 7}, {"thread_id"_s, device}};
        auto* const content = kiosk.item("devices"_s)->property("contentItem").value<QQuickItem*>();
        for (int state = 0; state < 20; ++state) {
            QJsonObject first = devices.first().toObject();
            first["notes_inserted"_s] = state;
            devices.removeFirst();
            devices += first;
            const QJsonObject published{{"device_states"_s, devices}};
            const QList<QQuickItem*> before = content->childItems();
            Q_EMIT kiosk.link().stateReceived(QString::fromUtf8(QJsonDocument(published).toJson()),
                                              QDateTime());
            QCoreApplication::processEvents();
            // Cards are made for what is seen of the devices, and stay while these do.
            const QList<QQuickItem*> cards = content->childItems();
            QVERIFY2(cards.size() < 40, qPrintable(QString::number(cards.size())));
            const auto made = std::count_if(cards.begin(), cards.end(), [&](QQuickItem* card) {
                return !before.contains(card);
            });
            QVERIFY2(state == 0 || made < 3, qPrintable(QString::number(made)));
        }
        QCOMPARE(kiosk.item("devices"_s)->property("count").toInt(), 200);
        QCOMPARE(kiosk.warnings(), QStringList());
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
        QTRY_VERIFY_WITH_TIMEOUT(bus->isServiceRegistered(acceptorBus::SERVICE), longest);
    }

    // The service records what its devices report.
    void checkLog()
    {
        QFile log(m_folder.filePath("log.jsonl"_s));
        QVERIFY(log.open(QIODevice::ReadOnly));
        const QJsonObject first = QJsonDocument::fromJson(log.readLine()).object();
        QCOMPARE(first["session"_s], QJsonValue("start"_s));
        QVERIFY(first["device_id"_s].toInt() > 0 && first["thread_id"_s].toInt() > 0);
        QVERIFY(QDateTime::fromString(first["time"_s].toString(), Qt::ISODate).isValid());
        QVERIFY(log.readAll().endsWith("}\n"));
    }

    QProcess m_service;
    QTemporaryDir m_folder;
    Language m_language{"en"_s};
};

QTEST_MAIN(tst_Kiosk)
#include "tst_kiosk.moc"
