#pragma once

#include <windows.h>

#include <optional>

#include "platform/files/host.h"

namespace tessaro {

/// The attributes that a file which takes the place of another one, or is its copy, is to have.
/// Nothing if there is no such file.
std::optional<DWORD> lastingAttributes(const HostPath& file);

/// Gives an open file of ours the access list of another one. Who owns it is not looked at: here a
/// file is its last writer's after every save. Tells whether all that the other one is came along:
/// named streams beside its contents do not.
bool giveAccess(HANDLE file, const HostPath& like);

}  // namespace tessaro
