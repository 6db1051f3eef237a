#pragma once

#include <QTranslator>

#include "platform/file_system.h"
#include "shell/home.h"

namespace kelvor {

/// The language of the windows as long as it lives: the one that the user has chosen, or else the one that
/// the environment asks for. The toolkit's own buttons and menus take their words from the same catalogue.
class WindowLanguage : public QTranslator {
  public:
    WindowLanguage(const FileSystem& files, const Home& home);
    WindowLanguage(const WindowLanguage&) = delete;
    WindowLanguage& operator=(const WindowLanguage&) = delete;
    ~WindowLanguage() override;

    [[nodiscard]] QString translate(const char* context, const char* source, const char* meaning,
                                    int count) const override;
    [[nodiscard]] bool isEmpty() const override { return false; }
};

}  // namespace kelvor
