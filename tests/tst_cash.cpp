// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "velmorun.h"

#include "logstream.h"
#include "text/fault.h"

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

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_Cash)
#include "tst_cash.moc"
