#pragma once

#include <QMainWindow>
#include <memory>

#include "core/mainwindow.h"
#include "kit/forms/form.h"

namespace Ui {
class MainFrm;
}

namespace tessaro::forms {

/// The main window: menus, background picture, status bar. Its Load is the program's start, its
/// Unload the program's end.
class MainFrm : public FormWindow<QMainWindow>, public MainWindow {
    Q_OBJECT

  public:
    explicit MainFrm(Forms& forms);
    ~MainFrm() override;

    void Load() override;
    void Unload() override;

    void center() override;
    void setState(int state) override;
    int state() override;
    void showSplash() override;
    std::string folderToValidate() override;
    void showPrefs() override;
    void unloadAllForms() override;

    clsINI INI;

  protected:
    bool event(QEvent* event) override;
    void changeEvent(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

  private:
    void setupMenus();
    void placeBackground();
    void followSize();
    void exitProgram();

    std::unique_ptr<Ui::MainFrm> ui_;
    bool leaving_ = false;     // Unload runs
    bool stateIsNew_ = false;  // until the Resize that comes with it
};

}  // namespace tessaro::forms
