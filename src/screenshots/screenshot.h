#pragma once

#include <QDialog>
#include <QMenu>
#include <QStringListModel>
#include <functional>
#include <memory>

#include "kit/forms/form.h"
#include "screenshots/screenshotviewer.h"

namespace Ui {
class screenshot;
}

namespace tessaro {

/// Shows the game's screenshots, in a plain window without a skin. Its size in twips counts the
/// frame that the desktop draws around it as the viewer does, whatever it really measures: so the
/// window is cut to its picture on any desktop, and fills the screen with its frame.
class screenshot : public FormWindow<QDialog>, private ScreenshotView {
    Q_OBJECT

  public:
    screenshot(Forms& forms, Program& program);
    ~screenshot() override;

    void Load() override;

  protected:
    void mouseReleaseEvent(QMouseEvent* event) override;

  private:
    void setupControls();
    void setupMenu();
    void addItem(const char* name, const char* caption, const std::function<void()>& command);
    void addSeparator(const char* name);
    void run(const std::function<void()>& command);

    void showNames(const ShotList& list) override;
    void removeName(int index) override;
    void showSelection(int index) override;
    void loadPicture(const std::string& path) override;
    TwipsSize pictureSize() override;
    void setPictureSize(const TwipsSize& size) override;
    void setStretch(bool stretch) override;
    void disablePicture() override;
    void setCaption(const std::string& caption) override;
    TwipsSize formSize() override;
    void setFormSize(const TwipsSize& size) override;
    TwipsSize screenSize() override;
    void center() override;
    void moveToTopEdge() override;
    void moveToLeftEdge() override;
    void repaintForm() override;
    void hideForm() override;
    void showForm() override;
    void unloadForm() override;

    Program& program_;
    std::unique_ptr<Ui::screenshot> ui_;
    QStringListModel* names_;
    QMenu* mnurcmenu_;
    ScreenshotViewer viewer_;
    bool following_ = false;  // the list changes because the viewer says so
    bool hidden_ = false;     // the command that runs has hidden the form
};

}  // namespace tessaro
