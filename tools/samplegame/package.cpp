#include "tools/samplegame/package.h"

#include "tools/samplegame/littleendian.h"

#include <cstdio>
#include <stdexcept>

namespace tessaro::sample {

namespace {

constexpr std::uint32_t magic = 0x9E2A83C1U;
constexpr std::uint32_t version = 69;
// "May be downloaded", which every package in a cache must be.
constexpr std::uint32_t allowDownload = 1;
constexpr int tables = 3;

void appendEmptyTable(std::string& bytes) {
    appendLittleEndian(bytes, 0, 4);
    appendLittleEndian(bytes, packageHeaderBytes, 4);
}

std::string header(const Guid& guid) {
    std::string bytes;
    appendLittleEndian(bytes, magic, 4);
    appendLittleEndian(bytes, version, 2);
    appendLittleEndian(bytes, 0, 2);
    appendLittleEndian(bytes, allowDownload, 4);
    for (int table = 0; table < tables; ++table) appendEmptyTable(bytes);
    for (const std::uint32_t part : guid.parts) appendLittleEndian(bytes, part, 4);
    appendLittleEndian(bytes, 1, 4);
    appendLittleEndian(bytes, 0, 4);
    appendLittleEndian(bytes, 0, 4);
    return bytes;
}

}  // namespace

Guid Guid::random(Rng& rng) {
    Guid guid;
    for (std::uint32_t& part : guid.parts) part = rng.next();
    return guid;
}

std::string Guid::text() const {
    std::string digits;
    for (const std::uint32_t part : parts) {
        std::array<char, 9> word{};
        std::snprintf(word.data(), word.size(), "%08X", static_cast<unsigned>(part));
        digits += word.data();
    }
    return digits;
}

std::string packageBytes(const Guid& guid, std::size_t size, Rng& rng) {
    if (size < packageHeaderBytes)
        throw std::invalid_argument("a package needs room for its header of 64 bytes");
    return header(guid) + rng.filler(size - packageHeaderBytes);
}

}  // namespace tessaro::sample
