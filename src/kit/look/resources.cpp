#include "kit/look/resources.h"

#include <QDir>

// Outside every namespace, as the macro declares a function of the resource compiler.
static void initResources() {
    Q_INIT_RESOURCE(tessaro);
}

namespace tessaro {

void loadResources() {
    static const bool loaded = (initResources(), true);
    (void)loaded;
}

}  // namespace tessaro
