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
    ToTranslate("OK"),         ToTranslate("Cancel"), ToTranslate("&Cancel"), ToTranslate("&Yes"),
    ToTranslate("&No"),        ToTranslate("Close"),  ToTranslate("Open"),    ToTranslate("&Open"),
    ToTranslate("Save"),       ToTranslate("&Save"),  ToTranslate("&Undo"),   ToTranslate("&Redo"),
    ToTranslate("Cu&t"),       ToTranslate("&Copy"),  ToTranslate("&Paste"),  ToTranslate("Delete"),
    ToTranslate("Select All"),
};

/// The same of its dialogs for files.
[[maybe_unused]] constexpr const char* kTextsOfFileDialogs[] = {
    ToTranslate("Look in:"),
    ToTranslate("File &name:"),
    ToTranslate("Files of type:"),
    ToTranslate("Go back"),
    ToTranslate("Go forward"),
    ToTranslate("Parent Directory"),
    ToTranslate("Go to the parent directory"),
    ToTranslate("Create New Folder"),
    ToTranslate("Create a New Folder"),
    ToTranslate("List View"),
    ToTranslate("Change to list view mode"),
    ToTranslate("Detail View"),
    ToTranslate("Change to detail view mode"),
    ToTranslate("&Rename"),
    ToTranslate("&Delete"),
    ToTranslate("Show &hidden files"),
    ToTranslate("&New Folder"),
    ToTranslate("Name"),
    ToTranslate("Size"),
    ToTranslate("Type"),
    ToTranslate("Date Modified"),
    ToTranslate("%1 already exists.\nDo you want to replace it?"),
    ToTranslate("%1\nFile not found.\nPlease verify the correct file name was given."),
};

/// The same of the dialog that prints.
[[maybe_unused]] constexpr const char* kTextsOfPrinting[] = {
    ToTranslate("&Print"),
    ToTranslate("Printer"),
    ToTranslate("&Name:"),
    ToTranslate("P&roperties"),
    ToTranslate("Location:"),
    ToTranslate("Type:"),
    ToTranslate("Output &file:"),
    ToTranslate("&Options >>"),
    ToTranslate("&Options <<"),
    ToTranslate("Copies"),
    ToTranslate("Copies:"),
    ToTranslate("Collate"),
    ToTranslate("Reverse"),
    ToTranslate("Options"),
    ToTranslate("Print range"),
    ToTranslate("Print all"),
    ToTranslate("Pages from"),
    ToTranslate("to"),
    ToTranslate("Current Page"),
    ToTranslate("Selection"),
    ToTranslate("Output Settings"),
    ToTranslate("Color Mode"),
    ToTranslate("Color"),
    ToTranslate("Grayscale"),
    ToTranslate("Duplex Printing"),
    ToTranslate("None"),
    ToTranslate("Long side binding"),
    ToTranslate("Short side binding"),
    ToTranslate("Print to File (PDF)"),
};

/// And of the menus of its frames.
[[maybe_unused]] constexpr const char* kTextsOfFrames[] = {
    ToTranslate("&Restore"),  ToTranslate("&Move"),        ToTranslate("&Size"),  ToTranslate("Mi&nimize"),
    ToTranslate("Ma&ximize"), ToTranslate("Stay on &Top"), ToTranslate("&Close"),
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
