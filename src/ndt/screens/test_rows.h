#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/form_type.h"

namespace kelvor {

/// The width of an input of all tests, in letters.
inline constexpr double kInputLetters = 9.0;

/// Fields of inputs that all tests share.
LayoutElement InputsOfAllTests(std::vector<FieldItem> fields);

/// The widths of the lines below a grid, in letters.
inline constexpr double kSoundnessLetters = 30.0;
inline constexpr double kOutdatedLetters = 64.0;

/// The name of the line below a grid that counts the tests whose results are not sound.
inline constexpr const char* kSoundnessLine = "SOUNDNESS";

/// The name of the line that tells which inputs have changed since the tests were worked out.
inline constexpr const char* kOutdatedLine = "OUTDATED";

/// The hidden box in which their names stand.
inline constexpr const char* kOutdatedInputs = "OutdatedInputs";

/// Works the results of every test of a screen out anew, then the averages.
void RecalcTests(ScreenContext& context, Form& form);

/// A handler that does so; of RowDeleted it stands instead of the common one.
void RecalcTests(ScreenEvent& event);

/// Gives an input of all tests its usual value, in the store and in its box, if it is empty.
void SetIfBlank(ScreenContext& context, Form& form, std::string_view variable, double value);

/// The handlers by which all tests are worked out anew when one of the inputs has changed and its field is
/// left; also when a text that is no number has emptied it.
std::vector<Handler> RecalcWhenLeft(const std::vector<std::string>& inputs);

/// The handlers by which the line kOutdatedLine tells of changes of inputs that work no test out anew, until
/// all are; as they are when one of the `renewing` inputs is left.
std::vector<Handler> TellWhenOutdated(const std::vector<std::string>& inputs,
                                      const std::vector<std::string>& renewing = {});

/// The handlers by which a routine runs after whatever may have changed a result or how it is shown.
std::vector<Handler> AfterResults(void (*show)(ScreenEvent& event));

/// Appends handlers.
void Append(std::vector<Handler>& handlers, const std::vector<Handler>& more);

}  // namespace kelvor
