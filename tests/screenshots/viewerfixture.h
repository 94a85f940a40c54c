#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

#include "screenshots/screenshotviewer.h"
#include "support/testprogram.h"

namespace tessaro::test {

inline constexpr char shotFolder[] = "C:\\UT\\System";

/// The form and its controls without a window, and what was done to them, in order. A picture is a
/// text file that holds its width and height in twips; one that holds anything else is damaged.
class RecordingScreen : public ScreenshotView {
  public:
    explicit RecordingScreen(Files& files) : files_(files) {}

    std::vector<std::string> steps;
    std::vector<std::string> names;
    int selection = -1;
    std::string shown;  ///< the file in `Image1`
    TwipsSize natural;  ///< its own size
    TwipsSize picture;
    TwipsSize form{7000, 5000};
    TwipsSize screen{15360, 11520};
    bool stretched = false;
    bool visible = true;
    bool enabled = true;
    bool unloaded = false;
    std::string caption = "UT Screenshot Viewer";

    void showNames(const ShotList& list) override { names = list.names(); }
    void removeName(int index) override {
        names.erase(names.begin() + index);
        selection = -1;
        step("remove " + std::to_string(index));
    }
    void showSelection(int index) override {
        selection = index;
        step("select " + std::to_string(index));
    }

    void loadPicture(const std::string& path) override {
        const std::string name = path.substr(path.rfind('\\') + 1);
        step("load " + name);
        TwipsSize size;
        const std::string bytes = files_.read(path);
        if (std::sscanf(bytes.c_str(), "%lf %lf", &size.width, &size.height) != 2)
            throw RunTimeError(errors::InvalidPicture);
        shown = name;
        natural = size;
        if (!stretched) picture = size;
    }
    TwipsSize pictureSize() override { return picture; }
    void setPictureSize(const TwipsSize& size) override {
        picture = size;
        step("picture " + text(size));
    }
    void setStretch(bool stretch) override {
        stretched = stretch;
        if (!stretch) picture = natural;
        step(stretch ? "stretch" : "no stretch");
    }
    void disablePicture() override { enabled = false; }

    void setCaption(const std::string& text) override {
        caption = text;
        step("caption");
    }
    TwipsSize formSize() override { return form; }
    void setFormSize(const TwipsSize& size) override {
        form = size;
        step("form " + text(size));
    }
    TwipsSize screenSize() override { return screen; }
    void center() override { step("center"); }
    void moveToTopEdge() override { step("top"); }
    void moveToLeftEdge() override { step("left"); }
    void repaintForm() override { step("repaint"); }
    void hideForm() override {
        visible = false;
        step("hide");
    }
    void showForm() override {
        visible = true;
        step("show");
    }
    void unloadForm() override {
        unloaded = true;
        step("unload");
    }

  private:
    static std::string text(const TwipsSize& size) {
        return std::to_string(std::lround(size.width)) + " " +
               std::to_string(std::lround(size.height));
    }
    void step(const std::string& text) { steps.push_back(text); }

    Files& files_;
};

/// A viewer on the shots of a game in `C:\UT`.
class ViewerTest : public ::testing::Test {
  protected:
    ViewerTest() { program().gamePaths.UTSysPath = shotFolder; }

    Program& program() { return game_.program; }
    TestWorld& disk() { return game_.world; }
    ScriptedDialogs& dialogs() { return game_.dialogs; }
    static std::string shot(const std::string& name) {
        return std::string(shotFolder) + "\\" + name;
    }
    void write(const std::string& name, const std::string& picture = "9600 7200") {
        disk().write(shot(name), picture);
    }
    /// Opens the viewer on these shots, each of 640 by 480 pixels, with `index` selected.
    void open(std::initializer_list<const char*> names, int index = 0) {
        for (const char* name : names) write(name);
        viewer.LoadScreenshotList();
        if (index > 0) viewer.select(index);
        screen.steps.clear();
    }
    /// What the next steps are taken to be.
    std::vector<std::string> stepsOf(const std::function<void()>& action) {
        screen.steps.clear();
        action();
        return screen.steps;
    }

    TestProgram game_;
    RecordingScreen screen{game_.program.files};
    ScreenshotViewer viewer{game_.program, screen};
};

}  // namespace tessaro::test
