#pragma once

#include <memory>

#include "compress/batchform.h"
#include "compress/decompressbatch.h"

namespace Ui {
class decomp2Content;
}

namespace tessaro {

/// Decompresses the files that `decomp` has collected.
class decomp2 : public BatchForm {
  public:
    decomp2(Forms& forms, Program& program);
    ~decomp2() override;

    void Load() override;

  private:
    void closeTool() override;

    std::unique_ptr<Ui::decomp2Content> ui_;
    DecompressBatch batch_;
};

}  // namespace tessaro
