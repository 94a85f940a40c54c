#pragma once

#include <cstdint>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <map>
#include <random>
#include <string>

#include "tools/samplegame/samplegame.h"

namespace tessaro::sample {

/// A sample in a temporary folder, which goes when this does.
class SampleFolder {
  public:
    explicit SampleFolder(const Options& options = {})
        : root_(std::filesystem::temp_directory_path() /
                ("sample-game-" + std::to_string(std::random_device{}()))),
          layout_(buildSampleGame(root_, options)) {}
    ~SampleFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(root_, ignored);
    }
    SampleFolder(const SampleFolder&) = delete;
    SampleFolder& operator=(const SampleFolder&) = delete;

    const std::filesystem::path& root() const { return root_; }
    const Layout& layout() const { return layout_; }

  private:
    std::filesystem::path root_;
    Layout layout_;
};

/// One sample for all tests that only look.
inline const SampleFolder& sharedSample() {
    static const SampleFolder sample;
    return sample;
}

inline std::string bytesOf(const std::filesystem::path& file) {
    std::ifstream stream(file, std::ios::binary);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The number of `count` bytes at `offset`, least significant first.
inline std::uint32_t numberAt(const std::string& bytes, std::size_t offset, std::size_t count) {
    std::uint32_t number = 0;
    for (std::size_t i = count; i > 0; --i)
        number = number << 8U | static_cast<unsigned char>(bytes.at(offset + i - 1));
    return number;
}

/// Contents of all files under `root`, by relative path.
inline std::map<std::filesystem::path, std::string> contentsOf(const std::filesystem::path& root) {
    std::map<std::filesystem::path, std::string> contents;
    for (const auto& entry : std::filesystem::recursive_directory_iterator(root)) {
        if (entry.is_regular_file())
            contents[entry.path().lexically_relative(root)] = bytesOf(entry.path());
    }
    return contents;
}

}  // namespace tessaro::sample
