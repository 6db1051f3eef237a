#pragma once

#include <string>
#include <vector>

namespace kelvor::test {

/// The calls by which this process, SQLite in it included, opens, reads, writes, flushes, renames and removes
/// what lies below some folders. They are counted, and one of them can be made to fail. The calls of the
/// system stand in between (file_calls.cpp), so that none goes by another way. Only asking whether a file is
/// there counts for nothing. For one thread.
class FileCalls {
  public:
    /// Never the turn of any call.
    static constexpr int kNone = -1;

    /// Counts from 0 again, below these folders. The call whose turn is `failing` fails, those after it work.
    static void Watch(const std::vector<std::string>& folders, int failing);

    /// So many calls since.
    static int Count();

    /// True if the call whose turn it was has failed.
    static bool HasFailed();

    /// While it lives, calls do not count and do not fail.
    class Pause {
      public:
        Pause();
        Pause(const Pause&) = delete;
        Pause& operator=(const Pause&) = delete;
        ~Pause();
    };
};

}  // namespace kelvor::test
