#include "screenshots/shotlist.h"

#include <utility>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"
#include "platform/text/utf8.h"

namespace tessaro {

bool isScreenshotName(std::string_view name) {
    return lowerCase(left(name, 4)) == "shot" && lowerCase(right(name, 3)) == "bmp";
}

std::string ShotList::selectedName() const {
    return index_ == noSelection ? std::string() : names_[static_cast<std::size_t>(index_)];
}

bool ShotList::select(int index) {
    if (index < noSelection || index >= count()) throw RunTimeError(errors::InvalidPropertyValue);
    return std::exchange(index_, index) != index;
}

void ShotList::removeSelected() {
    names_.erase(names_.begin() + index_);
    index_ = noSelection;
}

}  // namespace tessaro
