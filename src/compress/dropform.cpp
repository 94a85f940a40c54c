#include "compress/dropform.h"

#include "core/centerform.h"
#include "kit/controls/filedrop.h"
#include "kit/forms/handler.h"
#include "shell/Skins.h"

namespace tessaro {

DropForm::DropForm(Forms& forms, Program& program, PackageTool tool, const FrameOptions& options)
    : SkinnedForm(forms, options), program_(program), tool_(tool), dropped_(makeDropList()) {}

void DropForm::setUpList(ListView& list, QPushButton& remove, QPushButton& start) {
    list.show(dropped_);
    new FileDrop(forms(), program_.paths, list, [this](const std::vector<std::string>& paths) {
        dropFiles(program_, tool_, dropped_, paths);
    });
    on(&remove, &QPushButton::clicked, forms(), [this] { removeSelected(dropped_); });
    on(&start, &QPushButton::clicked, forms(), [this] { startBatch(); });
}

void DropForm::Load() {
    CenterForm(*this);
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
}

void DropForm::startBatch() {
    if (askDestination(program_, tool_, dropped_)) showBatch();
}

}  // namespace tessaro
