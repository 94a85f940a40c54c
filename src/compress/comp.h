#pragma once

#include <memory>

#include "compress/dropform.h"

namespace Ui {
class compContent;
}

namespace tessaro {

/// Opens the compressor: its batch comes to the front while there is one, since a second choice of
/// files and folder would change the destination under its feet.
void showCompressor(Forms& forms);

/// Collects the files to compress.
class comp : public DropForm {
  public:
    comp(Forms& forms, Program& program);
    ~comp() override;

    void Unload() override;

  private:
    void showBatch() override;

    std::unique_ptr<Ui::compContent> ui_;
};

}  // namespace tessaro
