// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "diffdialog.h"
#include "linediff.h"
#include "settingfield.h"
#include "settingspage.h"
#include "settingswindow.h"
#include "velmorun.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QElapsedTimer>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScreen>
#include <QStyledItemDelegate>
#include <QTableWidget>
#include <QTimer>

#include <csignal>
#include <functional>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

QByteArray contentOf(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A step of a table: a verb and its words.
void perform(SettingsDocument& document, const QString& step)
{
    const QStringList words = step.split(QLatin1Char(' '));
    const QString& verb = words.at(0);
    const QString path = words.value(1).section(QLatin1Char('='), 0, 0);
    if (verb == "set"_s)
        document.set(path, words.at(1).section(QLatin1Char('='), 1));
    else if (verb == "unset"_s)
        document.unset(path);
    else if (verb == "add-device"_s)
        document.addDevice(words.at(1));
    else if (verb == "remove-device"_s)
        document.removeDevice(words.at(1).toInt());
    else if (verb == "move"_s)
        document.moveDevice(words.at(1).toInt(), words.at(2).toInt());
    else if (verb == "undo"_s)
        document.undo();
    else
        document.closeStep();
}

// Does something in the next dialog, as a person who answers it.
void inDialog(const std::function<void(QWidget&)>& act)
{
    auto* const timer = new QTimer(qApp);
    QObject::connect(timer, &QTimer::timeout, timer, [timer, act] {
        QWidget* const dialog = QApplication::activeModalWidget();
        if (!dialog || !dialog->isVisible())
            return;
        timer->stop();
        timer->deleteLater();
        act(*dialog);
    });
    timer->start(5);
}

void press(QWidget& dialog, const QString& text)
{
    for (QAbstractButton* const button : dialog.findChildren<QAbstractButton*>()) {
        if (button->text().remove(QLatin1Char('&')) == text)
            return QTest::mouseClick(button, Qt::LeftButton);
    }
    QFAIL(qPrintable("no button "_s + text));
}

} // namespace

class tst_SettingsWindow : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"_s); }

    void init()
    {
        m_list = m_folder.filePath("list.json"_s);
        QFile::remove(m_list);
        QVERIFY(QFile::copy(sample("settings.json"_s), m_list));
        m_window = std::make_unique<SettingsWindow>();
        m_window->open(m_list);
        m_window->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_window.get()));
        m_window->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_window.get(), 2000));
    }

    void cleanup() { m_window.reset(); }

    // What is done in the window, and the command that does the same. Values that are typed through
    // what is wrong leave nothing of it.
    void bytesAreThoseOfTheCommandLine_data()
    {
        addRows(R"(
            set acceptor_common/maxSumm=20000                                          | set acceptor_common/maxSumm=20000
            set acceptor_common/maxSumm=, set acceptor_common/maxSumm=much, set acceptor_common/maxSumm=7 | set acceptor_common/maxSumm=7
            set acceptor_common/maxSumm=007                                            | set acceptor_common/maxSumm=7
            set acceptor_common/maxSumm=1, set acceptor_common/maxSumm=15000           |
            set device0/debug/port_logging=1                                           | set device0/debug/port_logging=1
            set device0/hw_interface/parity=even                                       | set device0/hw_interface/parity=even
            set device3/device/device_id=200                                           | set device3/device/device_id=200
            set device3/device/device_id=5, set device3/device/device_id=201           |
            set device4/hw_interface/interface_type=tcp                                | set device4/hw_interface/interface_type=tcp
            unset acceptor_common/reset_stats                                          | unset acceptor_common/reset_stats
            add-device 2                                                               | add-device 2
            add-device 1, set device5/hw_interface/portname=ttyS9                      | add-device 1 portname=ttyS9
            remove-device 1                                                            | remove-device 1
            remove-device 1, undo, set service/devices_count=4                         | set service/devices_count=4
            move 0 4, move 4 0                                                         |
            set device0/hw_interface/portname=x, close, set device0/hw_interface/portname=y, undo | set device0/hw_interface/portname=x)"_s);
    }

    void bytesAreThoseOfTheCommandLine()
    {
        const auto [steps, command] = cells<2>();
        SettingsDocument document;
        document.open(m_list);
        for (const QString& step : steps.split(", "_s))
            perform(document, step);
        const QByteArray before = contentOf(m_list);
        if (!command.isEmpty()) {
            QStringList words = command.split(QLatin1Char(' '));
            words.insert(1, m_list);
            const VelmoRun run = velmo(QStringList{"settings"_s} + words + QStringList{"-f"_s});
            QVERIFY2(run.exitCode == 0, qPrintable(run.err));
            QVERIFY(contentOf(m_list) != before);
        }
        QCOMPARE(document.text(), contentOf(m_list));
        while (document.canUndo())
            document.undo();
        QCOMPARE(document.text(), before);
        QVERIFY(!document.isModified());
        while (document.canRedo())
            document.redo();
        if (!steps.contains("undo"_s))
            QCOMPARE(document.text(), contentOf(m_list));
    }

    // Whatever is done, what follows from the bytes is told of the bytes that are there.
    void everyStepComesBack()
    {
        QRandomGenerator random(1);
        SettingsDocument document;
        document.open(m_list);
        QVector<QByteArray> texts{document.text()};
        for (int i = 0; i < 50; ++i) {
            const QVector<SettingsList::Used>& all = document.list().used();
            const SettingsList::Used used = all.at(int(random.bounded(int(all.size()))));
            const QList<int> devices = document.list().devices().keys();
            const int a = devices.at(int(random.bounded(int(devices.size()))));
            const int b = devices.at(int(random.bounded(int(devices.size()))));
            document.closeStep();
            switch (random.bounded(6)) {
            case 0:
                document.addDevice(QString::number(random.bounded(1, 6)));
                break;
            case 1:
                if (devices.size() > 2)
                    document.removeDevice(a);
                break;
            case 2:
                document.moveDevice(a, b);
                break;
            case 3:
                document.unset(used.setting.path());
                break;
            default:
                document.set(used.setting.path(), QString::number(random.bounded(40)));
            }
            if (document.text() != texts.constLast())
                texts += document.text();
        }
        QVERIFY(texts.size() > 25);
        for (auto text = texts.rbegin(); text != texts.rend(); ++text) {
            QCOMPARE(document.text(), *text);
            QCOMPARE(document.findings().size(), checkSettings(document.file()).size());
            if (document.canUndo())
                document.undo();
        }
        QVERIFY(!document.canUndo());
        for (const QByteArray& text : std::as_const(texts)) {
            QCOMPARE(document.text(), text);
            if (document.canRedo())
                document.redo();
        }
    }

    // What is wrong in the end is not written, and the file keeps its bytes.
    void refusesWhatTheToolRefuses_data()
    {
        addRows(R"(
            set acceptor_common/maxSumm=-5                    | acceptor_common/maxSumm: "-5" is out of its range
            set service/devices_count=4                       | device4: is not below the device count
            add-device 1                                      | device5/hw_interface/portname: "" is no address
            unset device0/ccnet/rest_interval                 | device0/ccnet/rest_interval: is missing
            set device1/hw_interface/portname=ttyS0           | "ttyS0" is where device0 is too
            remove-device 0, set device0/hw_interface/portname=ttyS2 | "ttyS2" is where device0 is too
            move 0 4, set device4/hw_interface/portname=ttyS2 | is where device)"_s);
    }

    void refusesWhatTheToolRefuses()
    {
        const auto [steps, fault] = cells<2>();
        const QByteArray before = contentOf(m_list);
        SettingsDocument document;
        document.open(m_list);
        for (const QString& step : steps.split(", "_s))
            perform(document, step);
        for (const QString& target : {m_list, m_folder.filePath("other.json"_s)}) {
            try {
                document.saveAs(target);
                QFAIL("was written");
            } catch (const Fault& found) {
                QVERIFY2(found.message.contains(fault), qPrintable(found.message));
            }
        }
        QCOMPARE(contentOf(m_list), before);
        QVERIFY(!QFile::exists(m_folder.filePath("other.json"_s)));
        // What the file has already may stay.
        QVERIFY(!writeFile(m_list, QString::fromUtf8(document.text())).isEmpty());
        document.open(m_list);
        document.set("acceptor_common/reset_stats"_s, "1"_s);
        document.save();
        QCOMPARE(contentOf(m_list), document.text());
        // But what was mended meanwhile does not come back by undoing it.
        if (steps.startsWith("set acceptor_common"_s)) {
            document.set("acceptor_common/maxSumm"_s, "5"_s);
            document.save();
            document.undo();
            QVERIFY_EXCEPTION_THROWN(document.save(), Fault);
        }
    }

    // What happens to the file while it is open: nothing is lost or half written.
    void writesWholeOrNotAtAll_data()
    {
        addRows(R"(
            changed        | was changed meanwhile
            gone           | No such file
            a folder       | is no regular file
            read-only      | Permission denied
            full           | File too large
            another name   | has further names)"_s);
    }

    void writesWholeOrNotAtAll()
    {
        const auto [what, fault] = cells<2>();
        QTemporaryDir folder;
        const QString name = folder.filePath("list.json"_s);
        QVERIFY(QFile::copy(m_list, name));
        SettingsDocument document;
        document.open(name);
        document.set("acceptor_common/maxSumm"_s, "20000"_s);
        QByteArray expected = contentOf(name);
        const uid_t user = geteuid();
        rlimit limit{};
        getrlimit(RLIMIT_FSIZE, &limit);
        if (what == "changed"_s) {
            expected.replace("15000", "15001");
            QVERIFY(!writeFile(name, QString::fromUtf8(expected)).isEmpty());
        } else if (what == "gone"_s || what == "a folder"_s) {
            QVERIFY(QFile::remove(name));
            expected.clear();
            QCOMPARE(QDir().mkdir(name), true);
            if (what == "gone"_s)
                QVERIFY(QDir().rmdir(name));
        } else if (what == "another name"_s) {
            QCOMPARE(link(qPrintable(name), qPrintable(name + "2"_s)), 0);
        } else if (what == "read-only"_s) {
            QVERIFY(QFile::setPermissions(folder.path(), QFile::Permissions(0x5555)));
            if (user == 0)
                QCOMPARE(seteuid(65534), 0); // whom permissions hold
        } else {
            std::signal(SIGXFSZ, SIG_IGN);
            const rlimit small{1000, limit.rlim_max};
            setrlimit(RLIMIT_FSIZE, &small);
        }
        QString told;
        try {
            document.save();
        } catch (const Fault& found) {
            told = found.message;
        }
        setrlimit(RLIMIT_FSIZE, &limit);
        if (what == "read-only"_s && user == 0)
            QCOMPARE(seteuid(0), 0);
        QFile::setPermissions(folder.path(), QFile::Permissions(0x7777));
        QVERIFY2(told.contains(fault) && told.startsWith(name), qPrintable(told));
        QCOMPARE(contentOf(name), expected);
        QVERIFY(QDir(folder.path()).entryList(QDir::Files).size() <= 2);
        QVERIFY(document.isModified());
        // And another place takes it.
        document.saveAs(m_folder.filePath("rescued.json"_s));
        QCOMPARE(contentOf(m_folder.filePath("rescued.json"_s)), document.text());
        QVERIFY(!document.isModified());
    }

    // What cannot be opened again is not written under another name, and what is no file is not
    // waited for.
    void opensAndWritesFilesOfSettingsOnly()
    {
        const QString content = R"([{"group": "acceptor_common", "key": "maxSumm", "value": 1}])"_s;
        QVERIFY(!writeFile(m_list, content).isEmpty());
        SettingsDocument document;
        document.open(m_list);
        document.unset("acceptor_common/maxSumm"_s);
        const QString other = m_folder.filePath("emptied.json"_s);
        QVERIFY_EXCEPTION_THROWN(document.saveAs(other), Fault);
        QVERIFY(!QFile::exists(other));
        QCOMPARE(document.fileName(), m_list);
        const QString pipe = m_folder.filePath("pipe"_s);
        QCOMPARE(mkfifo(qPrintable(pipe), 0600), 0);
        QVERIFY_EXCEPTION_THROWN(document.open(pipe), Fault);
    }

    void addedLinesEndLikeTheOthers()
    {
        const QString content = QString::fromUtf8(contentOf(m_list)).replace("\n"_s, "\r\n"_s);
        QVERIFY(!writeFile(m_list, content).isEmpty());
        SettingsDocument document;
        document.open(m_list);
        document.addDevice("1"_s);
        document.unset("acceptor_common/acceptAll"_s); // the first
        document.set("acceptor_common/acceptAll"_s, "1"_s);
        QVERIFY(document.text().count('\n') > content.count(QLatin1Char('\n')));
        QCOMPARE(document.text().count("\r\n"), document.text().count('\n'));
    }

    // Nobody waits for the window because there are many devices.
    void manyDevicesAreRenumberedAtOnce()
    {
        QString content = R"([{"group": "service", "key": "devices_count", "value": 100})"_s;
        for (int i = 0; i < 100; ++i) {
            for (const QString& key : {"device_id"_s, "device_name"_s, "x"_s, "y"_s, "z"_s}) {
                content += R"(,
                    {"group": "device%1/device", "key": "%2", "value": %1})"_s.arg(i)
                               .arg(key);
            }
        }
        QVERIFY(!writeFile(m_list, content + "]"_s).isEmpty());
        SettingsDocument document;
        QElapsedTimer time; // in times that it takes to open the list: whatever the machine is
        time.start();
        document.open(m_list);
        const double opening = double(time.restart());
        document.removeDevice(0);
        const double times = double(time.elapsed()) / qMax(1., opening);
        QVERIFY2(times < 10, qPrintable(QString::number(times)));
        QCOMPARE(document.list().devices().size(), 99);
    }

    // The lines of both texts, each in its order, and no more of them than need be.
    void diffHasBothTexts()
    {
        QRandomGenerator random(3);
        for (int i = 0; i < 300; ++i) {
            const auto randomText = [&random] {
                QByteArray text;
                for (int lines = int(random.bounded(8)); lines > 0; --lines)
                    text += QByteArray(1, char('a' + random.bounded(3))) + '\n';
                if (random.bounded(2) == 0)
                    text.chop(1);
                return text;
            };
            const QByteArray before = randomText();
            const QByteArray after = random.bounded(10) == 0 ? before : randomText();
            QByteArray old;
            QByteArray now;
            bool isSame = true;
            for (const DiffLine& line : lineDiff(before, after)) {
                isSame = isSame && line.kind == DiffLine::Same;
                const bool isNew = line.kind == DiffLine::Added;
                const QByteArray& counted = isNew ? now : old;
                QCOMPARE(line.number, int(counted.count('\n')) + 1);
                if (line.kind != DiffLine::Added)
                    old += line.text;
                if (line.kind != DiffLine::Removed)
                    now += line.text;
            }
            QCOMPARE(old, before);
            QCOMPARE(now, after);
            QCOMPARE(isSame, before == after);
        }
    }

    void typingShowsWhatIsWrongAndIsOneStep()
    {
        auto* const sum = control<QLineEdit>("acceptor_common/maxSumm"_s);
        QTest::mouseClick(sum, Qt::LeftButton);
        sum->selectAll();
        QTest::keyClicks(sum, "-5"_s);
        const auto* const finding = findingOf("acceptor_common/maxSumm"_s);
        QVERIFY2(finding->isVisible() && finding->text().contains("\"-5\" is out of its range"_s),
                 qPrintable(finding->text()));
        QVERIFY(sum->accessibleDescription().contains("out of its range"_s));
        QCOMPARE(findings()->count(), 1);
        QTest::keyClick(sum, Qt::Key_Home);
        QTest::keyClick(sum, Qt::Key_Delete);
        QVERIFY(!finding->isVisible());
        QTest::keyClicks(sum, "00"_s);
        QCOMPARE(sum->text(), "005"_s); // as it is typed
        QTest::keyClick(sum, Qt::Key_Tab);
        QCOMPARE(sum->text(), "5"_s); // as it is in the list
        QVERIFY(m_window->isWindowModified());
        key(Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(sum->text(), "15000"_s);
        QVERIFY(sum->hasFocus());
        QVERIFY(!m_window->isWindowModified());
        QTest::keyClick(sum, Qt::Key_Y, Qt::ControlModifier);
        QCOMPARE(sum->text(), "5"_s);
    }

    void whatIsNotInTheListSaysSo()
    {
        auto* const sum = control<QLineEdit>("acceptor_common/maxSumm"_s);
        QTest::mouseClick(sum, Qt::LeftButton);
        QTest::keyClick(sum, Qt::Key_D, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(sum->text(), "0"_s);
        QVERIFY(sum->accessibleDescription().contains("not in the list: the default"_s));
        QVERIFY(!m_window->document().text().contains("maxSumm"));
        QTest::keyClick(sum, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(sum, Qt::Key_D, Qt::ControlModifier);
        QCOMPARE(sum->text(), "0"_s);
        QVERIFY(sum->accessibleDescription().contains("the default"_s));
        QVERIFY(m_window->document().text().contains(R"("maxSumm", "value": 0})"));
    }

    // A table's cells by keys, then the text of the value.
    void tablesChangeTheirText()
    {
        auto* const limits = control<QTableWidget>("acceptor_common/attempts_filter_settings"_s);
        limits->setFocus();
        limits->setCurrentCell(1, 1);
        QTest::keyClicks(limits, "3"_s);
        enter();
        QCOMPARE(limitsText(),
                 R"([{"attempts":"2","denom":"1000"},{"attempts":"3","denom":"5000"}])"_s);
        press(*field("acceptor_common/attempts_filter_settings"_s), "Add row"_s);
        QCOMPARE(limits->rowCount(), 3);
        QTest::keyClicks(limits, "x"_s);
        enter();
        QVERIFY(findingOf("acceptor_common/attempts_filter_settings"_s)->isVisible());
        limits->setCurrentCell(2, 0);
        QTest::keyClick(limits, Qt::Key_Delete);
        limits->setCurrentCell(0, 0);
        QTest::keyClick(limits, Qt::Key_Delete);
        QCOMPARE(limitsText(), R"([{"attempts":"3","denom":"5000"}])"_s);
        QVERIFY(!findingOf("acceptor_common/attempts_filter_settings"_s)->isVisible());
        for (int i = 0; i < 5; ++i)
            QTest::keyClick(limits, Qt::Key_Z, Qt::ControlModifier);
        QCOMPARE(m_window->document().text(), contentOf(m_list));
        QCOMPARE(limits->rowCount(), 2);

        // A cell that is still open when the window is left counts as well; of a map only the byte
        // that is changed.
        auto* const routes = control<QTableWidget>("dispenser/route_map"_s);
        routes->setFocus();
        routes->setCurrentCell(3, 3);
        QTest::keyClicks(routes, "7"_s);
        QVERIFY(!m_window->isWindowModified());
        bool isAsked = false;
        inDialog([&isAsked](QWidget& dialog) {
            isAsked = true;
            press(dialog, "Cancel"_s);
        });
        m_window->close();
        QVERIFY(isAsked);
        QByteArray expected = contentOf(m_list);
        expected.replace(R"(\"denomination\":10,\"route\":2)",
                         R"(\"denomination\":10,\"route\":7)");
        QCOMPARE(m_window->document().text(), expected);
    }

    // What no choice stands for is shown as it is, and looking at it changes nothing.
    void cellsOfUnknownKindsStay_data()
    {
        addRows(R"(
            "bill_type\":7        | 7
            "bill_type\":\"abc\" | abc
            "type\":1             |)"_s);
    }

    void cellsOfUnknownKindsStay()
    {
        const auto [kind, shown] = cells<2>();
        const QString content = QString::fromUtf8(contentOf(m_list));
        const QString changed = QString(content).replace(R"("bill_type\":1)"_s, kind);
        QVERIFY(changed != content && !writeFile(m_list, changed).isEmpty());
        m_window->open(m_list);
        auto* const routes = control<QTableWidget>("dispenser/route_map"_s);
        auto* const styled = qobject_cast<QStyledItemDelegate*>(routes->itemDelegateForColumn(2));
        QCOMPARE(styled->displayText(routes->item(3, 2)->text(), {}), shown);
        routes->setFocus();
        routes->setCurrentCell(3, 2);
        routes->editItem(routes->item(3, 2));
        QVERIFY(qobject_cast<QComboBox*>(QApplication::focusWidget()));
        key(Qt::Key_Tab);
        QVERIFY(!m_window->isWindowModified());
    }

    void longTextsStayWhole()
    {
        const QString name = QString(40000, QLatin1Char('x')) + "end"_s;
        const QString content = QString::fromUtf8(contentOf(m_list));
        QVERIFY(!writeFile(m_list, QString(content).replace("Bill validator"_s, name)).isEmpty());
        m_window->open(m_list);
        choosePage(1);
        auto* const line = control<QLineEdit>("device0/device/device_name"_s);
        line->setFocus();
        QTest::keyClick(line, Qt::Key_Home);
        QTest::keyClick(line, Qt::Key_Delete);
        QVERIFY(m_window->document().text().contains("xend"));
    }

    void searchGoesToTheSetting_data()
    {
        addRows(R"(
            maxsumm             | acceptor_common/maxSumm
            baud device 2       | device2/hw_interface/baudrate
            terminal id         | device3/posd200/terminal_id)"_s);
    }

    void searchGoesToTheSetting()
    {
        const auto [words, path] = cells<2>();
        key(Qt::Key_F, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), words);
        key(Qt::Key_Return);
        QVERIFY(field(path));
        QVERIFY(control<QWidget>(path)->hasFocus());
        QTRY_VERIFY(!control<QWidget>(path)->visibleRegion().isEmpty());
    }

    void devicesMoveComeAndGo()
    {
        choosePage(2);
        const auto heading = [this] { return page()->findChild<QLabel*>("heading"_s)->text(); };
        QCOMPARE(heading(), "Device 1: Recycler (JCM iPRO ID003)"_s);
        key(Qt::Key_Up, Qt::AltModifier);
        QCOMPARE(heading(), "Device 0: Recycler (JCM iPRO ID003)"_s);
        QVERIFY(!action("Move up"_s)->isEnabled());
        key(Qt::Key_Down, Qt::AltModifier);
        QVERIFY(!m_window->isWindowModified());

        key(Qt::Key_Delete, Qt::ControlModifier);
        QCOMPARE(pages()->count(), 5);
        inDialog([](QWidget& dialog) {
            QTest::keyClicks(dialog.findChild<QComboBox*>(), "Card"_s);
            QTest::keyClick(&dialog, Qt::Key_Return);
        });
        key(Qt::Key_N, Qt::ControlModifier);
        QCOMPARE(heading(), "Device 4: Card terminal (Uniteller)"_s);
        QCOMPARE(pages()->count(), 6);
        // What is wrong with it leads to it.
        choosePage(0);
        key(Qt::Key_F8);
        QVERIFY(control<QLineEdit>("device4/hw_interface/portname"_s)->hasFocus());
        choosePage(0);
        QTest::mouseClick(findings()->viewport(), Qt::LeftButton, {},
                          findings()->visualItemRect(findings()->item(0)).center());
        QVERIFY(control<QLineEdit>("device4/hw_interface/portname"_s)->hasFocus());
    }

    // The one behind it has its place, and its values, also in the field where one types.
    void removalWhileTypingShowsTheNextDevice()
    {
        choosePage(2);
        const QString path = "device1/device/device_name"_s;
        control<QLineEdit>(path)->setFocus();
        QTest::keyClicks(control<QLineEdit>(path), "typed"_s);
        action("Remove"_s)->trigger();
        QCOMPARE(control<QLineEdit>(path)->text(), "Coin acceptor"_s);
    }

    // Names are no markup that has pictures fetched.
    void toolTipsShowNamesAsTheyAre()
    {
        m_window->document().set("device0/device/device_name"_s, "<img src='x'>"_s);
        QVERIFY(!pages()->item(1)->toolTip().contains("<img"_s));
    }

    // What a model has no use for goes with it, and its field with that.
    void formsFollowTheModel()
    {
        choosePage(4);
        auto* const interface = control<QComboBox>("device3/hw_interface/interface_type"_s);
        interface->setFocus();
        QVERIFY(field("device3/hw_interface/tcp_host"_s));
        QTest::keyClick(interface, Qt::Key_Up);
        QVERIFY(!field("device3/hw_interface/tcp_host"_s));
        QVERIFY(field("device3/hw_interface/portname"_s));
        QVERIFY(control<QComboBox>("device3/hw_interface/interface_type"_s)->hasFocus());
        key(Qt::Key_Down);
        // This opens the choices and moves no device.
        key(Qt::Key_Down, Qt::AltModifier);
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Escape);
        QVERIFY(field("device3/hw_interface/tcp_host"_s));
        QCOMPARE(m_window->document().text(), contentOf(m_list));
    }

    void savesWhatWasShown()
    {
        auto* const box = control<QCheckBox>("acceptor_common/port_logging"_s);
        page()->ensureWidgetVisible(box);
        QTest::mouseClick(box, Qt::LeftButton, {}, QPoint(8, box->height() / 2));
        QByteArray expected = contentOf(m_list);
        const auto shown = [](QWidget& dialog) {
            return dialog.findChild<QPlainTextEdit*>()->toPlainText();
        };
        inDialog([&](QWidget& dialog) {
            QVERIFY(dialog.width() <= dialog.screen()->availableSize().width());
            QCOMPARE(shown(dialog).count(R"("port_logging", "value": 0})"_s), 1);
            QCOMPARE(shown(dialog).count(R"("port_logging", "value": 1})"_s), 1);
            press(dialog, "Cancel"_s);
        });
        key(Qt::Key_S, Qt::ControlModifier);
        QCOMPARE(contentOf(m_list), expected);
        inDialog([](QWidget& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); });
        key(Qt::Key_S, Qt::ControlModifier);
        expected.replace(R"("acceptor_common", "key": "port_logging", "value": 0)",
                         R"("acceptor_common", "key": "port_logging", "value": 1)");
        QCOMPARE(contentOf(m_list), expected);
        QVERIFY(!m_window->isWindowModified());
    }

    void otherFileIsShownAsItWillChange()
    {
        const QString other = m_folder.filePath("other.json"_s);
        QVERIFY(!writeFile(other, "precious\n"_s).isEmpty());
        inDialog([&other](QWidget& dialog) {
            inDialog([](QWidget& overwrite) {
                inDialog([](QWidget& diff) {
                    const auto* const view = diff.findChild<QPlainTextEdit*>();
                    QVERIFY2(view, "nothing is shown");
                    QVERIFY(view->toPlainText().contains("precious"_s));
                    press(diff, "Cancel"_s);
                });
                press(overwrite, "Yes"_s);
            });
            dialog.findChild<QLineEdit*>()->setText(other);
            QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
        });
        key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        QCOMPARE(contentOf(other), QByteArray("precious\n"));
    }

    void fileThatChangedIsReloadedWhenAsked()
    {
        control<QLineEdit>("acceptor_common/maxSumm"_s)->setFocus();
        QTest::keyClicks(QApplication::focusWidget(), "9"_s);
        const QString other = QString::fromUtf8(contentOf(m_list)).replace("15000"_s, "16000"_s);
        QVERIFY(!writeFile(m_list, other).isEmpty());
        const auto answer = [this](const QString& button) {
            inDialog([&button](QWidget& dialog) {
                const auto* const box = qobject_cast<QMessageBox*>(&dialog);
                QVERIFY2(box, "the lines are shown in vain");
                QVERIFY(box->text().contains("changed meanwhile"_s));
                QVERIFY(!box->defaultButton()->text().contains("Reload"_s)); // loses changes
                press(dialog, button);
            });
            key(Qt::Key_S, Qt::ControlModifier);
        };
        answer("Cancel"_s);
        QCOMPARE(contentOf(m_list), other.toUtf8());
        QVERIFY(m_window->isWindowModified());
        answer("Reload"_s);
        QCOMPARE(m_window->document().text(), other.toUtf8());
        QCOMPARE(control<QLineEdit>("acceptor_common/maxSumm"_s)->text(), "16000"_s);
    }

    // How the question at the end is answered, whether the window goes, what the file has then.
    void unsavedChangesAreAskedAbout_data()
    {
        addRows(R"(
            Cancel  | no  | 15000
            Discard | yes | 15000
            Save... | yes | 150009)"_s);
    }

    void unsavedChangesAreAskedAbout()
    {
        const auto [answer, goes, sum] = cells<3>();
        const QString button = answer; // which a lambda may have
        control<QLineEdit>("acceptor_common/maxSumm"_s)->setFocus();
        key(Qt::Key_End);
        QTest::keyClicks(QApplication::focusWidget(), "9"_s);
        inDialog([&button](QWidget& dialog) {
            if (button == "Save..."_s)
                inDialog([](QWidget& next) {
                    QVERIFY(qobject_cast<DiffDialog*>(&next));
                    QTest::keyClick(&next, Qt::Key_Return);
                });
            press(dialog, button);
        });
        key(Qt::Key_Q, Qt::ControlModifier);
        QCOMPARE(m_window->isVisible(), goes == "no"_s);
        QVERIFY(
            contentOf(m_list).contains("\"maxSumm\", \"value\": "_s.toUtf8() + sum.toUtf8() + "}"));
    }

    void badFileLeavesTheWindowAsItIs()
    {
        try {
            m_window->open(sample("filters.json"_s));
            QFAIL("was opened");
        } catch (const Fault& fault) {
            const VelmoRun run = velmo({"settings"_s, "check"_s, sample("filters.json"_s)});
            QCOMPARE("velmo: "_s + fault.message + "\n"_s, run.err);
        }
        QCOMPARE(m_window->document().fileName(), m_list);
        QCOMPARE(control<QLineEdit>("acceptor_common/maxSumm"_s)->text(), "15000"_s);
    }

    // Every field is told of to those who do not see it, and Tab comes to each in its order.
    void everyFieldIsReachedAndNamed()
    {
        for (int row = 0; row < pages()->count(); ++row) {
            choosePage(row);
            QTest::keyClick(pages(), Qt::Key_Return);
            QStringList reached;
            const QList<SettingField*> fields = page()->findChildren<SettingField*>();
            for (int i = 0; i < 3 * fields.size(); ++i) {
                const SettingField* const now = page()->fieldOf(QApplication::focusWidget());
                if (!now)
                    break;
                if (!reached.contains(now->path()))
                    reached += now->path();
                key(Qt::Key_Tab);
            }
            QStringList written;
            for (const SettingField* const field : fields) {
                written += field->path();
                QAccessibleInterface* const told =
                    QAccessible::queryAccessibleInterface(field->control());
                // A name, or a label that gives it.
                const auto labels = told->relations(QAccessible::Label);
                const QString name = labels.isEmpty() ? told->text(QAccessible::Name)
                                                      : labels.at(0).first->text(QAccessible::Name);
                QCOMPARE(name, field->label()->text());
                QVERIFY2(!told->text(QAccessible::Description).isEmpty(),
                         qPrintable(field->path()));
            }
            QCOMPARE(reached, written);
        }
    }

private:
    // Where there is no window manager, nobody gives the keyboard back when a dialog closes.
    void key(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) const
    {
        if (!QApplication::focusWidget())
            m_window->activateWindow();
        QTRY_VERIFY(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    }

    // The cell that is edited takes what was typed.
    void enter() const
    {
        key(Qt::Key_Return);
        QCoreApplication::processEvents();
    }

    QListWidget* pages() const { return named<QListWidget>("Service and devices"_s); }

    QListWidget* findings() const { return named<QListWidget>("What is found in the list"_s); }

    template <typename Widget>
    Widget* named(const QString& name) const
    {
        for (Widget* const widget : m_window->findChildren<Widget*>()) {
            if (widget->accessibleName() == name)
                return widget;
        }
        return nullptr;
    }

    void choosePage(int row)
    {
        QTest::mouseClick(pages()->viewport(), Qt::LeftButton, {},
                          pages()->visualItemRect(pages()->item(row)).center());
        pages()->setFocus();
    }

    SettingsPage* page() const { return m_window->findChild<SettingsPage*>(); }
    SettingField* field(const QString& path) const { return page()->field(path); }

    template <typename Widget>
    Widget* control(const QString& path) const
    {
        return qobject_cast<Widget*>(field(path)->control());
    }

    const QLabel* findingOf(const QString& path) const
    {
        return field(path)->findChild<QLabel*>("finding"_s);
    }

    QAction* action(const QString& text) const
    {
        for (QAction* const action : m_window->findChildren<QAction*>()) {
            if (action->text().remove(QLatin1Char('&')) == text)
                return action;
        }
        return nullptr;
    }

    QString limitsText() const
    {
        const SettingsDocument& document = m_window->document();
        return document.shownText(document.list().used(
            ServiceSetting::require("acceptor_common/attempts_filter_settings"_s)));
    }

    QTemporaryDir m_folder;
    QString m_list;
    std::unique_ptr<SettingsWindow> m_window;
};

QTEST_MAIN(tst_SettingsWindow)
#include "tst_settingswindow.moc"
