#pragma once

#include <memory>

#include "compress/dropform.h"

namespace Ui {
class decompContent;
}

namespace tessaro::forms {

/// Collects the files to decompress.
class decomp : public DropForm {
  public:
    explicit decomp(Forms& forms);
    ~decomp() override;

  private:
    void showBatch() override;

    std::unique_ptr<Ui::decompContent> ui_;
};

}  // namespace tessaro::forms
