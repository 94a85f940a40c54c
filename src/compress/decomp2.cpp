#include "compress/decomp2.h"

#include "compress/decomp.h"
#include "kit/forms/handler.h"
#include "ui_decomp2.h"

namespace tessaro {

decomp2::decomp2(Forms& forms, Program& program)
    : BatchForm(forms, program, {.caption = "UT File Deompressor", .title = "File Decompressor"}),
      ui_(std::make_unique<Ui::decomp2Content>()),
      batch_(program, *this, Ucc(program)) {
    setUpBatch(*ui_, batch_);
    on(ui_->Check1, &QCheckBox::toggled, forms,
       [this](bool checked) { batch_.overwriteExisting = checked; });
}

decomp2::~decomp2() = default;

void decomp2::Load() {
    fillBatch(forms().get<decomp>().dropped(), batch_.ListView1, program_.DecompressDest);
}

void decomp2::closeTool() {
    if (auto* list = forms().loaded<decomp>()) forms().unload(*list);
    closePressed();
}

}  // namespace tessaro
