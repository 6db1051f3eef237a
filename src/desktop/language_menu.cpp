#include "desktop/language_menu.h"

#include <QActionGroup>
#include <QLocale>
#include <utility>

#include "desktop/qt_text.h"
#include "desktop/translated_text.h"
#include "shell/language_choice.h"

namespace kelvor {

namespace {

constexpr const char* kEnglish = "en";

/// Languages by what they call themselves; the toolkit names the country too.
constexpr std::pair<const char*, const char*> kNames[] = {{kEnglish, "English"}, {"es", "Español"}};

QString NameOf(const std::string& code) {
    for (const auto& [known, name] : kNames) {
        if (code == known) return QString::fromUtf8(name);
    }
    const QString name = QLocale(ToQt(code)).nativeLanguageName();
    return name.isEmpty() ? ToQt(code) : name;
}

}  // namespace

void AddLanguageMenu(QMenu& view, WindowSettings& settings, ProcessState& state) {
    QMenu* menu = view.addMenu(TranslatedText("&Language"));
    menu->setObjectName(QStringLiteral("MenuLanguage"));
    auto* group = new QActionGroup(menu);
    const auto add = [&](const QString& caption, const std::string& code) {
        QAction* action = menu->addAction(caption);
        action->setObjectName(QStringLiteral("Language") + ToQt(code));
        action->setCheckable(true);
        action->setChecked(settings.Language() == code);
        group->addAction(action);
        QObject::connect(action, &QAction::triggered, menu, [&settings, &state, code] {
            const bool kept = settings.KeepLanguage(code);
            state.host.dialogs.ShowMessage(
                {.text = kept ? Translated("The language changes when Kelvor is started again.")
                              : Translated("The language cannot be changed: the settings of the windows "
                                           "cannot be written.")});
        });
    };
    add(TranslatedText("As the System"), {});
    add(NameOf(kEnglish), kEnglish);
    for (const std::string& code : SpokenLanguages(state.host.files, state.home)) add(NameOf(code), code);
}

}  // namespace kelvor
