#include "tools/ucc/uzfile.h"

#include <zlib.h>

#include <array>
#include <cstdint>
#include <stdexcept>

namespace tessaro::ucc {

namespace {

constexpr std::uint32_t Signature = 1234;
constexpr std::size_t SignatureSize = 4;
constexpr std::size_t BufferSize = 64 * 1024;

// A compact index has 6 bits in its first byte, 7 in each further one, lowest first. Bit 6 of the
// first byte and bit 7 of the others tell that there is more; bit 7 of the first is the sign.
constexpr std::uint32_t FirstBits = 0x3F;
constexpr std::uint32_t FirstMore = 0x40;
constexpr std::uint32_t Negative = 0x80;
constexpr std::uint32_t NextBits = 0x7F;
constexpr std::uint32_t NextMore = 0x80;
constexpr unsigned MostShift = 27;

const Bytef* asBytes(std::string_view text) {
    return reinterpret_cast<const Bytef*>(text.data());
}

void appendCompactIndex(std::string& bytes, std::uint32_t value) {
    std::uint32_t rest = value >> 6U;
    bytes += static_cast<char>((value & FirstBits) | (rest != 0 ? FirstMore : 0));
    while (rest != 0) {
        const std::uint32_t more = rest >> 7U;
        bytes += static_cast<char>((rest & NextBits) | (more != 0 ? NextMore : 0));
        rest = more;
    }
}

std::string deflated(std::string_view bytes) {
    const auto whole = static_cast<uLong>(bytes.size());
    uLongf size = ::compressBound(whole);
    std::string packed(size, '\0');
    const int result =
        ::compress(reinterpret_cast<Bytef*>(packed.data()), &size, asBytes(bytes), whole);
    if (result != Z_OK) throw std::runtime_error("out of memory");
    packed.resize(size);
    return packed;
}

class Inflater {
  public:
    explicit Inflater(std::string_view packed) {
        stream_.next_in = const_cast<Bytef*>(asBytes(packed));  // zlib only reads there
        stream_.avail_in = static_cast<uInt>(packed.size());
        if (::inflateInit(&stream_) != Z_OK) throw std::runtime_error("out of memory");
    }
    Inflater(const Inflater&) = delete;
    Inflater& operator=(const Inflater&) = delete;
    ~Inflater() { ::inflateEnd(&stream_); }

    std::string all() {
        std::string bytes;
        std::array<char, BufferSize> buffer;
        for (int result = Z_OK; result != Z_STREAM_END;) {
            stream_.next_out = reinterpret_cast<Bytef*>(buffer.data());
            stream_.avail_out = static_cast<uInt>(buffer.size());
            result = ::inflate(&stream_, Z_NO_FLUSH);
            // An end of the input before that of the stream shows as Z_BUF_ERROR.
            if (result < 0 || result == Z_NEED_DICT) throw std::runtime_error("damaged file");
            bytes.append(buffer.data(), buffer.size() - stream_.avail_out);
        }
        return bytes;
    }

  private:
    z_stream stream_ = {};
};

// Reads the part of the file that is as the game's own.
class HeaderReader {
  public:
    explicit HeaderReader(std::string_view file) : rest_(file) {}

    std::string_view rest() const { return rest_; }

    void signature() {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < SignatureSize; ++i) value |= byte() << (8 * i);
        if (value != Signature) throw std::runtime_error("not a compressed package");
    }

    std::string name() {
        const std::uint32_t size = compactIndex();
        if (size == 0 || size > rest_.size() || rest_[size - 1] != '\0')
            throw std::runtime_error("damaged file");
        const std::string text(rest_.substr(0, size - 1));
        rest_.remove_prefix(size);
        return text;
    }

  private:
    std::uint32_t byte() {
        if (rest_.empty()) throw std::runtime_error("file too short");
        const auto value = static_cast<unsigned char>(rest_.front());
        rest_.remove_prefix(1);
        return value;
    }

    std::uint32_t compactIndex() {
        std::uint32_t next = byte();
        if ((next & Negative) != 0) throw std::runtime_error("damaged file");
        std::uint32_t value = next & FirstBits;
        bool more = (next & FirstMore) != 0;
        for (unsigned shift = 6; more && shift <= MostShift; shift += 7) {
            next = byte();
            value |= (next & NextBits) << shift;
            more = (next & NextMore) != 0;
        }
        return value;
    }

    std::string_view rest_;
};

}  // namespace

std::string compressed(const Package& package) {
    std::string file;
    for (std::size_t i = 0; i < SignatureSize; ++i)
        file += static_cast<char>(Signature >> (8 * i) & 0xFFU);
    appendCompactIndex(file, static_cast<std::uint32_t>(package.name.size() + 1));
    file.append(package.name).push_back('\0');
    return file + deflated(package.bytes);
}

Package decompressed(std::string_view file) {
    HeaderReader header(file);
    header.signature();
    Package package;
    package.name = header.name();
    package.bytes = Inflater(header.rest()).all();
    return package;
}

}  // namespace tessaro::ucc
