#include <windows.h>

#include "platform/outside/systemversion.h"
#include "platform/windows/widetext.h"

namespace tessaro {

namespace {

using VersionCall = LONG(WINAPI*)(RTL_OSVERSIONINFOW*);

// The documented call tells each program the version that it was made for; this one does not.
VersionCall versionCall() {
    const HMODULE system = ::GetModuleHandleW(L"ntdll.dll");
    if (system == nullptr) return nullptr;
    // By way of a plain function: what is looked up by name may be one of any type.
    return reinterpret_cast<VersionCall>(
        reinterpret_cast<void (*)()>(::GetProcAddress(system, "RtlGetVersion")));
}

}  // namespace

std::optional<SystemVersion> systemVersion() {
    const VersionCall call = versionCall();
    RTL_OSVERSIONINFOW info = {};
    info.dwOSVersionInfoSize = sizeof info;
    if (call == nullptr || call(&info) != 0) return std::nullopt;
    SystemVersion version;
    version.major = static_cast<std::int32_t>(info.dwMajorVersion);
    version.minor = static_cast<std::int32_t>(info.dwMinorVersion);
    version.build = static_cast<std::int32_t>(info.dwBuildNumber);
    version.platform = static_cast<std::int32_t>(info.dwPlatformId);
    // To its end and one more, as the field was always handed on.
    version.servicePack = fromWide(info.szCSDVersion).value_or("") + '\0';
    return version;
}

}  // namespace tessaro
