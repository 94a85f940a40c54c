#include "kit/forms/programend.h"

#include <QCoreApplication>

namespace tessaro::forms {

void ProgramEnd::end() {
    ended_ = true;
    QCoreApplication::exit(0);
}

}  // namespace tessaro::forms
