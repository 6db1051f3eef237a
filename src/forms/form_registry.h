#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "catalogue/catalogue.h"
#include "forms/form.h"
#include "forms/form_type.h"

namespace kelvor {

/// All form types by name, and the open forms from the back to the front; at most one of each type.
class FormRegistry {
  public:
    /// Throws std::logic_error if a name stands twice. Each type passes through `finish` once it is made.
    void Declare(std::vector<FormDeclaration> declarations, void (*finish)(FormType& type) = nullptr);
    void Declare(std::vector<FormType> types);

    [[nodiscard]] bool IsDeclared(std::string_view name) const { return FindEntry(name) != nullptr; }

    /// Null if there is no such type. Throws std::logic_error if its declaration makes one of another name.
    [[nodiscard]] const FormType* FindType(std::string_view name) const;
    [[nodiscard]] std::vector<std::string> TypeNames() const;

    /// The open form of a name; null if it is not open.
    [[nodiscard]] Form* Find(std::string_view name) const;

    /// Makes the form of a type and puts it in front.
    Form& Add(const FormType& type, const Catalogue& catalogue);

    void BringToFront(Form& form);

    /// Takes a form off the open ones. It is destroyed when the next event begins, by which time no routine
    /// and no window refers to it any more.
    void Remove(Form& form);
    void DestroyRemoved() { removed_.clear(); }

    /// The open forms, in the order in which they were opened.
    [[nodiscard]] const std::vector<Form*>& InOpeningOrder() const { return opened_; }

    /// The front form; null if none is open.
    [[nodiscard]] Form* Front() const;

    /// The open forms at one moment of an event, and what they were.
    struct Image {
        std::vector<std::pair<Form*, Form::Image>> stack;
        std::vector<Form*> opened;
        Form* current = nullptr;
    };

    [[nodiscard]] Image TakeImage() const;

    /// Makes the open forms again those of an image of the same event. Forms opened since then go, and those
    /// closed since then come back.
    void BecomeAgain(Image image);

    /// Takes the forms off that an image of the same event does not have.
    void RemoveOpenedSince(const Image& image);

    /// The form in which the user works: the one that was activated last.
    Form* CurrentForm = nullptr;

  private:
    struct Entry {
        std::string name;
        std::function<FormType()> make;
        void (*finish)(FormType& type) = nullptr;
        std::unique_ptr<FormType> type;  // null until it is asked for
    };

    [[nodiscard]] Entry* FindEntry(std::string_view name) const;
    void Add(Entry entry);

    mutable std::vector<Entry> types_;
    std::vector<std::unique_ptr<Form>> stack_;  // back to front
    std::vector<std::unique_ptr<Form>> removed_;
    std::vector<Form*> opened_;
};

}  // namespace kelvor
