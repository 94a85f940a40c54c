#pragma once

#include <memory>
#include <string>

#include "core/program.h"
#include "kit/frame/skinnedform.h"
#include "shell/help.h"

namespace Ui {
class webpageContent;
}

namespace tessaro {

/// Shows one help page. It can be scrolled with the keys, and its text can be copied.
class webpage : public SkinnedForm {
    Q_OBJECT

  public:
    webpage(Forms& forms, Program& program);
    ~webpage() override;

    void Load() override;

    /// Goes to an address such as `helpAddress` gives; one that holds no page shows an error page.
    void navigate(const std::string& address);

  private:
    Program& program_;
    std::unique_ptr<Ui::webpageContent> ui_;
};

/// Shows a help page and returns when the user has closed it.
void showHelpPage(Forms& forms, Program& program, const HelpPage& page);

}  // namespace tessaro
