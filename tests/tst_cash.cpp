// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "moneylog.h"
#include "velmorun.h"

#include "logstream.h"
#include "text/fault.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <unistd.h>

namespace {

// Writes the logs A, B, ... of a shorthand: logs between semicolons, lines between blanks. A line
// is perhaps a time in tenths of a second, a letter, which is its note, and perhaps a kiosk:
// "3a@x". "!" is bad and "~" cut off.
void writeLogs(const QString& shorthand)
{
    char name = 'A';
    for (const QString& log : shorthand.split(QLatin1Char(';'))) {
        QString text;
        for (const QString& word : log.split(QLatin1Char(' '), Qt::SkipEmptyParts)) {
            const int digits = word.at(0).isDigit() ? 1 : 0;
            const QString kiosk = word.section(QLatin1Char('@'), 1);
            QString line = R"({"current_note":%1})"_s.arg(word.at(digits).unicode());
            if (digits > 0)
                line.insert(1, R"("time":%1,)"_s.arg(100 * word.left(1).toInt()));
            if (!kiosk.isEmpty())
                line.insert(1, R"("kiosk":"%1",)"_s.arg(kiosk));
            if (word.endsWith(QLatin1Char('!')))
                line.replace("current_note"_s, "note"_s);
            text += word == "~"_s ? line.chopped(3) : line + QLatin1Char('\n');
        }
        writeFile(QString(QLatin1Char(name++)), text);
    }
}

// How a range of the JSON is shown.
QString rangeText(const QJsonValue& range, int value = 1)
{
    const int min = value * range["min"_s].toInt();
    const int max = value * range["max"_s].toInt();
    return range["max"_s].isNull() ? "at least %1"_s.arg(min)
        : min == max               ? QString::number(min)
                                   : "%1 to %2"_s.arg(min).arg(max);
}

// The files that letters stand for: "Z" is A compressed, "T" that cut off, "P" A from a pipe.
QStringList filesOf(const QString& letters, int& pipeEnd)
{
    QStringList files;
    for (const QString& letter : letters.split(QString(), Qt::SkipEmptyParts)) {
        QFile log("A"_s);
        files += letter;
        if (letter == "Z"_s || letter == "T"_s) {
            QProcess gzip;
            gzip.setStandardInputFile("A"_s);
            gzip.start("gzip"_s, QStringList());
            gzip.waitForFinished(-1);
            const QByteArray bytes = gzip.readAllStandardOutput();
            QFile file(letter);
            file.open(QIODevice::WriteOnly);
            file.write(letter == "T"_s ? bytes.chopped(9) : bytes);
        } else if (letter == "P"_s) {
            int ends[2] = {};
            const bool isPiped = log.open(QIODevice::ReadOnly) && pipe(ends) == 0
                && write(ends[1], log.readAll().constData(), size_t(log.size())) == log.size();
            close(ends[1]);
            pipeEnd = ends[0];
            files.last() = isPiped ? "/dev/fd/%1"_s.arg(pipeEnd) : QString();
        }
    }
    return files;
}

} // namespace

class tst_Cash : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QVERIFY(m_folder.isValid() && QDir::setCurrent(m_folder.path())); }

    // Lines are told by their letters and kiosks, what was skipped as "!A2".
    void logsAreOneStream_data()
    {
        addRows(R"(
2e 3f;1a 1b 2c 2d               |AB  | |a b c d e f
2b 2b 3c 3c 4d;1a 2b 2b 3c      |AB  | |a b b c c d            |A and B overlap from 2 to 3: 3 lines that are in both are taken once
1a 1a 2b                        |AZ  | |a a b                  |A and Z overlap from 1 to 2: 3 lines that are in both are taken once
1a 2b                           |AA  | |a b                    |A and A overlap from 1 to 2: 2 lines that are in both are taken once
1a 2b;2b;2b                     |ABC | |a b                    |A and B overlap from 2 to 2: 1 lines that are in both are taken once, A and C overlap from 2 to 2: 1 lines that are in both are taken once, B and C overlap from 2 to 2: 1 lines that are in both are taken once
1a 3b 5c;2d 4e                  |AB  | |a d b e c              |A and B overlap from 2 to 4: taken together by their times
1c 2d;1a 2b                     |BA  | |a c b d                |B and A overlap from 1 to 2: taken together by their times
a 2b c;1d 2e 3f                 |AB  | |d e a b c f
a b 3c 4d;1e 3f                 |PB  | |e f a b c d
a 2b c                          |A   | |a b c
1a;;b                           |ABC | |a b                    |C: no line has a time; the logs are taken in the order in which they are given
b c;1a                          |BPA | |a b c b c              |P: no line has a time; the logs are taken in the order in which they are given
b c;1a                          |ABAB| |b c a                  |A: no line has a time; the logs are taken in the order in which they are given, A: given more than once, taken once, B: given more than once, taken once
1a;;2b                          |CBA | |a b
1a 3b 2c 1d 4e;3f               |AB  | |a b c d f e            |A:3: the clock goes back from 3 to 2; the lines stay in their order
2a 1b                           |A   | |a b                    |A:2: the clock goes back from 2 to 1; the lines stay in their order
1a@x 2b 3b;1c@y 2b 3d           |AB  | |a@x c@y b@x b@y b@x d@y
1a 2b@x 3c;4d                   |AB  | |a b@x c@x d@x
1a@x 3b@y 4b;2c 4d              |AB  | |a@x c@x b@y b@y        |B:2: the line does not say which kiosk it is of
1a@x 3b@y 4b;2c 4d              |AB  |k|a@x c@x b@y b@y !B2    |A and B overlap from 2 to 4: taken together by their times
1a 3b;1a 2c@x                   |AB  |p|a@A b@A a@B c@B
1a@x 2b 3c@y                    |A   |p|a@A b@A                |A:3: a line of kiosk "y" in the log of "x"
1a ~;2b                         |BA  | |a !A2 b
1a 2! 3b;2c                     |AB  | |a                      |A:2: unknown key "note"
1a ! 3b;2c;3d ~                 |ABC |k|a !A2 c b d !C2
! 2a;1b                         |AB  |k|b !A1 a
1a                              |AM  | |                       |M: No such file or directory
1a                              |MA  |k|!M0 a
1a                              |AT  |k|a !T1                  |A and T overlap from 1 to 1: 1 lines that are in both are taken once
1a                              |--  |k|                       |standard input can be given only once
)"_s);
    }

    void logsAreOneStream()
    {
        const auto [logs, letters, flags, expected, notes] = cells<5>();
        writeLogs(logs);
        int pipeEnd = -1;
        const QStringList files = filesOf(letters, pipeEnd);
        QStringList told;
        QStringList said;
        int exitCode = 0;
        bool isStopped = false;
        try {
            LogStream stream(files, flags.contains(QLatin1Char('p')),
                             flags.contains(QLatin1Char('k')));
            exitCode = stream.read(
                [&](const StreamLine& line) {
                    told += QString(QChar(line.line.reports().at(0).fields.currentNote))
                        + (line.kiosk.isEmpty() ? QString() : QLatin1Char('@') + line.kiosk);
                },
                [&](int log, const QString&, qint64 line) {
                    told += "!%1%2"_s.arg(files.at(log)).arg(line);
                });
            said = stream.notes();
        } catch (const Fault& fault) {
            said += fault.message;
            isStopped = true;
        }
        close(pipeEnd);
        const QString saidAll =
            said.join(", "_s)
                .replace(QRegularExpression("1970-01-01T00:00:00.(.)00Z"_s), "\\1"_s)
                .replace(QRegularExpression("/dev/fd/\\d+"_s), "P"_s);
        QCOMPARE(told.join(QLatin1Char(' ')), expected);
        QCOMPARE(saidAll, notes);
        QCOMPARE(exitCode, !isStopped && expected.contains(QLatin1Char('!')) ? 2 : 0);
    }

    void pageTellsTheNumbersOfTheJson_data()
    {
        // A sample or the words of a log, what else is asked, what the page says besides.
        addRows(R"(
recycler-payout.jsonl                 |             | Everything adds up.
fished-note.jsonl                     |             |
jam.jsonl                             |             | taken out: at least 0<
+A s a500 c500 i o n a50 k i a20 j i  |             | 1 things do not add up.; taken and not credited; in the cassette: 50 to 70 XTS<; taken out: at least 500 XTS<; The device says of its cash: 77
+A s a500 c500 i o n a50 c550 i       | --last      | in the cassette: 50 XTS<; >450 XTS<
+A s a500 c500 i o n s a50 j i o      | --counted F | Of 2 counts 2 are not right.; data-name="Difference">2 short<; data-name="Difference">1 over<; 1 pieces got stuck on their way; >taken out with 0 to 50 XTS<
s a500 c500 i                         | --counted F | Of 2 counts 1 are not right.; >right<; nothing in the logs
s a100 c100 i s ! !                   | --keep-going | in the cassette: at least 0 XTS<
+A s a5 c5 i o +B s a6 c6 i o         |             | >Kiosk A: Note recycler; >Kiosk B: Note recycler
)"_s);
    }

    void pageTellsTheNumbersOfTheJson()
    {
        const auto [log, options, texts] = cells<3>();
        writeFile("F"_s, "device,place,denomination,count\n7,channel,100,2\n7,cassette,50,2\n"_s);
        const QString name =
            log.endsWith("jsonl"_s) ? sample(log) : writeFile("log"_s, moneyLog(log));
        const QStringList cash =
            QStringList{"cash"_s, name} + options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        QStringList expected;
        for (const QString& line : velmo(cash + QStringList{"--json"_s}).outLines()) {
            const QJsonObject row = QJsonDocument::fromJson(line.toUtf8()).object();
            const int value = row["denomination"_s].toInt();
            if (row["kind"_s] != "place"_s)
                continue;
            const QString place = row["place"_s].toString();
            QStringList shown{place == "channel"_s ? "channel %1"_s.arg(row["channel"_s].toInt())
                                                   : place,
                              QString::number(value), row["currency"_s].toString()};
            for (const char* key : {"opening", "in", "out", "moved", "now"})
                shown += rangeText(row[QLatin1String(key)]);
            shown += rangeText(row["now"_s], value);
            expected += shown.join(QLatin1Char(' '));
        }
        const VelmoRun run = velmo(cash + QStringList{"--html"_s, "-"_s});
        QCOMPARE(run.exitCode, options == "--keep-going"_s ? 2 : 0);
        QStringList told;
        const QRegularExpression row("<tr>(<th scope=\"row\">.*data-name=\"Opening\".*)</tr>"_s);
        for (auto found = row.globalMatch(run.out); found.hasNext();) {
            QStringList cells = found.next().captured(1).split(QRegularExpression("</t[hd]>"_s));
            cells.replaceInStrings(QRegularExpression("<[^>]*>"_s), QString());
            told += cells.mid(0, 9).join(QLatin1Char(' '));
        }
        expected.sort();
        told.sort();
        QCOMPARE(told, expected);
        QVERIFY(!told.isEmpty());
        for (const QString& text : texts.split(QLatin1Char(';')))
            QVERIFY2(run.out.contains(text.trimmed()), qPrintable(text));
    }

    // Of a sum: across, up. The picture is 92 to 900 wide, and 170 to 30 high.
    void curveGoesWithTheMoney_data()
    {
        addRows(R"(
s a1000 k i o n a500 k i     | M92 170H193V30H496V30, M597 170H698V100H900V100      |                      | 1 2 5 6 7 9
s a1000 k i a500 j i o n     | M92 170H193V30H496V30H799V30, M900 170               |
s o n a1000 j i a500 k i     | M92 170H193V170, M294 170H395V170H698V123.3H900V123.3 | M395 76.7H698V170H395zM698 30H900V123.3H698z
00=s 40=a2 41=k 48=i         | M92 170H765.3V30H900V30                              |                      | 10:00 10:05 10:10 10:15 10:20 10:25 10:30 10:35 10:40 10:45
50=s 00=a2 51=k 56=i         | M92 170H92V30H900V30                                 |                      | 10:50 10:51 10:52 10:53 10:54 10:55 10:56
s a1 k i o                   | M92 170H294V30H900V30                                |                      | 1 2 5
)"_s);
    }

    void curveGoesWithTheMoney()
    {
        const auto [words, lines, bands, ticks] = cells<4>();
        const VelmoRun run =
            velmo({"cash"_s, writeFile("log"_s, moneyLog(words)), "--html"_s, "-"_s});
        const auto all = [&](const QString& pattern) {
            QStringList found;
            for (auto it = QRegularExpression(pattern).globalMatch(run.out); it.hasNext();)
                found += it.next().captured(1);
            return found.join(", "_s);
        };
        QCOMPARE(all("<path class=\"sum\" d=\"([^\"]*)"_s), lines);
        QCOMPARE(all("<path class=\"may\" d=\"([^\"]*)"_s), bands);
        if (!ticks.isEmpty())
            QCOMPARE(all("class=\"tick\">([\\d:]+)<"_s),
                     ticks.split(QLatin1Char(' ')).join(", "_s));
    }

    void pageHasNothingButText()
    {
        const QString markup = "<img_src=x_onerror=\"b\"><script>\u202e"_s;
        const QString name = "<script>.jsonl"_s;
        writeFile(name,
                  moneyLog("+%1 s a50 k i a50 j i o n +B s a5 k i"_s.arg(markup), "<b>\\\""_s));
        writeFile("F"_s,
                  R"([{"device":7,"place":"cassette","denomination":50,"count":9,"kiosk":"B"}])"_s);
        const VelmoRun run =
            velmo({"cash"_s, name, "--counted"_s, "F"_s, "--html"_s, "page.html"_s});
        QCOMPARE(run.out + run.err, QString());
        QCOMPARE(run.exitCode, 0);
        const QString html = readFile("page.html"_s);
        QVERIFY(html.contains("content=\"default-src 'none'; style-src 'sha256-"_s));
        QVERIFY(!html.contains(
            QRegularExpression("<(script|img|b)\\b| (src|style|on\\w+)=\"|url\\((?!#)"_s)));
        QVERIFY(!html.contains(QChar(0x202e)));
        QVERIFY(
            html.contains("Kiosk &lt;img src=x onerror=&quot;b&quot;&gt;&lt;script&gt;\\u202e"_s));
        QVERIFY(html.contains(" &lt;b&gt;&quot;</td>"_s));
        for (const char* tag :
             {"section", "table", "svg", "details", "div", "tr", "td", "ul", "p"}) {
            const QString opened = "<%1\\b"_s.arg(QLatin1String(tag));
            QCOMPARE(html.count(QRegularExpression(opened)),
                     html.count("</%1>"_s.arg(QLatin1String(tag))));
        }
    }

    // There is a page "old", a log "log" and a bad one "bad".
    void pageIsWholeOrNotThere_data()
    {
        addRows(R"(
log  | --html /dev/full               | /dev/full: No space left on device
bad  | --html old                     | bad:2: 
bad  | --html new                     | bad:2: 
log  | --html log                     | log
log  | --counted old --html old       | old
log  | --counted log --html old       | log:2: 
log  | --html old --json              | --json, --csv and --html exclude each other
log  | --html old --csv               | --json, --csv and --html exclude each other
log  | --html no/new                  | no/new: No such file or directory
)"_s);
    }

    void pageIsWholeOrNotThere()
    {
        const auto [log, options, message] = cells<3>();
        writeFile("old"_s, "old page"_s);
        const QString lines = moneyLog("s a50 k i"_s);
        writeFile("log"_s, lines);
        writeFile("bad"_s, moneyLog("s"_s) + "{\n"_s);
        const VelmoRun run = velmo(QStringList{"cash"_s, log} + options.split(QLatin1Char(' ')));
        QCOMPARE(run.exitCode, 2);
        QCOMPARE(run.out, QString());
        QVERIFY2(run.err.startsWith("velmo: "_s + message), qPrintable(run.err));
        QCOMPARE(readFile("old"_s), "old page"_s);
        QCOMPARE(readFile("log"_s), lines);
        QVERIFY(!QFile::exists("new"_s));
    }

private:
    static QString readFile(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
    }

    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_Cash)
#include "tst_cash.moc"
