#pragma once

#include <optional>
#include <string>
#include <vector>

#include "desktop/print_system.h"

namespace kelvor::test {

/// Printers that take every file, and keep it in mind.
class WillingPrinters : public PrintSystem {
  public:
    explicit WillingPrinters(bool there = true) : there_(there) {}

    [[nodiscard]] bool HasPrinter() const override { return there_; }
    [[nodiscard]] std::optional<std::string> Send(const PrintJob& job) override {
        sent.push_back(job.file);
        return std::nullopt;
    }

    std::vector<Path> sent;

  private:
    bool there_;
};

}  // namespace kelvor::test
