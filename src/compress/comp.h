#pragma once

#include <memory>

#include "compress/dropform.h"

namespace Ui {
class compContent;
}

namespace tessaro {

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
