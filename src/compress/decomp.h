#pragma once

#include <memory>

#include "compress/dropform.h"

namespace Ui {
class decompContent;
}

namespace tessaro {

/// Collects the files to decompress.
class decomp : public DropForm {
  public:
    decomp(Forms& forms, Program& program);
    ~decomp() override;

  private:
    void showBatch() override;

    std::unique_ptr<Ui::decompContent> ui_;
};

}  // namespace tessaro
