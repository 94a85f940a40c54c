#include "kit/look/pictures.h"

#include <QFile>
#include <QGuiApplication>
#include <QImageReader>

// Outside every namespace, as the macro declares a function of the resource compiler.
static void initResources() {
    Q_INIT_RESOURCE(tessaro);
}

namespace tessaro {
namespace {

QPixmap readPng(const QString& file) {
    QImageReader reader(file, QByteArrayLiteral("png"));
    reader.setAutoDetectImageFormat(false);
    return QPixmap::fromImageReader(&reader);
}

}  // namespace

void loadResources() {
    static const bool loaded = (initResources(), true);
    (void)loaded;
}

QPixmap programPicture(const QString& file) {
    loadResources();
    const QString finer = QString(file).replace(QStringLiteral(".png"), QStringLiteral("@2x.png"));
    if (qGuiApp->devicePixelRatio() <= 1 || !QFile::exists(finer)) return readPng(file);
    QPixmap picture = readPng(finer);
    picture.setDevicePixelRatio(2);
    return picture;
}

}  // namespace tessaro
