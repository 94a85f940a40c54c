#pragma once

#include "compress/droplist.h"
#include "kit/controls/listview.h"
#include "kit/frame/skinnedform.h"

namespace tessaro {

/// What the twin forms share on which the files of a batch are dropped.
class DropForm : public SkinnedForm {
  public:
    void Load() override;

    const ListItems& dropped() const { return dropped_; }

  protected:
    DropForm(Forms& forms, Program& program, PackageTool tool, const FrameOptions& options);

    /// Fills the form from its Designer file.
    template <class Ui>
    void setUpForm(Ui& ui) {
        setUpContent(ui);
        setUpList(*ui.ListView1, *ui.Command1, *ui.Command2);
    }
    /// Hands the list over to the form of the batch.
    virtual void showBatch() = 0;

  private:
    void setUpList(ListView& list, QPushButton& remove, QPushButton& start);
    void startBatch();

    Program& program_;
    PackageTool tool_;
    ListItems dropped_;
};

}  // namespace tessaro
