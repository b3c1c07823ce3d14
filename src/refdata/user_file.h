#pragma once

#include <string>

/// The coolant settings file of the current user.
namespace qel::refdata {

/// Its path, whether it exists or not; empty when the user has no folder for settings.
std::string user_coolant_file();

/// Makes the folder of that file where it is missing and the path lies directly in it: a save is
/// about to happen. A look at the path alone makes no folder.
void make_folder_for_save(const char* path);

}  // namespace qel::refdata
