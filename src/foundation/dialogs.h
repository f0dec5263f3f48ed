// The file, folder, text and confirmation questions of the forms, with the
// checks the program makes on the answers, all through the UserInterface port.
#pragma once

#include <string>

#include "foundation/user_interface.h"

namespace pluvane {

// An existing file chosen in an open dialog (filter index 1), trimmed; empty
// when cancelled or when the name holds "*" or "?". A name that does not exist
// is refused with its message.
std::string AskOpenFile(UserInterface& ui, const std::string& title, const std::string& filter,
                        const std::string& default_ext, const std::string& initial_name);
// A file name chosen in a save dialog, trimmed; empty when cancelled or when
// the name holds "*" or "?".
std::string AskSaveFile(UserInterface& ui, const std::string& title, const std::string& filter,
                        const std::string& default_ext, const std::string& initial_name);
// The folder chosen, starting at `initial_folder`; empty when cancelled.
std::string BrowseFolder(UserInterface& ui, const std::string& initial_folder,
                         const std::string& title);
// The text typed, trimmed; empty when cancelled.
std::string AskText(UserInterface& ui, const std::string& prompt, const std::string& title,
                    const std::string& default_text = "");
// True if the user answered yes.
bool AskConfirm(UserInterface& ui, const std::string& message,
                const std::string& title = "Confirmation");

}  // namespace pluvane
