// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "testtable.h"

#include <QDirIterator>
#include <QXmlStreamReader>

namespace {

struct Message
{
    QString source;
    QString context; // what tells it from others with the same source
    QString type; // of the translation: empty for a finished one
    QStringList translations; // several of a text with a number
    bool hasNumber = false;
};

QList<Message> readMessages(const QString& fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("%s: %s", qPrintable(fileName), qPrintable(file.errorString()));
    QXmlStreamReader xml(&file);
    QList<Message> messages;
    while (!xml.atEnd()) {
        if (xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QString name = xml.name().toString();
        if (name == "message"_s) {
            messages += Message();
            messages.last().hasNumber = xml.attributes().hasAttribute("numerus"_s);
        } else if (name == "source"_s) {
            messages.last().source = xml.readElementText();
        } else if (name == "comment"_s) {
            messages.last().context = xml.readElementText();
        } else if (name == "translation"_s) {
            messages.last().type = xml.attributes().value("type"_s).toString();
            if (!messages.last().hasNumber)
                messages.last().translations += xml.readElementText();
        } else if (name == "numerusform"_s) {
            messages.last().translations += xml.readElementText();
        }
    }
    if (xml.hasError())
        qFatal("%s: %s", qPrintable(fileName), qPrintable(xml.errorString()));
    return messages;
}

// What is put in place of it, sorted.
QStringList placeholders(const QString& text)
{
    static const QRegularExpression placeholder("%L?[0-9n]|%part"_s);
    QStringList found;
    for (auto match = placeholder.globalMatch(text); match.hasNext();)
        found += match.next().captured();
    found.removeDuplicates();
    found.sort();
    return found;
}

} // namespace

/// That the texts of every language are all there and can be put in place of the sources.
class tst_Translations : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsFitTheirPlaces_data()
    {
        QTest::addColumn<QString>("fileName");
        for (const char* folder : {"/translations", "/examples/kiosk/screen/translations"}) {
            QDirIterator files(QStringLiteral(SOURCES) + QLatin1String(folder), {"*.ts"_s},
                               QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString name = files.next();
                QTest::newRow(qPrintable(files.fileName())) << name;
            }
        }
    }

    void textsFitTheirPlaces()
    {
        QFETCH(QString, fileName);
        const QString language =
            fileName.section(QLatin1Char('/'), -1).section(QLatin1Char('_'), 1).chopped(3);
        const QList<Message> messages = readMessages(fileName);
        QVERIFY(!messages.isEmpty());
        int forms = 0;
        QStringList faults;
        for (const Message& message : messages) {
            const auto fault = [&](const char* what) {
                faults += "%1: \"%2\": %3"_s.arg(QLatin1String(what), message.source,
                                                 message.translations.join(" | "_s));
            };
            if (!message.type.isEmpty())
                fault("not finished");
            if (message.hasNumber) {
                if (forms != 0 && forms != message.translations.size())
                    fault("has other plurals than the rest");
                forms = int(message.translations.size());
            }
            for (const QString& text : message.translations) {
                if (text.isEmpty())
                    fault("empty");
                else if (placeholders(text) != placeholders(message.source))
                    fault("other placeholders");
                else if (message.source.back().isSpace() && !text.back().isSpace())
                    fault("the blank behind it is missing");
                else if (hasKey(text) != hasKey(message.source))
                    fault("a key to press it by is missing, or too many");
            }
            if (message.context == "language code"_s && message.translations.value(0) != language)
                fault("another language");
        }
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join("\n"_s)));
    }

private:
    static bool hasKey(const QString& text)
    {
        return text.contains(QRegularExpression("&[^ &]"_s));
    }
};

QTEST_GUILESS_MAIN(tst_Translations)
#include "tst_translations.moc"
