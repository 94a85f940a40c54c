// tessaro-bench-program: the program as it ships, ended at its first paint. Notes the moments at
// the end of each step of `firstpaint.cpp`.

#include "app/application.h"
#include "bench/window/firstpaint.h"

namespace tessaro::bench {
namespace {

// The program's own tools, with a note before and after what the main window asks of them.
class NotedTools : public Tools {
  public:
    using Tools::Tools;

    void buildMenus(QMainWindow& window) override {
        noteMoment();
        Tools::buildMenus(window);
        noteMoment();
    }
    std::string loadFolderToCheck() override {
        noteMoment();
        std::string folder = Tools::loadFolderToCheck();
        noteMoment();
        return folder;
    }
};

int run(int argc, char** argv) {
    noteMoment();
    Application application(argc, argv);
    QtDesktop desktop;
    NotedTools tools(application.forms(), application.program(), desktop);
    const FirstPaint hook;
    noteMoment();
    return application.run();
}

}  // namespace
}  // namespace tessaro::bench

int main(int argc, char** argv) {
    return tessaro::bench::run(argc, argv);
}
