#include "forms/cell_block.h"

#include <algorithm>

#include "platform/number_text.h"
#include "platform/text.h"

namespace kelvor {

namespace {

class BlockReader {
  public:
    explicit BlockReader(std::string_view block) : block_(block) {}

    std::vector<std::vector<std::string>> Read() {
        std::vector<std::vector<std::string>> rows;
        while (at_ < block_.size()) rows.push_back(ReadRow());
        return rows;
    }

  private:
    std::vector<std::string> ReadRow() {
        std::vector<std::string> row;
        for (;;) {
            row.push_back(ReadCell());
            if (at_ >= block_.size()) return row;
            const char end = block_[at_++];
            if (end == '\t') continue;
            if (end == '\r' && at_ < block_.size() && block_[at_] == '\n') ++at_;
            return row;
        }
    }

    std::string ReadCell() {
        if (at_ < block_.size() && block_[at_] == '"') return ReadQuoted();
        const std::size_t end = std::min(block_.find_first_of("\t\r\n", at_), block_.size());
        std::string cell(TrimBlanks(block_.substr(at_, end - at_)));
        at_ = end;
        return cell;
    }

    /// Up to the quote that is not doubled; what stands behind it belongs to the cell as it is.
    std::string ReadQuoted() {
        std::string cell;
        for (++at_; at_ < block_.size(); ++at_) {
            if (block_[at_] == '"') {
                if (at_ + 1 >= block_.size() || block_[at_ + 1] != '"') break;
                ++at_;
            }
            cell += block_[at_];
        }
        if (at_ < block_.size()) ++at_;
        const std::size_t end = std::min(block_.find_first_of("\t\r\n", at_), block_.size());
        cell += block_.substr(at_, end - at_);
        at_ = end;
        return cell;
    }

    std::string_view block_;
    std::size_t at_ = 0;
};

std::string CellOut(const std::string& text) {
    if (IsNumeric(text)) {
        std::string number = text;
        std::erase(number, ',');
        return number;
    }
    if (text.find_first_of("\t\r\n\"") == std::string::npos) return text;
    std::string quoted = "\"";
    for (const char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
    return quoted + "\"";
}

}  // namespace

std::vector<std::vector<std::string>> SplitCells(std::string_view block) { return BlockReader(block).Read(); }

std::string JoinCells(const std::vector<std::vector<std::string>>& rows) {
    std::string block;
    for (const std::vector<std::string>& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) block += (i == 0 ? "" : "\t") + CellOut(row[i]);
        block += '\n';
    }
    return block;
}

}  // namespace kelvor
