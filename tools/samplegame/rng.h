#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <string>

namespace tessaro::sample {

/// Seeded numbers that come out the same under every compiler. The standard library's
/// distributions are left alone because each library may define them its own way.
class Rng {
  public:
    explicit Rng(std::uint32_t seed);

    /// Any 32-bit number.
    std::uint32_t next();

    /// A number from 0 up to, but not including, `limit`, which must not be 0.
    std::uint32_t below(std::uint32_t limit);

    /// A number from `least` up to and including `most`.
    std::uint32_t between(std::uint32_t least, std::uint32_t most);

    /// `size` bytes without meaning, cut from one prepared block, so that megabytes cost no more
    /// than a copy.
    std::string filler(std::size_t size);

  private:
    const std::string& block();

    std::uint32_t seed_;
    std::mt19937 engine_;
    std::string block_;
};

}  // namespace tessaro::sample
