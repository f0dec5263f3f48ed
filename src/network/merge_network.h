// Bringing another network into the open one (MnuFi_Import_Mtf). The guest's
// objects are added beside the host's, its nodes placed by the host's
// calibration, its elements renamed with a prefix taken from its file name
// (and renumbered where an Id clashes), and every reference between them
// (nodes of links and point elements, outlets of dividers and basins) moved
// to the new names. Reaches and library records come as they are.
#pragma once

#include <functional>

#include "network/network_session.h"

namespace pluvane {

inline constexpr const char* kMergeTitle = "Import de fichier mtf";
// How many characters of the guest file's base name make the prefix.
inline constexpr int kMergePrefixLength = 7;

// Merges a network file chosen in a dialog into the open one, as one undo
// step. The host must have its file and its calibration; each refusal is
// told. `rebuild_arrows` redraws the direction arrows of the links when the
// window shows them. Returns how many objects came in, 0 when none did.
int MergeNetwork(NetworkSession& s, const std::function<void()>& rebuild_arrows = {});

}  // namespace pluvane
