#include "forms/access_keys.h"

#include <algorithm>
#include <set>

namespace kelvor {

namespace {

/// The capital of an ASCII letter; any other character as it is, whatever the locale.
char ToUpper(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

using Controls = std::vector<std::unique_ptr<Control>>;

bool SharePage(const Control& one, const Control& other) {
    return one.page == other.page || one.page == -1 || other.page == -1;
}

/// The letters of a text that may be an access key, in its order.
std::string KeyLetters(const std::string& text) {
    std::string letters;
    for (const char c : text) {
        const char key = ToUpper(c);
        const bool isLetter = (key >= 'A' && key <= 'Z') || (key >= '0' && key <= '9');
        if (isLetter && kMenuAccessKeys.find(key) == std::string_view::npos) letters.push_back(key);
    }
    return letters;
}

/// Hands out access keys: as many controls as can be get one, and one that has one by its caption keeps it.
class KeyGiver {
  public:
    explicit KeyGiver(Controls& controls) : controls_(controls) {}

    /// False if every letter of the control's text is needed elsewhere on its page.
    bool Give(Control& control) {
        std::set<char> tried;
        return Give(control, tried);
    }

  private:
    /// Where no letter is free, one whose holder can do with another changes hands.
    bool Give(Control& control, std::set<char>& tried) {
        const std::string letters = KeyLetters(control.text);
        const auto take = [&](char key) {
            control.accessKey = key;
            given_.insert(&control);
            return true;
        };
        for (const char key : letters) {
            if (key != control.accessKey && HolderOf(key, control) == nullptr) return take(key);
        }
        for (const char key : letters) {
            Control* holder = HolderOf(key, control);
            if (!given_.contains(holder) || !tried.insert(key).second) continue;
            if (Give(*holder, tried)) return take(key);
        }
        return false;
    }

    [[nodiscard]] Control* HolderOf(char key, const Control& wanted) const {
        const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
            return control->accessKey == key && control.get() != &wanted && SharePage(*control, wanted);
        });
        return found == controls_.end() ? nullptr : found->get();
    }

    Controls& controls_;
    std::set<const Control*> given_;
};

/// True for a button, and for a label that is seen of a box that takes the focus.
bool WantsAccessKey(const Controls& controls, const Control& control) {
    if (control.accessKey != '\0' || control.tag == "SolveFor") return false;
    if (control.kind == ControlKind::Label && !control.visible) return false;
    if (control.IsButton() || control.IsChoice()) return true;
    return !control.labelOf.empty() &&
           std::any_of(controls.begin(), controls.end(), [&](const std::unique_ptr<Control>& box) {
               return box->name == control.labelOf && box->tabStop;
           });
}

}  // namespace

char MarkedKey(const std::string& caption) {
    for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
        if (caption[i] != '&') continue;
        if (caption[i + 1] != '&') return ToUpper(caption[i + 1]);
        ++i;
    }
    return '\0';
}

void AssignAccessKeys(std::vector<std::unique_ptr<Control>>& controls) {
    KeyGiver giver(controls);
    for (const auto& control : controls) {
        const bool lost = KeyLetters(control->text).find(control->accessKey) == std::string::npos;
        if (!control->labelOf.empty() && lost) control->accessKey = '\0';
        if (WantsAccessKey(controls, *control)) giver.Give(*control);
    }
}

}  // namespace kelvor
