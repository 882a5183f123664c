#include "QuorConversions/qt/Translations.h"

#include "QuorConversions/qt/QtText.h"
#include "QuorConversions/resources/StringTable.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QPointer>
#include <QTranslator>

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <optional>
#include <string>

// Nobody else takes the texts out of a static library. Outside of namespaces, as Qt wants it.
static void TakeTexts() { Q_INIT_RESOURCE(quor_toolkit_texts); }

namespace QuorConversions::QtToolkit {
namespace {

struct Entry {
    std::int32_t id;
    const wchar_t* text;
};

#define QUOR_STRING(id, name, text) Entry{id, text},
constexpr Entry builtInTexts[] = {
#include "QuorConversions/resources/strings.def"
};
#undef QUOR_STRING

std::optional<std::wstring> TranslatedText(std::int32_t id) {
    const auto* const entry = std::find_if(std::begin(builtInTexts), std::end(builtInTexts),
                                           [id](const Entry& candidate) { return candidate.id == id; });
    if (entry == std::end(builtInTexts))
        return std::nullopt;
    return FromQt(QCoreApplication::translate("StringTable", ToQt(entry->text).toUtf8().constData()));
}

/// Installs the first translation that `file` has among the languages, in the place of `translator`. False
/// when there is none before English, in which the texts are written.
bool Install(QPointer<QTranslator>& translator, const QLocale& locale, const QString& file,
             const QString& folder) {
    delete translator; // takes itself out
    translator = new QTranslator(QCoreApplication::instance());
    for (const QString& language : locale.uiLanguages()) {
        if (language.startsWith(QLatin1String("en")) || language == QLatin1String("C"))
            return false;
        // "de-AT" is looked for as "de_AT", then as "de".
        if (translator->load(file + QLatin1Char('_') + QString(language).replace('-', '_'), folder))
            return QCoreApplication::installTranslator(translator);
    }
    return false;
}

} // namespace

void InstallTranslations(const QLocale& locale) {
    static QPointer<QTranslator> toolkit;
    static QPointer<QTranslator> qt;
    TakeTexts();
    Install(qt, locale, QStringLiteral("qtbase"), QLibraryInfo::path(QLibraryInfo::TranslationsPath));
    const bool translated = Install(toolkit, locale, QStringLiteral("quor-conversions"),
                                    QStringLiteral(":/quor-conversions/translations"));
    ReplaceStringTable(translated ? StringTable(TranslatedText) : StringTable());
}

} // namespace QuorConversions::QtToolkit
