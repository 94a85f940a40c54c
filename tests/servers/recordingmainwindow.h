#pragma once

#include <stdexcept>
#include <string>
#include <vector>

#include "core/mainwindow.h"

namespace tessaro::test {

/// A main window of which nothing but its state is asked.
class RecordingMainWindow : public MainWindow {
  public:
    std::vector<int> states;

    void setState(int state) override { states.push_back(state); }
    int state() override { return states.empty() ? windowstate::Normal : states.back(); }
    void center() override { fail(); }
    void showSplash() override { fail(); }
    std::string loadFolderToCheck() override { fail(); }
    void showPrefs() override { fail(); }
    void unloadAllForms() override { fail(); }

  private:
    [[noreturn]] static void fail() { throw std::logic_error("not for a launch"); }
};

}  // namespace tessaro::test
