#pragma once

#include <memory>

#include "compress/dropform.h"

namespace Ui {
class compContent;
}

namespace tessaro::forms {

/// Collects the files to compress.
class comp : public DropForm {
  public:
    explicit comp(Forms& forms);
    ~comp() override;

    void Unload() override;

  private:
    void showBatch() override;

    std::unique_ptr<Ui::compContent> ui_;
};

}  // namespace tessaro::forms
