// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "moneylog.h"
#include "velmorun.h"

#include "filterfactory.h"
#include "filtersfile.h"
#include "log/conditiontimeline.h"
#include "log/explanation.h"
#include "log/pagestyle.h"
#include "log/sessionlook.h"
#include "service/serviceanswer.h"
#include "settings/arrayfile.h"
#include "text/fault.h"

#include <QBuffer>
#include <QJsonDocument>
#include <QJsonObject>

#include <random>

namespace {

std::unique_ptr<QIODevice> bufferOf(const QByteArray& bytes)
{
    auto buffer = std::make_unique<QBuffer>();
    buffer->setData(bytes);
    buffer->open(QIODevice::ReadOnly);
    return buffer;
}

QString readFile(const QString& name)
{
    QFile file(name);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

FilterSet filterSet(const QString& json)
{
    TextInput text(bufferOf(json.toUtf8()), "filters"_s);
    const ArrayFile file(text, "filters"_s);
    return filterSetOf(file, ListKind::Filters);
}

// A line of a log: JSON, "S" for a start, or a state and perhaps a note.
QString lineOf(const QString& shorthand)
{
    if (shorthand.startsWith(QLatin1Char('{')))
        return shorthand;
    if (shorthand == "S"_s)
        return R"({"session":"start","device_id":1,"state":"idling"})"_s;
    const QStringList words = shorthand.split(QLatin1Char(' '));
    return words.size() == 1
        ? R"({"state":"%1"})"_s.arg(words.at(0))
        : R"({"state":"%1","current_note":%2})"_s.arg(words.at(0), words.at(1));
}

QString numbers(const QJsonValue& array)
{
    QStringList texts;
    for (const QVariant& number : array.toVariant().toList())
        texts += number.toString();
    return texts.join(QLatin1Char(','));
}

// A line of JSON as the expected answers have it: numbers and names.
QString answerLine(const QString& json)
{
    const QJsonObject o = QJsonDocument::fromJson(json.toUtf8()).object();
    QStringList parts{"%1"_s.arg(o["session"_s].toInt()),
                      "%1/%2"_s.arg(o["device"_s].toInt()).arg(o["thread"_s].toInt())};
    if (o["kind"_s] == QJsonValue("contradiction"_s))
        return (parts + QStringList{numbers(o["lines"_s]), o["rule"_s].toString()}).join(" "_s);
    if (o["kind"_s] != QJsonValue("note"_s))
        return {};
    parts += QStringList{"%1"_s.arg(o["line"_s].toInt()),
                         o["note"_s].isNull() ? "?"_s : "%1"_s.arg(o["note"_s].toInt()),
                         o["outcome"_s].toString() + (o["taken"_s].toBool() ? "+"_s : QString())};
    for (const QVariant& filter : o["filters"_s].toArray().toVariantList()) {
        const QJsonObject objection = QJsonObject::fromVariantMap(filter.toMap());
        parts += "%1(%2)"_s.arg(objection["name"_s].toString(), numbers(objection["evidence"_s]));
    }
    for (const QVariant& machine : o["machine"_s].toArray().toVariantList())
        parts += "%1@%2"_s.arg(machine.toMap()["what"_s].toString(),
                               machine.toMap()["line"_s].toString());
    for (const QVariant& doubt : o["uncertain"_s].toArray().toVariantList())
        parts += "!%1"_s.arg(doubt.toString());
    return parts.join(QLatin1Char(' '));
}

const QByteArray gzipOfOneLine = QByteArray::fromHex(
    "1f8b0800000000000203ab562a2e492c4955b2524a4c4e4e2d28c9cc4b57d2514a2e2d2a4acd2b89cfcb074919"
    "1a1818d47201007e589d2b2a000000");

} // namespace

// Refuses a note that all events lead to; nobody knows it.
class SilentFilter : public AbstractFilter
{
    Q_OBJECT

public:
    FilterResult validate() override { return events->size() < 3 ? FILTER_ACCEPT : FILTER_REJECT; }
    QString getFilterName() const override { return {}; }
    QList<FieldDescription> getFieldsDescription() const override { return {}; }
    QString getFilterDescription() const override { return "Silence|Says nothing."_s; }
};

class tst_Explain : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { QLoggingCategory::setFilterRules("default.debug=false"_s); }

    // Logs and their hand-written answers: tests/explain/*.expected, the logs of that name in
    // samples or beside them.
    void logGivesItsAnswers_data()
    {
        QTest::addColumn<QString>("log");
        const QDir expected(QStringLiteral(EXPLANATIONS));
        for (const QString& name : expected.entryList({"*.expected"_s})) {
            const QString own = expected.filePath(name.chopped(9) + ".jsonl"_s);
            QTest::newRow(qPrintable(name.chopped(9)))
                << (QFile::exists(own) ? own : sample(name.chopped(9) + ".jsonl"_s));
        }
        for (const QString& name : QDir(sample({})).entryList({"*.jsonl"_s}))
            QVERIFY2(expected.exists(name.chopped(6) + ".expected"_s), qPrintable(name));
    }

    void logGivesItsAnswers()
    {
        QFETCH(QString, log);
        QFile file(QStringLiteral(EXPLANATIONS "/%1.expected")
                       .arg(QString::fromUtf8(QTest::currentDataTag())));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QStringList expected = QString::fromUtf8(file.readAll())
                                         .split(QLatin1Char('\n'))
                                         .filter(QRegularExpression("^[^#]"_s));
        const VelmoRun run = velmo({"explain"_s, log, "--filters"_s, sample("filters.json"_s),
                                    "--json"_s, "--keep-going"_s});
        QCOMPARE(run.exitCode, run.err.isEmpty() ? 0 : 2);
        QStringList actual;
        for (const QString& line : run.outLines())
            actual += answerLine(line);
        actual.removeAll(QString());
        QCOMPARE(actual, expected);
    }

    void sentencesTellWhy_data()
    {
        // Filter, log with the lines between semicolons, what the last answer says.
        addRows(R"(
            AttemptsFilter denom=1000 attempts=2 | {"enabled":true};R;{"state":"busy"};R;A1000 | line 5, Device 0: note of 1000 refused. Notes were rejected 2 times since the session began (lines 2 and 4); 2 are allowed for 1000. The next stacked note or session clears this.
            AttemptsFilter denom=1000 attempts=2 | {"enabled":true};A500;{"state":"stacked"};R;{"state":"busy"};R;{"state":"busy"};R;A1000 | Notes were rejected 3 times since the stacked note of line 3 (at last in lines 6 and 8); 2 are allowed for 1000.
            AttemptsFilter denom=1000 attempts=0 | {"enabled":true};A1000 | No attempts at all are allowed for 1000.
            DenomCountFilter denom=500 count=0 | {"enabled":true};A500 | No notes of 500 are allowed at all.
            DenomCountFilter denom=500 count=1 | {"enabled":true};{"state":"accepted","current_note":500};{"state":"idling"};{"state":"accepted"};{"current_note":100};A500 | 1 notes of 500 were accepted since the session began (line 2); 1 are allowed.
            SessionSumFilter sessionSum=3000 | {"session_sum":2500};A1000 | 2500 taken + note 1000 > limit 3000. The next session clears this.
            AcceptFilter acceptAll=0 | A1000 | All notes are switched off (acceptAll is 0).
            AcceptFilter acceptAll=0 | A1000;{"state":"stacked"} | It was taken although refused (line 2).
            AcceptFilter acceptAll=0 | A1000;{"state":"jammed","online":false} | It got stuck in the device (line 2). The device was offline (since line 2).
            AcceptFilter acceptAll=1 | A1000;{"state":"jammed"};{"session_sum":0,"cash":1} | note of 1000 stuck in the device, neither taken nor returned. It was last seen on its way through the device (line 2). It was not credited.
            AcceptFilter acceptAll=1 | A1000;{"state":"jammed"};{"session_sum":1000} | It was credited all the same (line 3).
            AcceptFilter acceptAll=1 | {"state":"accepting","device_id":199};{"state":"stacked"} | Device 199: coin of unknown value taken.
            AcceptFilter acceptAll=1 | A1000;{"state":"rejected"} | note of 1000 rejected. By the device itself; no filter objected.
            AcceptFilter acceptAll=1 | {"error_critical":true};A1000;{"state":"returned","error_text":"jam"} | note of 1000 returned. The device had a critical error (since line 1): jam. Uncertain:
            AcceptFilter acceptAll=1 | {"time":"2026-11-16T10:05:12","device_id":100};{"time":"2026-11-16T10:05:12","state":"accepting","current_note":10};{"state":"idling"} | Session 1, line 2, 10:05:12, Coin acceptor (CCTalk): coin of 10: the log does not say what became of it.
            AcceptFilter acceptAll=1 | {"state":"accepting","current_note":1000.0} | note of 1000 stuck
            AcceptFilter acceptAll=1 | {"state":"accepting","current_note":1e3} | note of 1000 stuck
            AcceptFilter acceptAll=1 | {"time":253402300799999,"state":"rejected"} | line 1, 23:59:59 UTC, Device 0
            AcceptFilter acceptAll=1 | {"device_id":199};A5;{"state":"rejected"} | line 2, Device 199: coin of 5 rejected.
            AcceptFilter acceptAll=1 | {"session":"start"};{"session":"start"};A5 | Session 1, line 3, Device 0: note of 5 stuck
            AcceptFilter acceptAll=1 | {"time":0,"device_id":1,"state":"rejected"} | line 1, 00:00:00 UTC, Bill validator (CCNet): note of unknown value rejected.)"_s);
    }

    void sentencesTellWhy()
    {
        const auto [filterText, log, sentence] = cells<3>();
        QJsonObject params;
        const QStringList filter = filterText.split(QLatin1Char(' '));
        for (const QString& param : filter.mid(1))
            params[param.section(QLatin1Char('='), 0, 0)] = param.section(QLatin1Char('='), 1);
        const QByteArray description = QJsonDocument(params).toJson(QJsonDocument::Compact);
        NoteAnswer last;
        LogExplainer explainer(filterSet(R"([{"name":"%1","params":%2}])"_s.arg(
                                   filter.at(0), QString::fromUtf8(description))),
                               [&](const NoteAnswer& answer) { last = answer; });
        const QStringList lines = log.split(QLatin1Char(';'));
        for (int i = 0; i < lines.size(); ++i) {
            QString line = lines.at(i);
            if (line.startsWith(QLatin1Char('A')))
                line = R"({"state":"accepting","current_note":%1})"_s.arg(line.mid(1));
            else if (line == "R"_s)
                line = R"({"state":"rejected"})"_s;
            explainer.take(SessionLine(line), i + 1);
        }
        explainer.finish();
        QVERIFY2(last.text().contains(sentence), qPrintable(last.text()));
    }

    // Logs with the lines between semicolons and what became of each note in them. A state alone
    // stands for a line, "accepted 100" for one with the note, S for a start, ? for a line that is
    // skipped.
    void moneyIsFollowed_data()
    {
        addRows(R"(
            S;accepting 100;stacking;{"state":"jammed","error_critical":true};idling | 100 stuck error@4
            S;accepting 100;jammed;idling;stacked                   | 100 taken
            S;accepting 100;jammed;idling;returned                  | 100 returned
            S;accepting 100;jammed;idling;rejected                  | 100 rejected
            S;accepting 100;accepted;{"session":"start"};idling     | 100 unknown
            S;accepting 100;accepted;{"session":"start","state":"stacking"};idling | 100 taken
            S;accepting 100;jammed;{"session":"start"};idling       | 100 stuck
            S;accepting 100;{"online":false};accepted;{"online":true};idling | 100 stuck offline@3
            S;accepting 100;{"halt":true};stacking;idling           | 100 stuck halted@3
            S;accepting 100;accepted;returning;idling               | 100 unknown
            S;accepting 100;accepted;stacking                       | 100 stuck
            S;accepting 100;{"session":"start"};accepting 100;stacked | 100 taken
            S;accepting 100;{"session":"start"};accepting 50;stacked | 100 unknown, 50 taken
            S;accepting 100;idling;{"session":"start"};accepting 100;stacked | 100 unknown, 100 taken
            S;accepting;stacked;{"current_note":100};idling         | 100 taken !
            S;accepting;stacked;idling;{"current_note":100}         | ? taken
            S;accepting;returned;rejected;idling                    | ? returned, ? rejected
            S;accepting 100;stacked;idling;accepting;{"current_note":500};stacked | 100 taken, 500 taken
            S;accepting 100;accepted 500;stacked                    | 100 taken !
            S;accepting 100;jammed;idling;accepted;returned         | 100 returned
            S;accepting 100;idling;stacking;rejected                | 100 rejected
            S;accepting 100;idling;stacking;jammed;idling           | 100 stuck
            S;accepting 100;idling;accepted                         | 100 stuck
            S;accepting;{"halt":true};{"current_note":500};accepted;stacked | 500 taken
            S;accepting;{"halt":true};{"current_note":500};idling   | 500 stuck halted@3
            S;accepting 1000;stacked;idling;accepting;{"halt":true};{"current_note":500};idling | 1000 taken, 500 stuck halted@6
            S;accepting 100;stacked;idling 100;accepting;accepting 1000;stacked | 100 taken, 1000 taken
            S;accepting 100;stacked;idling 100;rejected             | 100 taken, ? rejected
            S;accepting 1000;stacked;idling;accepting;accepted 100;stacked | 1000 taken, 100 taken !
            S;{"state":"accepting","online":false};idling           |
            S;accepting 100;busy;accepting 0;stacked                | 100 taken
            S;accepting 1;stacked;idling 0;accepting 0;accepted 1;stacked | 1 taken, 1 taken !
            accepting 100;{"cash":1};stacked                        | 100 taken !
            S;accepting 100;?;stacked                               | 100 taken !
            S;accepting 100;idling;accepting 0;stacked              | 100 unknown, ? taken
            S;accepting 100;{"halt":true,"stacker_full":true};rejected | 100 rejected halted@3 stacker_full@3
            S;accepting 100;{"halt":true};{"halt":false};{"halt":true};rejected | 100 rejected halted@3 halted@5
            S;accepting 100;jammed;stacked                          | 100 taken
            S;accepting 100;jammed;returned                         | 100 returned
            S;accepting 100;accepted;jammed;stacking;idling         | 100 stuck
            S;accepting 100;returning;{"halt":true};idling          | 100 stuck halted@4
            S;accepting 100;accepted;{"online":false};{"online":true};idling | 100 stuck offline@4
            S;accepting 100;accepted;idling;jammed                  | 100 taken
            S;accepting 100;accepted;idling;returned                | 100 taken
            S;{"error_critical":true};accepting 100;accepted;idling | 100 taken
            S;accepting 100;jammed;accepting 500;stacked            | 100 stuck, 500 taken
            S;accepting;accepted 100;{"state":"stacked","session_sum":100} | 100 taken !
            S;accepting;{"current_note":100};stacked                | 100 taken
            S;accepting;rejected 100;idling 0;accepting;returned 50 | 100 rejected !, 50 returned !
            S;accepting;stacked;accepting;jammed;idling             | ? taken, ? stuck
            S;accepting;idling;accepting;idling                     |
            S;accepting;idling;rejected                             | ? rejected
            S;accepting 100;accepted;accepting 0;accepted 50;stacked | 100 taken, 50 taken !
            S;accepting 100;rejected;{"session":"start"};idling     | 100 rejected
            S;rejected;idling;rejected                              | ? rejected, ? rejected
            S;accepting 100;accepted;{"session":"start"};returned   | 100 returned
            S;accepting 100;{"session":"start"};stacking;stacked    | 100 taken
            S;accepting 100;idling;{"session":"start"};stacked      | 100 unknown
            S;accepting 100;idling 0;{"stacker_full":true}          | 100 unknown
            S;accepting 100;{"stacker_full":true};{"stacker_full":false};rejected | 100 rejected stacker_full@3
            S;{"enabled":false};accepting 100;{"halt":true};{"halt":false};rejected | 100 rejected disabled@2 halted@4
            S;{"stacker_full":true};accepting 100;{"stacker_full":false};returned | 100 returned stacker_full@2
            S;{"device_states":[{"device_id":1,"state":"accepting","current_note":50}]};stacked;{"device_states":[{"device_id":1,"state":"rejected","current_note":50}]} | 50 taken, ? rejected)"_s);
    }

    void moneyIsFollowed()
    {
        const auto [log, expected] = cells<2>();
        QStringList actual;
        LogExplainer explainer(filterSet("[]"_s), [&](const NoteAnswer& answer) {
            QStringList parts{answer.hasValue() ? QString::number(answer.note) : "?"_s,
                              outcomeKey(answer.outcome)};
            for (const MachineCondition& condition : answer.machine)
                parts += "%1@%2"_s.arg(condition.what).arg(condition.line);
            if (!answer.uncertain.isEmpty())
                parts += "!"_s;
            actual += parts.join(QLatin1Char(' '));
        });
        qint64 lineNumber = 0;
        for (const QString& line : log.split(QLatin1Char(';'))) {
            ++lineNumber;
            if (line == "?"_s)
                explainer.skipLine();
            else
                explainer.take(SessionLine(lineOf(line)), lineNumber);
        }
        explainer.finish();
        QCOMPARE(actual.join(", "_s), expected);
    }

    // Logs in the words of moneyLog(), what became of their notes, and what does not add up: with
    // the lines that show it. Beside each case stands the nearest one that is sound.
    void moneyAddsUp_data()
    {
        addRows(R"(
            s a100 g j #5,$100 i                 | 100 taken            |
            s a100 g x #5,$100 y i               | 100 taken            |
            s a100 t j #5 i                      | 100 taken            | not_credited@2
            s a100 g j #6 i                      | 100 stuck            |
            s a50 g j #5 i                       | 50 stuck             |
            s a100 b #5 i                        | 100 returned         |
            s r,#5 i                             | ? rejected           |
            s a100 c100 #5 i #6 i                | 100 taken            |
            s A d #5,$100 i                      | ? taken              |

            s a50 k i a20 c20 i                  | 50 taken, 20 taken   | not_credited@2
            s a50 $50 k i a20 c70 i              | 50 taken, 20 taken   |
            s a50 k i $50 a20 c70 i              | 50 taken, 20 taken   |
            s a50 k i a20,$50 k,$70 i            | 50 taken, 20 taken   |
            s a50 k i p,$50 #3,-100 q i          | 50 taken             |
            s a50 k i p #3,-100,$50 q i          | 50 taken             | not_credited@2 credit_without_note@6
            s a50 k i S,$50                      | 50 taken             | not_credited@2 credit_without_note@5
            s a50 k $30 i $50                    | 50 taken             |
            s a50 g j i a20 c20                  | 50 stuck, 20 taken   |
            S a50 k i a50 k i                    | 50 taken, 50 taken   |
            S a50 k i a20 c20 i                  | 50 taken, 20 taken   | not_credited@2
            S a50 k i a20 $0 k i $20             | 50 taken, 20 taken   | not_credited@2
            a50 k i a20 c70 i a10 k i            | 50 taken, 20 taken, 10 taken | not_credited@7
            s a50 ! k i a20 c70 i                | 50 taken, 20 taken   |
            s ! a50 k i a20 c70 i                | 50 taken, 20 taken   |
            s ! a50 c50 i a20 k i                | 50 taken, 20 taken   | not_credited@6

            s a50 c100 i                         | 50 taken             | credit_differs@2,3
            s a50 $50 k $100 i                   | 50 taken             | credit_differs@2,3,5
            s a50 c50 i $100                     | 50 taken             | credit_differs@2,3,5
            s a50 c50 i a20,$100 k,$120 i        | 50 taken, 20 taken   | credit_differs@5,6
            s A c50 i                            | ? taken              |

            s a50 $50 b i                        | 50 returned          | credited_not_taken@2,3
            s a50 b i $50                        | 50 returned          | credited_not_taken@2,5
            s a50 r,$50 i                        | 50 rejected          | credited_not_taken@2,3
            s a50 c50 i a20 b i                  | 50 taken, 20 returned |
            s a50 k i a20,$50 b i                | 50 taken, 20 returned |

            s $50                                |                      | credit_without_note@2
            i $50 a20 c70 i                      | 20 taken             |
            i $50 $70                            |                      | credit_without_note@3
            S $50                                |                      | credit_without_note@2
            s ! $50 a20 c70 i                    | 20 taken             |

            s a50 c50 i $20                      | 50 taken             | credit_fell@3,5
            s a50 c50 i x y,$0                   | 50 taken             | credit_fell@3,6
            s a50 c50 i S a20 c20 i              | 50 taken, 20 taken   |
            s a50 c50 i S $0                     | 50 taken             |
            s a50 c50 i S $50                    | 50 taken             | credit_without_note@6
            s a50 c50 ! $0                       | 50 taken             |

            s p #3,-100 q i                      |                      |
            s p -100 q i #3                      |                      |
            s p #3 q -100 i                      |                      |
            s p #2,-100 q i                      |                      | payout_differs@2,3
            s p #3,-200 q i                      |                      | payout_differs@2,3
            s p #3,-100 q i #2                   |                      | payout_differs@2,3
            s p #2/1,-100 q i                    |                      |
            s p #3/1,-100 q i                    |                      | payout_differs@2,3
            s p #3,-100 j p #2,-200 q i          |                      |
            s p #3,-100 #9 q i                   |                      |
            s p #3 q i                           |                      |
            s p #3 q i p #2,-100 q i             |                      | payout_differs@2
            s p #3,-100 q i S p #2,-100 q i      |                      |
            p -100 #3 q i                        |                      |
            s p ! #3 q i                         |                      |
            S p -100 q i                         |                      |

            s p #3,-100                          |                      | payout_unfinished@2,3
            s p #3,-100 i p #2,-200 q i          |                      | payout_unfinished@2,3
            s p #3,-100 j i a50 c50 i            | 50 taken             | payout_unfinished@2,3
            s p s,p #3,-100 q i                  |                      |
            s p S i                              |                      | payout_unfinished@2
            s p ! i                              |                      |

            s #3                                 |                      | registry_changed@2
            s #4/1                               |                      | registry_changed@2
            s #9                                 |                      |
            s a50 c50 i #3                       | 50 taken             | registry_changed@5
            s e #0 E i                           |                      |
            s e E i #0                           |                      |
            s f #2 F i                           |                      |
            s f #2 F i S #0                      |                      | registry_changed@7
            s ! #3                               |                      |
            S #4 #4+2                            |                      |

            S C5 a50 c50 i C6                    | 50 taken             |
            S C5 a50 c50 i C7                    | 50 taken             | counter_jump@2,6
            S C5 a50 c50 i C5 a20 c70 C7         | 50 taken, 20 taken   |
            S C5 a50 c50 i C5 i C6               | 50 taken             |
            S C5 a50 b C6 C7                     | 50 returned          | counter_jump@5,6
            S C5 C0 a50 c50 C1                   | 50 taken             |
            S C5 C0 C1                           |                      | counter_jump@3,4)"_s);
    }

    void moneyAddsUp()
    {
        const auto [log, expectedNotes, expected] = cells<3>();
        struct Findings : MoneyWatcher
        {
            void takeContradiction(const MoneyTrail& /*trail*/, const Contradiction& c) override
            {
                QStringList lines;
                for (const qint64 line : c.lines)
                    lines += QString::number(line);
                found += "%1@%2"_s.arg(c.ruleKey(), lines.join(QLatin1Char(',')));
            }
            QStringList found;
        } findings;
        QStringList notes;
        LogExplainer explainer(
            filterSet("[]"_s),
            [&](const NoteAnswer& answer) {
                notes += (answer.hasValue() ? QString::number(answer.note) : "?"_s)
                    + QLatin1Char(' ') + outcomeKey(answer.outcome);
            },
            &findings);
        qint64 lineNumber = 0;
        for (const QString& line : moneyLog(log).split(QLatin1Char('\n'), Qt::SkipEmptyParts)) {
            ++lineNumber;
            if (line.endsWith(",}"_s))
                explainer.skipLine();
            else
                explainer.take(SessionLine(line), lineNumber);
        }
        explainer.finish();
        QCOMPARE(notes.join(", "_s), expectedNotes);
        QCOMPARE(findings.found.join(QLatin1Char(' ')), expected);
    }

    // Whose line it is when that does not say: what the newest state is of.
    void linesAreOfTheDeviceThatIsMeant_data()
    {
        addRows(R"(
            {"device_id":1,"thread_id":2};{"device_states":[{"device_id":1,"thread_id":3},{"device_id":1,"thread_id":2}]};{"device_id":1,"cash":1} | 1/2
            {"device_id":1,"thread_id":2};{"device_states":[{"device_id":1,"thread_id":3},{"device_id":1,"thread_id":2},{"device_id":6,"thread_id":1}]};{"device_id":1,"cash":1} | 1/2
            {"device_states":[{"device_id":6,"thread_id":3},{"device_id":1,"thread_id":2},{"device_id":1,"thread_id":1}]};{"device_id":1,"cash":1} | 1/1
            {"device_states":[{"device_id":6,"thread_id":3},{"device_id":1,"thread_id":2}]};{"cash":1} | 1/2
            {"device_id":6,"thread_id":3};{"device_id":1,"thread_id":2};{"device_states":[{"device_id":6,"thread_id":3}]};{"cash":1} | 1/2
            {"device_id":6,"thread_id":3};{"device_id":1,"thread_id":2};{"thread_id":3,"cash":1} | 6/3
            {"device_id":6,"thread_id":3};{"thread_id":4,"cash":1} | 6/4
            {"device_states":[{"device_id":6,"thread_id":3},{"device_id":1,"thread_id":2}]};{"thread_id":9,"cash":1} | 1/9
            {"device_states":[{"device_id":1},{"device_id":1,"thread_id":3}]};{"device_states":[{"device_id":1,"cash":1}]} | 1/0
            {"device_states":[{"device_id":1,"thread_id":3},{"device_id":1}]};{"device_states":[{"device_id":1,"cash":1}]} | 1/0
            {"cash":1} | 0/0)"_s);
    }

    void linesAreOfTheDeviceThatIsMeant()
    {
        const auto [log, expected] = cells<2>();
        LogPlayer player(filterSet("[]"_s));
        qint64 lineNumber = 0;
        for (const QString& line : log.split(QLatin1Char(';')))
            player.take(SessionLine(line), ++lineNumber);
        QCOMPARE(player.steps().size(), size_t(1));
        const LogDevice& device = *player.steps().front().device;
        QCOMPARE("%1/%2"_s.arg(device.deviceId()).arg(device.threadId()), expected);
    }

    void devicesAndSessionsAreToldApart()
    {
        LogPlayer player(filterSet("[]"_s));
        for (qint64 line = 1; line <= 2; ++line)
            player.take(SessionLine(R"({"session":"start"})"_s), line);
        QCOMPARE(player.sessions(), 1);
        player.take(
            SessionLine(
                R"({"device_states":[{"device_id":6},{"device_id":1,"thread_id":3},{"device_id":1,"thread_id":2}]})"_s),
            3);
        QStringList names;
        for (const auto& device : player.devices())
            names += device->name();
        QCOMPARE(names,
                 (QStringList{"Bill validator (Ardac Elite ID 003)"_s,
                              "Bill validator (CCNet), thread 3"_s,
                              "Bill validator (CCNet), thread 2"_s}));
    }

    void summariesCountEachNoteOnce()
    {
        Summary summary;
        LogExplainer explainer(
            filterSet(R"([{"name":"AttemptsFilter","params":{"denom":100,"attempts":0}},
                          {"name":"AttemptsFilter","params":{"denom":100,"attempts":0}}])"_s),
            [&](const NoteAnswer& answer) { summary.add(answer); });
        qint64 lineNumber = 0;
        for (const char* const line : {"S", "accepting 100", "stacked", "accepting 100", "jammed",
                                       "accepting 100", "returned", "accepting 50", "stacked"})
            explainer.take(SessionLine(lineOf(QString::fromUtf8(line))), ++lineNumber);
        explainer.finish();
        QStringList rows;
        for (const Summary::Row& row : summary.rows())
            rows += (row.isPart ? "- "_s : QString())
                + "%1 %2 %3"_s.arg(row.what).arg(row.tally.count).arg(row.tally.sum);
        QCOMPARE(rows.mid(0, 6),
                 (QStringList{"Offered 4 350"_s, "Taken 2 150"_s,
                              "- taken although refused 1 100"_s, "Refused by the filters 3 300"_s,
                              "- AttemptsFilter 3 0"_s, "Stuck in the device 1 100"_s}));
    }

    // Random logs of two devices. Cut where sessions begin, the parts give the answers of the
    // whole, as long as each start changes something: what is no change is no event. It makes no
    // difference in which order the devices are published.
    void logsGiveTheSameInPartsAndInAnyOrder()
    {
        std::mt19937 random(21);
        const auto pick = [&random](int below) { return int(random() % unsigned(below)); };
        const FilterSet filters = filterSet(
            R"([{"name":"AttemptsFilter","params":{"denom":100,"attempts":2}},
                {"name":"DenomCountFilter","params":{"denom":500,"count":2}}])"_s);
        const auto answersOf = [&](const QStringList& log, int first, int end) {
            QStringList answers;
            LogExplainer explainer(filters, [&](const NoteAnswer& a) {
                QStringList answer{QString::number(a.line), a.deviceName, QString::number(a.note),
                                   outcomeKey(a.outcome), outcomeKey(a.end)};
                for (const Objection& objection : a.objections)
                    answer += objection.text;
                answers += answer.join(QLatin1Char(' '));
            });
            for (int line = first; line < end; ++line)
                explainer.take(SessionLine(log.at(line)), line + 1);
            explainer.finish();
            answers.sort(); // notes of one line come in the order of its devices
            return answers;
        };
        static const char* const states[] = {"accepting", "accepted", "rejected", "stacked",
                                             "returned",  "jammed",   "idling"};
        int answered = 0;
        for (int round = 0; round < 200; ++round) {
            QStringList log;
            QStringList turned; // the same with the devices in the other order
            QVector<int> starts;
            for (int session = 0; session < 3; ++session) {
                starts += int(log.size());
                for (const int device : {1, 100})
                    log += R"({"session":"start","device_id":%1,"thread_id":2,"state":"idling"})"_s
                               .arg(device);
                turned += log.mid(turned.size());
                for (int line = 0; line < 12; ++line) {
                    QStringList devices;
                    for (const int device : {1, 100}) {
                        const int note = QVector<int>{0, 100, 500}.at(pick(3));
                        devices +=
                            R"({"device_id":%1,"thread_id":2,"state":"%2","current_note":%3})"_s
                                .arg(device)
                                .arg(QString::fromUtf8(states[pick(7)]))
                                .arg(note);
                    }
                    log += pick(2) == 0
                        ? devices.at(pick(2))
                        : R"({"device_states":[%1,%2]})"_s.arg(devices.at(0), devices.at(1));
                    turned += log.constLast().contains("device_states"_s)
                        ? R"({"device_states":[%1,%2]})"_s.arg(devices.at(1), devices.at(0))
                        : log.constLast();
                }
                for (const int device : {1, 100}) {
                    log +=
                        R"({"device_id":%1,"state":"stacked","session_sum":%2})"_s.arg(device).arg(
                            session + 1);
                    log += R"({"device_id":%1,"state":"idling","current_note":0})"_s.arg(device);
                }
                turned += log.mid(turned.size());
            }
            starts += int(log.size());
            const QStringList whole = answersOf(log, 0, int(log.size()));
            QCOMPARE(answersOf(turned, 0, int(log.size())), whole);
            QStringList parts;
            for (int i = 0; i + 1 < starts.size(); ++i)
                parts += answersOf(log, starts.at(i), starts.at(i + 1));
            parts.sort();
            QCOMPARE(parts, whole);
            answered += int(whole.size());
        }
        QVERIFY(answered > 2000);
    }

    // Random sessions: a note is explained as refused exactly when the chain refused it, and the
    // evidence is enough: with every other event idle the chain still refuses it.
    void explanationsHoldAgainstTheFilters()
    {
        std::mt19937 random(12);
        const auto pick = [&random](int below) { return int(random() % unsigned(below)); };
        int refusals = 0;
        for (int round = 0; round < 400; ++round) {
            const FilterSet filters = filterSet(
                R"([{"name":"AttemptsFilter","params":{"denom":100,"attempts":%1}},
                    {"name":"DenomCountFilter","params":{"denom":500,"count":%2}},
                    {"name":"SessionSumFilter","params":{"sessionSum":%3}}])"_s.arg(pick(4))
                    .arg(pick(4))
                    .arg(500 + 100 * pick(30)));
            DeviceStateWorker worker; // what the service would hold
            FilterChain chain;
            chain.setEvents(worker.getStatesList());
            filters.addTo(chain);
            QVector<qint64> eventLines;
            QMap<qint64, StatesList> refused; // the events up to each refused note, by its line
            QMap<qint64, QVector<qint64>> linesOf;
            QVector<qint64> explained;
            LogExplainer explainer(filters, [&](const NoteAnswer& answer) {
                if (answer.outcome != Outcome::Refused)
                    return;
                explained += answer.line;
                StatesList events = refused.value(answer.line);
                QVector<qint64> evidence;
                for (const Objection& objection : answer.objections)
                    evidence += objection.evidence;
                for (int i = 0; i < events.size() - 1; ++i) {
                    if (!evidence.contains(linesOf.value(answer.line).at(i))) {
                        events[i] = DeviceState();
                        events[i].state = STATE_IDLING;
                    }
                }
                FilterChain again;
                again.setEvents(&events);
                filters.addTo(again);
                QVERIFY(!events.isEmpty() && again.validate() == AbstractFilter::FILTER_REJECT);
            });
            static const char* const states[] = {"accepting", "accepting", "accepted", "rejected",
                                                 "rejected",  "stacked",   "idling"};
            for (int line = 1; line <= 40; ++line) {
                QJsonObject report{{"state"_s, QString::fromUtf8(states[pick(7)])}};
                if (pick(2) == 0 || report["state"_s] == QJsonValue("accepting"_s))
                    report["current_note"_s] =
                        QVector<int>{0, 100, 100, 500, 500, 1000}.at(pick(6));
                if (pick(4) == 0)
                    report["session_sum"_s] = 100 * pick(30);
                if (pick(15) == 0) {
                    report["session"_s] = "start"_s;
                    report["state"_s] = "idling"_s; // a note in hand would be followed on
                }
                const SessionLine said(QString::fromUtf8(QJsonDocument(report).toJson()));
                if (said.startsSession()) {
                    worker.startSession();
                    eventLines.clear();
                }
                const DeviceState before = worker.getStatesList()->isEmpty()
                    ? DeviceState()
                    : worker.getStatesList()->constLast();
                said.reports().front().applyTo(*worker.getState());
                if (worker.checkState()) {
                    worker.saveState();
                    eventLines += line;
                    const DeviceState& event = worker.getStatesList()->constLast();
                    const bool isOffer = event.state == STATE_ACCEPTING && event.currentNote > 0
                        && !(before.state == STATE_ACCEPTING
                             && before.currentNote == event.currentNote);
                    if (isOffer && chain.validate() != AbstractFilter::FILTER_ACCEPT) {
                        refused.insert(line, *worker.getStatesList());
                        linesOf.insert(line, eventLines);
                    }
                }
                explainer.take(said, line);
                // The player shows a filter only what counts; the verdict is the same on all.
                const LogStep& step = explainer.player().steps().front();
                if (step.sent)
                    QCOMPARE(step.device->refusing().isEmpty(),
                             chain.validate() == AbstractFilter::FILTER_ACCEPT);
            }
            explainer.finish();
            QCOMPARE(explained, refused.keys().toVector());
            refusals += int(explained.size());
        }
        QVERIFY(refusals > 500);
    }

    void logsAreReadPlainAndCompressed_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("expected"); // lines between bars, or a fault
        const QByteArray gz = gzipOfOneLine;
        QTest::newRow("plain") << QByteArray("a\n\nb") << "a||b"_s;
        QTest::newRow("line as long as many chunks") << QByteArray(300000, 'x') + "\ny\n"
                                                     << QString(300000, QLatin1Char('x')) + "|y"_s;
        QTest::newRow("compressed") << gz << R"({"state":"accepting","current_note":1000})"_s;
        QTest::newRow("two members")
            << gz + gz
            << R"({"state":"accepting","current_note":1000}|{"state":"accepting","current_note":1000})"_s;
        QTest::newRow("cut off") << gz.left(40) << "log: the compressed file is cut off"_s;
        QTest::newRow("damaged") << gz.left(20) + "junkjunkjunk" + gz.mid(32)
                                 << "log: the compressed file is damaged"_s;
        QTest::newRow("padded") << gz + QByteArray(200000, '\0')
                                << R"({"state":"accepting","current_note":1000})"_s;
        QTest::newRow("text behind") << gz + "{}\n"
                                     << "log: the compressed file is damaged"_s;
        QTest::newRow("byte order mark")
            << QByteArray("\xef\xbb\xbf\na\xef\xbb\xbf") << QStringLiteral("|a\uFEFF");
        QTest::newRow("blank lines") << QByteArray(" \r\n").repeated(1000001)
                                     << "log:1000001: more than 1000000 blank lines"_s;
        QTest::newRow("one byte") << QByteArray("\x1f") << "\x1f"_s;
    }

    void logsAreReadPlainAndCompressed()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, expected);
        TextInput input(bufferOf(bytes), "log"_s);
        QByteArrayList lines;
        QByteArray result;
        try {
            QByteArray line;
            while (input.readLine(line))
                lines += line;
            result = lines.join('|');
            QCOMPARE(input.lineNumber(), qint64(lines.size()));
        } catch (const Fault& fault) {
            result = fault.message.toUtf8();
        }
        QCOMPARE(result, expected.toUtf8());
    }

    void documentedLinesAreRead()
    {
        QFile file(QStringLiteral(FORMATS));
        QVERIFY(file.open(QIODevice::ReadOnly));
        const QString example =
            QString::fromUtf8(file.readAll()).section("```jsonl\n"_s, 1).section("\n```"_s, 0, 0);
        QVector<NoteAnswer> answers;
        LogExplainer explainer(filterSet("[]"_s),
                               [&](const NoteAnswer& answer) { answers += answer; });
        for (const QString& line : example.split(QLatin1Char('\n')))
            explainer.take(SessionLine(line), 1);
        explainer.finish();
        QCOMPARE(answers.size(), 1);
        QVERIFY(answers.at(0).isTaken());
        QCOMPARE(answers.at(0).time.iso(), "2026-11-16T10:05:12.000Z"_s);
    }

    void badLinesAreNamed_data()
    {
        addRows(R"(
            {"time":"10:05"}                            | "time": expected an ISO 8601 time or milliseconds since 1970
            {"time":"2026-02-30T10:05:12"}              | "time": expected an ISO 8601 time
            {"time":"2026-11-16T24:05:12Z"}             | "time": expected an ISO 8601 time
            {"time":253402300800000}                    | "time": expected an ISO 8601 time or milliseconds since 1970, in a year from 1 to 9999
            {"time":-62135596800001}                    | "time": expected an ISO 8601 time
            {"time":1000.5}                             | "time": expected an ISO 8601 time
            {"time":"0000-01-01T00:00:00"}              | "time": expected an ISO 8601 time
            {"current_note":"100"}                      | "current_note": expected a whole number from -2147483648 to 2147483647
            {"current_note":100.5}                      | "current_note": expected a whole number
            {"device_id":1} x                           | not JSON: garbage at the end of the document (column 17)
            {"session":true}                            | "session": expected "start"
            {"time":true}                               | "time": expected an ISO 8601 time
            {"device_states":{}}                        | expected a list "device_states"
            {"device_states":[null,1]}                  | "device_states": element 2: expected a JSON object
            {"device_states":[{"state":"idling"}]}      | "device_states": element 1: key "device_id" is missing
            {"device_states":[{"device_id":1,"x":1}]}   | "device_states": element 1: unknown key "x"
            {"device_states":[],"state":"idling"}       | fields of one device beside "device_states"
            {"notes_inserted":1}                        | unknown key "notes_inserted"
            {"state":"jammed","incident":1}             | the number of an incident: expected a text
            {"state":"idling"                           | not JSON: unterminated)"_s);
    }

    void badLinesAreNamed()
    {
        const auto [line, fault] = cells<2>();
        const QStringList arguments{"explain"_s, "-"_s, "--filters"_s, sample("filters.json"_s),
                                    "--json"_s};
        const QByteArray log = "{}\n" + line.toUtf8() + "\n";
        const VelmoRun run = velmo(arguments, log);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("velmo: standard input:2: "_s + fault), qPrintable(run.err));
    }

    void optionsChooseWhatIsShown()
    {
        const QString log = sample("fished-note.jsonl"_s);
        const auto explain = [&](const QStringList& more) {
            return velmo(QStringList{"explain"_s, log, "--filters"_s, sample("filters.json"_s)}
                         + more);
        };
        QCOMPARE(explain({"--exit-code"_s}).exitCode, 1);
        QCOMPARE(explain({"--exit-code"_s, "--session"_s, "2"_s}).exitCode, 0);
        QCOMPARE(explain({"--json"_s, "--refusals"_s}).outLines().size(), 2);
        const VelmoRun summary = explain({"--json"_s, "--summary"_s, log});
        QCOMPARE(summary.outLines().size(), 1);
        QCOMPARE(
            summary.outLines().last(),
            R"({"kind":"summary","sessions":4,"offered":{"count":12,"sum":11000},"taken":{"count":2,"sum":1000},"refused":{"count":2,"sum":2000,"by":{"AttemptsFilter":2},"taken":{"count":0,"sum":0}},"stuck":{"count":2,"sum":2000},"rejected":{"count":4,"sum":4000},"returned":{"count":0,"sum":0},"unknown":{"count":2,"sum":2000},"contradictions":0})"_s);
        QCOMPARE(explain({"--session"_s, "x"_s}).err, "velmo: --session: expected a number\n"_s);
        const VelmoRun nothing = explain({"--json"_s, "--device"_s, "2"_s});
        QCOMPARE(nothing.exitCode, 2);
        QCOMPARE(nothing.out, QString());
        QCOMPARE(nothing.err,
                 "velmo: the logs have nothing of the session or device that is asked for\n"_s);
        const VelmoRun text = explain({});
        QVERIFY(text.out.startsWith("Filters in force (%1):\n"_s.arg(sample("filters.json"_s))));
        QVERIFY(!text.out.contains(QLatin1Char('\033')));
        QVERIFY(text.out.contains("\nOffered                      6  5500\n"_s));
    }

    // Sample, options, exit code, how many notes and contradictions are told.
    void whatDoesNotAddUpIsTold_data()
    {
        addRows(R"(
            credited-twice.jsonl  |                                 | 0 | 4 1
            credited-twice.jsonl  | --exit-code                     | 1 | 4 1
            credited-twice.jsonl  | --exit-code --session 2         | 0 | 1 0
            credited-twice.jsonl  | --exit-code --contradictions    | 1 | 0 1
            credited-twice.jsonl  | --refusals                      | 0 | 0 0
            credited-twice.jsonl  | --contradictions --from 2026-11-18T18:42 | 0 | 0 0
            plain-payment.jsonl   | --exit-code --contradictions    | 0 | 0 0
            fished-note.jsonl     | --contradictions                | 0 | 0 0)"_s);
    }

    void whatDoesNotAddUpIsTold()
    {
        const auto [log, options, exitCode, counts] = cells<4>();
        const QStringList explain =
            QStringList{"explain"_s, sample(log), "--filters"_s, sample("filters.json"_s)}
            + options.split(QLatin1Char(' '), Qt::SkipEmptyParts);
        const VelmoRun json = velmo(explain + QStringList{"--json"_s});
        QCOMPARE(json.exitCode, exitCode.toInt());
        const auto told = [](const QString& text, const QString& notes, const QString& wrongs) {
            return "%1 %2"_s.arg(text.count(notes)).arg(text.count(wrongs));
        };
        QCOMPARE(told(json.out, "{\"kind\":\"note\""_s, "{\"kind\":\"contradiction\""_s), counts);
        const QString page = velmo(explain + QStringList{"--html"_s, "-"_s}).out;
        QCOMPARE(told(page, "<li class=\"answer"_s, "<li class=\"contradiction\""_s), counts);
        QCOMPARE(page.count("class=\"mark wrong\""_s), counts.section(" "_s, 1).toInt());
        QCOMPARE(velmo(explain).out.count("would clear this. (lines "_s),
                 counts.section(" "_s, 1).toInt());
    }

    // Options, the lines of the notes that are told, how many sessions and notes the summary has,
    // what standard error says. All notes but that of line 5 lack a time of their own.
    void notesAreSelected_data()
    {
        addRows(R"(
            | 1 3 5 8 11 | 3 5 |
            --from 2026-11-16                            | 3 5 8 11 | 3 4 | notes before the first time, left out: 1
            --to 2026-11-16                              | 3 5      | 1 2 | left out: 1
            --from 2026-11-17 --to 2026-11-17            | 8        | 1 1 | left out: 1
            --from 2026-11-17T10:00:00 --to 2026-11-17T10:00:00 | 8 | 1 1 | left out: 1
            --from 2026-11-18T12:00:00.000Z              | 11       | 1 1 | left out: 1
            --from 2026-11-18T15:00:00.001+03:00         |          | 0 0 | left out: 1
            --to 2026-11-16 --session 1                  | 3 5      | 1 2 | left out: 1
            --note 100                                   | 1 3 11   | 2 3 |
            --note 7                                     |          | 0 0 |
            --outcome refused                            | 8        | 1 1 |
            --outcome taken                              | 3 8 11   | 3 3 |
            --outcome taken --note 100 --session 1       | 3        | 1 1 |
            --outcome rejected --to 2026-11-17           | 5        | 1 1 |
            --outcome unknown --from 2026-11-16          |          | 0 0 | left out: 1)"_s);
    }

    void notesAreSelected()
    {
        const auto [options, lines, counts, error] = cells<4>();
        const QString log = writeFile(m_folder.filePath("times.jsonl"_s),
                                      R"({"session":"start","state":"accepting","current_note":100}
{"state":"idling","current_note":0,"time":"2026-11-16T10:00:00"}
{"state":"accepting","current_note":100}
{"state":"stacked"}
{"state":"accepting","current_note":50,"time":"2026-11-16T23:59:59.999"}
{"state":"rejected"}
{"session":"start","state":"idling","current_note":0,"time":"2026-11-17T10:00:00"}
{"state":"accepting","current_note":1000}
{"state":"stacked"}
{"session":"start","state":"idling","current_note":0,"time":"2026-11-18T12:00:00Z"}
{"state":"accepting","current_note":100}
{"state":"stacked"}
)"_s);
        const QString filters =
            writeFile(m_folder.filePath("none-of-1000.json"_s),
                      R"([{"name":"AttemptsFilter","params":{"denom":1000,"attempts":0}}])"_s);
        QStringList arguments{"explain"_s, log, "--filters"_s, filters};
        if (!options.isEmpty())
            arguments += options.split(QLatin1Char(' '));
        const VelmoRun run = velmo(arguments + QStringList{"--json"_s});
        QCOMPARE(run.exitCode, 0);
        QVERIFY2(run.err.isEmpty() ? error.isEmpty()
                                   : !error.isEmpty() && run.err.endsWith(error + "\n"_s),
                 qPrintable(run.err));
        QStringList told;
        for (const QString& line : run.outLines().filter(R"({"kind":"note")"_s))
            told +=
                QString::number(QJsonDocument::fromJson(line.toUtf8()).object()["line"_s].toInt());
        QCOMPARE(told.join(QLatin1Char(' ')), lines);
        const QJsonObject summary =
            QJsonDocument::fromJson(run.outLines().last().toUtf8()).object();
        QCOMPARE("%1 %2"_s.arg(summary["sessions"_s].toInt())
                     .arg(summary["offered"_s]["count"_s].toInt()),
                 counts);
        // The page has the sessions, and its sentences of these notes only.
        const QString page = velmo(arguments + QStringList{"--html"_s, "-"_s}).out;
        QCOMPARE(page.count("<details"_s), counts.section(QLatin1Char(' '), 0, 0).toInt());
        QCOMPARE(page.count("<li class=\"answer"_s), told.size());
    }

    void timesAreShownInUtc()
    {
        const QByteArray log = R"({"time":"2026-11-16T23:30:00-01:00","stacker_full":true}
{"time":"2026-11-17T10:00:00.250+03:00","state":"rejected"})";
        const QStringList explain{"explain"_s, "-"_s, "--filters"_s, sample("filters.json"_s),
                                  "--utc"_s};
        const QString json = velmo(explain + QStringList{"--json"_s}, log).out;
        QVERIFY2(json.contains(R"("time":"2026-11-17T07:00:00.250Z")"_s)
                     && json.contains(R"("from":"2026-11-17T00:30:00.000Z")"_s),
                 qPrintable(json));
        QVERIFY(velmo(explain, log).out.contains(" line 2, 07:00:00 UTC,"_s));
        QVERIFY(velmo(explain + QStringList{"--html"_s, "-"_s}, log)
                    .out.contains("Session 1, 2026-11-17 00:30:00 UTC"_s));
    }

    // Logs with the lines between semicolons, and the spans in which something was the matter, with
    // the line of the last note.
    void conditionsAreFollowed_data()
    {
        addRows(R"(
            {"enabled":true};idling                          |
            {"stacker_present":true};{"halt":false,"online":true} |
            {"enabled":false}                                | disabled 1- note 0
            accepting 100;stacked;{"enabled":false};{"cash":1};{"enabled":true} | disabled 3-5 note 1
            accepting 100;{"enabled":false};{"stacker_full":true};{"enabled":true} | disabled 2-3 note 1, disabled+stacker_full 3-4 note 1, stacker_full 4- note 1
            {"halt":true};accepting 100;accepting 100;{"halt":false};accepting 50 | halted 1-4 note 2
            {"halt":true};accepting;stacked;idling           | halted 1- note 2
            {"halt":true};rejected                           | halted 1- note 2
            {"halt":true};accepting;idling                   | halted 1- note 0
            {"halt":true};{"halt":false,"state":"accepting","current_note":100} | halted 1-2 note 0
            accepting 100;{"online":false};{"session":"start"};accepting 100 | offline 2- note 1
            {"online":false,"device_id":6};{"online":false,"device_id":1};{"device_states":[{"device_id":6,"online":true},{"device_id":1,"online":false}]} | offline 1-3 note 0, offline 2- note 0)"_s);
    }

    void conditionsAreFollowed()
    {
        const auto [log, expected] = cells<2>();
        QStringList actual;
        ConditionTimeline timeline([&](const ConditionSpan& span) {
            actual += "%1 %2-%3 note %4"_s.arg(
                span.keys().join(QLatin1Char('+')), QString::number(span.from.line),
                span.to.line > 0 ? QString::number(span.to.line) : QString(),
                QString::number(span.lastNote.line));
        });
        LogExplainer explainer(filterSet("[]"_s),
                               [&](const NoteAnswer& answer) { timeline.take(answer); });
        qint64 lineNumber = 0;
        for (const QString& line : log.split(QLatin1Char(';'))) {
            explainer.take(SessionLine(lineOf(line)), ++lineNumber);
            timeline.take(explainer.player().steps(), {}, lineNumber);
        }
        explainer.finish();
        timeline.finish();
        QCOMPARE(actual.join(", "_s), expected);
    }

    // Which of the spans of two devices are told, by their lines: a line a minute.
    void spansAreSelected_data()
    {
        addRows(R"(
            | 3-5 7-8 2-
            --device 1                       | 3-5 7-8
            --session 1                      | 3-5 2-
            --session 2                      | 7-8 2-
            --from 2026-11-16T10:06:00Z      | 7-8 2-
            --from 2026-11-16T10:05:00Z --to 2026-11-16T10:05:30Z | 3-5 2-
            --from 2026-11-16T10:03:10Z --to 2026-11-16T10:03:20Z | 3-5 2-
            --to 2026-11-16T10:02:00Z        | 2-
            --from 2026-11-16T10:09:00Z      |
            --note 7                         | 3-5 7-8 2-
            --summary                        |
            --refusals                       |)"_s);
    }

    void spansAreSelected()
    {
        const auto [options, lines] = cells<2>();
        QByteArray log;
        int minute = 0;
        for (const char* const fields :
             {R"("device_id":1,"state":"idling")", R"("device_id":100,"halt":true)",
              R"("device_id":1,"enabled":false)", R"("device_id":1,"cash":1)",
              R"("device_id":1,"enabled":true)", R"("device_id":1,"session":"start")",
              R"("device_id":1,"stacker_full":true)", R"("device_id":1,"stacker_full":false)"})
            log += R"({"time":"2026-11-16T10:0%1:00Z",%2})"_s.arg(++minute)
                       .arg(QString::fromUtf8(fields))
                       .toUtf8()
                + "\n";
        QStringList arguments{"explain"_s, "-"_s, "--filters"_s, sample("filters.json"_s),
                              "--json"_s};
        if (!options.isEmpty())
            arguments += options.split(QLatin1Char(' '));
        QStringList told;
        for (const QString& line : velmo(arguments, log).outLines().filter("\"condition\""_s)) {
            const QJsonObject span = QJsonDocument::fromJson(line.toUtf8()).object();
            told += "%1-%2"_s.arg(span["from_line"_s].toInt())
                        .arg(span["to_line"_s].toVariant().toString());
        }
        QCOMPARE(told.join(QLatin1Char(' ')), lines);
    }

    void overviewStandsBelowTheTotals()
    {
        QByteArray log = R"({"device_id":1,"state":"accepting","current_note":100}
{"device_id":1,"state":"stacked","time":"2026-11-16T10:00:00"}
{"device_id":100,"state":"rejected","time":"2026-11-16T10:01:00"}
)";
        for (int i = 0; i < 12; ++i)
            log += R"({"device_id":1,"time":"2026-11-16T11:%1:00","enabled":%2})"_s.arg(10 + i)
                       .arg(i % 2 ? "true"_s : "false"_s)
                       .toUtf8()
                + "\n";
        for (int i = 0; i < 11; ++i)
            log += R"({"device_id":1,"time":"2026-11-17T11:%1:00","halt":%2})"_s.arg(10 + i)
                       .arg(i % 2 ? "false"_s : "true"_s)
                       .toUtf8()
                + "\n";
        const QString name =
            writeFile(m_folder.filePath("overview.jsonl"_s), QString::fromUtf8(log));
        const QStringList explain{"explain"_s, name, "--filters"_s, sample("filters.json"_s)};
        const QString text = velmo(explain).out;
        QVERIFY2(
            text.contains(
                "\n\nDevice                  Offered  Taken  Rejected  Rejected %  Refused %  "
                "Stuck\n"
                "Bill validator (CCNet)        1      1         0         0.0        0.0      0\n"
                "Coin acceptor (CCTalk)        0      0         1       100.0        0.0      0\n"
                "\nWhat was the matter:\n"
                "  - Bill validator (CCNet): earlier ones, not shown: 2\n"
                "  - Bill validator (CCNet): from 11:14:00 (line 8) to 11:15:00 (line 9): "
                "disabled; "
                "last note line 1\n"_s),
            qPrintable(text));
        QVERIFY2(text.endsWith("from 11:20:00 (line 26) to the end: halted; last note line 1\n"_s),
                 qPrintable(text));
        QVERIFY(!velmo(explain + QStringList{"--refusals"_s}).out.contains("Device "_s));
        QVERIFY(!velmo(explain + QStringList{"--device"_s, "1"_s}).out.contains("Device "_s));
        const QString both = velmo(explain + QStringList{name, "--summary"_s}).out;
        QVERIFY2(both.contains(QRegularExpression(
                     "\nLog .*\n.*overview.jsonl  Bill .*\n.*overview.jsonl  Coin .*\n"
                     ".*overview.jsonl  all devices +1 +1 +1 +50.0 +0.0 +0\n"_s)),
                 qPrintable(both));
    }

    // What was read before a fault is answered; a page is not written.
    void faultsLeaveWhatWasRead()
    {
        const QString sound = sample("fished-note.jsonl"_s);
        const QString bad = writeFile(m_folder.filePath("bad.jsonl"_s),
                                      R"({"session":"start","device_id":1,"stacker_full":true}
{"state":"accepting","current_note":100}
{"state":"x"}
{"state":"stacked"}
)"_s);
        const QString page = m_folder.filePath("bad.html"_s);
        const QStringList explain{"explain"_s, sound,         bad,
                                  sound,       "--filters"_s, sample("filters.json"_s)};
        const VelmoRun json = velmo(explain + QStringList{"--json"_s});
        QCOMPARE(json.exitCode, 2);
        QVERIFY2(json.err.startsWith("velmo: %1:3: \"state\": "_s.arg(bad)), qPrintable(json.err));
        QCOMPARE(json.errLines().size(), 1);
        QCOMPARE(json.outLines().filter(R"("device_totals","log":"%1")"_s.arg(bad)).size(), 1);
        QCOMPARE(json.outLines().filter(R"("condition","log":"%1")"_s.arg(bad)).size(), 1);
        const QString last = json.outLines().last();
        QVERIFY2(last.contains(R"("sessions":3,"offered":{"count":7,"sum":5600})"_s)
                     && last.endsWith(R"(,"incomplete":true})"_s),
                 qPrintable(last));
        QVERIFY(
            velmo(explain).out.endsWith("\n\nIncomplete: the logs were not read to the end.\n"_s));
        QCOMPARE(velmo(explain + QStringList{"--html"_s, page}).exitCode, 2);
        QVERIFY(!QFile::exists(page));

        const VelmoRun untimed = velmo({"explain"_s, sound, "--filters"_s, sample("filters.json"_s),
                                        "--json"_s, "--from"_s, "2026-11-16"_s});
        QCOMPARE(untimed.exitCode, 2);
        QCOMPARE(untimed.out, QString());
        QCOMPARE(untimed.err,
                 "velmo: %1: no line has a time: nothing can be selected by it\n"_s.arg(sound));
    }

    // The parts of a log are told as such, and together are the whole.
    void sessionsAndDevicesAddUp_data()
    {
        // Log, option, its values.
        addRows(R"(
            fished-note.jsonl | --session | 1 2
            two-devices.jsonl | --session | 1 2
            two-devices.jsonl | --device  | 1 100)"_s);
    }

    void sessionsAndDevicesAddUp()
    {
        const auto [name, option, values] = cells<3>();
        const QString own = QStringLiteral(EXPLANATIONS "/") + name;
        const QStringList explain{"explain"_s, QFile::exists(own) ? own : sample(name),
                                  "--filters"_s, sample("filters.json"_s)};
        const auto summaryOf = [&](const QStringList& more) {
            const VelmoRun run = velmo(explain + QStringList{"--summary"_s, "--json"_s} + more);
            return QJsonDocument::fromJson(run.outLines().last().toUtf8()).object();
        };
        const auto offered = [](const QJsonObject& summary) {
            return summary["offered"_s]["count"_s].toInt();
        };
        const QJsonObject whole = summaryOf({});
        int sessions = 0;
        int notes = 0;
        for (const QString& value : values.split(QLatin1Char(' '))) {
            const QJsonObject part = summaryOf({option, value});
            sessions += part["sessions"_s].toInt();
            notes += offered(part);
            const QString heading = "<h3>%1 session"_s.arg(part["sessions"_s].toInt());
            QVERIFY(velmo(explain + QStringList{option, value, "--html"_s, "-"_s})
                        .out.contains(heading));
        }
        QCOMPARE(notes, offered(whole));
        if (option == "--session"_s)
            QCOMPARE(sessions, whole["sessions"_s].toInt());
        else
            QVERIFY(sessions > whole["sessions"_s].toInt());
    }

    void whatCannotBeReadEndsNothing_data()
    {
        // Command, whether it needs --keep-going, what becomes of the log, what standard error
        // says.
        addRows(R"(
            explain | --keep-going | missing  | No such file
            explain | --keep-going | cut      | the compressed file is cut off
            explain | --keep-going | damaged  | the compressed file is damaged
            explain |              | unended  | 2: the file ends in the middle of a line
            explain | --keep-going | unended  | 2: the file ends in the middle of a line
            explain |              | nested   | 2: the file ends in the middle of a line
            explain | --keep-going | kiosks   | 3: the log is of kiosk "k1" so far, and of "k2" here
            compare | --keep-going | kiosks   | 3: the log is of kiosk "k1" so far, and of "k2" here
            compare | --keep-going | missing  | No such file
            compare | --keep-going | cut      | the compressed file is cut off
            compare |              | unended  | 2: the file ends in the middle of a line)"_s);
    }

    void whatCannotBeReadEndsNothing()
    {
        const auto [command, keepGoing, fault, message] = cells<4>();
        const QByteArray note = R"({"session":"start","state":"accepting","current_note":50})"
                                "\n";
        const QMap<QString, QByteArray> contents{
            {"cut"_s, gzipOfOneLine.left(40)},
            {"damaged"_s, gzipOfOneLine.left(20) + "junkjunkjunk" + gzipOfOneLine.mid(32)},
            {"unended"_s, note + "{\"state\":\"acce"},
            {"nested"_s, note + R"({"device_states":[{"device_id":1})"},
            {"kiosks"_s,
             note + "{\"kiosk\":\"k1\"}\n{\"kiosk\":\"k2\"}\n{\"kiosk\":\"k1\"}\n{}\n"}};
        const QString log = m_folder.filePath(fault);
        if (contents.contains(fault)) {
            QFile file(log);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(contents[fault]) > 0);
        }
        const QString filters = sample("filters.json"_s);
        const QString sound = sample("fished-note.jsonl"_s);
        const bool isCompare = command == "compare"_s;
        QStringList arguments{command};
        arguments += isCompare ? QStringList{filters, filters, log, sound}
                               : QStringList{log, sound, "--filters"_s, filters, "--summary"_s};
        if (!keepGoing.isEmpty())
            arguments += keepGoing;
        const VelmoRun run = velmo(arguments + QStringList{"--json"_s});
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.errLines().constFirst().startsWith("velmo: "_s + log)
                     && run.errLines().constFirst().contains(message),
                 qPrintable(run.err));
        const QString last = run.out.section(QLatin1Char('\n'), -2);
        const QJsonObject summary = QJsonDocument::fromJson(last.toUtf8()).object();
        const bool hasNote = contents.value(fault).startsWith(note);
        QCOMPARE(summary["offered"_s]["count"_s].toInt(), hasNote ? 7 : 6);
        if (isCompare)
            return;
        const VelmoRun page = velmo(arguments + QStringList{"--html"_s, "-"_s});
        QVERIFY2(page.out.contains("<h3>The answers may be wrong</h3>\n<ul>\n<li>"_s + log),
                 qPrintable(page.out.left(12000)));
        if (!keepGoing.isEmpty() && !hasNote) {
            arguments.removeAll(keepGoing);
            QCOMPARE(velmo(arguments + QStringList{"--json"_s}).out, QString());
        }
    }

    void textFitsTheTerminal()
    {
        qputenv("COLUMNS", "60");
        const VelmoRun explained = velmo(
            {"explain"_s, sample("fished-note.jsonl"_s), "--filters"_s, sample("filters.json"_s)});
        const VelmoRun replayed =
            velmo({"replay"_s, sample("jam.jsonl"_s), "--filters"_s, sample("filters.json"_s)});
        qunsetenv("COLUMNS");
        for (const QString& line : explained.outLines())
            QVERIFY2(line.size() <= 60 || line.contains("fished-note"_s)
                         || line.startsWith("Filters"_s),
                     qPrintable(line));
        QVERIFY2(replayed.out.contains(
                     "accept\n        Wait...; The stacker was full (since line 4).\n"_s),
                 qPrintable(replayed.out));
    }

    void wrongKindsOfFilesAreNamed_data()
    {
        addRows(R"(
            explain jam.jsonl --filters settings.json   | settings.json: is a settings list, where a filters file is expected
            replay jam.jsonl --settings filters.json    | filters.json: not a settings list: looks like a filters file
            settings show filters.json                  | filters.json: not a settings list: looks like a filters file
            explain settings.json --filters filters.json| settings.json:1: not JSON)"_s);
    }

    void wrongKindsOfFilesAreNamed()
    {
        const auto [commandLine, fault] = cells<2>();
        QStringList arguments = commandLine.split(QLatin1Char(' '));
        for (QString& argument : arguments)
            argument = argument.contains(QLatin1Char('.')) ? sample(argument) : argument;
        const VelmoRun run = velmo(arguments);
        QCOMPARE(run.exitCode, 2);
        QVERIFY2(run.err.startsWith("velmo: "_s + sample(fault)), qPrintable(run.err));
    }

    void settingsThatReadDifferentlyAreToldOnce()
    {
        const QString settings = writeFile(
            m_folder.filePath("s.json"_s),
            R"([{"group":"acceptor_common","key":"acceptAll","value":"no"},{"group":"service","key":"devices_count","value":0}])"_s);
        const VelmoRun run = velmo({"explain"_s, sample("jam.jsonl"_s), sample("jam.jsonl"_s),
                                    "--settings"_s, settings, "--json"_s});
        QCOMPARE(run.exitCode, 0);
        QCOMPARE(run.errLines().size(), 2);
        QCOMPARE(run.errLines().at(1),
                 "velmo: %1: answers may differ from the service's"_s.arg(settings));
        QVERIFY(
            run.outLines()
                .filter("\"note\""_s)
                .at(0)
                .contains(
                    R"("filters":[{"name":"AcceptFilter","params":{"acceptAll":0},"evidence":[])"_s));
    }

    // Markup in every text that a log, the settings and a file name can hold.
    // What a new filter forgets here is said in its own words, and named by this test.
    void everyFilterHasItsWords_data()
    {
        QTest::addColumn<QString>("name");
        for (const QString& name : FilterFactory::getFilters())
            QTest::newRow(qPrintable(name)) << name;
    }

    void everyFilterHasItsWords()
    {
        QFETCH(QString, name);
        const FilterWords& words = filterWords(name);
        const FilterWords& none = filterWords({});
        QVERIFY2(words.filter, "no row in diagnosis/text/filterwords.cpp");
        QVERIFY(words.purpose && words.rule != none.rule && words.count && words.find != none.find);
        QVERIFY(words.noteRefused != none.noteRefused && words.coinRefused != none.coinRefused);
    }

    void filterWithoutWordsSpeaksForItself()
    {
        SilentFilter filter;
        QCOMPARE(filterRule(filter), "Silence: Says nothing."_s);
        FilterMemory memory(filter);
        for (qint64 line = 1; line <= 3; ++line) {
            QVERIFY(line == 1 || !memory.refuses());
            memory.add(DeviceState(), line);
        }
        QVERIFY(memory.refuses());
        const Objection objection = memory.objection();
        QCOMPARE(objection.filter, "SilentFilter"_s);
        QCOMPARE(objection.text, "Silence: Says nothing."_s);
        QCOMPARE(filterPurpose("SilentFilter"_s), QString());
    }

    // A new state or outcome has its words, its colour and its place in the legend.
    void everyStateAndOutcomeHasItsLook()
    {
        const QString style = QString::fromUtf8(pageStyle);
        DeviceState state;
        for (state.state = State(0); !state.stateAsString().isNull();
             state.state = State(state.state + 1)) {
            const StateLook look = lookOf(state.state);
            QCOMPARE(QString::fromUtf8(look.word), state.stateAsString());
            QVERIFY2(style.contains(".%1 { fill"_s.arg(QString::fromUtf8(look.style))), look.style);
            QVERIFY2(stateLegend().contains("key %1"_s.arg(QString::fromUtf8(look.style))),
                     look.style);
        }
        QCOMPARE(lookOf(state.state).word, lookOf(State(-1)).word); // else it has no name
        for (const OutcomeWords& words : outcomeWords())
            QVERIFY2(style.contains(".%1 { color"_s.arg(QString::fromUtf8(words.key))), words.key);
    }

    void pageShowsTextsAsTexts()
    {
        const QString markup =
            "</svg><script>x</script><img src='a' onerror=\"b\">"_s + QChar(0x202e);
        QVariantList settings;
        for (const QJsonValue value :
             QJsonDocument::fromJson(readFile(sample("settings.json"_s)).toUtf8()).array()) {
            QVariantMap element = value.toObject().toVariantMap();
            if (element["key"_s] == "device_name"_s)
                element["value"_s] = markup;
            settings += element;
        }
        const auto json = [](const QVariant& value) {
            return QString::fromUtf8(
                QJsonDocument::fromVariant(value).toJson(QJsonDocument::Compact));
        };
        const QString list = writeFile(m_folder.filePath("<script>.json"_s), json(settings));
        QVariantMap accepting{{"device_id"_s, 1},
                              {"thread_id"_s, 1},
                              {"state"_s, "accepting"_s},
                              {"current_note"_s, 1000},
                              {"error_critical"_s, true}};
        for (const QString& key : {"error_text"_s, "state_text"_s, "id_string"_s})
            accepting.insert(key, markup);
        QString lines = json(QVariantMap{{"device_id"_s, 1}, {"session"_s, "start"_s}}) + "\n"_s;
        for (int i = 0; i < 40; ++i) {
            lines += json(accepting) + "\n"_s
                + json(QVariantMap{{"device_id"_s, 1},
                                   {"state"_s, i % 3 ? "rejected"_s : "stacked"_s},
                                   {"session_sum"_s, i * 500}})
                + "\n"_s;
        }
        const QString log = writeFile(m_folder.filePath("<img src=a>.jsonl"_s), lines);
        const QString page = m_folder.filePath("page.html"_s);
        QCOMPARE(velmo({"explain"_s, log, "--settings"_s, list, "--html"_s, page}).exitCode, 0);

        const QString html = readFile(page);
        QVERIFY(html.contains("content=\"default-src 'none'; style-src 'sha256-"_s));
        QVERIFY(!html.contains(QRegularExpression("<(script|img|b)\\b"_s)));
        QVERIFY(html.contains(
            "&lt;script&gt;x&lt;/script&gt;&lt;img src='a' onerror=&quot;b&quot;&gt;"_s));
        // What turns the direction of texts is shown and does nothing.
        QVERIFY(!html.contains(QChar(0x202e)));
        QVERIFY(html.contains("onerror=&quot;b&quot;&gt;\\u202e"_s));
        // Each link leads somewhere, and each sentence to its mark.
        QSet<QString> ids;
        QStringList links;
        const QRegularExpression attribute(" (id|href)=\"(#?[^\"]*)\""_s);
        for (auto found = attribute.globalMatch(html); found.hasNext();) {
            const QRegularExpressionMatch match = found.next();
            if (match.captured(1) == "id"_s)
                ids += match.captured(2);
            else
                links += match.captured(2).mid(1);
        }
        for (const QString& link : std::as_const(links))
            QVERIFY2(ids.contains(link), qPrintable(link));
        QCOMPARE(html.count("<li class=\"answer"_s), 40);
        QVERIFY(links.size() > 80);
    }

    void reasonsAreThereExactlyWhenNothingIsAccepted()
    {
        std::mt19937 random(5);
        const auto chance = [&random](unsigned out) { return random() % out == 0; };
        int allowed = 0;
        for (int i = 0; i < 2000; ++i) {
            QVariantList devices;
            for (unsigned count = random() % 4; count > 0; --count) {
                const int ids[] = {1, 6, 100, 200, 51};
                devices += QVariantMap{{"device_id"_s, ids[random() % 5]},
                                       {"enabled"_s, !chance(4)},
                                       {"halt"_s, chance(8)},
                                       {"error_critical"_s, chance(8)},
                                       {"stacker_present"_s, !chance(8)},
                                       {"stacker_full"_s, chance(8)},
                                       {"state"_s, chance(6) ? "jammed"_s : "busy"_s}};
            }
            const QJsonObject map = QJsonObject::fromVariantMap(AcceptorState::stateMap(devices));
            const PublishedState state =
                readServiceState(QString::fromUtf8(QJsonDocument(map).toJson()));
            const bool isAllowed = state.service.isAcceptingAllowed();
            QCOMPARE(whyNotAccepting(state).isEmpty(), isAllowed);
            allowed += isAllowed ? 1 : 0;
        }
        QVERIFY(allowed > 400 && allowed < 1600);
    }

private:
    QTemporaryDir m_folder;
};

QTEST_GUILESS_MAIN(tst_Explain)
#include "tst_explain.moc"
