#pragma once

#include <QWidget>
#include <vector>

#include "desktop/form_layout.h"
#include "forms/form.h"

namespace kelvor {

/// The property of a box in a stack that holds its height in the model.
inline constexpr const char* kStackHeightProperty = "stackHeight";

/// Boxes on each other, in the ratio of the heights that the model has for them and high enough that their
/// letters can be read, with their labels beside them and one label below.
class StackView : public QWidget {
  public:
    StackView(const Form& form, const layout::Stack& stack, const WidgetFinder& find, QWidget* parent);

    /// Puts all to where the model has it now.
    void Arrange();

  private:
    struct Entry {
        const Control* control = nullptr;
        QWidget* box = nullptr;
        QWidget* label = nullptr;
    };

    [[nodiscard]] int Pixels(int twips) const;

    std::vector<Entry> boxes_;
    Entry ground_;
    int lineHeight_ = 0;
    int boxWidth_ = 0;
};

}  // namespace kelvor
