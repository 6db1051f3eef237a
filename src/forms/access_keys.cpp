#include "forms/access_keys.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>
#include <utility>

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
    explicit KeyGiver(Controls& controls) {
        for (std::size_t i = 0; i < controls.size(); ++i) {
            places_.emplace(controls[i].get(), i);
            if (controls[i]->accessKey != '\0')
                holders_[controls[i]->accessKey].insert(HolderAt(*controls[i]));
        }
    }

    /// False if every letter of the control's text is needed elsewhere on its page.
    bool Give(Control& control) {
        std::set<char> tried;
        return Give(control, tried);
    }

    void Take(Control& control) { Change(control, '\0'); }

  private:
    /// In the order of the form's controls.
    using Holder = std::pair<std::size_t, Control*>;

    [[nodiscard]] Holder HolderAt(Control& control) const { return {places_.at(&control), &control}; }

    void Change(Control& control, char key) {
        if (control.accessKey != '\0') holders_[control.accessKey].erase(HolderAt(control));
        control.accessKey = key;
        if (key != '\0') holders_[key].insert(HolderAt(control));
    }

    /// Where no letter is free, one whose holder can do with another changes hands.
    bool Give(Control& control, std::set<char>& tried) {
        const std::string letters = KeyLetters(control.text);
        const auto take = [&](char key) {
            Change(control, key);
            given_.insert(&control);
            return true;
        };
        for (const char key : letters) {
            if (key != control.accessKey && FindHolder(key, control) == nullptr) return take(key);
        }
        for (const char key : letters) {
            Control* holder = FindHolder(key, control);
            if (!given_.contains(holder) || !tried.insert(key).second) continue;
            if (Give(*holder, tried)) return take(key);
        }
        return false;
    }

    /// The first control on the same page that has a key; null if there is none.
    [[nodiscard]] Control* FindHolder(char key, const Control& wanted) const {
        const auto holders = holders_.find(key);
        if (holders == holders_.end()) return nullptr;
        for (const auto& [place, holder] : holders->second) {
            if (holder != &wanted && SharePage(*holder, wanted)) return holder;
        }
        return nullptr;
    }

    std::unordered_map<const Control*, std::size_t> places_;
    std::map<char, std::set<Holder>> holders_;
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
        if (!control->labelOf.empty() && lost) giver.Take(*control);
        if (WantsAccessKey(controls, *control)) giver.Give(*control);
    }
}

}  // namespace kelvor
