#include "tools/samplegame/bitmap.h"

#include "tools/samplegame/littleendian.h"

#include <algorithm>
#include <cstddef>
#include <stdexcept>
#include <vector>

namespace tessaro::sample {

namespace {

struct Colour {
    int red = 0;
    int green = 0;
    int blue = 0;
};

struct Picture {
    int width;
    int height;
    std::vector<Colour> pixels;  // top row first

    Colour& at(int x, int y) {
        return pixels[static_cast<std::size_t>(y) * static_cast<std::size_t>(width) +
                      static_cast<std::size_t>(x)];
    }
};

constexpr std::uint32_t fileHeaderBytes = 14;
constexpr std::uint32_t infoHeaderBytes = 40;
constexpr std::uint32_t pixelsPerMetre = 2835;  // 72 to the inch
constexpr int tileColumns = 12;

int pick(Rng& rng, int least, int most) {
    return static_cast<int>(
        rng.between(static_cast<std::uint32_t>(least), static_cast<std::uint32_t>(most)));
}

Colour mix(Colour from, Colour to, int part, int whole) {
    const auto one = [&](int a, int b) { return a + (b - a) * part / whole; };
    return {one(from.red, to.red), one(from.green, to.green), one(from.blue, to.blue)};
}

Colour darkColour(Rng& rng, int most) {
    return {pick(rng, 10, most), pick(rng, 10, most), pick(rng, 10, most)};
}

void paintSky(Picture& picture, int horizon, Rng& rng) {
    const Colour top = darkColour(rng, 40);
    const Colour bottom = darkColour(rng, 130);
    for (int y = 0; y < horizon; ++y) {
        const Colour row = mix(top, bottom, y, horizon);
        std::fill_n(&picture.at(0, y), picture.width, row);
    }
}

// Tiles shrink towards the horizon, in whole numbers so that every machine paints the same.
void paintFloor(Picture& picture, int horizon, Rng& rng) {
    const Colour light = darkColour(rng, 110);
    const Colour dark = mix(Colour{}, light, 1, 2);
    const int depth = picture.height - horizon;
    for (int y = horizon; y < picture.height; ++y) {
        const int near = y - horizon + 1;
        const int row = 8 * depth / near;
        for (int x = 0; x < picture.width; ++x) {
            const int fromMiddle = (x - picture.width / 2) * depth / near;
            const int column = (fromMiddle + 64 * picture.width) * tileColumns / picture.width;
            picture.at(x, y) = (row + column) % 2 == 0 ? light : dark;
        }
    }
}

void paintPillar(Picture& picture, int horizon, Rng& rng) {
    const int width = std::max(1, picture.width / pick(rng, 14, 30));
    const int left = pick(rng, 0, picture.width - width);
    const int foot = horizon + (picture.height - horizon) / pick(rng, 2, 6);
    const Colour lit = darkColour(rng, 160);
    for (int x = 0; x < width; ++x) {
        const Colour shade = mix(lit, Colour{}, x, width);
        for (int y = horizon / 4; y < foot; ++y) picture.at(left + x, y) = shade;
    }
}

void paintLamp(Picture& picture, int horizon, Rng& rng) {
    const int radius = std::max(1, std::min(picture.width, horizon) / pick(rng, 8, 14));
    const int middleX = pick(rng, 0, picture.width - 1);
    const int middleY = horizon / 3;
    const Colour glow{250, pick(rng, 180, 240), pick(rng, 90, 180)};
    for (int y = std::max(0, middleY - radius); y < std::min(horizon, middleY + radius); ++y) {
        for (int x = std::max(0, middleX - radius); x < std::min(picture.width, middleX + radius);
             ++x) {
            const int away = (x - middleX) * (x - middleX) + (y - middleY) * (y - middleY);
            if (away < radius * radius)
                picture.at(x, y) = mix(glow, picture.at(x, y), away, radius * radius);
        }
    }
}

Picture paint(int width, int height, Rng& rng) {
    const auto count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    Picture picture{width, height, std::vector<Colour>(count)};
    const int horizon = height * pick(rng, 45, 60) / 100;
    paintSky(picture, horizon, rng);
    paintLamp(picture, horizon, rng);
    paintFloor(picture, horizon, rng);
    for (int pillars = pick(rng, 4, 7); pillars > 0; --pillars) paintPillar(picture, horizon, rng);
    return picture;
}

void appendHeaders(std::string& bytes, const Picture& picture, std::uint32_t pixelBytes) {
    constexpr std::uint32_t headerBytes = fileHeaderBytes + infoHeaderBytes;
    bytes += "BM";
    appendLittleEndian(bytes, headerBytes + pixelBytes, 4);
    appendLittleEndian(bytes, 0, 4);
    appendLittleEndian(bytes, headerBytes, 4);
    appendLittleEndian(bytes, infoHeaderBytes, 4);
    appendLittleEndian(bytes, static_cast<std::uint32_t>(picture.width), 4);
    appendLittleEndian(bytes, static_cast<std::uint32_t>(picture.height), 4);
    appendLittleEndian(bytes, 1, 2);   // planes
    appendLittleEndian(bytes, 24, 2);  // bits per pixel
    appendLittleEndian(bytes, 0, 4);   // no compression
    appendLittleEndian(bytes, pixelBytes, 4);
    appendLittleEndian(bytes, pixelsPerMetre, 4);
    appendLittleEndian(bytes, pixelsPerMetre, 4);
    appendLittleEndian(bytes, 0, 4);  // no palette
    appendLittleEndian(bytes, 0, 4);
}

void appendRow(std::string& bytes, Picture& picture, int y, std::size_t rowBytes) {
    const std::size_t end = bytes.size() + rowBytes;
    for (int x = 0; x < picture.width; ++x) {
        const Colour& colour = picture.at(x, y);
        bytes.push_back(static_cast<char>(colour.blue));
        bytes.push_back(static_cast<char>(colour.green));
        bytes.push_back(static_cast<char>(colour.red));
    }
    bytes.resize(end, '\0');
}

}  // namespace

std::string screenshotBmp(int width, int height, Rng& rng) {
    if (width < 1 || height < 1)
        throw std::invalid_argument("a picture needs a width and a height");
    Picture picture = paint(width, height, rng);
    const std::size_t rowBytes = (static_cast<std::size_t>(width) * 3 + 3) / 4 * 4;
    const std::size_t pixelBytes = rowBytes * static_cast<std::size_t>(height);
    std::string bytes;
    bytes.reserve(fileHeaderBytes + infoHeaderBytes + pixelBytes);
    appendHeaders(bytes, picture, static_cast<std::uint32_t>(pixelBytes));
    for (int y = height - 1; y >= 0; --y) appendRow(bytes, picture, y, rowBytes);
    return bytes;
}

}  // namespace tessaro::sample
