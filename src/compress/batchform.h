#pragma once

#include <QLineEdit>
#include <QProgressBar>
#include <functional>
#include <initializer_list>

#include "compress/batch.h"
#include "kit/controls/listview.h"
#include "kit/frame/skinnedform.h"
#include "kit/look/busypointer.h"

namespace tessaro {

/// What the twin forms of the batches share: the state of a run on the screen.
class BatchForm : public SkinnedForm, protected BatchObserver {
  public:
    /// Keeps the form while a batch runs: there is no way to stop one.
    bool QueryUnload() override { return isEnabled(); }

  protected:
    BatchForm(Forms& forms, Program& program, const FrameOptions& options)
        : SkinnedForm(forms, options), program_(program) {}

    /// Fills the form from its Designer file and shows a batch's two lists on it.
    template <class Ui, class Batch>
    void setUpBatch(Ui& ui, Batch& batch) {
        setUpContent(ui);
        Text1_ = ui.Text1;
        Text2_ = ui.Text2;
        ProgressBar1_ = ui.ProgressBar1;
        Command2_ = ui.Command2;
        setUpLists({{ui.ListView1, &batch.ListView1}, {ui.ListView2, &batch.ListView2}});
        setUpButtons(*ui.Command3, [&batch] { batch.run(); });
    }
    /// What the Load of both forms does.
    void fillBatch(const ListItems& dropped, ListItems& batch, const std::string& destination);

    void setRunning(bool running) override;
    bool abandoned() override { return !stillLoaded(); }
    void showExisting(int count) override;
    void showProgress(int position) override;

    Program& program_;

  private:
    struct List {
        ListView* view;
        ListItems* items;
    };
    void setUpLists(std::initializer_list<List> lists);
    void setUpButtons(QPushButton& close, const std::function<void()>& run);

    BusyPointer pointer_;
    QLineEdit* Text1_ = nullptr;
    QLineEdit* Text2_ = nullptr;
    QProgressBar* ProgressBar1_ = nullptr;
    QPushButton* Command2_ = nullptr;
};

}  // namespace tessaro
