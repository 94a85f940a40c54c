#include "kit/forms/programend.h"

#include <QCoreApplication>

namespace tessaro {

void ProgramEnd::end() {
    ended_ = true;
    QCoreApplication::exit(0);
}

void ProgramEnd::desert() {
    deserted_ = true;
    QCoreApplication::exit(0);
}

}  // namespace tessaro
