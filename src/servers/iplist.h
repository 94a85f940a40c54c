#pragma once

#include <memory>

#include "kit/frame/skinnedform.h"
#include "servers/servermanager.h"

namespace Ui {
class iplistContent;
}

namespace tessaro {

/// The server list. Its rows are read from their file at Load and saved at Unload, every time.
class iplist : public SkinnedForm, private ServerManagerView {
    Q_OBJECT

  public:
    iplist(Forms& forms, Program& program);
    ~iplist() override;

    void Load() override;
    void Unload() override;

    ServerManager& manager() { return manager_; }

  private:
    void setupList();
    void setupCommands();

    ServerRecord entered() override;
    void clearEntered() override;
    void closeForm() override;
    MainWindow& mainWindow() override;

    Program& program_;
    ServerManager manager_;
    std::unique_ptr<Ui::iplistContent> ui_;
};

}  // namespace tessaro
