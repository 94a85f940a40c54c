#pragma once

#include <memory>

#include "core/program.h"
#include "editor/search.h"
#include "kit/frame/skinnedform.h"

namespace Ui {
class findfrmContent;
}

namespace tessaro {

class inieditor;

/// The search box of the editor: marks each hit as the selection of the editor's text.
class findfrm : public SkinnedForm, private SearchView {
    Q_OBJECT

  public:
    findfrm(Forms& forms, Program& program);
    ~findfrm() override;

    void Load() override;

    Search& search() { return search_; }

  private:
    inieditor& editor();
    void moveToCornerOfEditor();

    void select(std::size_t start, std::size_t length) override;
    void focusText() override;
    void showCaption(const std::string& caption) override;

    Program& program_;
    std::unique_ptr<Ui::findfrmContent> ui_;
    Search search_;
};

}  // namespace tessaro
