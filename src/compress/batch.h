#pragma once

#include <string>

#include "core/program.h"
#include "platform/outside/listitems.h"

namespace tessaro {

/// Who watches a batch and shows its state.
class BatchObserver {
  public:
    virtual ~BatchObserver() = default;
    /// Running: the pointer is an hourglass and the form takes no input. The reverse when idle.
    virtual void setRunning(bool running) = 0;
    /// Whether the form has gone, as it does with the main window. The batch then ends before its
    /// next file, without its question: nobody is left to answer.
    virtual bool abandoned() = 0;
    /// Files of the batch that stood at the destination already.
    virtual void showExisting(int count) = 0;
    /// Position in the list, of which its number of rows is the end.
    virtual void showProgress(int position) = 0;
    /// The user wants the tool closed, the form with the dropped files included.
    virtual void closeTool() = 0;
};

/// An empty list of a batch: a full path and its length in plain bytes.
ListItems makeBatchList();

/// Fills a batch's list from the dropped files. Raises 53 for a file that has gone since its drop.
void loadBatch(Program& program, const ListItems& dropped, ListItems& batch);

/// The one failure that a batch reports: a file whose result did not appear.
void reportMissingResult(Program& program, const std::string& file, const std::string& destination);

/// The question at the end of a batch; true for Yes.
bool confirmClosing(Program& program, const std::string& text, const std::string& title);

}  // namespace tessaro
