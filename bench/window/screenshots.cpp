// tessaro-bench-screenshots: the screenshot viewer on 2,000 shots, against plain Qt. Tells a line
// for its opening, and one for a step to another picture.
//
// Processor time: the files are in the system's memory, and nothing waits.

#include <QCoreApplication>
#include <QDir>
#include <QImageReader>
#include <QKeyEvent>
#include <QLabel>
#include <QListView>
#include <stdexcept>

#include "bench/window/measuring.h"
#include "kit/forms/forms.h"
#include "kit/look/text.h"
#include "screenshots/screenshot.h"
#include "tools/samplegame/bitmap.h"

namespace tessaro::bench {
namespace {

constexpr int shotCount = 2'000;
constexpr int rounds = 25;
constexpr char systemFolder[] = "C:\\UnrealTournament\\System";

std::string shotName(int number) {
    const std::string digits = std::to_string(number);
    return "Shot" + std::string(4 - digits.size(), '0') + digits + ".bmp";
}

// Two pictures as the game takes them, each under every other name.
void takeShots(const World& world) {
    sample::Rng rng(1);
    const HostPath folder = world.at(systemFolder);
    for (int i = 0; i < 2; ++i)
        world.write(std::string(systemFolder) + '\\' + shotName(i),
                    sample::screenshotBmp(1024, 768, rng));
    for (int i = 2; i < shotCount; ++i)
        std::filesystem::create_hard_link(folder / shotName(i % 2), folder / shotName(i));
}

QPixmap readReference(const QString& file) {
    QImageReader reader(file, QByteArrayLiteral("bmp"));
    reader.setAutoDetectImageFormat(false);
    QPixmap picture = QPixmap::fromImage(reader.read());
    if (picture.isNull()) throw std::runtime_error("Qt cannot read the picture");
    return picture;
}

// The viewer in a program as fresh as after its start.
class Viewer {
  public:
    explicit Viewer(World& world) : fresh_(world) { forms_.add<screenshot>(fresh_.program); }

    void open() {
        forms_.show<screenshot>();
        if (!form().isVisible()) throw std::runtime_error("the viewer does not open");
    }
    screenshot& form() { return forms_.get<screenshot>(); }
    void step(Qt::Key key) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        QCoreApplication::sendEvent(form().findChild<QListView*>(), &press);
        form().repaint();
    }

  private:
    FreshProgram fresh_;
    ProgramEnd end_;
    Forms forms_{noDialogs(), end_};
};

Comparison opening(World& world) {
    const QString folder = toQt(world.at(systemFolder).string());
    const auto ours = [&] {
        Viewer viewer(world);
        const double took = cpuMilliseconds([&] { viewer.open(); });
        QCoreApplication::processEvents();
        return took;
    };
    const auto reference = [&] {
        return cpuMilliseconds([&] {
            const QStringList names = QDir(folder).entryList(QDir::Files, QDir::Name);
            readReference(folder + u'/' + names.first());
        });
    };
    return takeTurns(rounds, ours, reference);
}

Comparison stepping(World& world) {
    Viewer viewer(world);
    viewer.open();
    QLabel label;
    label.resize(1024, 768);
    label.show();
    QCoreApplication::processEvents();
    const QString folder = toQt(world.at(systemFolder).string());
    int turn = 0;
    const auto ours = [&] { return cpuMilliseconds([&] { viewer.step(Qt::Key_Down); }); };
    const auto reference = [&] {
        const QString file = folder + u'/' + toQt(shotName(++turn % 2));
        return cpuMilliseconds([&] {
            label.setPixmap(readReference(file));
            label.repaint();
        });
    };
    return takeTurns(rounds, ours, reference);
}

void measure(World& world) {
    takeShots(world);
    hand(opening(world));
    hand(stepping(world));
}

}  // namespace
}  // namespace tessaro::bench

int main(int argc, char** argv) {
    return tessaro::bench::measureWindows(argc, argv, tessaro::bench::measure);
}
