#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "support/test_host.h"

namespace kelvor::test {

/// A fresh project with costs of two pavements, 1 and 2.
class CostTest : public testing::Test {
  protected:
    using Values = std::initializer_list<std::pair<const char*, double>>;

    void Set(Values values) {
        for (const auto& [name, value] : values) program_.Set(name, value);
    }

    /// Values of one row of a grid.
    void SetRow(int row, int pavement, Values values) {
        for (const auto& [name, value] : values) store().SetVarDim(name, row, pavement, value);
    }

    void SetText(const char* name, int row, int pavement, const std::string& text) {
        store().SetCell(name, row, pavement, {std::nullopt, text});
    }

    /// The number of a cell; nothing for an empty one.
    std::optional<double> Cell(const char* name, int row, int pavement) {
        return store().FindCell(name, row, pavement)->number;
    }

    std::optional<std::string> Text(const char* name, int row, int pavement) {
        return store().FindCell(name, row, pavement)->text;
    }

    /// What the key of a column makes of a cell.
    std::optional<double> Calc(const char* key, int row, int pavement) {
        program_.program.CalcCell(key, row, pavement, key);
        return Cell(key, row, pavement);
    }

    /// What the user has in hand: a row of the grid of a pavement.
    void WorkIn(int row, int pavement) {
        program_.program.state().formValues.gridRow = row;
        program_.program.state().formValues.dim2 = pavement;
    }

    /// Runs the key of a value that belongs to what the user has in hand.
    void CalcInHand(const char* key) { program_.program.CalcField(key, key); }

    CalcContext Context() { return program_.program.state().MakeCalcContext(); }
    ProjectStore& store() { return program_.store(); }

    TestProgram program_;
};

}  // namespace kelvor::test
