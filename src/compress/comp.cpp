#include "compress/comp.h"

#include "compress/comp2.h"
#include "core/MainFrm.h"
#include "ui_comp.h"

namespace tessaro {

void showCompressor(Forms& forms) {
    forms.loaded<comp2>() != nullptr ? forms.show<comp2>() : forms.show<comp>();
}

comp::comp(Forms& forms, Program& program)
    : DropForm(forms, program, PackageTool::Compressor,
               {.caption = "UT File Compressor", .title = "File Compressor", .secondButton = true}),
      ui_(std::make_unique<Ui::compContent>()) {
    setUpForm(*ui_);
}

comp::~comp() = default;

// The form steps aside for its batch, which needs its list and unloads it in the end.
void comp::showBatch() {
    hide();
    forms().show<comp2>();
}

// A minimised main window would come up when the tool closes.
void comp::Unload() {
    auto* main = forms().loaded<MainFrm>();
    if (main != nullptr && main->isMinimized()) main->hide();
}

}  // namespace tessaro
