#pragma once

#include <gtest/gtest.h>

#include <string>

#include "support/test_host.h"

namespace kelvor::test {

/// A project whose traffic grows not, lasts one year and is counted in the design lane by the year, so that
/// an ESAL is what one passage does.
class TrafficTest : public testing::Test {
  protected:
    TrafficTest() {
        Set("TrafficDEPTH", 9.0);
        Set("TrafficSN", 5.0);
        Set("PT", 2.5);
        Set("Life", 1.0);
        Set("TrPer", 3.0);
        Set("TRFACTYPE", 1.0);
    }

    void Set(const std::string& name, double value) { program_.Set(name, value); }
    double Get(const std::string& name) { return program_.Get(name); }
    ProjectStore& store() { return program_.store(); }

    /// A row of the axle data.
    void Row(int row, const std::string& type, double load, double count) {
        store().SetCell("AxleType", row, 1, {std::nullopt, type});
        store().SetVarDim("AxleWeight", row, 1, load);
        store().SetVarDim("NumOfAxles", row, 1, count);
    }

    /// Both computed cells of a row.
    void CalcRow(int row) {
        program_.program.CalcCell("RE18", row, 1, "TrRE18");
        program_.program.CalcCell("FE18", row, 1, "TrFE18");
    }

    double Cell(const char* name, int row) { return store().GetVarDim(name, row, 1).value(); }

    TestProgram program_;
};

}  // namespace kelvor::test
