#pragma once

#include <string>

#include "core/program.h"
#include "platform/runtime/int16.h"
#include "screenshots/shotlist.h"

namespace tessaro {

/// A size in twips.
struct TwipsSize {
    double width = 0;
    double height = 0;
    bool operator==(const TwipsSize&) const = default;
};

/// By how much the viewer's window is larger than its picture.
inline constexpr TwipsSize windowFrame{100, 345};

/// What the viewer asks of its form and of the form's two controls. `Image1` takes on the size of
/// its picture as long as it does not stretch it.
class ScreenshotView {
  public:
    virtual ~ScreenshotView() = default;

    /// The list's names, all anew.
    virtual void showNames(const ShotList& list) = 0;
    virtual void removeName(int index) = 0;
    /// The list's selection, -1 for none. The user did not make it.
    virtual void showSelection(int index) = 0;

    /// Raises what stands against reading a bitmap from its full path; the old picture stays then.
    virtual void loadPicture(const std::string& path) = 0;
    virtual TwipsSize pictureSize() = 0;
    virtual void setPictureSize(const TwipsSize& size) = 0;
    virtual void setStretch(bool stretch) = 0;
    virtual void disablePicture() = 0;

    virtual void setCaption(const std::string& caption) = 0;
    virtual TwipsSize formSize() = 0;
    virtual void setFormSize(const TwipsSize& size) = 0;
    virtual TwipsSize screenSize() = 0;
    virtual void center() = 0;
    virtual void moveToTopEdge() = 0;
    virtual void moveToLeftEdge() = 0;
    virtual void repaintForm() = 0;
    virtual void hideForm() = 0;
    virtual void showForm() = 0;
    virtual void unloadForm() = 0;
};

/// Shows the game's screenshots one at a time, in a window cut to the picture or stretched to the
/// screen, and deletes them.
///
/// A damaged picture that is selected leaves the form hidden, whether the failure is reported or,
/// in `nextPicture` and `previousPicture`, ignored.
class ScreenshotViewer {
  public:
    ScreenshotViewer(Program& program, ScreenshotView& view);

    ShotList List1;

    /// What the form's Load does: lists the shots, makes the game's system folder the current one
    /// for good, and loads the first picture. Unloads the form if there is none. Raises 76 for a
    /// system folder that is gone.
    void LoadScreenshotList();
    /// Selects a name and shows its picture, as the list's own keys do. Raises 481 for a picture
    /// that cannot be read, 53 for one that has gone, 380 for an index that the list has not.
    void select(int index);
    /// The picture before the first is none: no selection, and the old picture stays.
    void previousPicture();
    void nextPicture();
    /// Raises 6 for a window wider or taller than 32767 twips.
    void toggleFullScreen();
    /// Asks, deletes the file and shows the one before it. Raises what the deletion and the picture
    /// shown next raise; with nothing selected that is 53.
    void DeleteSelectedPicture();

  private:
    bool LoadSelectedPicture();
    void ShowSelectedPicture(bool loaded);
    void listShots();
    std::string selectedPath() const;
    void loadSelected();
    void fitForm();
    void followSelection();
    void enterFullScreen();
    void leaveFullScreen();
    bool confirmDeletion(const std::string& name);
    void selectAfterDeletion(int deleted);
    void exitEmpty();

    Program& program_;
    ScreenshotView& view_;
    Int16 fullscreen_;  // 1 in the full-screen mode, else 0
    Int16 oldx_;        // size of the form before it, in twips
    Int16 oldy_;
};

}  // namespace tessaro
