#pragma once

#include <gtest/gtest.h>

#include <initializer_list>
#include <string>
#include <utility>

#include "support/test_host.h"

namespace kelvor::test {

/// A fresh project whose calculations are run by their keys.
class RehabTest : public testing::Test {
  protected:
    using Values = std::initializer_list<std::pair<const char*, double>>;

    void Set(Values values) {
        for (const auto& [name, value] : values) program_.Set(name, value);
    }

    /// The result of a key, written to the variable of its own name.
    double Calc(const std::string& key) {
        program_.program.CalcField(key, key);
        EXPECT_TRUE(store().FindCell(key, 1, 1)->number.has_value()) << key << " was not written";
        return program_.Get(key);
    }

    double Calc(const std::string& key, Values values) {
        Set(values);
        return Calc(key);
    }

    ProjectStore& store() { return program_.store(); }

    TestProgram program_;
};

}  // namespace kelvor::test
