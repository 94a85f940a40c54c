#pragma once

#include <memory>

#include "compress/batchform.h"
#include "compress/decompressbatch.h"

namespace Ui {
class decomp2Content;
}

namespace tessaro::forms {

/// Decompresses the files that `decomp` has collected.
class decomp2 : public BatchForm {
  public:
    explicit decomp2(Forms& forms);
    ~decomp2() override;

    void Load() override;

  private:
    void closeTool() override;

    std::unique_ptr<Ui::decomp2Content> ui_;
    DecompressBatch batch_;
};

}  // namespace tessaro::forms
