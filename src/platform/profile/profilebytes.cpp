#include "platform/profile/profilebytes.h"

namespace tessaro {

ProfileBytes::ProfileBytes(std::string_view bytes)
    : encoding_(detectEncoding(bytes)), bytes_(bytes.substr(markOf(encoding_).size())) {
    if (wide()) {
        oddByte_ = bytes_.substr(bytes_.size() - bytes_.size() % 2);
        bytes_.remove_suffix(oddByte_.size());
        decoded_ = decodeText(bytes.substr(0, bytes.size() - oddByte_.size()), encoding_);
    }
}

bool ProfileBytes::wide() const {
    return encoding_ == Encoding::Utf16LittleEndian || encoding_ == Encoding::Utf16BigEndian;
}

ProfileText ProfileBytes::text() const {
    if (wide()) return {decoded_, Letters::Utf8};
    return {bytes_, encoding_ == Encoding::CodePage ? Letters::CodePage : Letters::Utf8};
}

}  // namespace tessaro
