#include "platform/module.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace kelvor::test {
namespace {

struct Door {};

template <typename Act>
std::string MessageOf(const Act& act) {
    try {
        act();
    } catch (const FileError& error) {
        return error.what();
    }
    return "nothing was thrown";
}

TEST(ModuleTest, OneThatIsNotThereIsToldWithItsWork) {
    const std::string message = MessageOf([] {
        (void)OpenDoor<Door>({"kelvor-absent.so", "KelvorAbsent", "what paints nothing"}, 1);
    });
    EXPECT_THAT(message, testing::StartsWith("what paints nothing could not be loaded: "));
    EXPECT_THAT(message, testing::HasSubstr("kelvor-absent.so"));
}

TEST(ModuleTest, AnotherLibraryHasNoSuchFunction) {
    const std::string message = MessageOf([] {
        (void)OpenDoor<Door>({"kelvor-paint.so", "KelvorAbsent", "what paints"}, 1);
    });
    EXPECT_EQ(message, "what paints could not be loaded: it has no KelvorAbsent");
}

TEST(ModuleTest, AnotherVersionIsRefused) {
    const std::string message = MessageOf([] {
        (void)OpenDoor<Door>({"kelvor-paint.so", "KelvorScenePainter", "what paints"}, -1);
    });
    EXPECT_EQ(message, "what paints could not be loaded: kelvor-paint.so is of another version");
}

}  // namespace
}  // namespace kelvor::test
