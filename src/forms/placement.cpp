#include "forms/placement.h"

#include <QScreen>

#include "core/routines.h"
#include "forms/twips.h"

namespace tessaro::forms {
namespace {

Box boxOf(const QRect& rectangle) {
    return {twips(rectangle.left()), twips(rectangle.top()), twips(rectangle.width()),
            twips(rectangle.height())};
}

}  // namespace

void CenterForm(QWidget& form) {
    const QRect screen = form.screen()->geometry();
    const Box placed = centeredOn(boxOf(screen), boxOf(form.frameGeometry()));
    form.move(screen.topLeft() + QPoint(pixels(placed.left), pixels(placed.top)));
}

}  // namespace tessaro::forms
