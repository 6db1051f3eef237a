#include "forms/form.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "forms/access_keys.h"
#include "forms/form_builder.h"
#include "platform/number_text.h"

namespace kelvor {

namespace {

const char* const kFieldChanged = "FieldChanged";

/// How truth values stand in hidden boxes.
const char* const kTrue = "-1";
const char* const kFalse = "0";

}  // namespace

Form::Form(const FormType& type, const Catalogue& catalogue)
    : type_(type), controls_(BuildControls(type, catalogue)) {
    tag = type.tag;
    caption = type.caption;
    equations.resize(type.equations.size());
    modal = type.modal;
}

Control* Form::Find(std::string_view name) {
    const auto index = IndexOf(name);
    return index ? controls_[*index].get() : nullptr;
}

const Control* Form::Find(std::string_view name) const {
    const auto index = IndexOf(name);
    return index ? controls_[*index].get() : nullptr;
}

Control& Form::Get(std::string_view name) {
    if (Control* control = Find(name)) return *control;
    throw std::logic_error("form " + type_.name + " has no control " + std::string(name));
}

const Control& Form::Get(std::string_view name) const {
    if (const Control* control = Find(name)) return *control;
    throw std::logic_error("form " + type_.name + " has no control " + std::string(name));
}

std::optional<std::size_t> Form::IndexOf(std::string_view name) const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [&](const auto& control) { return EqualNoCase(control->name, name); });
    if (found == controls_.end()) return std::nullopt;
    return static_cast<std::size_t>(found - controls_.begin());
}

Control* Form::FindField(std::string_view variable) {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
        return control->IsField() && EqualNoCase(control->tag, variable);
    });
    return found == controls_.end() ? nullptr : found->get();
}

Control* Form::FindAccessKey(char key) {
    for (const auto& control : controls_) {
        if (control->accessKey == '\0' || FoldLetter(control->accessKey) != FoldLetter(key)) continue;
        if (control->page != -1 && control->page != page_) continue;
        return control->labelOf.empty() ? control.get() : Find(control->labelOf);
    }
    return nullptr;
}

Control* Form::FindGrid() {
    const Control* grid = std::as_const(*this).FindGrid();
    return grid == nullptr ? nullptr : Find(grid->name);
}

const Control* Form::FindGrid() const {
    const auto found = std::find_if(controls_.begin(), controls_.end(),
                                    [](const auto& control) { return control->grid.has_value(); });
    return found == controls_.end() ? nullptr : found->get();
}

Control* Form::FindUnitOf(std::string_view box) {
    const auto found = std::find_if(controls_.begin(), controls_.end(), [&](const auto& control) {
        return !control->unitOf.empty() && EqualNoCase(control->unitOf, box);
    });
    return found == controls_.end() ? nullptr : found->get();
}

Control& Form::Add(ControlKind kind, std::string name) {
    controls_.push_back(std::make_unique<Control>());
    controls_.back()->kind = kind;
    controls_.back()->name = std::move(name);
    return *controls_.back();
}

void Form::AssignAccessKeys() { kelvor::AssignAccessKeys(controls_); }

std::string Form::TextOf(std::string_view name) const {
    const Control* control = Find(name);
    return control == nullptr ? std::string() : control->text;
}

void Form::SetText(std::string_view name, std::string text) {
    if (Control* control = Find(name)) control->text = std::move(text);
}

bool Form::fieldChanged() const { return Val(TextOf(kFieldChanged)) != 0.0; }

bool Form::IsTyping() const {
    if (focus == nullptr) return false;
    return focus->grid ? focus->grid->typed.has_value() : focus->IsField() && fieldChanged();
}

void Form::SetFieldChanged(bool changed) { SetText(kFieldChanged, changed ? kTrue : kFalse); }

std::optional<int> Form::dim2() const { return ParseSubscript(TextOf("Dim2")); }
std::optional<int> Form::dim1() const { return ParseSubscript(TextOf("Dim1")); }

void Form::ShowPage(int page) {
    page_ = page;
    for (const auto& control : controls_) {
        if (control->kind == ControlKind::TabStrip)
            control->text = control->items[static_cast<std::size_t>(page)];
    }
}

Form::Image Form::TakeImage() const {
    Image image{*this, page_, {}};
    image.controls.reserve(controls_.size());
    for (const auto& control : controls_) image.controls.push_back(*control);
    return image;
}

void Form::BecomeAgain(Image image) {
    static_cast<FormState&>(*this) = std::move(image.state);
    page_ = image.page;
    controls_.resize(image.controls.size());
    for (std::size_t i = 0; i < controls_.size(); ++i) *controls_[i] = std::move(image.controls[i]);
}

bool Form::CanFocus(const Control& control) const {
    return control.TakesFocus() && (control.page == -1 || control.page == page_);
}

Control* Form::NextInTabOrder(const Control* from, TabStep step) {
    const bool forwards = step != TabStep::Previous;
    const std::size_t count = controls_.size();
    std::size_t place = forwards ? count - 1 : 0;
    if (from != nullptr) place = IndexOf(from->name).value_or(place);
    for (std::size_t i = 0; i < count; ++i) {
        place = forwards ? (place + 1) % count : (place + count - 1) % count;
        Control& control = *controls_[place];
        if (!control.IsSmallButton() && !control.passedOver && CanFocus(control)) return &control;
    }
    return nullptr;
}

}  // namespace kelvor
