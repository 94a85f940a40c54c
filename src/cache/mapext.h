#pragma once

#include <memory>

#include "cache/extraction.h"
#include "kit/frame/skinnedform.h"

namespace Ui {
class mapextContent;
}

namespace tessaro {

/// The extractor's wizard: finds the cache folder, chooses the destination, runs the extraction.
class mapext : public SkinnedForm, private ExtractionObserver {
    Q_OBJECT

  public:
    /// `entry` keeps its values from one opening of the wizard to the next.
    mapext(Forms& forms, Program& program, CacheEntry& entry);
    ~mapext() override;

    void Load() override;
    void Unload() override;

    clsINI phile;

  private:
    void setupStepOne();
    void setupStepTwo();
    void setupStepThree();
    void setupDefaultButtons();

    void showStep(QWidget& frame, QPushButton& onward);
    void changeDrive();
    void changeFolder();
    void goToTypedFolder();
    void CheckCacheDir();
    void toStepTwo();
    void chooseNewFolder();
    void setNewFolderVisible(bool visible);
    void browseDestination();
    void createFolder();
    void toStepThree();
    void extract();

    void show(ExtractionBox box, const std::string& text) override;
    void enableStop(bool running) override;
    void setBusyPointer(bool busy) override;
    bool stopped() override;
    bool overwriteExisting() override;
    void closeRequested() override;

    Program& program_;
    std::unique_ptr<Ui::mapextContent> ui_;
    Extraction extraction_;
    QPushButton* onward_ = nullptr;  // leads on from the step that is shown
};

}  // namespace tessaro
