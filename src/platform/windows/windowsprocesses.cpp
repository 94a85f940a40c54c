#include <windows.h>

#include "platform/outside/processes.h"
#include "platform/windows/handle.h"
#include "platform/windows/widetext.h"

namespace tessaro {

namespace {

// Long enough to cost nothing, short enough for a window to look alive.
constexpr DWORD betweenRepaints = 20;

STARTUPINFOW startupFor(Visibility visibility) {
    STARTUPINFOW startup = {};
    startup.cb = sizeof startup;
    if (visibility == Visibility::Hidden) {
        // The handles stay empty: what it prints goes nowhere.
        startup.dwFlags = STARTF_USESHOWWINDOW | STARTF_USESTDHANDLES;
        startup.wShowWindow = SW_HIDE;
    }
    return startup;
}

// The line is the system's to take apart. Gives nothing if it cannot be started.
Handle start(const std::string& commandLine, Visibility visibility) {
    std::wstring line = toWide(commandLine);
    // The system would read it only up to there, and the child would work on another file.
    if (line.find(L'\0') != std::wstring::npos) return Handle(nullptr);
    STARTUPINFOW startup = startupFor(visibility);
    PROCESS_INFORMATION child = {};
    if (!::CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, NORMAL_PRIORITY_CLASS,
                          nullptr, nullptr, &startup, &child))
        return Handle(nullptr);
    ::CloseHandle(child.hThread);
    return Handle(child.hProcess);
}

class WindowsProcesses : public Processes {
  public:
    explicit WindowsProcesses(std::function<void()> whileRunning)
        : whileRunning_(std::move(whileRunning)) {}

    void run(const std::string& commandLine, Visibility visibility) override {
        const Handle child = start(commandLine, visibility);
        while (child && ::WaitForSingleObject(child.get(), betweenRepaints) == WAIT_TIMEOUT) {
            whileRunning_();
        }
    }

  private:
    std::function<void()> whileRunning_;
};

}  // namespace

std::unique_ptr<Processes> makeProcesses(Host& /*host*/, const DriveMap& /*drives*/,
                                         std::function<void()> whileRunning) {
    return std::make_unique<WindowsProcesses>(std::move(whileRunning));
}

}  // namespace tessaro
