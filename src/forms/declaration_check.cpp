#include "forms/declaration_check.h"

#include <stdexcept>

namespace kelvor {

namespace {

[[noreturn]] void Fail(const FormType& type, const std::string& name, const std::string& slip) {
    throw std::logic_error("form " + type.name + ": " + name + " " + slip);
}

/// True for what help can be asked for: a field, an option, or a column of the grid.
bool HasHelpSubject(Form& form, const std::string& name) {
    const Control* control = form.Find(name);
    const Control* grid = form.FindGrid();
    return form.FindField(name) != nullptr || (control != nullptr && control->IsChoice()) ||
           (grid != nullptr && grid->grid->Find(name));
}

void CheckControls(const FormType& type, const Form& form) {
    const auto& controls = form.controls();
    for (std::size_t i = 0; i < controls.size(); ++i) {
        if (form.IndexOf(controls[i]->name) != i) Fail(type, controls[i]->name, "stands twice");
    }
}

void CheckHandlers(const FormType& type, const Form& form) {
    for (const Handler& handler : type.handlers) {
        if (handler.control.empty() || form.Find(handler.control) != nullptr) continue;
        Fail(type, handler.control, "has a handler and is no control");
    }
}

void CheckEquations(const FormType& type, const Form& form) {
    for (const FormEquation& equation : type.equations) {
        for (const std::string& name : {equation.indicator, equation.button}) {
            if (form.Find(name) == nullptr) Fail(type, name, "is of an equation and is no control");
        }
    }
}

void CheckRoutes(const FormType& type, Form& form) {
    for (const HelpRoute& route : type.helpRoutes) {
        if (!HasHelpSubject(form, route.variable)) {
            Fail(type, route.variable, "has a help and is no field");
        }
        if (!route.workOut.empty() && form.Find(WorkOutButtonName(route.variable)) == nullptr) {
            Fail(type, route.variable, "has no room for its small button");
        }
    }
    for (const TakeOver& source : type.takeOvers) {
        if (form.Find(TakeOverButtonName(source.variable)) == nullptr) {
            Fail(type, source.variable, "may take a value over and is no field");
        }
    }
}

}  // namespace

void CheckDeclaration(const FormType& type, const Catalogue& catalogue) {
    Form form(type, catalogue);
    CheckControls(type, form);
    CheckHandlers(type, form);
    CheckEquations(type, form);
    CheckRoutes(type, form);
}

void CheckDeclarations(const FormRegistry& forms, const Catalogue& catalogue) {
    for (const std::string& name : forms.TypeNames()) {
        const FormType& type = *forms.FindType(name);
        CheckDeclaration(type, catalogue);
        for (const HelpRoute& route : type.helpRoutes) {
            if (forms.FindType(route.form) == nullptr) Fail(type, route.form, "is a help and no form");
        }
    }
}

}  // namespace kelvor
