#include "compress/comp2.h"

#include "compress/comp.h"
#include "ui_comp2.h"

namespace tessaro {

comp2::comp2(Forms& forms, Program& program)
    : BatchForm(forms, program, {.caption = "UT File Compressor", .title = "File Compressor"}),
      ui_(std::make_unique<Ui::comp2Content>()),
      batch_(program, *this, Ucc(program)) {
    setUpBatch(*ui_, batch_);
}

comp2::~comp2() = default;

void comp2::Load() {
    fillBatch(forms().get<comp>().dropped(), batch_.ListView1, program_.CompressDest);
}

// Every way out of the batch ends the whole tool.
void comp2::Unload() {
    if (auto* list = forms().loaded<comp>()) forms().unload(*list);
}

}  // namespace tessaro
