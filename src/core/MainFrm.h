#pragma once

#include <QMainWindow>
#include <memory>

#include "core/mainparts.h"
#include "core/mainwindow.h"
#include "kit/forms/form.h"

namespace Ui {
class MainFrm;
}

namespace tessaro {

class clsSysTray;

/// The main window: menus, background picture, status bar. Its Load is the program's start, its
/// Unload the program's end.
class MainFrm : public FormWindow<QMainWindow>, public MainWindow {
    Q_OBJECT

  public:
    MainFrm(Forms& forms, Program& program, MainParts& parts);
    ~MainFrm() override;

    void Load() override;
    void Unload() override;

    void center() override;
    void setState(int state) override;
    int state() override;
    void showSplash() override;
    std::string loadFolderToCheck() override;
    void showPrefs() override;
    void unloadAllForms() override;

    /// Ends the program as its menu items do.
    void exitProgram();
    /// Where the program lives from now on: mode 0 in the task bar, mode 1 in the tray, any other
    /// mode changes nothing. Nothing calls it at present.
    void SetRunType(int mode);

    clsINI INI;
    std::shared_ptr<clsSysTray> gSysTray;  ///< empty until `SetRunType` has run

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void fitToFrame();
    void handleResize();

    Program& program_;
    MainParts& parts_;
    std::unique_ptr<Ui::MainFrm> ui_;
    bool leaving_ = false;                  // Unload runs
    int sizedState_ = windowstate::Normal;  // the state to which the window's size belongs
    bool sizeToCome_ = false;               // of a new state, which has been handled already
};

}  // namespace tessaro
