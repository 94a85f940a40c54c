#pragma once

#include <gmock/gmock.h>

#include <QTest>
#include <string>
#include <vector>

#include "kit/controls/listview.h"
#include "players/Users.h"
#include "support/forms/gameforms.h"

namespace tessaro::test {

/// The User Manager on a game whose player is "Me".
class PlayersFormsTest : public GameFormsTest {
  protected:
    PlayersFormsTest() {
        settings("[Misc]\r\nShowSplash=0\r\nSounds=0\r\n");
        disk_.write(userIni, profileOf("Me"));
    }

    static std::string profileOf(const std::string& name) {
        return "[DefaultPlayer]\r\nName=" + name +
               "\r\nClass=BotPack.TMale2\r\nteam=1\r\nskin=SoldierSkins.blkt\r\n"
               "Face=SoldierSkins.Othello\r\nVoice=BotPack.VoiceMaleTwo\r\n[Engine.Input]\r\nA="
               "B\r\n";
    }
    static std::string copyOf(int number) {
        return "C:\\Tessaro\\users\\userini" + std::to_string(number) + ".bak";
    }
    static std::string lineOf(const std::string& name, int number, const char* team = "1") {
        return name + ",BotPack.TMale2," + team +
               ",SoldierSkins.blkt,SoldierSkins.Othello,BotPack.VoiceMaleTwo,userini" +
               std::to_string(number) + ".bak\r\n";
    }
    void archive(const std::vector<std::string>& names) {
        std::string lines;
        for (int i = 0; i < static_cast<int>(names.size()); ++i) {
            disk_.write(copyOf(i), profileOf(names[static_cast<std::size_t>(i)]));
            lines += lineOf(names[static_cast<std::size_t>(i)], i);
        }
        disk_.write(list, lines);
    }

    /// Starts the program and opens the User Manager from its menu.
    Users& openUsers() {
        start();
        menuItem("mnuusermanager").trigger();
        serveEvents();
        return forms_.get<Users>();
    }
    QPushButton& button(const char* name) {
        return control<QPushButton>(forms_.get<Users>(), name);
    }
    ListView& listView() { return control<ListView>(forms_.get<Users>(), "ListView1"); }
    std::string currentName() {
        return control<QLineEdit>(forms_.get<Users>(), "Text1").text().toStdString();
    }
    std::vector<std::string> names() {
        const ListItems& rows = forms_.get<Users>().UserTable();
        std::vector<std::string> all;
        for (std::size_t i = 1; i <= rows.count(); ++i) all.push_back(rows.item(i).text);
        return all;
    }
    QPoint placeOf(int row) {
        return listView().visualRect(listView().model()->index(row, 0)).center();
    }
    void clickRow(int row) {
        QTest::mouseClick(listView().viewport(), Qt::LeftButton, {}, placeOf(row));
    }
    void answers(std::initializer_list<Answer> all) {
        for (const Answer answer : all) world_.dialogs.answer(answer);
    }
    /// Titles of the boxes that came.
    std::vector<std::string> titles() {
        std::vector<std::string> all;
        for (const Message& message : world_.dialogs.messages) all.push_back(message.title);
        return all;
    }

    static constexpr char userIni[] = "C:\\UnrealTournament\\System\\User.ini";
    static constexpr char list[] = "C:\\Tessaro\\playerlist.lst";
};

}  // namespace tessaro::test
