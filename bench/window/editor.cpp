// tessaro-bench-editor: what the editor takes to load, take in a key, save and search, against Qt's
// own text box and search, and the system's own write. Tells a line for each figure of
// `windowfigures.cpp`.

#include <fcntl.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QFile>
#include <QKeyEvent>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <stdexcept>

#include "bench/window/measuring.h"
#include "editor/inieditor.h"
#include "editor/search.h"
#include "kit/forms/forms.h"
#include "kit/look/text.h"
#include "platform/text/lettercase.h"
#include "shell/Skinz.h"

namespace tessaro::bench {
namespace {

constexpr char file[] = "C:\\UnrealTournament\\System\\User.ini";
constexpr char longFile[] = "C:\\UnrealTournament\\System\\Long.ini";
constexpr std::size_t fileSize = 10'000'000;
constexpr std::size_t longLine = 10'000;
constexpr std::size_t hit = 32'000;
constexpr char wanted[] = "PurgeCacheDays";
constexpr int rounds = 11;
constexpr int searchesInARound = 200;

void require(bool right, const char* what) {
    if (!right) throw std::runtime_error(what);
}

// The user at the file picker, who knows what to choose.
class Chooser : public NoDialogs {
  public:
    std::string choice;

    std::string pickFileToOpen(const FilePicker&) override { return choice; }
};

std::string entry(int number) {
    const std::string digits = std::to_string(number);
    return "ServerActors" + digits + "=IpServer.UdpServerUplink Port=" + digits;
}

std::string linesUpTo(std::size_t size) {
    std::string text;
    for (int i = 0; text.size() < size; ++i) text += entry(i) + "\r\n";
    text.resize(size);
    return text;
}

std::string longLinesUpTo(std::size_t size) {
    std::string text;
    for (int i = 0; text.size() < size; ++i) {
        const std::size_t end = text.size() + longLine;
        while (text.size() < end) text += entry(i);
        text.resize(end);
        text += "\r\n";
    }
    return text;
}

// The program with its editor on the screen.
class EditorProgram {
  public:
    explicit EditorProgram(World& world) : fresh_(world, chooser_), forms_(chooser_, end_) {
        fresh_.program.settings.Skin = "0";
        forms_.add<Skinz>();
        forms_.add<inieditor>(fresh_.program, memory_);
        forms_.show<inieditor>();
    }

    Editor& editor() { return forms_.get<inieditor>().editor(); }
    QPlainTextEdit& box() { return *forms_.get<inieditor>().findChild<QPlainTextEdit*>(); }
    void load(const char* path) {
        chooser_.choice = path;
        editor().loadChosenFile();
    }

  private:
    Chooser chooser_;
    FreshProgram fresh_;
    EditorMemory memory_;
    ProgramEnd end_;
    Forms forms_;
};

// A text box of Qt's own, as large as the editor's.
class PlainBox {
  public:
    explicit PlainBox(const QPlainTextEdit& like) {
        box_.setLineWrapMode(QPlainTextEdit::NoWrap);
        box_.setHorizontalScrollBarPolicy(like.horizontalScrollBarPolicy());
        box_.setVerticalScrollBarPolicy(like.verticalScrollBarPolicy());
        box_.setFont(like.font());
        box_.resize(like.size());
        box_.show();
    }

    QPlainTextEdit& box() { return box_; }
    void load(const HostPath& path) {
        QFile opened(hostPathToQt(path));
        require(opened.open(QIODevice::ReadOnly), "cannot read the file");
        box_.setPlainText(QString::fromLatin1(opened.readAll()));
    }

  private:
    QPlainTextEdit box_;
};

Comparison load(EditorProgram& program, PlainBox& plain, const char* path,
                const HostPath& hostPath) {
    const Comparison compared = takeTurns(
        rounds, [&] { return wallMilliseconds([&] { program.load(path); }); },
        [&] { return wallMilliseconds([&] { plain.load(hostPath); }); });
    require(program.box().toPlainText() == plain.box().toPlainText(), "another text was loaded");
    return compared;
}

void goToTheMiddle(QPlainTextEdit& box) {
    box.setTextCursor(QTextCursor(box.document()->findBlockByNumber(box.blockCount() / 2)));
    box.centerCursor();
    QCoreApplication::processEvents();
}

void pressEnter(QPlainTextEdit& box) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, QStringLiteral("\r"));
    QCoreApplication::sendEvent(&box, &press);
    box.viewport()->repaint();
}

Comparison edit(QPlainTextEdit& ours, QPlainTextEdit& plain) {
    goToTheMiddle(ours);
    goToTheMiddle(plain);
    const int before = ours.blockCount();
    const Comparison compared = takeTurns(
        rounds, [&] { return wallMilliseconds([&] { pressEnter(ours); }); },
        [&] { return wallMilliseconds([&] { pressEnter(plain); }); });
    require(ours.blockCount() == before + rounds + 1, "the keys were not taken");
    return compared;
}

void writeNewAndRename(const HostPath& path, const std::string& bytes) {
    const HostPath beside = path.string() + ".new";
    const int number = ::open(beside.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0666);
    require(number != -1, "cannot create a file");
    const auto size = static_cast<ssize_t>(bytes.size());
    require(::write(number, bytes.data(), bytes.size()) == size, "cannot write the file");
    require(::fsync(number) == 0 && ::close(number) == 0, "cannot flush the file");
    std::filesystem::rename(beside, path);
}

// With the lines that were typed into the middle before.
Comparison save(EditorProgram& program, const World& world) {
    program.editor().save();
    QFile saved(hostPathToQt(world.at(file)));
    require(saved.open(QIODevice::ReadOnly), "nothing was saved");
    const std::string bytes = saved.readAll().toStdString();
    require(bytes.size() == fileSize + 2 * (rounds + 2), "something else was saved");
    const HostPath other = world.at("C:\\UnrealTournament\\System\\Other.ini");
    return takeTurns(
        rounds, [&] { return wallMilliseconds([&] { program.editor().save(); }); },
        [&] { return wallMilliseconds([&] { writeNewAndRename(other, bytes); }); });
}

// Remembers where the hit is.
class Marker : public SearchView {
  public:
    std::size_t start = 0;

    void select(std::size_t from, std::size_t) override { start = from; }
    void focusText() override {}
    void showCaption(const std::string&) override {}
};

Measurement manyTimes(const std::function<void()>& work) {
    return [work] {
        const auto all = [&] {
            for (int i = 0; i < searchesInARound; ++i) work();
        };
        return wallMilliseconds(all) / searchesInARound;
    };
}

Comparison search() {
    const std::string text = linesUpTo(hit) + wanted + linesUpTo(hit);
    const QString qtText = toQt(text);
    const std::string ours = lowerCase(wanted);
    const QString theirs = toQt(ours);
    Marker marker;
    Search search(noDialogs(), marker);
    search.open(text);
    const auto searchOurs = [&] {
        search.FindFirst(ours);
        require(marker.start == hit, "another hit");
    };
    const auto searchTheirs = [&] {
        require(qtText.indexOf(theirs, 0, Qt::CaseInsensitive) == hit, "another hit");
    };
    return takeTurns(rounds, manyTimes(searchOurs), manyTimes(searchTheirs));
}

void measure(World& world) {
    world.write(file, linesUpTo(fileSize));
    world.write(longFile, longLinesUpTo(fileSize));
    EditorProgram program(world);
    PlainBox plain(program.box());
    const Comparison longLines = load(program, plain, longFile, world.at(longFile));
    hand(load(program, plain, file, world.at(file)));
    hand(longLines);
    hand(edit(program.box(), plain.box()));
    hand(save(program, world));
    hand(search());
}

}  // namespace
}  // namespace tessaro::bench

int main(int argc, char** argv) {
    return tessaro::bench::measureWindows(argc, argv, tessaro::bench::measure);
}
