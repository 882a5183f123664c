// Probe Setup: the probes of a host's file in a window.

#include "QuorConversions/core/modMessages.h"
#include "QuorConversions/qt/QtSession.h"
#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/qt/Translations.h"
#include "QuorIniFile/QuorError.h"
#include "QuorIniFile/Utf8.h"
#include "QuorRegistryII/FileRegistry.h"
#include "apps/probe-setup/MainWindow.h"
#include "apps/probe-setup/Tour.h"

#include <QApplication>
#include <QCommandLineOption>
#include <QCommandLineParser>
#include <QCoreApplication>
#include <QLocale>
#include <QTranslator>

#include <algorithm>
#include <initializer_list>
#include <iostream>
#include <memory>
#include <optional>
#include <string_view>

namespace {

using QuorConversions::QtToolkit::FromQt;
using QuorConversions::QtToolkit::ToQt;
using QuorIniFile::ToPrintable;

/// Help and version are printed without a display, and where there is none the tour runs on a screen in
/// memory. Qt wants to know that before it can read the command line.
void ChooseScreen(int argc, char** argv) {
    const auto isGiven = [&](std::initializer_list<std::string_view> options) {
        return std::any_of(argv + 1, argv + argc, [&](const std::string_view argument) {
            const std::string_view option = argument.substr(0, argument.find('='));
            return std::find(options.begin(), options.end(), option) != options.end();
        });
    };
    if (isGiven({"-h", "--help", "--help-all", "-v", "--version"}) ||
        (isGiven({"--tour"}) && !QuorConversions::QtToolkit::HasDisplay()))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

std::shared_ptr<QuorRegistryII::Registry> UserRegistry() {
    try {
        return std::make_shared<QuorRegistryII::FileRegistry>(L"probe-setup");
    } catch (const QuorIniFile::QuorError& error) {
        std::cerr << "probe-setup: " << ToPrintable(QuorConversions::DescriptionOf(error)) << '\n';
        return nullptr; // a user without a home: nothing is remembered
    }
}

/// The texts of the command line and the options that the program knows.
class CommandLine {
    Q_DECLARE_TR_FUNCTIONS(CommandLine)

public:
    CommandLine() {
        parser.setApplicationDescription(
            tr("The probes of a host's INI file: listed, edited in their dialogs, saved."));
        parser.addPositionalArgument(QStringLiteral("FILE"),
                                     tr("The host's file, or a settings file whose probe is added."),
                                     QStringLiteral("[FILE]"));
        parser.addOptions({language, tour});
        parser.addHelpOption();
        parser.addVersionOption();
    }

    const QCommandLineOption language{QStringLiteral("language"),
                                      tr("Use this language, en or de, instead of the system's."),
                                      QStringLiteral("LANGUAGE")};
    const QCommandLineOption tour{QStringLiteral("tour"),
                                  tr("Show what the program does: edit a value in each of the twelve "
                                     "dialogs, save FILE, print what has "
                                     "changed in it, and leave a picture of each window in FOLDER."),
                                  QStringLiteral("FOLDER")};
    QCommandLineParser parser;

    /// What the program cannot do as told; nothing for a command line that is fine.
    [[nodiscard]] std::optional<QString> Problem() const {
        const QStringList files = parser.positionalArguments();
        if (files.size() > 1)
            return tr("only one FILE can be opened");
        if (parser.isSet(tour) && files.isEmpty())
            return tr("--tour needs a FILE");
        return std::nullopt;
    }

    [[nodiscard]] static QString UnknownLanguage(const QString& name) {
        return tr("--language %1: the languages are en and de").arg(name);
    }
};

/// Whether `language`, "de-AT" for one, is English, in which the texts are written.
bool IsEnglish(const QString& language) {
    const QLocale::Language spoken = QLocale(language).language();
    return spoken == QLocale::English || language == QLatin1String("C");
}

bool LoadTexts(QTranslator& texts, const QString& language) {
    return texts.load(QStringLiteral("probe-setup_") + QString(language).replace('-', '_'),
                      QStringLiteral(":/probe-setup/translations"));
}

/// Makes windows and dialogs speak one language: the first among those of `locale` that there is, by the same
/// rule for both.
void Speak(const QLocale& locale, QTranslator& texts) {
    QCoreApplication::removeTranslator(&texts);
    QuorConversions::QtToolkit::InstallTranslations(locale);
    for (const QString& language : locale.uiLanguages()) {
        if (IsEnglish(language))
            return;
        if (LoadTexts(texts, language)) {
            QCoreApplication::installTranslator(&texts);
            return;
        }
    }
}

int Refuse(const QString& problem) {
    std::cerr << "probe-setup: " << ToPrintable(FromQt(problem)) << '\n';
    return 2;
}

} // namespace

int main(int argc, char** argv) {
    ChooseScreen(argc, argv);
    const QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("probe-setup"));
    QApplication::setApplicationVersion(QStringLiteral(PROBE_SETUP_VERSION));

    // The command line may name the language in which it is spoken of.
    QTranslator texts;
    Speak(QLocale(), texts);
    CommandLine asked;
    asked.parser.parse(QCoreApplication::arguments());
    if (asked.parser.isSet(asked.language)) {
        const QString language = asked.parser.value(asked.language);
        if (QTranslator test; !IsEnglish(language) && !LoadTexts(test, language))
            return Refuse(CommandLine::UnknownLanguage(language));
        QLocale::setDefault(QLocale(language));
        Speak(QLocale(), texts);
    }

    CommandLine line;
    // "process" would print the arguments that it does not know as they are.
    if (!line.parser.parse(QCoreApplication::arguments()))
        return Refuse(line.parser.errorText());
    line.parser.process(application); // shows help and version
    if (const auto problem = line.Problem())
        return Refuse(*problem);
    const QStringList files = line.parser.positionalArguments();
    const bool isTour = line.parser.isSet(line.tour);

    // The tour remembers nothing, and begins like a first start.
    ProbeSetup::MainWindow window(isTour ? nullptr : UserRegistry(),
                                  ToQt(QuorConversions::QtToolkit::HelpCollection()));
    window.show();
    if (isTour)
        return ProbeSetup::RunTour(window, files.front(), line.parser.value(line.tour));
    if (!files.isEmpty())
        window.OpenPath(files.front());
    return QApplication::exec();
}
