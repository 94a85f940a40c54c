#include "compress/batch.h"

#include "compress/droplist.h"

namespace tessaro {

ListItems makeBatchList() {
    return ListItems({{"name", "File Name"}, {"size", "Size"}});
}

void loadBatch(Program& program, const ListItems& dropped, ListItems& batch) {
    for (std::size_t i = 1; i <= dropped.count(); ++i) {
        const std::string path = droppedPath(dropped.item(i));
        batch.add(i, path);
        batch.setSubItem(i, 1, std::to_string(program.files.fileLength(path)));
    }
}

void reportMissingResult(Program& program, const std::string& file,
                         const std::string& destination) {
    program.dialogs.message({"Error moving " + file + " to destination folder: " + destination,
                             "File Error", Buttons::Ok, Icon::Stop});
}

bool confirmClosing(Program& program, const std::string& text, const std::string& title) {
    return program.dialogs.message({text, title, Buttons::YesNo, Icon::None}) == Answer::Yes;
}

}  // namespace tessaro
