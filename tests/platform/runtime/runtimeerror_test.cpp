#include "platform/runtime/runtimeerror.h"

#include <gtest/gtest.h>

#include <map>
#include <stdexcept>

namespace tessaro {
namespace {

int numberFor(std::errc host) {
    try {
        raiseHostError(std::make_error_code(host), "C:\\file");
    } catch (const RunTimeError& error) {
        return error.number();
    }
}

TEST(RunTimeError, EachNumberHasItsCustomaryWords) {
    const std::map<int, std::string> words{
        {5, "Invalid procedure call or argument"},
        {6, "Overflow"},
        {9, "Subscript out of range"},
        {13, "Type mismatch"},
        {52, "Bad file name or number"},
        {53, "File not found"},
        {54, "Bad file mode"},
        {55, "File already open"},
        {57, "Device I/O error"},
        {58, "File already exists"},
        {61, "Disk full"},
        {62, "Input past end of file"},
        {67, "Too many files"},
        {68, "Device unavailable"},
        {70, "Permission denied"},
        {71, "Disk not ready"},
        {75, "Path/File access error"},
        {76, "Path not found"},
        {91, "Object variable or With block variable not set"},
        {326, "Resource with identifier not found"},
        {481, "Invalid picture"},
        {727, "There is already a control with that name"},
        {35600, "Index out of bounds"},
    };
    for (const auto& [number, description] : words)
        EXPECT_EQ(RunTimeError(number).description(), description) << number;
}

TEST(RunTimeError, AnUnknownNumberHasGeneralWords) {
    EXPECT_EQ(RunTimeError(1234).description(), "Application-defined or object-defined error");
}

TEST(RunTimeError, TheReportShowsNumberAndDescriptionButNoDetail) {
    EXPECT_EQ(standardReport(RunTimeError(6, "the line count")), "Run-time error '6':\n\nOverflow");
}

TEST(RunTimeError, TheDetailIsInWhat) {
    EXPECT_STREQ(RunTimeError(53, "C:\\a").what(), "Run-time error 53: File not found (C:\\a)");
    EXPECT_STREQ(RunTimeError(53).what(), "Run-time error 53: File not found");
}

TEST(RunTimeError, HostErrorsBecomeTheNumbersThatFit) {
    EXPECT_EQ(numberFor(std::errc::no_such_file_or_directory), 53);
    EXPECT_EQ(numberFor(std::errc::not_a_directory), 76);
    EXPECT_EQ(numberFor(std::errc::permission_denied), 70);
    EXPECT_EQ(numberFor(std::errc::operation_not_permitted), 70);
    EXPECT_EQ(numberFor(std::errc::file_exists), 58);
    EXPECT_EQ(numberFor(std::errc::no_space_on_device), 61);
    EXPECT_EQ(numberFor(std::errc::too_many_files_open), 67);
    EXPECT_EQ(numberFor(std::errc::io_error), 57);
    EXPECT_EQ(numberFor(std::errc::no_such_device), 68);
}

TEST(RunTimeError, AHostErrorWithoutANumberOfItsOwnIsAnAccessError) {
    EXPECT_EQ(numberFor(std::errc::read_only_file_system), 75);
    EXPECT_EQ(numberFor(std::errc::is_a_directory), 75);
    EXPECT_EQ(numberFor(std::errc::too_many_symbolic_link_levels), 75);
}

TEST(RunTimeError, AHostErrorKeepsThePathAndTheSystemsWords) {
    const auto code = std::make_error_code(std::errc::io_error);
    try {
        raiseHostError(code, "C:\\file");
    } catch (const RunTimeError& error) {
        EXPECT_EQ(error.detail(), "C:\\file: " + code.message());
    }
}

TEST(Attempt, TellsSuccessFromFailureAndGoesOn) {
    EXPECT_TRUE(attempt([] {}));
    EXPECT_FALSE(attempt([] { throw RunTimeError(errors::FileNotFound); }));
}

TEST(Attempt, LetsEverythingButRunTimeErrorsThrough) {
    EXPECT_THROW(attempt([] { throw std::logic_error("defect"); }), std::logic_error);
}

}  // namespace
}  // namespace tessaro
