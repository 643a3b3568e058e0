#pragma once

#include <string>

namespace tamo {

// The paths of the open files that are looked after, by their handles.
void RememberOpen(int handle, const std::string& path);
void ForgetOpen(int handle);
std::string PathOfOpen(int handle);  // "" when it is not looked after
// A file that is open goes on under its new name.
void RenameOpen(const std::string& from, const std::string& to);

}  // namespace tamo
