// Copying the library records of one kind (sections, Montana coefficients,
// rains, scenarios: the hidden "alpha" objects) from the open network into
// another network file. The other network is loaded into a drawing of its
// own that is never shown, changed there, and written back in one safe
// replacement of its file; the network on screen is only read.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "foundation/user_interface.h"
#include "network/network_state.h"

namespace pluvane {

// What the type box shows before a choice: the typed entry's form.
inline constexpr const char* kObjAlphaTypedEntry =
    "?? : rentrez un nombre entier suivi de 2 points";

// The entries of the type list: one for each library kind that has at least
// one object in the drawing, in the order the list has always had.
std::vector<std::string> ObjAlphaKinds(Surface& source);

// The type a text of the box stands for: what comes before its ":", trimmed;
// false when there is no ":".
bool ObjAlphaType(const std::string& text, std::string& type);

// The objects of the drawing whose iName is `type`, in creation order, the
// first four objects of the drawing left out as they always were.
std::vector<int> ObjAlphaSources(Surface& source, const std::string& type);

struct ObjAlphaResult {
  enum Outcome {
    kNothing,  // no ":" in the type, or no object of it: nothing said, nothing written
    kRefused,  // the destination file does not exist (the message was shown)
    kFailed,   // the destination could not be read or written (the error was shown)
    kDone,     // copied and saved; the status line tells how many
  };
  Outcome outcome = kNothing;
  int count = 0;
  std::string type;
};

// The copy itself, step by step as the form's Go button runs it: the type, the
// objects of that type, the destination's existence, its load into a drawing
// of its own with the extents of `source`, each object found there by iName
// and Id (or made as a hidden record) and given every tag of the source, then
// the save and the status line "ok <n> obj de type <t> ont été exportés dans
// <file>". The progress bar follows the objects.
ObjAlphaResult ExportObjAlpha(Surface& source, const NetworkState& state, UserInterface& ui,
                              const std::string& type_text, const std::string& destination);

}  // namespace pluvane
