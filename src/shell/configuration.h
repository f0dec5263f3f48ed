// The program's settings: one `pluvane.ini` (beside the programs, or the
// user's copy of an installed program), read and written key by key and never
// cached, and the reading of the start-up settings into the application
// state. The file's path is `IniFilePath` of the state.
#pragma once

#include <string>

#include "foundation/settings_keys.h"
#include "foundation/user_interface.h"
#include "shell/app_state.h"
#include "shell/resource_library.h"

namespace pluvane {


// A profile read with an empty default (a missing key reads as empty), and the
// profile write of a value turned into text.
std::string ReadProfileValue(const std::string& section, const std::string& key,
                             int buffer_size, const std::string& file);
bool WriteProfileValue(const std::string& section, const std::string& key,
                       const std::string& value, const std::string& file);
bool WriteProfileValue(const std::string& section, const std::string& key, double value,
                       const std::string& file);

// A folder named in the configuration: a name without separator lies under the
// application folder; a blank one is `default_name` there.
std::string FolderUnderApp(const std::string& app_path, const std::string& value,
                           const std::string& default_name);

// Reads the start-up settings into the state and opens the picture library.
// False, after its message, when the symbols folder does not exist: the start
// cannot go on.
bool LoadConfiguration(AppState& state, UserInterface& ui, ResourceLibrary& resources);

// The boolean of `FlashScreen`: a non-zero number or "True" (any case).
bool ProfileBoolean(const std::string& value);

}  // namespace pluvane
