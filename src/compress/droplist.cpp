#include "compress/droplist.h"

#include "core/VORNX.h"
#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

// The position behind the last backslash.
std::size_t nameStart(std::string_view path) {
    const std::size_t backslash = path.rfind('\\');
    if (backslash == std::string_view::npos)
        throw RunTimeError(errors::InvalidProcedureCall, std::string(path));
    return backslash + 1;
}

void rejectFile(Program& program, const std::string& path) {
    program.dialogs.message(
        {"The file: " + path + "\ndoes not appear to be a valid UT compressed file.",
         "Not Valid File Format", Buttons::Ok, Icon::Stop});
}

bool accepts(Program& program, PackageTool tool, const std::string& path) {
    if (tool == PackageTool::Compressor) return program.files.fileLength(path) != 0;
    if (lowerCase(right(path, 3)) == ".uz") return true;
    rejectFile(program, path);
    return false;
}

void addDropped(Program& program, ListItems& list, const std::string& path) {
    const std::size_t start = nameStart(path);
    const std::size_t row = list.add(path.substr(start));
    list.setSubItem(row, 1, path.substr(0, start));
    list.setSubItem(row, 2, groupedDigits(program.files.fileLength(path)));
}

Message emptyListMessage(PackageTool tool) {
    if (tool == PackageTool::Compressor)
        return {"You Must Select Files to compress", "No files listed", Buttons::Ok, Icon::Stop};
    return {"You must first drag Unreal Compressed files to the window before decompressing",
            "No Files to compress", Buttons::Ok, Icon::Information};
}

const char* destinationPrompt(PackageTool tool) {
    return tool == PackageTool::Compressor ? "Select destination folder to compress files to:"
                                           : "Select destination folder to decompress files to:";
}

}  // namespace

ListItems makeDropList() {
    return ListItems({{"name", "File Name"}, {"folder", "File Location"}, {"size", "File Size"}});
}

std::string droppedPath(const ListItem& row) {
    return row.subItems.at(0) + row.text;
}

std::string groupedDigits(std::uintmax_t bytes) {
    if (bytes == 0) return {};
    std::string digits = std::to_string(bytes);
    for (std::size_t i = digits.size(); i > 3; i -= 3) digits.insert(i - 3, 1, ',');
    return digits;
}

void dropFiles(Program& program, PackageTool tool, ListItems& list,
               const std::vector<std::string>& paths) {
    const Int16 count = static_cast<long long>(paths.size());
    for (int i = 0; i < count; ++i) {
        const std::string& path = paths[static_cast<std::size_t>(i)];
        nameStart(path);
        if (accepts(program, tool, path)) addDropped(program, list, path);
    }
}

void removeSelected(ListItems& list) {
    if (AnyListViewItemSelected(list) == Yes) list.remove(list.selectedItem());
}

bool askDestination(Program& program, PackageTool tool, const ListItems& list) {
    if (list.count() == 0) {
        program.dialogs.message(emptyListMessage(tool));
        return false;
    }
    const bool compressor = tool == PackageTool::Compressor;
    std::string& destination = compressor ? program.CompressDest : program.DecompressDest;
    destination = BrowseForFolder(program, {destinationPrompt(tool), destination});
    return !destination.empty();
}

}  // namespace tessaro
