#include "desktop/palettes.h"

#include <QColor>

namespace kelvor::test {

namespace {

QPalette MakePalette(const QColor& window, const QColor& base, const QColor& button, const QColor& text,
                     const QColor& faint, const QColor& highlight) {
    QPalette palette(text, button, button.lighter(120), button.darker(140), button.darker(115), text,
                     Qt::white, base, window);
    palette.setColor(QPalette::Highlight, highlight);
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::ToolTipBase, base);
    palette.setColor(QPalette::ToolTipText, text);
    palette.setColor(QPalette::PlaceholderText, faint);
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, faint);
    }
    return palette;
}

}  // namespace

QPalette LightPalette() {
    return MakePalette(QColor(0xEF, 0xF0, 0xF1), QColor(0xFF, 0xFF, 0xFF), QColor(0xF5, 0xF6, 0xF7),
                       QColor(0x1D, 0x20, 0x23), QColor(0x8A, 0x8F, 0x94), QColor(0x1F, 0x6F, 0xB5));
}

QPalette HighContrastPalette() {
    return MakePalette(Qt::black, Qt::black, Qt::black, Qt::white, QColor(0x3F, 0xF2, 0x3F),
                       QColor(0x00, 0x78, 0xD7));
}

QPalette DarkPalette() {
    return MakePalette(QColor(0x2A, 0x2E, 0x32), QColor(0x1B, 0x1E, 0x20), QColor(0x34, 0x39, 0x3E),
                       QColor(0xEC, 0xEE, 0xF0), QColor(0x80, 0x86, 0x8C), QColor(0x2B, 0x7C, 0xC4));
}

}  // namespace kelvor::test
