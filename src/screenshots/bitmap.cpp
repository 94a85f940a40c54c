#include "screenshots/bitmap.h"

#include <QBuffer>
#include <QImageIOHandler>
#include <QImageReader>
#include <cstdlib>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

constexpr qint64 bytesOfAPixel = 4;
constexpr qint64 mostHeaderBytes = 64 * 1024;

bool canBeShown(const QSize& size) {
    const qint64 width = size.width();
    const qint64 height = size.height();
    return width > 0 && height > 0 && width <= longestSide && height <= longestSide &&
           width * height <= mostPixels;
}

// The size that the header claims. The rows may stand from top to bottom, which it says by a
// negative height.
QSize claimedSize(const QImageReader& reader) {
    const QSize size = reader.size();
    return {size.width(), std::abs(size.height())};
}

// Reads into an image that is all black: Qt leaves the rows of which there are no bytes as they
// are.
bool readInto(QImage& image, QImageReader& reader) {
    const QSize size = claimedSize(reader);
    if (!canBeShown(size)) return false;
    if (!QImageIOHandler::allocateImage(size, reader.imageFormat(), &image)) return false;
    image.fill(0U);
    return reader.read(&image);
}

std::string readBytes(Files& files, const std::string& path) {
    if (files.fileLength(path) > mostPixels * bytesOfAPixel + mostHeaderBytes)
        throw RunTimeError(errors::InvalidPicture, path);
    return files.read(path);
}

}  // namespace

QPixmap readBitmap(Files& files, const std::string& path) {
    const std::string bytes = readBytes(files, path);
    QByteArray view = QByteArray::fromRawData(bytes.data(), static_cast<qsizetype>(bytes.size()));
    QBuffer buffer(&view);
    // Left to find the format out for itself, Qt loads every picture library of the system first.
    QImageReader reader(&buffer, QByteArrayLiteral("bmp"));
    reader.setAutoDetectImageFormat(false);
    QImage image;
    if (!readInto(image, reader)) throw RunTimeError(errors::InvalidPicture, path);
    return QPixmap::fromImage(std::move(image));
}

}  // namespace tessaro
