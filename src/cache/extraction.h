#pragma once

#include <string>
#include <vector>

#include "cache/cacheindex.h"
#include "core/program.h"
#include "platform/outside/listitems.h"

namespace tessaro {

/// What an extraction shows while it runs.
enum class ExtractionBox { CurrentFile, MapName, FileSize, Extracted, Failed, Existing };

/// Who watches an extraction: shows its state and may stop it.
class ExtractionObserver {
  public:
    virtual ~ExtractionObserver() = default;
    virtual void show(ExtractionBox box, const std::string& text) = 0;
    /// Running: "&Extract" is out of reach, "&Stop" within it. The reverse when idle.
    virtual void enableStop(bool running) = 0;
    virtual void setBusyPointer(bool busy) = 0;
    /// Whether "&Stop" was pressed since `enableStop(true)`.
    virtual bool stopped() = 0;
    /// Whether an existing file is to be replaced; asked for each one.
    virtual bool overwriteExisting() = 0;
    /// The user wants the window closed.
    virtual void closeRequested() = 0;
};

/// Walks the cache index from its first line to its last and copies each package that is still in
/// the cache to its place under the destination root, under its true name. Opens the index as file
/// number 1 and leaves it open until `StopExtraction` or `closeIndex`.
class Extraction {
  public:
    /// `entry` outlives the extraction: what the last run left in it shows in the next one, also
    /// after the window was closed in between.
    Extraction(Program& program, ExtractionObserver& observer, CacheEntry& entry);

    CacheEntry& entry;
    ListItems ListView1;             ///< one row for each file copied
    std::vector<std::string> List2;  ///< the failure record

    /// One run over the index in `cacheFolder` into `entry.mypath`. Waits a tenth of a second for
    /// each file found, which is when the user can press a button. A failure inside the walk ends
    /// it at the closing question. Raises what changing to the destination and announcing the size
    /// of the configured cache raise.
    void run(const std::string& cacheFolder);
    /// What "&Stop" does. The walk ends after the file under work.
    void StopExtraction();
    /// What a click on a column's head does; columns count from 1.
    void sortBy(int column);
    /// Closes the index; failures are ignored.
    void closeIndex();

  private:
    void prepareFolders();
    bool announceMissingIndex(const std::string& index);
    bool extractUntilStopped(const std::string& cacheFolder);
    void pass(const std::string& cacheFolder);
    void noteFailure();
    void extract();
    void copyTo(const std::string& destination);
    void AddCopiedFileToList();
    void askToClose();

    Program& program_;
    ExtractionObserver& observer_;
};

}  // namespace tessaro
