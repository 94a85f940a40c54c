#include "compress/decomp.h"

#include "compress/decomp2.h"
#include "ui_decomp.h"

namespace tessaro {

decomp::decomp(Forms& forms, Program& program)
    : DropForm(
          forms, program, PackageTool::Decompressor,
          {.caption = "UT File Decompressor", .title = "File Decompressor", .secondButton = true}),
      ui_(std::make_unique<Ui::decompContent>()) {
    setUpForm(*ui_);
    addDragHandle(*ui_->Label2);
}

decomp::~decomp() = default;

// The form stays in sight behind its batch.
void decomp::showBatch() {
    forms().showModal<decomp2>();
}

}  // namespace tessaro
