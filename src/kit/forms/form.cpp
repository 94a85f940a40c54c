#include "kit/forms/form.h"

#include "kit/forms/forms.h"
#include "kit/forms/handler.h"

namespace tessaro {

void Form::closeByUser() {
    guarded(forms_, [this] { forms_.close(*this); });
}

bool Form::stillLoaded() const {
    return forms_.isLoaded(*this);
}

}  // namespace tessaro
