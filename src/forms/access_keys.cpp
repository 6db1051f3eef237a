#include "forms/access_keys.h"

#include <algorithm>
#include <array>
#include <bitset>
#include <cstddef>
#include <optional>

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
/// Controls are known by their places on the form.
class KeyGiver {
  public:
    explicit KeyGiver(const Controls& controls) : controls_(controls), given_(controls.size()) {
        letters_.reserve(controls.size());
        for (std::size_t i = 0; i < controls.size(); ++i) {
            letters_.push_back(KeyLetters(controls[i]->text));
            if (controls[i]->accessKey != '\0') HoldersOf(controls[i]->accessKey).push_back(i);
        }
    }

    /// The letters of the control's text that may be its key.
    [[nodiscard]] const std::string& LettersOf(std::size_t control) const { return letters_[control]; }

    /// False if every letter of the control's text is needed elsewhere on its page.
    bool Give(std::size_t control) {
        Keys tried;
        return Give(control, tried);
    }

    void Take(std::size_t control) { Change(control, '\0'); }

  private:
    static constexpr std::size_t kKeys = 256;
    using Keys = std::bitset<kKeys>;

    static std::size_t Index(char key) { return static_cast<unsigned char>(key); }

    /// In the order of the form's controls.
    [[nodiscard]] std::vector<std::size_t>& HoldersOf(char key) { return holders_[Index(key)]; }

    void Change(std::size_t control, char key) {
        char& held = controls_[control]->accessKey;
        if (held != '\0') std::erase(HoldersOf(held), control);
        held = key;
        if (key == '\0') return;
        std::vector<std::size_t>& holders = HoldersOf(key);
        holders.insert(std::lower_bound(holders.begin(), holders.end(), control), control);
    }

    /// Where no letter is free, one whose holder can do with another changes hands.
    bool Give(std::size_t control, Keys& tried) {
        const auto take = [&](char key) {
            Change(control, key);
            given_[control] = true;
            return true;
        };
        for (const char key : letters_[control]) {
            if (key != controls_[control]->accessKey && !FindHolder(key, control)) return take(key);
        }
        for (const char key : letters_[control]) {
            const auto holder = FindHolder(key, control);
            if (!holder || !given_[*holder] || tried[Index(key)]) continue;
            tried[Index(key)] = true;
            if (Give(*holder, tried)) return take(key);
        }
        return false;
    }

    /// The first control on the same page that has a key.
    [[nodiscard]] std::optional<std::size_t> FindHolder(char key, std::size_t wanted) {
        for (const std::size_t holder : HoldersOf(key)) {
            if (holder != wanted && SharePage(*controls_[holder], *controls_[wanted])) return holder;
        }
        return std::nullopt;
    }

    const Controls& controls_;
    std::vector<std::string> letters_;
    std::array<std::vector<std::size_t>, kKeys> holders_;
    std::vector<bool> given_;
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
    for (std::size_t i = 0; i < controls.size(); ++i) {
        const Control& control = *controls[i];
        const bool lost = giver.LettersOf(i).find(control.accessKey) == std::string::npos;
        if (!control.labelOf.empty() && lost) giver.Take(i);
        if (WantsAccessKey(controls, control)) giver.Give(i);
    }
}

}  // namespace kelvor
