// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "acceptorbus.h"
#include "screen/language.h"
#include "screen/servicelink.h"
#include "testtable.h"

#include <QAccessible>
#include <QTcpServer>
#include <QtDBus>
#include <QtQml>
#include <QtQuick>

#include <csignal>
#include <ctime>

namespace {

constexpr int longest = 60000; // milliseconds, for what comes at once unless the machine is busy

QDBusMessage callService(const QString& method)
{
    return QDBusConnection::sessionBus().call(QDBusMessage::createMethodCall(
        acceptorBus::SERVICE, acceptorBus::PATH, acceptorBus::INTERFACE, method));
}

// What the staff types.
const QString rightPin = "1234"_s;

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

    QString page() const { return window()->property("page").toString(); }
    void show(const QString& page) const { window()->setProperty("page", page); }

    // All that people see, each item before those in it.
    QList<QQuickItem*> seen() const { return inOrder(window()->contentItem()); }

    QQuickItem* item(const QString& name) const
    {
        for (QQuickItem* item : seen()) {
            if (item->objectName() == name)
                return item;
        }
        return nullptr;
    }

    // Of all that have the name.
    QString text(const QString& name) const
    {
        QStringList texts;
        for (const QQuickItem* item : seen()) {
            if (item->objectName() == name)
                texts += plain(item->property("text").toString());
        }
        return texts.join(" + "_s);
    }

    QStringList allTexts() const
    {
        QStringList texts;
        for (const QQuickItem* item : seen()) {
            if (item->property("text").isValid())
                texts += item->property("text").toString();
        }
        return texts;
    }

    QObject* state() const
    {
        return window()
            ->findChild<QObject*>("customerScreen"_s)
            ->property("service")
            .value<QObject*>();
    }

    // What the customer sees: what to do, the pictures of what is accepted, the sums, and what
    // became of the money.
    QString customer() const
    {
        QString pictures;
        for (const QString& kind : {"note"_s, "coin"_s, "card"_s})
            pictures += item(kind + "Picture"_s) ? kind + " "_s : QString();
        QStringList parts{text("headline"_s), pictures.trimmed(), text("rest"_s), text("sum"_s)};
        for (const char* name : {"lostSum", "change", "outOfService", "openNoteText",
                                 "openNoteDetail", "lastNoteText"}) {
            const QString told = text(QLatin1String(name));
            if (!told.isEmpty())
                parts += told;
        }
        return parts.join(" | "_s);
    }

    // The devices as the engineer sees them: status, the lamps that are lit, what is wrong,
    // counters.
    QString devices() const
    {
        QStringList texts;
        for (const QVariantMap& device : rows("devices")) {
            QStringList lit;
            for (const QVariantMap& lamp : rowsOf(device["lamps"_s].value<QObject*>())) {
                if (lamp["lit"_s].toBool())
                    lit += lamp["name"_s].toString();
            }
            texts += "%1 (%2) %3/%4/%5"_s.arg(device["statusText"_s].toString(), lit.join(","_s),
                                              device["notesInserted"_s].toString(),
                                              device["notesRejected"_s].toString(),
                                              device["notesReturned"_s].toString());
        }
        return texts.join("; "_s);
    }

    QList<QVariantMap> rows(const char* model) const
    {
        return rowsOf(state()->property(model).value<QObject*>());
    }

    // What lies in the devices as the engineer sees it, in the order of their threads.
    QString contents() const
    {
        QMap<int, QStringList> cards;
        int thread = 0; // of the card that the items are in
        for (const QQuickItem* item : seen()) {
            const QVariant entry = item->property("entry");
            if (entry.isValid())
                thread = entry.value<QObject*>()->property("threadId").toInt();
            const QString name = item->objectName();
            if (name == "places"_s) {
                QStringList lines;
                for (const QVariant& line : item->property("lines").toList())
                    lines += "%1: %2 x %3"_s.arg(line.toMap()["place"_s].toString(),
                                                 line.toMap()["pieces"_s].toString(),
                                                 line.toMap()["value"_s].toString());
                cards[thread] += lines.join(", "_s);
            } else if (name == "onTheirWay"_s || name == "stuck"_s) {
                cards[thread] += plain(item->property("text").toString());
            }
        }
        QStringList texts;
        for (const QStringList& card : std::as_const(cards))
            texts += card.join(" / "_s);
        return plain(texts.join("; "_s));
    }

    void type(const QString& keys) const
    {
        for (const QChar key : keys)
            QTest::keyClick(window(),
                            key == QLatin1Char('\n') ? Qt::Key_Return : Qt::Key(key.unicode()));
    }

    void openService() const
    {
        show("pin"_s);
        type(rightPin + "\n"_s);
        QTRY_COMPARE(page(), "service"_s);
    }

    void press(const QString& key) const
    {
        QTRY_VERIFY2(item(key), qPrintable(key));
        press(item(key));
    }

    void pressLanguage(const QString& name) const
    {
        for (const QQuickItem* item : seen()) {
            if (item->objectName() == "languageKey"_s && item->property("text") == name)
                return press(item);
        }
        QFAIL(qPrintable(name));
    }

    static void press(const QQuickItem* pressed)
    {
        QTest::mouseClick(
            pressed->window(), Qt::LeftButton, {},
            pressed->mapToScene({pressed->width() / 2, pressed->height() / 2}).toPoint());
    }

private:
    static QList<QQuickItem*> inOrder(QQuickItem* item)
    {
        QList<QQuickItem*> items{item};
        for (QQuickItem* child : item->childItems()) {
            if (child->isVisible())
                items += inOrder(child);
        }
        return items;
    }

    // With blanks that break, one line, and T for a time.
    static QString plain(QString text)
    {
        static const QRegularExpression time("[0-9/]{6,8},? [0-9:]{4,5}\\s[AP]M"_s);
        return text.replace(QRegularExpression("[\u00a0\u202f]"_s), " "_s)
            .replace(time, "T"_s)
            .replace("\n"_s, ", "_s);
    }

    static QList<QVariantMap> rowsOf(QObject* object)
    {
        auto* const model = qobject_cast<QAbstractItemModel*>(object);
        QList<QVariantMap> rows;
        for (int row = 0; row < model->rowCount(); ++row) {
            QVariantMap values;
            const QHash<int, QByteArray> roles = model->roleNames();
            for (auto role = roles.begin(); role != roles.end(); ++role)
                values.insert(QString::fromLatin1(*role), model->index(row, 0).data(role.key()));
            rows += values;
        }
        return rows;
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
    void init()
    {
        m_pinFile = write("pin"_s, rightPin.toUtf8());
        QFile::remove(m_folder.filePath("log.jsonl"_s));
    }

    void cleanup()
    {
        if (m_service.state() != QProcess::NotRunning)
            ::kill(pid_t(m_service.processId()), SIGCONT);
        m_service.terminate();
        QVERIFY(m_service.state() == QProcess::NotRunning || m_service.waitForFinished(longest));
        m_language.setCurrent("en"_s);
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
        startService(folder, sessions, {"--money"_s, "RUB:0"_s, "--change"_s, "none"_s});
        Kiosk kiosk(m_language,
                    {{"price"_s, 2510},
                     {"contact"_s, "8 800"_s},
                     {"width"_s, 1080}, // where there is room for all
                     {"height"_s, 1920},
                     {"theme"_s, QVariantMap{{"density"_s, 2.7}}}});
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
    }

    // The content of each device on the service screen after so many steps.
    void contentIsTold_data()
    {
        addRows(R"(
            samples             | plain-payment   | 3  | Cassette: at least 0 x 100 / On its way: 1 × 100, since T
            samples             | jam             | 4  | Cassette: at least 0 x 1,000 / On its way: 1 × 1,000, since T
            samples             | jam             | 5  | Stuck: 1 × 1,000, since T / Cassette: at least 0 x 1,000
            samples             | jam             | 7  | Stuck: 1 × 1,000, since T / Cassette: 0 to 1 x 1,000
            samples             | jam             | 99 | Stuck: 1 × 1,000, since T / Cassette: 0 to 1 x 1,000
            samples             | recycler-payout | 3  | Cassette: at least 1 x 1,000, Channel 1: 24 x 100 RUB, Channel 2: 9 x 500 RUB, Rejects: 0 x 100 RUB, Rejects: 0 x 500 RUB
            samples             | recycler-payout | 99 | Cassette: at least 1 x 1,000, Channel 1: 22 x 100 RUB, Channel 2: 8 x 500 RUB, Rejects: 1 x 100 RUB, Rejects: 0 x 500 RUB
            examples/kiosk/show | validator recycler coins terminal | 99 | Cassette: at least 1 x 500, Cassette: at least 2 x 1,000, Cassette: at least 0 x 2,000; Stuck: 1 × 100, since T / Cassette: at least 0 x 100 RUB, Channel 1: 24 x 100 RUB, Channel 2: 8 x 500 RUB, Rejects: 0 x 100 RUB, Rejects: 1 x 500 RUB; Cassette: at least 1 x 10)"_s);
    }

    void contentIsTold()
    {
        const auto [folder, sessions, steps, expected] = cells<4>();
        startService(folder, sessions);
        // So that all cards have room.
        Kiosk kiosk(m_language,
                    {{"pinFile"_s, m_pinFile}, {"theme"_s, QVariantMap{{"density"_s, 1.5}}}});
        step(steps.toInt());
        kiosk.openService();
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.contents(), expected, longest);
        QTest::keyClick(kiosk.window(), Qt::Key_Escape);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.contents(), QString(), longest);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    // With the log, the service had confirmed that the money is safe.
    void paidMoneyIsNotForgotten_data()
    {
        addRows(R"(
            --record | What you have paid is recorded. Please call the staff.
                     | Please call the staff before you leave.)"_s);
    }

    void paidMoneyIsNotForgotten()
    {
        const auto [record, advice] = cells<2>();
        Kiosk kiosk(m_language, {{"price"_s, 2510}, {"pinFile"_s, m_pinFile}});
        QCOMPARE(kiosk.text("outOfService"_s), "Please use another kiosk."_s);
        startService("samples"_s, "plain-payment"_s, {}, !record.isEmpty());
        step(6);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("sum"_s), "Paid: 100 of 2,510"_s, longest);
        m_service.kill(); // in the middle of the payment
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("headline"_s), "Out of service"_s, longest);
        QVERIFY2(kiosk.text("outOfService"_s).startsWith(advice),
                 qPrintable(kiosk.text("outOfService"_s)));
        QCOMPARE(kiosk.text("sum"_s), "Paid: 100 of 2,510"_s);
        QCOMPARE(kiosk.state()->property("reasons").toStringList(),
                 QStringList("The service does not answer."_s));
        cleanup();
        startService("samples"_s, "plain-payment"_s, {}, !record.isEmpty());
        step(1);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("sum"_s), "Paid: 0 of 2,510"_s, longest);
        const QString lost = kiosk.text("lostSum"_s);
        QVERIFY2(lost.contains("100"_s) && lost.contains("recorded"_s) == !record.isEmpty(),
                 qPrintable(lost));
        kiosk.openService();
        kiosk.press("settleKey"_s);
        kiosk.press("reallyKey"_s);
        kiosk.show("customer"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("lostSum"_s), QString(), longest);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    // The screen starts within a payment, which then ends.
    void sumOfASessionThatEndsIsNotMissing()
    {
        write(
            "session.jsonl"_s,
            R"({"session":"start","device_id":1,"thread_id":1,"online":true,"enabled":true,"state":"idling","session_sum":100}
{"session":"start","session_sum":0})");
        startService(m_folder.path(), "session"_s);
        step(1);
        Kiosk kiosk(m_language, {{"price"_s, 2510}});
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("sum"_s), "Paid: 100 of 2,510"_s, longest);
        step(1);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("sum"_s), "Paid: 0 of 2,510"_s, longest);
        QCOMPARE(kiosk.text("lostSum"_s), QString());
    }

    void stoppedServiceInvitesNobody()
    {
        startService("samples"_s, "plain-payment"_s);
        Kiosk kiosk(m_language, {{"pinFile"_s, m_pinFile}});
        kiosk.state()->setProperty("staleAfter", 7); // more than a heartbeat
        step(1);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("headline"_s), "Input money"_s, longest);
        QTest::qWait(8000);
        QCOMPARE(kiosk.text("headline"_s), "Input money"_s); // the service lives and has no news
        ::kill(pid_t(m_service.processId()), SIGSTOP);
        QTRY_COMPARE_WITH_TIMEOUT(
            kiosk.customer(), "Out of service |  | 0 |  | Please use another kiosk."_s, longest);
        kiosk.openService();
        QTRY_VERIFY_WITH_TIMEOUT(kiosk.item("lastKnown"_s), longest); // its card is dimmed
        kiosk.show("customer"_s);
        ::kill(pid_t(m_service.processId()), SIGCONT);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("headline"_s), "Input money"_s, longest);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    void changeIsTold_data()
    {
        addRows(R"(
            none     | This kiosk gives no change. | You have paid 3,500 RUB too much. This kiosk gives no change. Please call the staff.
            paid     | Change is paid out.         | You have paid 3,500 RUB too much. You get your change back. If it does not come, please call the staff.
            credited | What you overpay stays on your account. | You have paid 3,500 RUB too much. It stays on your account.)"_s);
    }

    void changeIsTold()
    {
        const auto [mode, before, after] = cells<3>();
        write(
            "overpaid.jsonl"_s,
            R"({"session":"start","device_id":1,"thread_id":1,"online":true,"enabled":true,"state":"idling"}
{"state":"accepting","current_note":6010}
{"state":"stacked","session_sum":6010})");
        startService(m_folder.path(), "overpaid"_s, {"--money"_s, "RUB:0"_s, "--change"_s, mode},
                     false);
        Kiosk kiosk(m_language, {{"price"_s, 2510}});
        step(1);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("changeRule"_s), before, longest);
        step(2);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("headline"_s), "Paid. Thank you!"_s, longest);
        QCOMPARE(kiosk.text("change"_s), after);
        m_service.kill(); // it promises nothing any more
        QTRY_VERIFY_WITH_TIMEOUT(
            kiosk.text("outOfService"_s).startsWith("Please call the staff before you leave."_s),
            longest);
        QCOMPARE(kiosk.text("change"_s),
                 "You have paid 3,500 RUB too much. "_s
                     + (mode == "none"_s ? "This kiosk gives no change. Please call the staff."_s
                                         : "Please ask the staff for your change."_s));
    }

    // A piece that is stuck has the same number for the customer, the staff, and in the log, over a
    // restart too; the staff's word ends it in all of them.
    void incidentStaysUntilItIsSettled()
    {
        const QStringList money{"--money"_s, "RUB:2"_s};
        startService("samples"_s, "jam"_s, money);
        Kiosk kiosk(m_language, {{"pinFile"_s, m_pinFile}, {"contact"_s, "8 800"_s}});
        step(9); // it idles again
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("openNoteDetail"_s),
                                  "T · No. 0001-0001, Help: 8 800"_s, longest);
        m_service.kill();
        cleanup();
        write("log.jsonl"_s,
              read("log.jsonl"_s) + R"({"device_id":)"); // it was killed while it wrote
        startService("samples"_s, "jam"_s, money);
        step(5);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("openNoteDetail"_s),
                                  "T · No. 0001-0002, Help: 8 800 + T · No. 0001-0001"_s, longest);
        kiosk.openService();
        kiosk.press("settleKey"_s);
        kiosk.press("noKey"_s);
        QCOMPARE(kiosk.rows("openNotes").size(), 2);
        kiosk.press("settleKey"_s);
        kiosk.press("reallyKey"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.rows("openNotes").size(), 1, longest);
        QCOMPARE(kiosk.rows("openNotes").first()["incident"_s].toString(), "0001-0002"_s);
        QStringList log;
        for (const QByteArray& line : read("log.jsonl"_s).split('\n')) {
            const QJsonObject entry = QJsonDocument::fromJson(line).object();
            if (entry.contains("incident"_s) || entry.contains("settled"_s))
                log += entry["state"_s].toString() + entry["incident"_s].toString()
                    + entry["settled"_s].toString();
        }
        QCOMPARE(log, QStringList({"jammed0001-0001"_s, "jammed0001-0002"_s, "0001-0001"_s}));
        QVERIFY(read("log.jsonl"_s).endsWith("}\n"));

        // A service that takes nothing as settled says so.
        kiosk.link().settle("0001-0002x"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.link().refused(), "0001-0002x"_s, longest);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    // Whatever devices, services and settings tell is text.
    void hostileTextsAreTexts()
    {
        QTcpServer server;
        QVERIFY(server.listen(QHostAddress::LocalHost));
        int visitors = 0;
        connect(&server, &QTcpServer::newConnection, this, [&visitors] { ++visitors; });
        const QString evil =
            R"(<b>x</b><img src="http://127.0.0.1:%1/x.png">)"_s.arg(server.serverPort());
        Kiosk kiosk(m_language,
                    {{"pinFile"_s, m_pinFile},
                     {"contact"_s, evil},
                     {"price"_s, 100},
                     {"names"_s, QVariantMap{{"2"_s, evil}}}});
        QJsonObject state{
            {"money"_s, QJsonObject{{"currency"_s, evil}, {"change"_s, evil}, {"digits"_s, evil}}},
            {"refusals"_s,
             QJsonArray{QJsonObject{{"device_id"_s, 1},
                                    {"thread_id"_s, 1},
                                    {"name"_s, "SessionSumFilter"_s},
                                    {"params"_s, QJsonObject{{"sessionSum"_s, evil}}}}}},
            {"incidents"_s,
             QJsonArray{QJsonObject{{"number"_s, evil},
                                    {"device_id"_s, 2},
                                    {"thread_id"_s, 2},
                                    {"denomination"_s, 5},
                                    {"currency"_s, evil},
                                    {"time"_s, evil},
                                    {"settled"_s, false}}}},
            {"content"_s,
             QJsonArray{
                 QJsonObject{{"device_id"_s, 1},
                             {"thread_id"_s, 1},
                             {"places"_s,
                              QJsonArray{QJsonObject{{"place"_s, evil},
                                                     {"channel"_s, evil},
                                                     {"denomination"_s, evil},
                                                     {"currency"_s, evil},
                                                     {"min"_s, evil},
                                                     {"max"_s, evil}}}},
                             {"pieces"_s,
                              QJsonArray{QJsonObject{
                                  {"count"_s, evil}, {"stuck"_s, true}, {"since"_s, evil}}}}}}}};
        for (const QString& now : {"idling"_s, "accepting"_s, "jammed"_s}) {
            QJsonArray devices;
            for (int device = 1; device < 3; ++device) {
                devices += QJsonObject{{"device_id"_s, device},
                                       {"thread_id"_s, device},
                                       {"enabled"_s, true},
                                       {"state"_s, now},
                                       {"current_note"_s, 500},
                                       {"id_string"_s, evil},
                                       {"state_text"_s, evil},
                                       {"error_critical"_s, now == "jammed"_s},
                                       {"error_text"_s, evil},
                                       {"dispenser_registry"_s,
                                        QJsonArray{QJsonObject{{"currency"_s, evil},
                                                               {"denomination"_s, 1},
                                                               {"bill_type"_s, 1},
                                                               {"count"_s, 1},
                                                               {"thread_id"_s, 1},
                                                               {"device_id"_s, 1},
                                                               {"channel"_s, 1}}}}};
            }
            state["device_states"_s] = devices;
            for (const QString& page : {"customer"_s, "service"_s}) {
                kiosk.show(page);
                Q_EMIT kiosk.link().stateReceived(QString::fromUtf8(QJsonDocument(state).toJson()),
                                                  QDateTime::currentDateTime());
                QTest::qWait(100);
                for (const QQuickItem* item : kiosk.seen()) {
                    const QVariant format = item->property("textFormat");
                    QVERIFY2(!format.isValid() || format.toInt() == Qt::PlainText,
                             qPrintable(item->property("text").toString()));
                }
            }
        }
        const QString texts = kiosk.allTexts().join("\n"_s);
        QVERIFY2(texts.contains("<b>x</b><img src="_s), qPrintable(texts)); // in full letters
        QTest::qWait(500);
        QCOMPARE(visitors, 0);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    // From the street there is a PIN before the stock.
    void stockIsBehindThePin()
    {
        startService("samples"_s, "plain-payment"_s);
        step(4);
        Kiosk kiosk(m_language, {{"pinFile"_s, m_pinFile}});
        const auto hold = [&kiosk](int milliseconds) {
            QTest::mousePress(kiosk.window(), Qt::LeftButton, {}, {5, 5});
            QTest::qWait(milliseconds);
            QTest::mouseRelease(kiosk.window(), Qt::LeftButton, {}, {5, 5});
        };
        hold(1000);
        QCOMPARE(kiosk.page(), "customer"_s);
        hold(3300);
        QCOMPARE(kiosk.page(), "pin"_s);
        QVERIFY(!kiosk.item("devices"_s));
        kiosk.item("pinGate"_s)->property("lock").value<QObject*>()->setProperty("firstWait", 2);
        for (int tries = 0; tries < 3; ++tries)
            kiosk.type("1235\n"_s);
        kiosk.type(rightPin + "\n"_s); // is not looked at
        QCOMPARE(kiosk.page(), "pin"_s);
        QVERIFY2(kiosk.allTexts().join(" "_s).contains("Wait"_s),
                 qPrintable(kiosk.allTexts().join(" "_s)));
        QTest::keyClick(kiosk.window(), Qt::Key_F12);
        QCOMPARE(kiosk.page(), "customer"_s);
        QTest::keyClick(kiosk.window(), Qt::Key_F12);
        kiosk.type(rightPin + "\n"_s); // neither is it now
        QCOMPARE(kiosk.page(), "pin"_s);
        QTest::qWait(2500);
        kiosk.type(rightPin + "\n"_s);
        QCOMPARE(kiosk.page(), "service"_s);
        QTRY_VERIFY_WITH_TIMEOUT(kiosk.item("places"_s), longest);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    void withoutAPinNothingOpens()
    {
        Kiosk kiosk(m_language);
        kiosk.show("pin"_s);
        QVERIFY(kiosk.text("pinHint"_s).contains("--pin-file"_s));
        kiosk.type(rightPin + "\n\n"_s);
        QCOMPARE(kiosk.page(), "pin"_s);
    }

    void idleScreenIsThatOfTheNextCustomer()
    {
        startService("samples"_s, "plain-payment"_s);
        Kiosk kiosk(m_language, {{"pinFile"_s, m_pinFile}, {"idleSeconds"_s, 2}});
        kiosk.pressLanguage("Русский"_s);
        QCOMPARE(m_language.current(), "ru"_s);
        kiosk.openService();
        QTest::qWait(1200);
        QTest::keyClick(kiosk.window(), Qt::Key_Tab); // somebody is there
        QTest::qWait(1200);
        QCOMPARE(kiosk.page(), "service"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.page(), "customer"_s, longest);
        QCOMPARE(m_language.current(), "en"_s);

        // Who pays is there too.
        kiosk.pressLanguage("Русский"_s);
        step(2);
        QTest::qWait(1200);
        step(1); // a note
        QTest::qWait(1200);
        QCOMPARE(m_language.current(), "ru"_s);
        QTRY_COMPARE_WITH_TIMEOUT(m_language.current(), "en"_s, longest);
    }

    void languageChangesAllTexts()
    {
        startService("samples"_s, "jam"_s, {"--money"_s, "RUB:2"_s});
        step(5);
        Kiosk kiosk(m_language, {{"price"_s, 251000}, {"pinFile"_s, m_pinFile}});
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("rest"_s), "2,510.00 RUB"_s, longest);
        kiosk.pressLanguage("Русский"_s);
        QCOMPARE(m_language.current(), "ru"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("rest"_s), "2 510,00 RUB"_s, longest);
        const QRegularExpression latin("[A-Za-z]{2}"_s);
        for (const char* page : {"customer", "pin", "service"}) {
            kiosk.show(QLatin1String(page));
            QTest::qWait(100);
            for (QString text : kiosk.allTexts()) {
                for (const QVariant& language : Language::all())
                    text.remove(language.toMap()["name"_s].toString());
                for (const char* name :
                     {"RUB", "PIN", "CCNet", "CCNET-0418", "note stuck before the stacker"})
                    text.remove(QLatin1String(name));
                QVERIFY2(!text.contains(latin), qPrintable(text));
            }
        }
        m_language.setCurrent("en"_s);
        kiosk.show("customer"_s);
        QTRY_COMPARE_WITH_TIMEOUT(kiosk.text("rest"_s), "2,510.00 RUB"_s, longest);
    }

    // A screen reader finds what is to be seen.
    void screenIsAccessible()
    {
        QAccessible::setActive(true);
        startService("samples"_s, "jam"_s);
        step(5);
        Kiosk kiosk(m_language, {{"price"_s, 2510}, {"pinFile"_s, m_pinFile}});
        QTRY_VERIFY_WITH_TIMEOUT(kiosk.item("openNote"_s), longest);
        const QString told = accessibles(kiosk.window());
        for (const char* part :
             {"Out of service", "2,510", "The device failed with your note of 1,000",
              "No. 0001-0001", "Русский"})
            QVERIFY2(told.contains(QString::fromUtf8(part)), qPrintable(told));
        kiosk.openService();
        QTRY_VERIFY_WITH_TIMEOUT(
            accessibles(kiosk.window()).contains("Devices: 1, with faults: 1"_s), longest);
        for (const char* part : {"Settled", "Close", "Critical error"})
            QVERIFY2(accessibles(kiosk.window()).contains(QLatin1String(part)), part);
        QVERIFY(!accessibles(kiosk.window()).contains("2,510"_s)); // of the page that is hidden
    }

    void floodLeavesTheScreenInTime()
    {
        Kiosk kiosk(m_language);
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
        start = std::clock();
        for (int i = 0; i < FLOOD; ++i)
            send(i);
        const double times = double(std::clock() - start) / writing;
        QVERIFY2(times < 100 * PATIENCE, qPrintable(QString::number(times)));
        QTRY_COMPARE(kiosk.state()->property("sessionSum").toInt(), 3 * (FLOOD - 1));
    }

    // 1,000 states a second, of devices that break and work again, while the staff looks at them.
    void floodLeavesTheServiceScreenSmall()
    {
        Kiosk kiosk(m_language, {{"pinFile"_s, m_pinFile}});
        kiosk.openService();
        QElapsedTimer clock;
        qint64 before = 0;
        for (int i = 0; i < 3 * FLOOD; ++i) {
            if (i == FLOOD)
                before = residentPages();
            if (i % FLOOD == 0)
                clock.start();
            Q_EMIT kiosk.link().stateReceived(stateOf(i), QDateTime::currentDateTime());
            const int ahead = i % FLOOD - int(clock.elapsed());
            QTest::qWait(std::max(0, ahead));
        }
        const qint64 grown = (residentPages() - before) * 4096;
        qInfo() << "grown by" << grown << "bytes";
        QVERIFY2(grown < 10'000'000LL * PATIENCE, qPrintable(QString::number(grown)));
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    void manyDevicesAreShown()
    {
        Kiosk kiosk(m_language, {{"pinFile"_s, m_pinFile}});
        kiosk.openService();
        QJsonArray devices;
        for (int device = 0; device < 200; ++device)
            devices += QJsonObject{{"device_id"_s, 1 + device % 7},
                                   {"thread_id"_s, device},
                                   {"enabled"_s, true},
                                   {"state"_s, "idling"_s}};
        QSet<const QQuickItem*> made;
        for (int state = 0; state < 20; ++state) {
            QJsonObject first = devices.first().toObject();
            first["notes_inserted"_s] = state;
            devices.removeFirst();
            devices += first;
            const QJsonObject published{{"device_states"_s, devices}};
            Q_EMIT kiosk.link().stateReceived(QString::fromUtf8(QJsonDocument(published).toJson()),
                                              QDateTime());
            QTest::qWait(20);
            for (const QQuickItem* item : kiosk.seen()) {
                if (item->property("entry").isValid())
                    made += item;
            }
        }
        // Cards are made for what is seen of the devices, and stay while these do.
        QVERIFY2(made.size() > 3 && made.size() < 40 + 20,
                 qPrintable(QString::number(made.size())));
        QCOMPARE(kiosk.item("devices"_s)->property("count").toInt(), 200);
        QCOMPARE(kiosk.warnings(), QStringList());
    }

    // The program itself: what it is told, and what it tells.
    void wrongArgumentsAreNamed_data()
    {
        addRows(R"(
            --price x      | kioskscreen: --price x: expected a whole number from 0 to 1e+15
            --price 2510.4 | kioskscreen: --price 2510.4: expected a whole number from 0 to 1e+15
            --idle -1      | kioskscreen: --idle -1: expected a number from 0 to 1e+06
            --density 0    | kioskscreen: --density 0: expected a number from 0.5 to 100
            --lang xx      | kioskscreen: --lang xx: expected one of )"_s
                + Language::codes().join(", "_s));
    }

    void wrongArgumentsAreNamed()
    {
        const auto [arguments, message] = cells<2>();
        QProcess screen;
        screen.start(QStringLiteral(KIOSKSCREEN), arguments.split(QLatin1Char(' ')));
        QVERIFY(screen.waitForFinished(longest));
        QCOMPARE(screen.exitCode(), 2);
        QVERIFY(screen.readAllStandardError().contains(message.toUtf8() + "\n"));
    }

    void missingFontsAreTold()
    {
        const QString none = write("fonts.conf"_s, "<fontconfig></fontconfig>");
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert("FONTCONFIG_FILE"_s, none);
        QProcess screen;
        screen.setProcessEnvironment(environment);
        screen.start(QStringLiteral(KIOSKSCREEN), QStringList());
        QByteArray told;
        QTRY_VERIFY_WITH_TIMEOUT(
            (told += screen.readAllStandardError()).contains("no font has the letters of \"ru\""),
            longest);
        QVERIFY(told.contains("no font has the letters of \"en\""));
        screen.terminate();
        QVERIFY(screen.waitForFinished(longest));
    }

private:
    static QString stateOf(int number)
    {
        QJsonArray devices;
        for (int device = 0; device < 3; ++device) {
            devices += QJsonObject{
                {"device_id"_s, device + 1},
                {"thread_id"_s, 1},
                {"enabled"_s, true},
                {"stacker_full"_s, number % 50 == 0},
                {"state"_s,
                 QStringList{"accepting"_s, "stacking"_s, "stacked"_s, "idling"_s}.at(number % 4)},
                {"session_sum"_s, number},
                {"current_note"_s, number % 4 == 3 ? 0 : 100}};
        }
        const QJsonObject state{{"device_states"_s, devices}};
        return QString::fromUtf8(QJsonDocument(state).toJson(QJsonDocument::Compact));
    }

    static QString accessibles(QObject* object)
    {
        QStringList names;
        addAccessibles(QAccessible::queryAccessibleInterface(object), &names);
        return names.join("\n"_s).replace(QChar(QChar::Nbsp), QLatin1Char(' '));
    }

    static void addAccessibles(QAccessibleInterface* parent, QStringList* names)
    {
        for (int i = 0; parent && i < parent->childCount(); ++i) {
            QAccessibleInterface* const child = parent->child(i);
            if (!child || child->state().invisible)
                continue;
            *names += child->text(QAccessible::Name);
            addAccessibles(child, names);
        }
    }

    QString write(const QString& name, const QByteArray& text) const
    {
        QFile file(m_folder.filePath(name));
        if (!file.open(QIODevice::WriteOnly) || file.write(text) != text.size())
            qFatal("%s", qPrintable(file.errorString()));
        return file.fileName();
    }

    QByteArray read(const QString& name) const
    {
        QFile file(m_folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    static void step(int times)
    {
        for (int i = 0; i < times; ++i)
            callService("step"_s);
    }

    void startService(const QString& folder, const QString& sessions,
                      const QStringList& options = {}, bool isRecorded = true)
    {
        QStringList arguments{"--step"_s, "0"_s, "--filters"_s, "samples/filters.json"_s};
        if (isRecorded)
            arguments += {"--record"_s, m_folder.filePath("log.jsonl"_s)};
        arguments += options;
        for (const QString& session : sessions.split(QLatin1Char(' ')))
            arguments += folder + "/"_s + session + ".jsonl"_s;
        m_service.setWorkingDirectory(QStringLiteral(SOURCES));
        m_service.start(QStringLiteral(ACCEPTORSERVICE), arguments);
        const QDBusConnectionInterface* const bus = QDBusConnection::sessionBus().interface();
        QTRY_VERIFY_WITH_TIMEOUT(bus->isServiceRegistered(acceptorBus::SERVICE), longest);
    }

    QProcess m_service;
    QTemporaryDir m_folder;
    QString m_pinFile;
    Language m_language{"en"_s};
};

QTEST_MAIN(tst_Kiosk)
#include "tst_kiosk.moc"
