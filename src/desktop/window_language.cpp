#include "desktop/window_language.h"

#include <QCoreApplication>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"
#include "desktop/window_settings.h"
#include "shell/language_choice.h"

namespace kelvor {

namespace {

/// What the toolkit calls its buttons and menus, for the catalogue.
[[maybe_unused]] constexpr const char* kToolkitTexts[] = {
    ToTranslate("OK"),          ToTranslate("Cancel"),
    ToTranslate("&Cancel"),     ToTranslate("&Yes"),
    ToTranslate("&No"),         ToTranslate("Close"),
    ToTranslate("Open"),        ToTranslate("&Open"),
    ToTranslate("Save"),        ToTranslate("&Save"),
    ToTranslate("&Undo"),       ToTranslate("&Redo"),
    ToTranslate("Cu&t"),        ToTranslate("&Copy"),
    ToTranslate("&Paste"),      ToTranslate("Delete"),
    ToTranslate("Select All"),  ToTranslate("Look in:"),
    ToTranslate("File &name:"), ToTranslate("Files of type:"),
};

std::vector<std::string> WantedLanguages(const Home& home) {
    const std::string chosen = WindowSettings(home.WindowFile()).Language();
    return chosen.empty() ? LanguagesOf(OwnEnvironment()) : std::vector{chosen};
}

}  // namespace

WindowLanguage::WindowLanguage(const FileSystem& files, const Home& home) {
    SpeakFirstOf(WantedLanguages(home), files, home);
    QCoreApplication::installTranslator(this);
}

WindowLanguage::~WindowLanguage() {
    QCoreApplication::removeTranslator(this);
    Speak({});
}

/// Nothing for a text that the catalogue has not: the toolkit's own word stays.
QString WindowLanguage::translate(const char* /*context*/, const char* source, const char* /*meaning*/,
                                  int /*count*/) const {
    const std::string english = source == nullptr ? std::string() : std::string(source);
    const std::string text = Translated(english);
    return text == english ? QString() : ToQt(text);
}

}  // namespace kelvor
