#include "support/random_events.h"

namespace kelvor::test {

using Kind = UserEvent::Kind;

UserEvent RandomEvent(std::mt19937& random, const Form* current, const std::vector<std::string>& forms) {
    static const std::vector<std::string> kKeys = {"Enter", "Tab",   "BackTab", "Esc", "Space", "F1",
                                                   "Alt+S", "Alt+O", "Alt+D",   "5",   ".",     "x",
                                                   "Up",    "Down",  "Left",    "F2",  "Right", "Delete"};
    static const std::vector<std::string> kTexts = {"5000", "95", "0.45",  "4.2", "2.5",      "",
                                                    "abc",  "-1", "1e308", "1e9", "5,000,000"};
    static const std::vector<std::string> kMenus = {"MenuUnitsMetric", "MenuUnitsEnglish", "MenuFilePrint",
                                                    "NewProj", "MenuFileOpen"};
    static const std::vector<std::string> kColumns = {"LDLayerMat", "LDLayerThick", "LDLayerStructNo", ""};
    const auto pick = [&](std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random);
    };
    std::string control = "TabForm";
    if (current != nullptr) control = current->controls()[pick(current->controls().size())]->name;
    switch (pick(12)) {
        case 0:
            return {Kind::OpenForm, forms[pick(forms.size())], {}, 0};
        case 1:
            return {Kind::ActivateForm, forms[pick(forms.size())], {}, 0};
        case 2:
            return {Kind::CloseForm, forms[pick(forms.size())], {}, 0};
        case 10:
            return {pick(3) == 0 ? Kind::MoveToCell : Kind::EditCell, kColumns[pick(4)],
                    kTexts[pick(kTexts.size())], static_cast<int>(pick(8))};
        case 11:
            if (pick(2) == 0) return {Kind::DeleteRow, {}, {}, static_cast<int>(pick(8))};
            return {Kind::PasteCells, {}, "1\t0.5\nx\t3\n\"", 0};
        case 3:
            return {Kind::Focus, control, {}, 0};
        case 4:
        case 5:
            return {Kind::Type, {}, kTexts[pick(kTexts.size())], 0};
        case 6:
            return {Kind::Key, kKeys[pick(kKeys.size())], {}, 0};
        case 7:
            return {Kind::Press, pick(3) == 0 ? "Command1" : control, {}, 0};
        case 8:
            return pick(2) == 0 ? UserEvent{Kind::Choose, control, {}, 0}
                                : UserEvent{Kind::SwitchTab, {}, {}, static_cast<int>(pick(9))};
        default:
            // A project now and then only: it copies the template.
            return {Kind::Menu, kMenus[pick(20) == 0 ? 3 + pick(2) : pick(3)], {}, 0};
    }
}

}  // namespace kelvor::test
