#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <optional>
#include <string>
#include <utility>

#include "support/test_host.h"

namespace kelvor::test {

/// A fresh project with deflection tests in its rows.
class NdtTest : public testing::Test {
  protected:
    using Values = std::initializer_list<std::pair<const char*, double>>;

    /// Values that all tests share.
    void Set(Values values) {
        for (const auto& [name, value] : values) program_.Set(name, value);
    }

    /// Values of one test.
    void SetRow(int row, Values values) {
        for (const auto& [name, value] : values) store().SetVarDim(name, row, 1, value);
    }

    void Clear(const char* name, int row) { store().SetCell(name, row, 1, {}); }

    /// The number of a cell of a row; nothing for an empty one.
    std::optional<double> Cell(const char* name, int row) { return store().FindCell(name, row, 1)->number; }

    /// What the key of a column makes of a row.
    std::optional<double> Calc(const char* key, int row) {
        program_.program.CalcCell(key, row, 1, key);
        return Cell(key, row);
    }

    ProjectStore& store() { return program_.store(); }

    TestProgram program_;
};

}  // namespace kelvor::test
