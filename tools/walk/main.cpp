// tessaro-walk FOLDER: starts the program, presses its real buttons through the three steps of the
// extractor's wizard, and leaves one picture of the screen for each step in FOLDER.
// tessaro-walk --try: ends at once, well if it could reach a display.

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QMessageBox>
#include <QScreen>
#include <QTimer>
#include <cstdio>
#include <cstring>
#include <functional>
#include <vector>

#include "app/application.h"
#include "core/MainFrm.h"

namespace {

using namespace tessaro;

constexpr int pollMilliseconds = 100;
constexpr int mostPolls = 600;

// One thing to do, once a named control can be used.
struct Step {
    QString control;
    QString picture;  // taken before the control is pressed; none if empty
};

const std::vector<Step> steps{
    {QStringLiteral("mnumapextractor"), {}},
    {QStringLiteral("next"), QStringLiteral("step-1-cache-folder.png")},
    {QStringLiteral("Command5"), QStringLiteral("step-2-destination.png")},
    {QStringLiteral("Check1"), {}},  // a second walk finds every file there already
    {QStringLiteral("Command8"), {}},
    {QStringLiteral("messageBox"), QStringLiteral("step-3-extraction.png")},
};

template <class Control>
Control* usable(const QString& name) {
    for (QWidget* window : QApplication::topLevelWidgets()) {
        auto* control = window->objectName() == name ? qobject_cast<Control*>(window)
                                                     : window->findChild<Control*>(name);
        if (control != nullptr && window->isVisible() && control->isEnabled()) return control;
    }
    return nullptr;
}

class Walk : public QObject {
  public:
    Walk(Forms& forms, const QString& folder) : forms_(forms), folder_(folder) {
        connect(&timer_, &QTimer::timeout, this, &Walk::poll);
        timer_.start(pollMilliseconds);
    }
    bool done() const { return next_ == steps.size(); }

  private:
    void poll() {
        if (++polls_ > mostPolls) {
            std::fprintf(stderr, "The walk came no further than step %zu.\n", next_);
            QCoreApplication::exit(1);
        } else if (!done()) {
            tryStep(steps[next_]);
        }
    }

    void tryStep(const Step& step) {
        auto* action = usable<QAction>(step.control);
        auto* button = usable<QAbstractButton>(step.control);
        auto* box = usable<QMessageBox>(step.control);
        if (button != nullptr && !button->isVisible()) button = nullptr;
        if (action == nullptr && button == nullptr && box == nullptr) return;
        if (!step.picture.isEmpty()) takePicture(step.picture);
        ++next_;
        // Posted: a press may run an event loop of its own, in which our timer has to go on.
        if (action != nullptr) post(action, [action] { action->trigger(); });
        if (button != nullptr) post(button, [button] { button->click(); });
        if (box != nullptr) post(box, [this, box] { finish(*box); });
    }

    template <class Act>
    static void post(QObject* receiver, Act act) {
        QMetaObject::invokeMethod(receiver, act, Qt::QueuedConnection);
    }

    void takePicture(const QString& name) {
        const QString file = QDir(folder_).filePath(name);
        QGuiApplication::primaryScreen()->grabWindow().save(file);
        std::printf("%s\n", qPrintable(QDir::toNativeSeparators(file)));
    }

    void finish(QMessageBox& box) {
        box.button(QMessageBox::Yes)->click();
        QTimer::singleShot(0, this, [this] { forms_.get<MainFrm>().close(); });
    }

    Forms& forms_;
    QString folder_;
    QTimer timer_;
    std::size_t next_ = 0;
    int polls_ = 0;
};

}  // namespace

int main(int argc, char** argv) {
    if (argc == 2 && std::strcmp(argv[1], "--try") == 0) {
        const QApplication reached(argc, argv);
        return 0;
    }
    Application application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
        std::fputs("Usage: tessaro-walk FOLDER\n", stderr);
        return 2;
    }
    Walk walk(application.forms(), QDir(arguments[1]).absolutePath());
    const int result = application.run();
    return result != 0 ? result : (walk.done() ? 0 : 1);
}
