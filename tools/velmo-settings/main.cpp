// SPDX-FileCopyrightText: 2026 velmolib maintainers
// SPDX-License-Identifier: MIT

#include "settingswindow.h"
#include "terminal/option.h"
#include "terminal/output.h"

#include <QApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QLoggingCategory>
#include <QMessageBox>
#include <QTranslator>

#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr Option languageOption{
    "lang", nullptr, Value("LANG", Kind::Language),
    QT_TRANSLATE_NOOP("Velmo", "The language of the window, as \"ru\", in place of the system's.")};

// What the program was called with, for --help and --version too.
class CommandLine
{
public:
    CommandLine()
        : m_language(loadAskedLanguage(languageOption))
    {
        m_parser.setApplicationDescription(
            Velmo::tr("Shows a settings list as forms, checks it and changes it."));
        m_parser.addHelpOption();
        m_parser.addVersionOption();
        m_parser.addOption(languageOption.forParser());
        m_parser.addPositionalArgument(QStringLiteral("FILE"), Velmo::tr("The settings list."),
                                       QStringLiteral("[FILE]"));
        if (!m_parser.parse(QCoreApplication::arguments()))
            throw Fault{m_parser.errorText()};
        GivenOptions(m_parser).requireValue(languageOption);
        if (m_parser.positionalArguments().size() > 1) {
            throw Fault{
                Velmo::tr("unknown argument \"%1\"").arg(m_parser.positionalArguments().at(1))};
        }
    }

    void answerHelpAndVersion() { m_parser.process(QCoreApplication::arguments()); }

    QString fileName() const { return m_parser.positionalArguments().value(0); }

    QLocale locale() const
    {
        return m_language.isEmpty() ? QLocale::system() : QLocale(m_language);
    }

private:
    const QString m_language;
    QCommandLineParser m_parser;
};

// The words of Qt's own dialogs, where they are installed.
void loadQtTranslations(const QLocale& locale)
{
#if QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    const QString folder = QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#else
    const QString folder = QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#endif
    auto* const translator = new QTranslator(qApp);
    if (translator->load(locale, QStringLiteral("qtbase_"), QString(), folder))
        QCoreApplication::installTranslator(translator);
}

// Whether what is said on standard error may be read: not where a desktop has started the program.
bool isErrorOutputRead()
{
    struct stat stream = {};
    return isatty(STDERR_FILENO) != 0
        || (fstat(STDERR_FILENO, &stream) == 0
            && (S_ISFIFO(stream.st_mode) || S_ISREG(stream.st_mode)));
}

int fail(const Fault& fault)
{
    printError(fault.message);
    return exitBadInput;
}

} // namespace

int main(int argc, char* argv[])
{
    QCoreApplication::setApplicationName(QStringLiteral("velmo-settings"));
    QCoreApplication::setApplicationVersion(QStringLiteral(VERSION));
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false\nvelmo.*.debug=false"));
    try {
        // Help needs no screen.
        const QCoreApplication early(argc, argv);
        CommandLine().answerHelpAndVersion();
    } catch (const Fault& fault) {
        return fail(fault);
    }
    const QApplication application(argc, argv);
    QGuiApplication::setDesktopFileName(QStringLiteral("velmo-settings"));
    try {
        const CommandLine commandLine;
        loadQtTranslations(commandLine.locale());
        SettingsWindow window;
        if (!commandLine.fileName().isEmpty())
            window.open(commandLine.fileName());
        window.show();
        return QApplication::exec();
    } catch (const Fault& fault) {
        if (!isErrorOutputRead())
            QMessageBox::critical(nullptr, {}, printable(fault.message).toHtmlEscaped());
        return fail(fault);
    }
}
