#include "core/centerform.h"

#include <QScreen>

#include "core/routines.h"
#include "kit/frame/placement.h"
#include "kit/look/twips.h"

namespace tessaro {
namespace {

Box boxOf(const QRect& rectangle) {
    return {twips(rectangle.left()), twips(rectangle.top()), twips(rectangle.width()),
            twips(rectangle.height())};
}

}  // namespace

void CenterForm(QWidget& form) {
    const QRect screen = form.screen()->geometry();
    const QRect frame = form.frameGeometry();
    const Box placed = centeredOn(boxOf(screen), boxOf(frame));
    const QPoint corner = screen.topLeft() + QPoint(pixels(placed.left), pixels(placed.top));
    // On a small screen the formula would put the top out of reach.
    form.move(fittedInto(screen, QRect(corner, frame.size())).topLeft());
}

}  // namespace tessaro
