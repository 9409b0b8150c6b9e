// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "moneylog.h"
#include "velmorun.h"

#include "log/cashcount.h"
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

// A period and a row of the JSON in short.
QString periodText(const QJsonObject& period)
{
    const QString device =
        period["device"_s] == 7 ? QString() : QString::number(period["device"_s].toInt());
    const auto place = [&](const char* log, const char* line) {
        const QString name = period[QLatin1String(log)].toString();
        return (name == "log1"_s || !period["kiosk"_s].isNull() ? QString() : name.mid(3) + ":"_s)
            + QString::number(period[QLatin1String(line)].toInt());
    };
    return "%1%2[%3-%4%5"_s.arg(period["kiosk"_s].toString(), device)
        .arg(place("from_log", "from_line"), place("to_log", "to_line"))
        .arg(period["open"_s].toBool() ? ")"_s : "]"_s);
}

QStringList rowTexts(const QJsonObject& row)
{
    const QString place = row["place"_s].toString();
    QStringList texts{(place == "channel"_s ? "h"_s : place.left(1))
                      + QString::number(row["denomination"_s].toInt())};
    for (const char* const key : {"opening", "in", "out", "moved", "now"})
        texts += rangeText(row[QLatin1String(key)])
                     .replace(QRegularExpression("at least (.*)"_s), "\\1+"_s)
                     .replace(" to "_s, "~"_s);
    return texts;
}

// A row as the CSV has it, without the times of its period.
QString csvRow(const QJsonObject& row)
{
    QStringList cells;
    for (const char* const key : {"kiosk", "device", "thread", "period", "place", "channel",
                                  "denomination", "currency", "bill_type"})
        cells += row[QLatin1String(key)].toVariant().toString();
    if (cells.at(0).startsWith(QLatin1Char('=')))
        cells[0].prepend(QLatin1Char('\''));
    for (const char* const key : {"opening", "in", "out", "moved", "now"}) {
        const QJsonValue range = row[QLatin1String(key)];
        cells += {range["min"_s].toVariant().toString(), range["max"_s].toVariant().toString()};
    }
    cells += row["certainty"_s].toString();
    QStringList why;
    for (const QJsonValue reason : row["why"_s].toArray())
        why += reason.toString();
    cells += why.join("; "_s);
    for (QString& cell : cells) {
        if (cell.contains(QRegularExpression("[\",;]"_s)))
            cell = "\"%1\""_s.arg(cell.replace("\""_s, "\"\""_s));
    }
    return cells.join(QLatin1Char(','));
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
0a 0b;0a 0b 0c                  |AB  | |a b !B1 c              |B begins in the second in which A ends, with lines of that: taken once, though they may have happened twice, A and B overlap from 0 to 0: 2 lines that are in both are taken once
0a 0b;0b 1a                     |AB  | |a b a                  |A and B overlap from 0 to 0: 1 lines that are in both are taken once
1a 2b;1c 2b                     |AB  | |a c b b                |A and B overlap from 1 to 2: taken together by their times
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
1a@x 3b@y 4b;2c 4d              |AB  | |a@x c@x b@y !A2 b@y    |B:2: the line does not say which kiosk it is of
1a@x 3b@y 4b;2c 4d              |AB  |k|a@x c@x b@y !A2 b@y !B2|lines before the one that names kiosk "y" do not say which kiosk they are of: taken to be of "x", A and B overlap from 2 to 4: taken together by their times
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
                [&](const StreamGap& gap) {
                    told += "!%1%2"_s.arg(files.at(gap.log)).arg(gap.number);
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
        const bool isSkipped =
            expected.contains(QLatin1Char('!')) && !saidAll.contains("may have happened"_s);
        QCOMPARE(exitCode, !isStopped && isSkipped ? 2 : 0);
    }

    // Logs (between semicolons), options, and what is told: the lines of a period, ")" being that
    // it runs on, and its rows in which something is not plainly nothing, as "c500 0+ 1 0 0 1+".
    // What a row says of why.
    void ledgerIsTold_data()
    {
        addRows(R"(
S a500 c500 i o n a500 k i o     |  | [1-5] c500 0+ 1 0 0 1+ [6-10] c500 0 1 0 0 1     | what lay in it when the log began is not known; taken to have come back empty
a50 k i                          |  | [1-3) c50 0+ 1 0 0 1+
o n a50 k i                      |  | [2-5) c50 0 1 0 0 1
S o n a50 k i S a20 k i          |  | [1-2] [3-10) c20 0 1 0 0 1 c50 0 1 0 0 1
S a500 k i o a50 k i n a50 k i   |  | [1-5] c500 0+ 1 0 0 1+ [9-12) c50 0 2 0 0 2
S a500 k i o a50 k i             |  | [1-5] c500 0+ 1 0 0 1+ [6-8) c50 0 1 0 0 1
S o a50 g j n i                  |  | [1-2] [6-7) c50 0 0~1 0 0 0~1
S o o n a50 k i                  |  | [1-2] [4-7) c50 0 1 0 0 1
S o n a500 k o n i               |  | [1-2] [3-6] c500 0 1 0 0 1 [7-8)
S o n a500 g j o n i             |  | [1-2] [3-7] c500 0 0~1 0 0 0~1 [8-9) c500 0 0~1 0 0 0~1 | 1 piece got stuck on its way
S o n a500 g j i o n             |  | [1-2] [3-8] c500 0 0~1 0 0 0~1 [9-9)
S o n a50 k i S a50 d S i        |  | [1-2] [3-11) c50 0 1~2 0 0 1~2                       | of 1 piece the log does not say what became of it
S o n a50 k i A k i              |  | [1-2] [3-9) c50 0 1~2 0 0 1~2                        | 1 piece of unknown value was taken
S o n a50 k i a50 b i a50 r i    |  | [1-2] [3-12) c50 0 1 0 0 1
S C5 o n a50 k i C7              |  | [1-3] [4-8) c50 0 1~2 0 0 1~2                        | by the device's counter 1 piece is missing
s o n a50 c50 i $90              |  | [1-2] [3-7) c50 0 1 0 0 1
s o n a50 c50 i S $20            |  | [1-2] [3-8) c50 0 1~2 0 0 1~2

s o n a100 c100 #5 i             |  | [1-2] [3-7) h100 4 1 0 0 5
s o n a100 g #5 j                |  | [1-2] [3-7) h100 4 1 0 0 5
s o n a100 c100 i #9             |  | [1-2] [3-7) c100 0 1 0 0 1 h100 4 5 0 0 9
s o n p #2/1,-100 q i            |  | [1-2] [3-7) h100 4 0 1 -1 2 r100 0 0 0 1 1
s o n p #2/1 o n q i             |  | [1-2] [3-6] h100 4 0 1 -1 2 r100 0 0 0 1 1 [7-9)
s o n f #2 F i                   |  | [1-2] [3-7) c100 0 0 0 2 2 h100 4 0 0 -2 2
s o n e #2 o n E i               |  | [1-2] [3-6] c100 0 0 0 2 2 h100 4 0 0 -2 2 [7-9)
s o n e #2 o n i                 |  | [1-2] [3-6] c100 0 0 0 0~2 0~2 h100 4 0 0 -2 2 [7-8) c100 0 0 0 0~2 0~2
s o n e #2 j                     |  | [1-2] [3-6) c100 0 0 0 0~3 0~3 h100 4 0 0 -3~-2 1~2  | the log does not tell the end of a payout, a float or an emptying, 3 pieces may be on their way
S o n a100 g #4 k i              |  | [1-2] [3-8) c100 0 0~1 0 0 0~1                       | of 1 piece the registry does not tell whether it is in a channel
S o n a100 k i #4                |  | [1-2] [3-7) c100 0 0~1 0 0 0~1
S o n a100 k i e #2 E i          |  | [1-2] [3-10) c100 0 1+ 0 0 1+                        | the registry was told for the first time while channels were floated or emptied
S o n a50 k i #4                 |  | [1-2] [3-7) c50 0 1 0 0 1

s o n a500 k i ! a500 k i        | --keep-going | [1-2] [3-10) c500 0 2+ 0 0 2+            | 1 line was skipped
s o n a500 k i ! o n a500 k i    | --keep-going | [1-2] [3-8] c500 0 1+ 0 0 1+ [9-12) c500 0 1 0 0 1 h100 0+ 0 0 0 0+ r100 0+ 0 0 0 0+
s o n a500 d ! i                 | --keep-going | [1-2] [3-7) c500 0 0+ 0 0 0+             | lines were skipped while 1 piece was on its way
s o n ! #2                       | --keep-going | [1-2] [3-5) c100 0 0+ 0 0~2 0+ h100 4 0 0~2 -2~0 2

00=S 01=o 02=n 03=a50 04=k 05=i 06=a20 07=k 08=i 09=o 10=n | --from 2026-01-01T10:06Z | [7-10] c20 0 1 0 0 1 c50 1 0 0 0 1 [11-11)
00=S 01=o 02=n 03=a50 04=k 05=i 06=a20 07=k 08=i 09=o 10=n | --to 2026-01-01T10:05Z   | [1-2] [3-6) c50 0 1 0 0 1
00=S 01=o 02=n 03=a50 04=k 05=i 06=a50 07=k 08=i 09=a50    | --from 2026-01-01T10:06Z --to 2026-01-01T10:08Z | [7-9) c50 1 1 0 0 2
00=S 01=o 02=n 03=a50 04=k 05=i 06=a20 07=k 08=i 09=o 10=n | --last | [11-11)
00=s 01=p 02=#3 03=q 04=i 05=a100 06=k,#4               | --from 2026-01-01T10:05Z | [6-7) h100 3 1 0 0 4
00=S 01=o 02=n 03=a50;04=k 05=i 06=a50 07=k              |  | [1-2] [3-2:4) c50 0 2 0 0 2
00=S 01=o 02=n 03=a50 04=k;09=S;05=S 06=o 07=n 08=a20 09=k | --per-file --to 2026-01-01T10:08Z | log1[1-2] log1[3-5) c50 0 1 0 0 1 log3[1-2] log3[3-4) c20 0 0~1 0 0 0~1
00=S 01=o 02=n 03=a50 @ 05=k 07=i;@9 00=S 01=o 02=n 04=a20 @ 06=k | | [1-2] [3-6) c50 0 1 0 0 1 9[2:1-2:2] 9[2:3-2:5) c20 0 1 0 0 1
00=S 01=o 02=n 03=a50 @ 05=k 07=i;@9 00=S 01=o 02=n 03=a20 @ 05=k 07=i | | [1-2] [3-6) c50 0 1 0 0 1 9[2:1-2:2] 9[2:3-2:6) c20 0 1 0 0 1
@7 S o n a50 k i @9 S o n a20 k i                |  | [1-2] [3-6) c50 0 1 0 0 1 9[7-8] 9[9-12) c20 0 1 0 0 1
@7 S o n a50 k i @9 S o n a20 k i                | --device 9 | 9[7-8] 9[9-12) c20 0 1 0 0 1
+A S o n a50 k i +B S o n a20 k i                |  | A[1-2] A[3-6) c50 0 1 0 0 1 B[7-8] B[9-12) c20 0 1 0 0 1
S o n a50 k i;S o n a20 k i                      | --per-file | log1[1-2] log1[3-6) c50 0 1 0 0 1 log2[1-2] log2[3-6) c20 0 1 0 0 1
S o n a50 k i +A a20 k i +B S o n a10 k i        |  | A[1-2] A[3-9) c20 0 1+ 0 0 1+ c50 0 1+ 0 0 1+ B[10-11] B[12-15) c10 0 1 0 0 1 | 1 line was skipped
+A S o n a50 k i +B S o n a20 k i !              | --keep-going | A[1-2] A[3-6) c50 0 1+ 0 0 1+ B[7-8] B[9-12) c20 0 1+ 0 0 1+
+=x s                                            |  | =x[1-1)
+a,"b" s o n a50 g j i                           |  | a,"b"[1-2] a,"b"[3-7) c50 0 0~1 0 0 0~1
)"_s);
    }

    void ledgerIsTold()
    {
        const auto [words, options, expected, reasons] = cells<4>();
        QStringList arguments{"cash"_s};
        for (const QString& log : words.split(QLatin1Char(';')))
            arguments += writeFile("log%1"_s.arg(arguments.size()), moneyLog(log));
        arguments += options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const QStringList json = velmo(arguments + QStringList{"--json"_s}).outLines();
        QStringList told;
        QStringList table; // what the CSV has of the places
        QString why;
        for (const QString& line : json) {
            const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
            if (o["kind"_s] == "period"_s)
                told += periodText(o);
            if (o["kind"_s] != "place"_s)
                continue;
            const QStringList row = rowTexts(o);
            table += csvRow(o);
            const bool isPlain = row.mid(2, 3) == QStringList{"0"_s, "0"_s, "0"_s};
            if (!isPlain || row.at(0).startsWith(QLatin1Char('c')) || row.at(1).size() > 1)
                told += row;
            for (const QJsonValue reason : o["why"_s].toArray())
                why += reason.toString() + QLatin1Char('\n');
        }
        QCOMPARE(told.join(QLatin1Char(' ')), expected);
        QStringList csv = velmo(arguments + QStringList{"--csv"_s}).outLines().mid(1);
        for (QString& line : csv) // times and whether it runs on are the period's
            line.remove(
                QRegularExpression("(?<=,\\d),[^,]*,[^,]*,[01](?=,(cassette|channel|reject),)"_s));
        QCOMPARE(csv, table);
        for (const QString& reason : reasons.split(QLatin1Char(';'), Qt::SkipEmptyParts))
            QVERIFY2(why.contains(reason.trimmed()), qPrintable(why));
    }

    // Log, options, the lines of the text that fit a pattern, without their ends and notes.
    void textSaysWhatIsTold_data()
    {
        addRows(R"(
@7 s o n @9 s o n o n                 | --last | ^[ND]  | Note recycler (JCM iPRO ID003), Device 9
s a50 i k i o n a50 c50 i         |        | adds? up | What does not add up:
s a50 i k i o n a50 c50 i         | --last | adds? up | Everything adds up.
00=s 05=a50 06=k 07=i 08=a10 09=c10 10=i | --from 2026-01-01T10:06Z | add  | Everything adds up.
                                  |        | .                        | The logs tell of no device.
00=s 01=a50 02=c50 03=i           | --to 2025-01-01        | .        | The logs tell of no device.
00=s 01=a50 02=c50 03=i           | --to 2026-01-01T10:02Z | ^Period  | Period 1: from 2026-01-01 10:00:00 UTC (line 1) to the time that is asked for
00=s 01=a50 02=c50 03=i           | --to 2026-01-01T10:03Z | ^Period  | Period 1: from 2026-01-01 10:00:00 UTC (line 1) to the end
00=s 05=p 06=#3,-100 07=q         | --to 2026-01-01T10:06Z | add      | Everything adds up.
00=s 05=p 06=#3,-100              |                        | adds? up | What does not add up:
@3000000000 s                     | --device 3000000000    | ^Device  | Device 3000000000
s                                 | --counted F | add      | In the logs themselves everything adds up.
)"_s);
    }

    void textSaysWhatIsTold()
    {
        const auto [words, options, pattern, expected] = cells<4>();
        const QStringList cash = QStringList{"cash"_s, writeFile("log"_s, moneyLog(words))}
            + options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        writeFile("F"_s, "device,place,denomination,count\n7,channel,100,2\n"_s);
        const VelmoRun run = velmo(cash);
        QCOMPARE(run.err, QString());
        QStringList lines = run.outLines().filter(QRegularExpression(pattern));
        lines.replaceInStrings(QRegularExpression(", 2026.*"_s), QString());
        QCOMPARE(lines.join(", "_s), expected);
        const bool isSound = !run.out.contains("What does not add up"_s);
        const bool isRight = isSound && !run.out.contains("2 short"_s);
        QCOMPARE(velmo(cash + QStringList{"--exit-code"_s}).exitCode, isRight ? 0 : 1);
        const QString summary = velmo(cash + QStringList{"--json"_s}).outLines().last();
        QCOMPARE(summary.contains("\"contradictions\":0"_s), isSound);
        if (options.startsWith("--from"_s))
            QVERIFY(summary.contains(R"("offered":{"count":1,)"_s));
    }

    // Log, what was counted (";" between the lines, a header of its own where it begins with a
    // name), the differences with the lines that can explain them, likeliest first, or the fault.
    void countsAreHeldAgainstTheLedger_data()
    {
        addRows(R"(
s o n a50 c50 i a50 k i a50 g j S a50 c50 i o | 7,cassette,50,2 | 2: -1 7
s o n a50 c50 i a50 k i a50 g j S a50 c50 i o | 7,cassette,50,4 | 2: 0
s o n a50 c50 i a50 k i a50 g j S a50 c50 i o | 7,cassette,50,5 | 2: 1 10
s o n a50 c50 i o n a20 c70 i        | 7,cassette,50,1;7,cassette,20,1  | 2: 0, 2: 1
s o n a50 c50 i o n a20 c70 i        | device,place,denomination,count,period;7,cassette,20,0,3;7,cassette,20,0,2 | 3: -1, 2: 0, 2: ?50 1
s o n a50 b,$50 i a50 c50 i o        | 7,cassette,50,2                  | 2: 1 4
s o n a50 b,$50 i a50 c50 i o        | 7,cassette,50,0                  | 2: -1 7
s o n a50 c100 i a20 c120 i o        | 7,cassette,20,2                  | 2: 1 4, 2: ?50 1
S C5 o n a50 c50 i C7 o              | 7,cassette,50,3                  | 2: 1 8
s p #3,-200 q i o                    | 7,channel,100,2                  | 1: -1 2
s C5 a100 c100 i C7 #5 i             | 7,channel,100,9                  | 1: 4
s o n a50 k i a50 c50 i              | 7,cassette,50,1;7,cassette,50,1  | counts:3: the same is counted at counts:2
s o n a50 c50 i a20 c70 i o          | 7,cassette,50,1;7,channel,100,4  | 2: 0, 2: 0, 2: ?20 1
s o n a50 c50 i o                    | 7,cassette,50,1;,,,;7,cassette,20,"0,00"; ,"",, | 2: 0, 2: 0
s                                    | sep=\t;device\tplace\tdenomination\tcount;7\tchannel\t100.0\t4,00 | 1: 0
s                                    | 7,channel,100,"1\u00a0004.00";7,reject,100,"1 000" | 1: 1000, 1: 1000
s                                    | 7,channel,100,"1,234"            | counts:2: "count": 1,234 may be thousands or a decimal
s #4+2                               | device,place,channel,denomination,count;7,channel,2,500,2;7,reject,,100,1 | 1: 0, 1: 1
s a50 c50 i                          | 7,cassette,50,0                  | 1: -1
S                                    | 7,cassette,50,9                  | 1: 0
s                                    | Device;Place;Denomination;Count\r;"7";"Cassette";" 50";9 | 1: 0
s                                    | \ufeffdevice\tplace\tdenomination\tcount;7\tcassette\t50\t1 | 1: 0
+A s +B s #3                         | kiosk,device,place,denomination,count;B,7,channel,100,2;A,7,channel,100,4 | 1: 0, 1: -1 3
s                                    | [{"device":7,"place":"channel","denomination":100,"count":3}] | 1: -1
s                                    | 7,cassette,50,1;7,cassette,50    | counts:3: expected 4 cells as in the header, not 3
s                                    | 7,casette,50,1                   | counts:2: "place": expected cassette, channel or reject
s                                    | 7,cassette,50,1.5                | counts:2: "count": expected a whole number from 0 to 2147483647
s                                    | 7,cassette,50,-1                 | counts:2: "count": expected a whole number
s                                    | 7,"cassette,50,1;7,"cassette,50,1 | counts:2: a quotation mark is not closed
s                                    | 8,cassette,50,1                  | counts:2: the logs have no such device or period
s                                    | 7,channel,500,1                  | counts:2: the device has no such place
s                                    | device,place,denomination;7,cassette,50 | counts:1: column "count" is missing
s                                    | device,place,denomination,count,count;7,cassette,50,1,1 | counts:1: column "count" stands twice
s                                    | device,place,denomination,count,box;7,cassette,50,1,1 | counts:1: unknown column "box"
s                                    | device,place,denomination,count  | counts: nothing is counted
s                                    | [{"device":7,"place":"channel","denomination":100}] | counts: element 1: column "count" is missing
s                                    | {"device":7}                     | counts: expected a list
+A s +B s                            | 7,channel,100,4                  | counts:2: the logs have no such kiosk
)"_s);
    }

    void countsAreHeldAgainstTheLedger()
    {
        const auto [words, counted, expected] = cells<3>();
        QString text = counted;
        // In a table of the one separator, the other one ends the lines.
        const bool isSemicolons = text.startsWith("Device;"_s);
        text.replace(isSemicolons ? "\\r;"_s : ";"_s, isSemicolons ? "\r\n"_s : "\n"_s)
            .replace("\\t"_s, "\t"_s)
            .replace("\\u00a0"_s, QString(QChar(QChar::Nbsp)))
            .replace("\\ufeff"_s, QString(QChar(QChar::ByteOrderMark)));
        if (text.at(0).isDigit())
            text.prepend("device,place,denomination,count\n"_s);
        const VelmoRun run = velmo({"cash"_s, writeFile("log"_s, moneyLog(words)), "--counted"_s,
                                    writeFile("counts"_s, text), "--json"_s, "--exit-code"_s});
        if (!run.err.isEmpty()) {
            QCOMPARE(run.exitCode, 2);
            QCOMPARE(run.out, QString());
            QVERIFY2(!expected.isEmpty() && run.err.startsWith("velmo: "_s + expected),
                     qPrintable(run.err));
            return;
        }
        QStringList told;
        for (const QString& line : run.outLines().filter("counted\""_s)) {
            const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
            if (o["kind"_s] == "not_counted"_s)
                told += "%1: ?%2 %3"_s.arg(o["period"_s].toInt())
                            .arg(o["denomination"_s].toInt())
                            .arg(rangeText(o["expected"_s]));
            if (o["kind"_s] != "counted"_s)
                continue;
            QString row = "%1: %2"_s.arg(o["period"_s].toInt()).arg(o["difference"_s].toInt());
            for (const QJsonValue reason : o["explained_by"_s].toArray())
                row += " %1"_s.arg(reason["line"_s].toInt());
            told += row;
        }
        QCOMPARE(told.join(", "_s), expected);
        const bool isSound = !run.out.contains("\"rule\""_s)
            && !expected.contains(QRegularExpression(": (-?[1-9]|\\?)"_s));
        QCOMPARE(run.exitCode, isSound ? 0 : 1);
    }

    void contradictionOfSeveralLogsNamesThem()
    {
        writeFile("A"_s, moneyLog("00=s 01=p"_s));
        writeFile("B"_s, moneyLog("02=#3,-200 03=q 04=i 05=a20 06=k"_s));
        QStringList told;
        for (const QString& line :
             velmo({"cash"_s, "A"_s, "B"_s, "--json"_s}).outLines().filter("\"rule\""_s)) {
            const QJsonObject o = QJsonDocument::fromJson(line.toUtf8()).object();
            told += o["rule"_s].toString();
            const QJsonArray logs = o["logs"_s].toArray();
            for (int i = 0; i < logs.size(); ++i)
                told += "%1%2"_s.arg(logs.at(i).toString()).arg(o["lines"_s][i].toInt());
        }
        QCOMPARE(told.join(QLatin1Char(' ')), "payout_differs A2 B1 not_credited"_s);
    }

    // A row with the currency of the count goes before one without.
    void countIsOfTheRowWithItsCurrency()
    {
        CashPeriod period;
        const auto add = [&](const QString& currency, qint64 pieces) {
            period.rows.push_back(
                {CashPlace::Cassette, 0, {50, currency, {}}, {}, {pieces, pieces}, {}});
        };
        add({}, 1);
        add("XTS"_s, 2);
        add("XXX"_s, 3);
        CashCount count;
        count.denomination = 50;
        count.currency = "XTS"_s;
        QCOMPARE(compareCount(count, {period}).expected.min, 2);
        count.currency.clear();
        QVERIFY_EXCEPTION_THROWN(compareCount(count, {period}), Fault);
    }

    void pageTellsTheNumbersOfTheJson_data()
    {
        // A sample or the words of a log, what else is asked, what the page says besides.
        addRows(R"(
recycler-payout.jsonl                 |             | Everything adds up.
fished-note.jsonl                     |             |
jam.jsonl                             |             | taken out: at least 0<
+A s a500 c500 i o n a50 k i a20 j i  |             | 1 thing does not add up.; taken and not credited; in the cassette: 50 to 70 XTS<; taken out: at least 500 XTS<; The device says of its cash: 77
+A s a500 c500 i o n a50 c550 i       | --last      | in the cassette: 50 XTS<; >450 XTS<
+A s a500 c500 i o n s a50 j i o      | --counted F | Of 2 counts 2 are not right.; data-name="Difference">2 short<; data-name="Difference">1 over<; 1 piece got stuck on its way; >taken out with 0 to 50 XTS<
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
