#pragma once

#include <array>
#include <cstddef>

#include "forms/form_type.h"

namespace kelvor {

/// Whether each screen with an equation was left balanced. All are true at start; they live as long as
/// the process and outlast New and Open.
class BalanceFlags {
  public:
    BalanceFlags() { flags_.fill(true); }

    [[nodiscard]] bool Get(BalanceFlag flag) const { return flags_[static_cast<std::size_t>(flag)]; }
    void Set(BalanceFlag flag, bool balanced) { flags_[static_cast<std::size_t>(flag)] = balanced; }

  private:
    std::array<bool, kBalanceFlags> flags_{};
};

}  // namespace kelvor
