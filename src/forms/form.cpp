#include "forms/form.h"

#include "forms/forms.h"
#include "forms/handler.h"

namespace tessaro::forms {

void Form::closeByUser() {
    guarded(forms_, [this] { forms_.close(*this); });
}

bool Form::stillLoaded() const {
    return forms_.isLoaded(*this);
}

}  // namespace tessaro::forms
