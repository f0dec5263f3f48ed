// The reader of rain text files, the syntax of the .PLU file: blocks that
// begin with a head line (a keyword, then the rain's name in apostrophes)
// followed by lines of numbers read field by field. Reading a file never
// fails: what a block lacks or holds wrong is reported by its decoding, and
// the import skips that block.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "foundation/user_interface.h"

namespace pluvane {

// One block: its keyword in capitals, its name, the number of its head line
// (from 1), and its lines after the head, trimmed, empty ones left out.
struct RainTextBlock {
  std::string keyword;
  std::string name;
  int head_line = 0;
  std::vector<std::string> lines;
};

// The keywords of the blocks: PR, CAQ, PPST, PPDT, PPHY, PRAD.
bool IsRainKeyword(const std::string& keyword);

// The blocks of a file's lines, in order. Lines before the first head belong
// to no block.
std::vector<RainTextBlock> ReadRainBlocks(UserInterface& ui, const std::vector<std::string>& lines);

// What a block becomes in the drawing: the tags of its rain record, in order.
// For a PR block also the gauges it names.
struct DecodedRain {
  std::vector<std::pair<std::string, std::string>> tags;
  std::vector<std::string> gauges;
};

// Why a block was refused.
struct RainBlockFault {
  enum Kind { kNone, kFormat, kGaugeState };
  Kind kind = kNone;
  std::string gauge;  // kGaugeState: the gauge whose state is above 1
};

// Decodes a block of one of the six keywords into the tags of its rain; false
// with the fault when a line is missing, a number is not one, or (PR) a
// gauge's state is above 1.
bool DecodeRainBlock(UserInterface& ui, const RainTextBlock& block, DecodedRain& rain,
                     RainBlockFault& fault);

}  // namespace pluvane
