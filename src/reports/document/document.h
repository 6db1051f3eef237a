#pragma once

#include <string>
#include <variant>
#include <vector>

#include "reports/document/report_drawing.h"

namespace kelvor {

// A filled report, before anybody knows whether it becomes pages, a page of the web, or plain text. All texts
// are UTF-8; "\n" in one is a line break, and no other control character stands in them.

enum class Alignment { Left, Right };

namespace blocks {

/// Level 1 is the title of the report, 2 a section, 3 a part of one.
struct Heading {
    int level = 1;
    std::string text;
};

struct Paragraph {
    std::string text;
};

/// Labels beside their values and units, such as "Slab Thickness, D", "9.5" and "in".
struct ValueList {
    struct Row {
        std::string label;
        std::string value;
        std::string unit;
    };
    Alignment alignment = Alignment::Left;  // of the values; numbers stand at the right, before their units
    std::vector<Row> rows;
};

/// A table with headings; every row has a cell for each column.
struct Table {
    struct Column {
        std::string heading;
        Alignment alignment = Alignment::Left;
    };
    std::vector<Column> columns;
    std::vector<std::vector<std::string>> rows;
};

/// A picture in the format PNG, with the words that stand for it where pictures cannot be shown.
struct Picture {
    std::string png;
    std::string words;
    double widthPoints = 0.0;  // 1/72 in
    double heightPoints = 0.0;
};

/// A drawing that stays as sharp as the paper allows.
using Drawing = ReportDrawing;

}  // namespace blocks

using Block = std::variant<blocks::Heading, blocks::Paragraph, blocks::ValueList, blocks::Table,
                           blocks::Picture, blocks::Drawing>;

/// The line at the head or at the foot of each page. On paper a page number stands at the right of the foot.
struct PageEdge {
    std::string left;
    std::string middle;
    std::string right;

    [[nodiscard]] bool IsEmpty() const { return left.empty() && middle.empty() && right.empty(); }
};

/// A report as a whole.
class Document {
  public:
    std::string title;
    PageEdge head;
    PageEdge foot;
    std::vector<Block> blocks;
};

}  // namespace kelvor
