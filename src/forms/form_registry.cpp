#include "forms/form_registry.h"

#include <algorithm>
#include <iterator>
#include <stdexcept>
#include <utility>

namespace kelvor {

namespace {

std::unique_ptr<FormType> Finished(FormType type) {
    if (type.tag.empty()) type.tag = type.name;
    return std::make_unique<FormType>(std::move(type));
}

}  // namespace

void FormRegistry::Declare(std::vector<FormDeclaration> declarations, void (*finish)(FormType& type)) {
    for (FormDeclaration& declaration : declarations) {
        Add({std::move(declaration.name), std::move(declaration.make), finish, nullptr});
    }
}

void FormRegistry::Declare(std::vector<FormType> types) {
    for (FormType& type : types) {
        const std::string name = type.name;
        Add({name, nullptr, nullptr, Finished(std::move(type))});
    }
}

void FormRegistry::Add(Entry entry) {
    if (IsDeclared(entry.name)) throw std::logic_error("form " + entry.name + " stands twice");
    types_.push_back(std::move(entry));
}

FormRegistry::Entry* FormRegistry::FindEntry(std::string_view name) const {
    const auto found = std::find_if(types_.begin(), types_.end(),
                                    [&](const Entry& entry) { return EqualNoCase(entry.name, name); });
    return found == types_.end() ? nullptr : &*found;
}

const FormType* FormRegistry::FindType(std::string_view name) const {
    Entry* entry = FindEntry(name);
    if (entry == nullptr) return nullptr;
    if (entry->type == nullptr) {
        FormType type = entry->make();
        if (type.name != entry->name) {
            throw std::logic_error("form " + entry->name + " is declared as " + type.name);
        }
        if (entry->finish != nullptr) entry->finish(type);
        entry->type = Finished(std::move(type));
    }
    return entry->type.get();
}

std::vector<std::string> FormRegistry::TypeNames() const {
    std::vector<std::string> names;
    for (const Entry& entry : types_) names.push_back(entry.name);
    return names;
}

Form* FormRegistry::Find(std::string_view name) const {
    const auto found = std::find_if(stack_.begin(), stack_.end(),
                                    [&](const auto& form) { return EqualNoCase(form->name(), name); });
    return found == stack_.end() ? nullptr : found->get();
}

Form& FormRegistry::Add(const FormType& type, const Catalogue& catalogue) {
    stack_.push_back(std::make_unique<Form>(type, catalogue));
    opened_.push_back(stack_.back().get());
    return *stack_.back();
}

void FormRegistry::BringToFront(Form& form) {
    const auto found =
        std::find_if(stack_.begin(), stack_.end(), [&](const auto& open) { return open.get() == &form; });
    if (found != stack_.end()) std::rotate(found, found + 1, stack_.end());
}

void FormRegistry::Remove(Form& form) {
    const auto found =
        std::find_if(stack_.begin(), stack_.end(), [&](const auto& open) { return open.get() == &form; });
    if (found == stack_.end()) return;
    if (CurrentForm == &form) CurrentForm = nullptr;
    std::erase(opened_, &form);
    removed_.push_back(std::move(*found));
    stack_.erase(found);
}

FormRegistry::Image FormRegistry::TakeImage() const {
    Image image{{}, opened_, CurrentForm};
    image.stack.reserve(stack_.size());
    for (const auto& form : stack_) image.stack.emplace_back(form.get(), form->TakeImage());
    return image;
}

void FormRegistry::BecomeAgain(Image image) {
    std::move(stack_.begin(), stack_.end(), std::back_inserter(removed_));
    stack_.clear();
    for (auto& [form, former] : image.stack) {
        const auto found =
            std::find_if(removed_.begin(), removed_.end(), [&](const auto& f) { return f.get() == form; });
        stack_.push_back(std::move(*found));
        removed_.erase(found);
        form->BecomeAgain(std::move(former));
    }
    opened_ = std::move(image.opened);
    CurrentForm = image.current;
}

void FormRegistry::RemoveOpenedSince(const Image& image) {
    for (Form* form : std::vector<Form*>(opened_)) {
        const auto& former = image.opened;
        if (std::find(former.begin(), former.end(), form) == former.end()) Remove(*form);
    }
    if (CurrentForm == nullptr) CurrentForm = Front();
}

Form* FormRegistry::Front() const { return stack_.empty() ? nullptr : stack_.back().get(); }

}  // namespace kelvor
