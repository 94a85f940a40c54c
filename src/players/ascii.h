#pragma once

#include <memory>

#include "core/program.h"
#include "kit/frame/skinnedform.h"

namespace Ui {
class asciiContent;
}

namespace tessaro {

/// The character chart: spells words out of the characters of the 8-bit code page.
class ascii : public SkinnedForm {
    Q_OBJECT

  public:
    ascii(Forms& forms, Program& program);
    ~ascii() override;

    void Load() override;

  protected:
    void mouseDoubleClickEvent(QMouseEvent* event) override;

  private:
    void setupChart();
    void setupHelp();
    void showPicked();
    void addPicked();
    void showHelp();

    std::unique_ptr<Ui::asciiContent> ui_;
    Program& program_;
};

}  // namespace tessaro
