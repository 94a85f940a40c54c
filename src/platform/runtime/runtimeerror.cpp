#include "platform/runtime/runtimeerror.h"

#include <algorithm>
#include <array>
#include <utility>

namespace tessaro {
namespace {

struct Description {
    int number;
    const char* words;
};

constexpr std::array descriptions{
    Description{errors::InvalidProcedureCall, "Invalid procedure call or argument"},
    Description{errors::Overflow, "Overflow"},
    Description{errors::SubscriptOutOfRange, "Subscript out of range"},
    Description{errors::TypeMismatch, "Type mismatch"},
    Description{errors::BadFileNumber, "Bad file name or number"},
    Description{errors::FileNotFound, "File not found"},
    Description{errors::BadFileMode, "Bad file mode"},
    Description{errors::FileAlreadyOpen, "File already open"},
    Description{errors::DeviceIo, "Device I/O error"},
    Description{errors::FileAlreadyExists, "File already exists"},
    Description{errors::DiskFull, "Disk full"},
    Description{errors::InputPastEnd, "Input past end of file"},
    Description{errors::TooManyFiles, "Too many files"},
    Description{errors::DeviceUnavailable, "Device unavailable"},
    Description{errors::PermissionDenied, "Permission denied"},
    Description{errors::DiskNotReady, "Disk not ready"},
    Description{errors::PathFileAccess, "Path/File access error"},
    Description{errors::PathNotFound, "Path not found"},
    Description{errors::ObjectNotSet, "Object variable or With block variable not set"},
    Description{errors::ResourceNotFound, "Resource with identifier not found"},
    Description{errors::InvalidPropertyValue, "Invalid property value"},
    Description{errors::InvalidPicture, "Invalid picture"},
    Description{errors::ControlNameInUse, "There is already a control with that name"},
    Description{errors::IndexOutOfBounds, "Index out of bounds"},
};

std::string describe(int number) {
    const auto* known = std::ranges::find(descriptions, number, &Description::number);
    return known == descriptions.end() ? "Application-defined or object-defined error"
                                       : known->words;
}

struct HostMeaning {
    std::errc host;
    int number;
};

constexpr std::array hostMeanings{
    HostMeaning{std::errc::no_such_file_or_directory, errors::FileNotFound},
    HostMeaning{std::errc::not_a_directory, errors::PathNotFound},
    HostMeaning{std::errc::permission_denied, errors::PermissionDenied},
    HostMeaning{std::errc::operation_not_permitted, errors::PermissionDenied},
    HostMeaning{std::errc::device_or_resource_busy, errors::PermissionDenied},
    HostMeaning{std::errc::text_file_busy, errors::PermissionDenied},
    HostMeaning{std::errc::file_exists, errors::FileAlreadyExists},
    HostMeaning{std::errc::no_space_on_device, errors::DiskFull},
    HostMeaning{std::errc::file_too_large, errors::DiskFull},
    HostMeaning{std::errc::too_many_files_open, errors::TooManyFiles},
    HostMeaning{std::errc::too_many_files_open_in_system, errors::TooManyFiles},
    HostMeaning{std::errc::io_error, errors::DeviceIo},
    HostMeaning{std::errc::no_such_device, errors::DeviceUnavailable},
    HostMeaning{std::errc::no_such_device_or_address, errors::DeviceUnavailable},
    HostMeaning{std::errc::bad_file_descriptor, errors::BadFileNumber},
};

}  // namespace

RunTimeError::RunTimeError(int number) : RunTimeError(number, {}) {}

RunTimeError::RunTimeError(int number, std::string detail)
    : number_(number),
      description_(describe(number)),
      detail_(std::move(detail)),
      what_("Run-time error " + std::to_string(number_) + ": " + description_) {
    if (!detail_.empty()) what_ += " (" + detail_ + ")";
}

std::string standardReport(const RunTimeError& error) {
    return "Run-time error '" + std::to_string(error.number()) + "':\n\n" + error.description();
}

void raiseHostError(const std::error_code& code, std::string_view detail) {
    const auto* known = std::ranges::find_if(
        hostMeanings, [&](const HostMeaning& meaning) { return code == meaning.host; });
    // The run-time library knows no finer word for the rest (a read-only disk, a loop of links, a
    // folder where a file should be).
    const int number = known == hostMeanings.end() ? errors::PathFileAccess : known->number;
    throw RunTimeError(number, std::string(detail) + ": " + code.message());
}

}  // namespace tessaro
