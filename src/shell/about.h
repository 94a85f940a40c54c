#pragma once

#include <QTimer>
#include <memory>

#include "core/program.h"
#include "kit/frame/skinnedform.h"
#include "shell/credits.h"

namespace Ui {
class aboutContent;
}

namespace tessaro {

/// The about box: credits that roll without end. The main window takes no input while it is there.
class about : public SkinnedForm {
    Q_OBJECT

  public:
    about(Forms& forms, Program& program);
    ~about() override;

    void Load() override;
    void Unload() override;

  private:
    void enableMainWindow(bool enable);
    void writeCredits();
    void tick();
    void placeCredits();
    int scaled(int twips) const;

    Program& program_;
    std::unique_ptr<Ui::aboutContent> ui_;
    QTimer Timer1;
    OSVersionInfo version_;
    CreditsRoll roll_;
    double zoom_ = 1;  // more where a large font needs the room
};

}  // namespace tessaro
