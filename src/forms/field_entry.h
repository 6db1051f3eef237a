#pragma once

#include <string>
#include <string_view>

#include "forms/screen_context.h"

namespace kelvor {

/// A field was typed in.
void FieldChange(Form& form, Control& control);

/// A field got the focus: it is not changed yet, and it is the one that Solve For and help mean.
void FieldGotFocus(Form& form, Control& control);

/// The text of the box in focus is selected as a whole: the next character replaces it.
void SelectAll(Form& form);

/// Notes a control's place in the form as that of the current field.
void FindControlIndex(Form& form, std::string_view controlName);

/// What becomes of the text of a field that is left.
enum class Leaving {
    Accepted,
    Refused,  // the cell stays as it is
    Emptied   // refused, and the cell, which held something, is empty now
};

/// A field is left: its text is tested and stored, the outputs are recalculated, and the indicator warns if
/// the field belongs to the equation. After a refusal the focus stays. A field that was not typed in stores
/// nothing.
Leaving FieldLostFocus(ScreenContext& context, Form& form, Control& control);

/// Shows in a box the value that is stored for its field: a list of codes shows the word.
void ShowStoredValue(const ScreenContext& context, const Form& form, Control& control);

/// Stores the code of the word that a list shows.
void StoreCode(ScreenContext& context, const Form& form, const Control& list);

/// Shows the stored value again in a field that was typed in.
void RestoreField(ScreenContext& context, Form& form, Control& control);

/// True if a value lies beyond a limit that is there.
bool IsOutOfRange(const Range& range, double value);

/// The text with which a value out of a range is refused.
std::string OutOfRangeText(const Range& range);

/// The number in a box, 0 if it is empty: what is being typed, else the value that it shows, in the active
/// units and with the digits that its picture leaves out.
double FieldNumber(const ScreenContext& context, const Form& form, const Control& box);

}  // namespace kelvor
