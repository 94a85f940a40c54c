#include "servers/servermanager.h"

#include "core/VORNX.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/utf8.h"
#include "servers/launch.h"

namespace tessaro {
namespace {

constexpr std::size_t portLength = 4;
constexpr int ascending = 0;
constexpr int descending = 1;

// The box for the port bears the title of the one for the address.
constexpr const char* changeIPTitle = "Change IP Address";

}  // namespace

ServerManager::ServerManager(Program& program, ServerManagerView& view)
    : ListView1(makeServerList()), program_(program), view_(view) {}

std::size_t ServerManager::selectedRow() const {
    const std::size_t row = ListView1.selectedItem();
    if (row == 0) throw RunTimeError(errors::ObjectNotSet);
    return row;
}

void ServerManager::play() {
    if (AnyListViewItemSelected(ListView1) != Yes) {
        program_.dialogs.message({"Select an Ip to Play on", "Ovrin Tessaro"});
        return;
    }
    const ServerRecord server = serverAt(ListView1, selectedRow());
    if (!confirms(server)) return;
    view_.closeForm();
    LaunchOnServer(program_, view_.mainWindow(), server.IP, server.Port);
}

bool ServerManager::confirms(const ServerRecord& server) {
    const Message question{"Start Game on Server: " + server.ServerName + "\r\nIP: " + server.IP +
                               " On Port: " + server.Port,
                           "Begin Open Location?", Buttons::YesNo, Icon::Question};
    return program_.dialogs.message(question) == Answer::Yes;
}

void ServerManager::playIfSelected() {
    if (AnyListViewItemSelected(ListView1) == Yes) play();
}

void ServerManager::add() {
    const ServerRecord server = view_.entered();
    if (server.ServerName.empty() || server.IP.empty() || server.Port.empty()) return;
    addServer(ListView1, server);
    view_.clearEntered();
}

void ServerManager::remove() {
    if (ListView1.count() == 0) return;
    const Message question{"Are you sure you want to remove the selected server?", "Remove Server?",
                           Buttons::YesNo, Icon::None};
    if (program_.dialogs.message(question) == Answer::Yes) ListView1.remove(selectedRow());
}

void ServerManager::importFavorites() {
    ImportFavorites(program_, ListView1);
}

// Sorted once and then no more: rows added later go to the end, and the order is saved as it is.
void ServerManager::sortBy(int column) {
    const int order = ListView1.sortOrder() == descending ? ascending : descending;
    ListView1.sort(column - 1, order);
    ListView1.stopSorting();
}

void ServerManager::changeName() {
    const std::size_t row = selectedRow();
    const std::string name = program_.dialogs.input("Select New Name for Server", "Rename Server",
                                                    serverAt(ListView1, row).ServerName);
    if (!name.empty()) ListView1.setText(row, name);
}

void ServerManager::changeIP() {
    const std::size_t row = selectedRow();
    const ServerRecord server = serverAt(ListView1, row);
    const std::string IP = program_.dialogs.input(
        "Select New IP Address for Server:\r\n" + server.ServerName, changeIPTitle, server.IP);
    if (!IP.empty()) ListView1.setSubItem(row, 1, IP);
}

void ServerManager::changePort() {
    const std::size_t row = selectedRow();
    const ServerRecord server = serverAt(ListView1, row);
    const std::string Port = program_.dialogs.input(
        "Select New Port for Server:\r\n" + server.ServerName, changeIPTitle, server.Port);
    if (length(Port) == portLength) ListView1.setSubItem(row, 2, Port);
}

}  // namespace tessaro
