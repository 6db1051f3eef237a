#pragma once

#include <optional>
#include <span>
#include <string>

#include "forms/screen_context.h"

namespace kelvor {

/// A side screen works out a value for a field of another form and hands it back when it closes. Its form has
/// the hidden boxes FormName, the caller, and FieldName, the field, and for a cell of a grid Dim1, the row,
/// and Column, its variable; they are empty if nobody called it.
struct SideScreenCall {
    std::string caller;
    std::string field;
    int row = 0;       // of the caller's grid; 0: a field of its own
    std::string dim2;  // the caller's second subscript
};

/// What a form is opened with. It is noted on the form before any of its routines runs.
struct OpenRequest {
    std::string form;
    std::optional<int> dim2 = {};             // the slice that it shows; nothing: as it has it
    std::optional<SideScreenCall> call = {};  // of a side screen: the field it opens for
};

/// The call for a field of a form, or for the cell of its grid in a row.
SideScreenCall MakeCall(const Form& caller, const std::string& field, int row = 0);

/// Tells a form who called it.
void NoteCall(Form& sideScreen, const SideScreenCall& call);

/// The value of the field that a side screen was opened for, as it is stored.
CellValue CalledField(const ScreenContext& context, const Form& sideScreen);

/// What some cells hold, as a text: another one once one of them has changed.
std::string ContentOf(const ProjectStore& store, std::span<const char* const> variables);

/// True for equal numbers, however they were typed; texts are compared where there is no number.
bool IsSameValue(const CellValue& one, const CellValue& other);

/// Tells the caller, when a side screen closes, whether a value was taken over: its indicator then warns, and
/// the focus goes back to the field.
void ReturnFromSideScreen(ScreenContext& context, const Form& sideScreen, bool valueTaken);

}  // namespace kelvor
