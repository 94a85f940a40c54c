#pragma once

#include <memory>

#include "compress/batchform.h"
#include "compress/compressbatch.h"

namespace Ui {
class comp2Content;
}

namespace tessaro {

/// Compresses the files that `comp` has collected.
class comp2 : public BatchForm {
  public:
    comp2(Forms& forms, Program& program);
    ~comp2() override;

    void Load() override;
    void Unload() override;

  private:
    void closeTool() override { closePressed(); }

    std::unique_ptr<Ui::comp2Content> ui_;
    CompressBatch batch_;
};

}  // namespace tessaro
