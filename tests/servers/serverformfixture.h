#pragma once

#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <string>
#include <vector>

#include "kit/controls/listview.h"
#include "kit/look/text.h"
#include "servers/iplist.h"
#include "servers/serverfixture.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {

inline const std::string threeServers =
    "A\\1.1.1.1\\1111\r\nB\\2.2.2.2\\2222\r\nC\\3.3.3.3\\3333\r\n";

/// The real form, on three servers.
class ServerForm : public GameFormsTest {
  protected:
    ServerForm() {
        program_.gamePaths.UTSysPath = system_;
        program_.settings.Sounds = "0";
        program_.settings.WindowSize = "0";
        disk_.write(serverFile, threeServers);
    }

    iplist& shown() {
        guarded(forms_, [this] { forms_.show<iplist>(); });
        serveEvents();
        return form();
    }
    iplist& form() { return forms_.get<iplist>(); }
    bool isOpen() { return forms_.loaded<iplist>() != nullptr; }
    template <class Control>
    Control& the(const char* name) {
        return control<Control>(form(), name);
    }
    ListView& list() { return the<ListView>("ListView1"); }
    std::vector<std::string> rows() { return linesOf(*list().items()); }
    std::string saved() { return disk_.read(serverFile); }

    void press(const char* button) { QTest::mouseClick(&the<QPushButton>(button), Qt::LeftButton); }
    QPoint middleOf(int row) { return list().visualRect(list().model()->index(row, 0)).center(); }
    void pick(int row) {
        QTest::mouseClick(list().viewport(), Qt::LeftButton, {}, middleOf(row));
        serveEvents();
    }
    void type(const char* box, const char* text) {
        QTest::keyClicks(&the<QLineEdit>(box), QLatin1String(text));
    }
    void paste(const char* box, const char* text) {
        QGuiApplication::clipboard()->setText(QLatin1String(text));
        the<QLineEdit>(box).paste();
    }
    std::string textOf(const char* box) { return fromQt(the<QLineEdit>(box).text()); }
    void clickColumn(int column) {
        const QHeaderView& head = *list().header();
        QTest::mouseClick(head.viewport(), Qt::LeftButton, {},
                          QPoint(head.sectionViewportPosition(column) + 5, head.height() / 2));
        serveEvents();
    }
    std::vector<std::string> gameLines() {
        std::vector<std::string> lines;
        for (const auto& run : world_.processes.runs) lines.push_back(run.commandLine);
        return lines;
    }

    std::vector<Message>& messages_ = world_.dialogs.messages;
    const std::string system_ = R"(C:\UnrealTournament\System)";
};

}  // namespace tessaro::test
