#include "editor/search.h"

#include <algorithm>
#include <utility>

#include "platform/runtime/runtimeerror.h"
#include "platform/text/lettercase.h"
#include "platform/text/utf8.h"

namespace tessaro {
namespace {

constexpr char findCaption[] = "&Find";
constexpr char nextCaption[] = "&Next";

bool beginsCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80;
}

}  // namespace

void Search::open(std::string text) {
    SearchText = std::move(text);
    folded_ = lowerCase(SearchText);
    SearchPos = 0;
    caption_ = findCaption;
    view_.showCaption(caption_);
}

void Search::click(const std::string& wanted) {
    if (caption_ == findCaption) {
        FindFirst(wanted);
        caption_ = nextCaption;
        view_.showCaption(caption_);
    }
    if (caption_ == nextCaption) FindNext(wanted);
}

void Search::FindFirst(const std::string& wanted) {
    SearchPos = positionFrom(1, wanted);
    if (SearchPos == 0) return reportNoHit();
    show(wanted);
    SearchCount = 1;
}

void Search::FindNext(const std::string& wanted) {
    SearchPos = positionFrom(SearchPos, wanted);
    if (SearchPos == 0) return FindFirst(wanted);
    show(wanted);
    ++SearchCount;
}

void Search::FindLast(const std::string& wanted) {
    SearchPos = positionAt(folded_.rfind(lowerCase(wanted)));
    if (SearchPos == 0) return reportNoHit();
    view_.focusText();
    show(wanted);
    SearchCount = 1;
}

// The character, from 1, at which the wanted text begins, or 0.
Int16 Search::positionFrom(Int16 start, const std::string& wanted) const {
    if (start == 0) throw RunTimeError(errors::InvalidProcedureCall);
    const std::size_t from = left(folded_, static_cast<std::size_t>(start - 1)).size();
    return positionAt(folded_.find(lowerCase(wanted), from));
}

Int16 Search::positionAt(std::size_t byte) const {
    if (byte == std::string::npos) return 0;
    const auto hit = folded_.begin() + static_cast<std::ptrdiff_t>(byte);
    return std::count_if(folded_.begin(), hit, beginsCharacter) + 1;
}

void Search::show(const std::string& wanted) {
    const int start = SearchPos - 1;
    const std::size_t size = length(wanted);
    view_.select(static_cast<std::size_t>(start), size);
    SearchPos = start + static_cast<long long>(size) + 1;
}

void Search::reportNoHit() {
    dialogs_.message(
        {"Search String Not found!", "Finished Search", Buttons::Ok, Icon::Information});
}

}  // namespace tessaro
