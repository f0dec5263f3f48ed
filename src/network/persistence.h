// Opening, saving and closing a network file: the questions before a close,
// the parameter records written with the drawing and read back after it, the
// recent-files list, the drawing loaded beside a network.
#pragma once

#include <string>

#include "network/network_session.h"

namespace pluvane {

// Answers of AskSaveCurrent, as the old message boxes numbered them.
inline constexpr int kAnswerYes = 6;
inline constexpr int kAnswerNo = 7;
inline constexpr int kAnswerCancel = 2;

// A network file is any path holding ".MTF" (case-blind), wherever it stands.
bool IsNetworkPath(const std::string& path);

// Asks whether to save the drawing before it goes; 0 without a question when
// the drawing is empty.
int AskSaveCurrent(NetworkSession& s, const std::string& path);

// Opens `path` (direct) or the file chosen in the open dialog, after offering
// to save the present one. False when nothing was opened.
bool OpenNetwork(NetworkSession& s, bool direct, const std::string& path = {});
// After a load: counters, node count, parameter records, calibration, hidden
// records, saved view.
void RestoreNetworkParameters(NetworkSession& s);

// Writes the parameter records, then the file (the Save As dialog when `path`
// is blank). False when nothing was written.
bool SaveNetwork(NetworkSession& s, const std::string& path);
// The command Save: Save As when the network has no file yet.
bool mnuFile_Save(NetworkSession& s);
// The command Save As: a network file or a picture, by the extension.
bool SaveNetworkAs(NetworkSession& s);

// Offers to save, then empties the drawing for a new network. False when
// the user cancelled.
bool CloseNetwork(NetworkSession& s);
// The emptying alone: what a new network starts with.
void ResetNetwork(NetworkSession& s);

// Loads a drawing beside the network: its objects are added as they are.
bool mnuFile_Load(NetworkSession& s);
// Adds the objects of a network file to the drawing, as the selection; a file
// that does not read is told to the user and adds nothing.
bool LoadBesideNetwork(NetworkSession& s, const std::string& file);
// Opens the recent file of that menu entry (from 1).
bool mnuRUF(NetworkSession& s, int index);

}  // namespace pluvane
