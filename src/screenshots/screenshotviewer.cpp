#include "screenshots/screenshotviewer.h"

#include <cmath>

#include "platform/runtime/runtimeerror.h"

namespace tessaro {
namespace {

Int16 wholeTwips(double twips) {
    return std::llround(twips);
}

// In 16 bits, as `size` is.
double withoutFrame(Int16 size, double frame) {
    return size += -static_cast<int>(frame);
}

}  // namespace

ScreenshotViewer::ScreenshotViewer(Program& program, ScreenshotView& view)
    : program_(program), view_(view) {}

void ScreenshotViewer::LoadScreenshotList() {
    const TwipsSize size = view_.formSize();
    oldx_ = wholeTwips(size.width);
    oldy_ = wholeTwips(size.height);
    fullscreen_ = 0;
    listShots();
    if (List1.count() == 0) {
        program_.dialogs.message({"No Screenshots Found in UT System Folder",
                                  "Screenshots Not Found", Buttons::Ok, Icon::Stop});
        view_.unloadForm();
        return;
    }
    List1.select(0);
    view_.showNames(List1);
    view_.showSelection(0);
    loadSelected();
    fitForm();
}

void ScreenshotViewer::listShots() {
    const std::string& folder = program_.gamePaths.UTSysPath;
    program_.paths.changeFolder(folder);
    for (const std::string& name : program_.files.list(folder + "\\*.*", attributes::Normal))
        if (isScreenshotName(name)) List1.add(name);
}

std::string ScreenshotViewer::selectedPath() const {
    return program_.gamePaths.UTSysPath + "\\" + List1.selectedName();
}

void ScreenshotViewer::loadSelected() {
    view_.loadPicture(selectedPath());
}

bool ScreenshotViewer::LoadSelectedPicture() {
    return attempt([&] { loadSelected(); });
}

void ScreenshotViewer::ShowSelectedPicture(bool loaded) {
    view_.hideForm();
    if (!loaded) loadSelected();
    fitForm();
    if (fullscreen_ == 1) view_.moveToLeftEdge();
    view_.showForm();
}

// Names the picture, and cuts the window to it. A stretched picture keeps its size, and so the
// window keeps its own.
void ScreenshotViewer::fitForm() {
    view_.setCaption("Now Viewing: " + selectedPath());
    const TwipsSize picture = view_.pictureSize();
    view_.setFormSize({picture.width + windowFrame.width, picture.height + windowFrame.height});
}

void ScreenshotViewer::select(int index) {
    if (!List1.select(index)) return;
    view_.showSelection(index);
    if (index != ShotList::noSelection) followSelection();
}

// The list reports a change twice: a click, which loads the picture and ignores failures, and,
// since it is one row high, a scroll, which shows it. What the click has loaded is not read twice.
void ScreenshotViewer::followSelection() {
    const bool loaded = LoadSelectedPicture();
    ShowSelectedPicture(loaded);
}

void ScreenshotViewer::previousPicture() {
    attempt([&] { select(List1.index() - 1); });
}

void ScreenshotViewer::nextPicture() {
    attempt([&] { select(List1.index() + 1); });
}

void ScreenshotViewer::toggleFullScreen() {
    fullscreen_ == 1 ? leaveFullScreen() : enterFullScreen();
}

void ScreenshotViewer::enterFullScreen() {
    const TwipsSize before = view_.formSize();
    oldx_ = wholeTwips(before.width);
    oldy_ = wholeTwips(before.height);
    view_.setStretch(true);
    view_.setFormSize(view_.screenSize());
    const TwipsSize form = view_.formSize();
    view_.setPictureSize({form.width - windowFrame.width, form.height - windowFrame.height});
    view_.center();
    view_.moveToTopEdge();
    view_.moveToLeftEdge();
    fullscreen_ = 1;
}

// Back to the size that the window had, also if another picture is shown by now.
void ScreenshotViewer::leaveFullScreen() {
    view_.setFormSize({double(oldx_), double(oldy_)});
    view_.setPictureSize(
        {withoutFrame(oldx_, windowFrame.width), withoutFrame(oldy_, windowFrame.height)});
    view_.repaintForm();
    view_.center();
    view_.setStretch(false);
    fullscreen_ = 0;
}

void ScreenshotViewer::DeleteSelectedPicture() {
    const int index = List1.index();
    if (!confirmDeletion(List1.selectedName())) return;
    program_.files.deleteFiles(selectedPath());
    List1.removeSelected();
    view_.removeName(index);
    if (List1.count() == 0) return exitEmpty();
    selectAfterDeletion(index);
    ShowSelectedPicture(false);
}

bool ScreenshotViewer::confirmDeletion(const std::string& name) {
    const Message question{"Do you wish to delete " + name + " from your hard drive?",
                           "Delete Screenshot?", Buttons::OkCancel, Icon::None};
    return program_.dialogs.message(question) == Answer::Ok;
}

void ScreenshotViewer::selectAfterDeletion(int deleted) {
    if (List1.index() != 0) select(deleted - 1);
    if (deleted >= List1.count()) select(List1.count() - 1);
    if (deleted == 0) select(0);
}

void ScreenshotViewer::exitEmpty() {
    view_.disablePicture();
    program_.dialogs.message({"No More Pictures to View. Screenshot Viewer will now exit",
                              "No Files Found", Buttons::Ok, Icon::Stop});
    view_.unloadForm();
}

}  // namespace tessaro
