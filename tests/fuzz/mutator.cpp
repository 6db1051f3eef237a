#include "mutator.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <random>

namespace kelvor::test {

namespace {

constexpr std::size_t kPage = 4096;
constexpr std::size_t kHeader = 100;

/// Numbers that are the same on every machine.
class Random {
  public:
    explicit Random(std::uint64_t seed) : engine_(seed) {}

    /// A number below `bound`, which is above 0.
    std::size_t Below(std::size_t bound) { return static_cast<std::size_t>(engine_() % bound); }
    char Byte() { return static_cast<char>(Below(256)); }

  private:
    std::mt19937_64 engine_;
};

/// Pages of a database, small pieces of a text.
std::size_t BlockSize(const std::string& content) {
    return content.size() >= 2 * kPage ? kPage : std::max<std::size_t>(content.size() / 8, 1);
}

void FlipBytes(std::string& content, Random& random) {
    const std::size_t count = 1 + random.Below(16);
    for (std::size_t i = 0; i < count; ++i) {
        const auto bits = static_cast<unsigned char>(1 + random.Below(255));
        char& byte = content[random.Below(content.size())];
        byte = static_cast<char>(static_cast<unsigned char>(byte) ^ bits);
    }
}

void SwapBlocks(std::string& content, Random& random) {
    const std::size_t size = BlockSize(content);
    const std::size_t blocks = content.size() / size;
    const std::size_t a = random.Below(blocks) * size;
    const std::size_t b = random.Below(blocks) * size;
    std::swap_ranges(content.begin() + static_cast<std::ptrdiff_t>(std::min(a, b)),
                     content.begin() + static_cast<std::ptrdiff_t>(std::min(a, b) + (a == b ? 0 : size)),
                     content.begin() + static_cast<std::ptrdiff_t>(std::max(a, b)));
}

void InsertBlock(std::string& content, Random& random) {
    const std::size_t size = BlockSize(content);
    const std::size_t blocks = content.size() / size;
    std::string block(size, '\0');
    switch (random.Below(3)) {
        case 0:
            if (blocks > 0) block = content.substr(random.Below(blocks) * size, size);
            break;
        case 1:
            for (char& byte : block) byte = random.Byte();
            break;
        default:
            break;
    }
    content.insert(random.Below(blocks + 1) * size, block);
}

void ChangeHeader(std::string& content, Random& random) {
    static constexpr std::array<std::uint64_t, 8> kValues = {0,      1,      0x7F,       0x80,
                                                             0xFFFF, 0x8000, 0x7FFFFFFF, 0xFFFFFFFFFFFFFFFF};
    const std::size_t header = std::min(kHeader, content.size());
    const std::size_t width = std::min<std::size_t>(std::size_t{1} << random.Below(4), header);
    const std::size_t place = random.Below(header - width + 1);
    const std::uint64_t value =
        random.Below(3) == 0 ? random.Below(0xFFFFFFFF) : kValues[random.Below(kValues.size())];
    for (std::size_t i = 0; i < width; ++i) {
        content[place + i] = static_cast<char>(value >> (8 * (width - 1 - i)) & 0xFF);
    }
}

void Apply(std::string& content, Mutation mutation, Random& random) {
    if (content.empty()) mutation = Mutation::InsertBlock;
    switch (mutation) {
        case Mutation::FlipBytes:
            return FlipBytes(content, random);
        case Mutation::Truncate:
            return content.resize(random.Below(content.size()));
        case Mutation::SwapBlocks:
            return SwapBlocks(content, random);
        case Mutation::InsertBlock:
            return InsertBlock(content, random);
        case Mutation::ChangeHeader:
            return ChangeHeader(content, random);
    }
}

}  // namespace

const char* NameOf(Mutation mutation) {
    switch (mutation) {
        case Mutation::FlipBytes:
            return "flip";
        case Mutation::Truncate:
            return "truncate";
        case Mutation::SwapBlocks:
            return "swap";
        case Mutation::InsertBlock:
            return "insert";
        case Mutation::ChangeHeader:
            return "header";
    }
    return "";
}

std::string Mutate(const std::string& good, Mutation mutation, unsigned number) {
    Random random(std::uint64_t{number} * kMutations.size() + static_cast<std::uint64_t>(mutation));
    std::string mutant = good;
    // Equal blocks that change places, or a field that has the value already, are no mutation.
    for (int tries = 0; mutant == good && tries < 100; ++tries) Apply(mutant, mutation, random);
    if (mutant == good) InsertBlock(mutant, random);
    return mutant;
}

}  // namespace kelvor::test
