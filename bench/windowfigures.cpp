#include <sstream>
#include <stdexcept>

#include "bench/child.h"
#include "bench/figure.h"
#include "bench/figures.h"
#include "platform/files/host.h"

namespace tessaro::bench {
namespace {

struct Line {
    const char* name;
    double mark;
};

constexpr double bytesPerOpening = 1024;

constexpr Line editorLines[] = {{"editor, load of 10 MB", 1.30},
                                {"editor, load of 10 MB in long lines", 1.30},
                                {"editor, a new line in the middle of 10 MB", 1.30},
                                {"editor, save of 10 MB", 2.00},
                                {"editor, search with its hit at 32,000", 2.00}};

constexpr Line screenshotLines[] = {{"screenshots, opening on 2,000", 1.50},
                                    {"screenshots, step to the next", 1.30}};

// Reports what a program of `window/` tells of a place, a line for each of `lines`.
template <std::size_t count>
bool reportToldBy(const char* name, const Place& place, const Line (&lines)[count]) {
    const HostPath program = executablePath().parent_path() / name;
    std::istringstream told(outputOf({program.string(), place.folder.string()}));
    bool kept = true;
    for (const Line& line : lines) {
        Comparison compared;
        if (!(told >> compared.ours >> compared.reference))
            throw std::runtime_error(program.string() + " did not tell of: " + line.name);
        kept = report(on(place, line.name), compared, "ms", line.mark) && kept;
    }
    return kept;
}

}  // namespace

bool editor(const Place& place) {
    return reportToldBy("tessaro-bench-editor", place, editorLines);
}

bool openings() {
    const HostPath program = executablePath().parent_path() / "tessaro-bench-openings";
    std::istringstream told(outputOf({program.string(), memory().folder.string()}));
    std::string form;
    double bytes = 0;
    bool kept = true;
    while (told >> form >> bytes)
        kept = report("heap that an opening leaves, " + form, {bytes, bytesPerOpening}, "bytes",
                      1.00) &&
               kept;
    if (form.empty()) throw std::runtime_error(program.string() + " told of no form");
    return kept;
}

bool screenshots(const Place& place) {
    return reportToldBy("tessaro-bench-screenshots", place, screenshotLines);
}

}  // namespace tessaro::bench
