#pragma once
// The rules of the server list's form and of its popup menu, apart from their windows.

#include <cstddef>
#include <string>
#include <string_view>

#include "core/mainwindow.h"
#include "core/program.h"
#include "servers/serverstore.h"

namespace tessaro {

/// What the rules ask of the form.
class ServerManagerView {
  public:
    virtual ~ServerManagerView() = default;

    /// The texts of `Text1`, `Text2` and `Text3`.
    virtual ServerRecord entered() = 0;
    virtual void clearEntered() = 0;
    /// Unloads the form, and so saves the list.
    virtual void closeForm() = 0;
    virtual MainWindow& mainWindow() = 0;
};

/// One for each load of the form. Every command acts on the list's selected item, which need not be
/// highlighted.
class ServerManager {
  public:
    ServerManager(Program& program, ServerManagerView& view);

    ListItems ListView1;

    /// `Command1`: starts the game on the highlighted server, if the user confirms it.
    void play();
    /// The same by a double click, which says nothing if no server is highlighted.
    void playIfSelected();
    /// `Command2`: adds what was entered, if nothing of it is empty.
    void add();
    /// `Command3`: asks, and removes the selected server.
    void remove();
    /// `Command4`.
    void importFavorites();

    /// A click on the head of a column, from 1. The direction belongs to the list, so that each
    /// click turns it, whichever column it hits; the first click sorts descending.
    void sortBy(int column);

    /// These three raise 91 if the list is empty.
    void changeName();
    void changeIP();
    /// A port of other than four characters is dropped without a word.
    void changePort();

  private:
    std::size_t selectedRow() const;
    bool confirms(const ServerRecord& server);

    Program& program_;
    ServerManagerView& view_;
};

/// An item of the popup menu. A separator has neither caption nor command.
struct PopupItem {
    std::string_view name;
    std::string_view caption;
    void (ServerManager::*command)();
};

inline constexpr PopupItem popupItems[] = {
    {"mnuplaynow", "&Play on this Server", &ServerManager::play},
    {"mnuhyph0", "", nullptr},
    {"mnudelip", "&Remove Server", &ServerManager::remove},
    {"mnuhyph1", "", nullptr},
    {"mnuservername", "Change Server Name", &ServerManager::changeName},
    {"mnuchangeip", "C&hange IP Address", &ServerManager::changeIP},
    {"mnuchangeport", "Change &Port", &ServerManager::changePort},
};

}  // namespace tessaro
