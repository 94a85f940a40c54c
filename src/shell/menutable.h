#pragma once
// The main window's menus: which items there are, in order.

#include <string_view>

namespace tessaro {

/// One item. An item that names a menu as its parent belongs to that menu; "" is the menu bar, and
/// "mnumypopup" the pop-up menu, which never shows on the bar.
struct MenuItem {
    std::string_view parent;
    std::string_view name;
    std::string_view caption;  ///< empty for a separator
    std::string_view shortcut;
};

inline constexpr std::string_view popupMenu = "mnumypopup";
inline constexpr std::string_view popupCaption = "mypopup";

inline constexpr MenuItem menuItems[] = {
    {"", "mnufilemain", "&File", ""},
    {"mnufilemain", "mnulinks", "&Unreal Tournament Links", ""},
    {"mnulinks", "mnuwwwut", "UT Homepage", ""},
    {"mnulinks", "mnuwwwplanet", "Planetunreal", ""},
    {"mnulinks", "mnuutitalia", "UnrealItalia", ""},
    {"mnulinks", "mnuunrealfiles", "UnrealFiles", ""},
    {"mnulinks", "mnuunreality", "Unreality", ""},
    {"mnufilemain", "mnuabout", "&About Ovrin Tessaro", "Ctrl+A"},
    {"mnufilemain", "mnuhyph4", "", ""},
    {"mnufilemain", "mnuexit", "E&xit", ""},
    {"", "mnuedit", "&Edit", ""},
    {"mnuedit", "mnuinieditor", "INI File Editor (*.ini)", "Ctrl+E"},
    {"mnuedit", "mnuhyph3", "", ""},
    {"mnuedit", "mnuprefs", "&Preferences", "Ctrl+P"},
    {"", "mnutools", "&Tools", ""},
    {"mnutools", "mnumapextractor", "&Map Extractor", "Ctrl+M"},
    {"mnutools", "mnumapcompress", "Package &Compressor", "Ctrl+C"},
    {"mnutools", "mnudecomp", "Package &Decompressor", "Ctrl+D"},
    {"mnutools", "mnuhyph1", "", ""},
    {"mnutools", "mnuusermanager", "&User Manager", "Ctrl+U"},
    {"mnutools", "mnuipaddr", "&IP Address Manager", "Ctrl+I"},
    {"mnutools", "mnuhyph2", "", ""},
    {"mnutools", "mnuascii", "&ASCII Character Viewer", ""},
    {"mnutools", "mnuviewscrnshot", "&Screenshot Viewer", "F9"},
    {"", "mnuhelp", "&Help", ""},
    {"mnuhelp", "mnumehelp", "Tessaro Help", "F1"},
    {"mnuhelp", "mnuucc", "Unreal Console Commands", "F2"},
    {"mnuhelp", "mnurunserver", "Running UT Servers", "F3"},
    {"mnuhelp", "mnuserveradmin", "Server Administration", "F4"},
    {popupMenu, "mnuraboot", "About Tessaro", ""},
    {popupMenu, "fiejfi", "", ""},
    {popupMenu, "mnurmapext", "Map Extractor", ""},
    {popupMenu, "mnurcompress", "Compressor", ""},
    {popupMenu, "mnusplitter2", "", ""},
    {popupMenu, "mnurprefs", "Preferences", ""},
    {popupMenu, "mnusplitter3", "", ""},
    {popupMenu, "mnuruserman", "User Manager", ""},
    {popupMenu, "mnuripaddr", "IP Address Manager", ""},
    {popupMenu, "mnurasciiview", "ASCII Viewer", ""},
    {popupMenu, "mnurscrnsht", "Screenshot Viewer", ""},
    {popupMenu, "mnusplitter6", "", ""},
    {popupMenu, "mnurexit", "Exit", ""},
};

}  // namespace tessaro
