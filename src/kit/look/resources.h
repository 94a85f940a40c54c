#pragma once

namespace tessaro {

/// Makes the program's sounds, pictures and icons known. The linker leaves out what nothing in a
/// library refers to, so each unit that reads a resource calls this first. May be called often.
void loadResources();

}  // namespace tessaro
