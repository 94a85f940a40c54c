#pragma once

#include <exception>
#include <string>
#include <string_view>
#include <system_error>

namespace tessaro {

/// Numbers of the run-time errors that the program's routines raise and that its report shows.
namespace errors {
inline constexpr int InvalidProcedureCall = 5;
inline constexpr int Overflow = 6;
inline constexpr int SubscriptOutOfRange = 9;
inline constexpr int TypeMismatch = 13;
inline constexpr int BadFileNumber = 52;
inline constexpr int FileNotFound = 53;
inline constexpr int BadFileMode = 54;
inline constexpr int FileAlreadyOpen = 55;
inline constexpr int DeviceIo = 57;
inline constexpr int FileAlreadyExists = 58;
inline constexpr int DiskFull = 61;
inline constexpr int InputPastEnd = 62;
inline constexpr int TooManyFiles = 67;
inline constexpr int DeviceUnavailable = 68;
inline constexpr int PermissionDenied = 70;
inline constexpr int DiskNotReady = 71;
inline constexpr int PathFileAccess = 75;
inline constexpr int PathNotFound = 76;
inline constexpr int ObjectNotSet = 91;
inline constexpr int ResourceNotFound = 326;
inline constexpr int InvalidPropertyValue = 380;
inline constexpr int InvalidPicture = 481;
inline constexpr int ControlNameInUse = 727;
inline constexpr int IndexOutOfBounds = 35600;
}  // namespace errors

/// A numbered run-time failure. One that no handler takes up ends the program with the standard
/// report.
class RunTimeError : public std::exception {
  public:
    explicit RunTimeError(int number);
    /// `detail` (a path, the system's words) tells a debugger or a test more; the report never
    /// shows it.
    RunTimeError(int number, std::string detail);

    int number() const { return number_; }
    /// The customary words for the number, such as "Overflow".
    const std::string& description() const { return description_; }
    const std::string& detail() const { return detail_; }
    const char* what() const noexcept override { return what_.c_str(); }

  private:
    int number_;
    std::string description_;
    std::string detail_;
    std::string what_;
};

/// The text of the standard report: "Run-time error '6':", a blank line, "Overflow".
std::string standardReport(const RunTimeError& error);

/// The one place where what the host says becomes a run-time error.
[[noreturn]] void raiseHostError(const std::error_code& code, std::string_view detail);

/// Runs one statement of a routine that ignores failures; tells whether it succeeded. Only
/// run-time errors are ignored: a defect of ours or the end of the program passes through.
template <class Statement>
bool attempt(Statement&& statement) {
    try {
        statement();
        return true;
    } catch (const RunTimeError&) {
        return false;
    }
}

}  // namespace tessaro
