#pragma once

#include <QDialog>
#include <QPixmap>
#include <QTimer>
#include <memory>

#include "core/program.h"
#include "kit/forms/form.h"

namespace Ui {
class splash;
}

namespace tessaro {

/// The start-up screen. It goes by itself after three seconds, or at a left click or one of the
/// keys that press a button: Enter, Esc and the space bar.
class splash : public FormWindow<QDialog> {
    Q_OBJECT

  public:
    splash(Forms& forms, Program& program);
    ~splash() override;

    void Load() override;

    clsINI INI;

  protected:
    void paintEvent(QPaintEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

  private:
    void acknowledge();
    void timeOut();

    Program& program_;
    std::unique_ptr<Ui::splash> ui_;
    QTimer Timer1;
    QPixmap picture_;
};

}  // namespace tessaro
