#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "servers/serverstore.h"
#include "support/testprogram.h"

namespace tessaro::test {

/// A row as its line in the file would read.
inline std::string lineOf(const ServerRecord& server) {
    return server.ServerName + "\\" + server.IP + "\\" + server.Port;
}

inline std::vector<std::string> linesOf(const ListItems& list) {
    std::vector<std::string> lines;
    for (std::size_t row = 1; row <= list.count(); ++row)
        lines.push_back(lineOf(serverAt(list, row)));
    return lines;
}

inline const std::string serverFile = R"(C:\Tessaro\servers.ip)";
inline const std::string systemFolder = R"(C:\UT\System)";
inline const std::string gameIni = systemFolder + R"(\UnrealTournament.ini)";
inline const std::string favoritesHeader = "[UBrowser.UBrowserFavoritesFact]\r\n";

/// Favourites as the game's browser keeps them: so many, and a line for each.
inline std::string favorites(const std::string& count, const std::vector<std::string>& entries) {
    std::string text = favoritesHeader + "FavoriteCount=" + count + "\r\n";
    for (std::size_t i = 0; i < entries.size(); ++i)
        text += "Favorites[" + std::to_string(i) + "]=" + entries[i] + "\r\n";
    return text;
}

/// A program with a game in `C:\UT`, and a list of servers.
class ServerFixture : public ::testing::Test {
  protected:
    ServerFixture() {
        disk_.makeFolder(systemFolder);
        program_.gamePaths.UTSysPath = systemFolder;
        program_.settings.Sounds = "0";
        program_.settings.WindowSize = "0";
    }

    void fill(const std::vector<ServerRecord>& servers) {
        for (const ServerRecord& server : servers) addServer(list_, server);
    }
    std::vector<std::string> rows() const { return linesOf(list_); }

    TestProgram world_;
    TestWorld& disk_ = world_.world;
    Program& program_ = world_.program;
    ListItems list_ = makeServerList();
};

}  // namespace tessaro::test
