#include "compress/batchform.h"

#include "core/centerform.h"
#include "kit/forms/handler.h"
#include "kit/look/text.h"
#include "shell/Skins.h"

namespace tessaro {

void BatchForm::setUpLists(std::initializer_list<List> lists) {
    for (const List& list : lists) list.view->show(*list.items);
}

void BatchForm::setUpButtons(QPushButton& close, const std::function<void()>& run) {
    on(Command2_, &QPushButton::clicked, forms(), run);
    on(&close, &QPushButton::clicked, forms(), [this] { closePressed(); });
}

void BatchForm::fillBatch(const ListItems& dropped, ListItems& batch,
                          const std::string& destination) {
    CenterForm(*this);
    PrepareForm(*this);
    ApplySkin(program_, forms(), *this);
    Text1_->setText(toQt(destination));
    loadBatch(program_, dropped, batch);
    program_.events.pump();
    if (batch.count() > 0) ProgressBar1_->setMaximum(static_cast<int>(batch.count()));
}

void BatchForm::setRunning(bool running) {
    pointer_.show(running);
    setEnabled(!running);
    if (!running) Command2_->setFocus();
}

void BatchForm::showExisting(int count) {
    Text2_->setText(QString::number(count));
}

void BatchForm::showProgress(int position) {
    ProgressBar1_->setValue(position);
}

}  // namespace tessaro
