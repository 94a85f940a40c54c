#include "tools/samplegame/rng.h"

namespace tessaro::sample {

namespace {

constexpr std::size_t blockBytes = 1U << 20U;
constexpr std::uint32_t blockSalt = 0x5EEDB10CU;
// Five bits a byte: packed, it loses the third or more that a map loses.
constexpr std::uint32_t fillerBits = 0x1FU;

}  // namespace

Rng::Rng(std::uint32_t seed) : seed_(seed), engine_(seed) {}

std::uint32_t Rng::next() {
    return static_cast<std::uint32_t>(engine_());
}

std::uint32_t Rng::below(std::uint32_t limit) {
    return next() % limit;
}

std::uint32_t Rng::between(std::uint32_t least, std::uint32_t most) {
    return least + below(most - least + 1);
}

std::string Rng::filler(std::size_t size) {
    const std::string& source = block();
    std::size_t offset = below(static_cast<std::uint32_t>(source.size()));
    std::string bytes;
    bytes.reserve(size);
    while (bytes.size() < size) {
        bytes.append(source, offset, size - bytes.size());
        offset = 0;
    }
    return bytes;
}

// The block has an engine of its own: whether filler was asked for yet must not change the numbers
// that next() gives.
const std::string& Rng::block() {
    if (block_.empty()) {
        std::mt19937 engine(seed_ ^ blockSalt);
        block_.resize(blockBytes);
        for (std::size_t at = 0; at < blockBytes; at += 4) {
            const auto word = static_cast<std::uint32_t>(engine());
            for (std::size_t byte = 0; byte < 4; ++byte)
                block_[at + byte] = static_cast<char>(word >> (8 * byte) & fillerBits);
        }
    }
    return block_;
}

}  // namespace tessaro::sample
