// .LI2, one record of 812 bytes for each element in rank order: 203 single
// precision numbers (indices 1 to 203), or for closed and open collectors a
// record of their own with the section's name as text.
#include <algorithm>
#include <array>
#include <cerrno>
#include <charconv>
#include <cstdint>
#include <cstring>
#include <fstream>

#include "foundation/errors.h"
#include "foundation/numbers.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "simulation/link_files.h"
#include "simulation/link_ranks.h"

namespace pluvane {

namespace {

// Fills the unused points of a curve.
constexpr float kNoPoint = -999.0F;
constexpr int kSectionNameSize = 16;

class Record {
 public:
  Record(const Surface& surface, int number) : surface_(surface), number_(number) {
    bytes_.fill(0);
  }

  // A tag of the element.
  std::string_view Read(std::string_view tag) const { return surface_.TagOf(number_, tag); }

  // Index i (from 1) holds the single-precision value.
  void Set(int index, double value) {
    const auto single = static_cast<float>(value);
    std::uint32_t bits = 0;
    std::memcpy(&bits, &single, sizeof bits);
    const std::size_t at = static_cast<std::size_t>(index - 1) * 4;
    for (int b = 0; b < 4; ++b) bytes_[at + b] = static_cast<char>((bits >> (8 * b)) & 0xFF);
  }
  // Index i takes the leading number of the tag.
  void Tag(int index, std::string_view tag) { Set(index, Val(Read(tag))); }
  // The same with the tag's name followed by n.
  void Tag(int index, const char* tag, int n) {
    std::array<char, 32> name{};
    const std::size_t length = std::min(std::strlen(tag), name.size() - 12);
    std::memcpy(name.data(), tag, length);
    char* end = std::to_chars(name.data() + length, name.data() + name.size(), n).ptr;
    Tag(index, std::string_view(name.data(), static_cast<std::size_t>(end - name.data())));
  }
  // Text in 8-bit characters from index i on, left-aligned in `size` bytes.
  void Text(int index, std::string_view tag, int size) {
    std::string text = Utf8ToCp1252(Read(tag));
    text.resize(static_cast<std::size_t>(size), ' ');
    std::memcpy(&bytes_[static_cast<std::size_t>(index - 1) * 4], text.data(), text.size());
  }
  const std::array<char, kLi2RecordSize>& bytes() const { return bytes_; }

 private:
  const Surface& surface_;
  int number_;
  std::array<char, kLi2RecordSize> bytes_{};
};

// A table of `points` rows whose column c of row i is index first[c] + i,
// from the tags names[c] followed by i. Rows up to the count are read, the
// others get -999, up to `points` rows.
template <std::size_t N>
void PointTable(Record& r, int count, int points, const std::array<int, N>& first,
                const std::array<const char*, N>& names) {
  for (int i = 1; i <= points; ++i) {
    for (std::size_t c = 0; c < N; ++c) {
      if (i <= count) {
        r.Tag(first[c] + i, names[c], i);
      } else {
        r.Set(first[c] + i, kNoPoint);
      }
    }
  }
}

void FillTags(Record& r, std::initializer_list<const char*> tags) {
  int index = 0;
  for (const char* tag : tags) r.Tag(++index, tag);
}

// A curve of kind 9: all ten points from the tags, then, with a count above
// 0, again up to the count and -999 beyond it.
void LevelLaw(Record& r, const char* count_tag, int first_x,
              const char* x_tag, const char* y_tag) {
  const std::array<int, 2> first = {first_x, first_x + 10};
  const std::array<const char*, 2> names = {x_tag, y_tag};
  PointTable(r, 10, 10, first, names);
  const int count = ValRoundInt(r.Read(count_tag));
  if (count > 0) PointTable(r, count, 10, first, names);
}

void FillRecord(Record& r, int kind) {
  const auto nb_pt = [&] { return ValRoundInt(r.Read("NbPt")); };
  switch (kind) {
    case kINameBV:
    case kINameBVS:
      FillTags(r,
               {"S", "L", "m", "ci", "Fpluie", "Fpluie1", "Fpluie2", "Fpluie3", "Fruissel", "K"});
      if (kind == kINameBVS) r.Tag(11, "Qsec");
      break;
    case kINameRout:
      FillTags(r, {"S", "L", "m"});
      break;
    case kINameHYBV:
      FillTags(r, {"Qsec", "SR"});
      break;
    case kINameHY:
      r.Tag(1, "NbPt");
      PointTable<2>(r, nb_pt(), 100, {1, 101}, {"X", "Y"});
      r.Tag(202, "Qsec");
      r.Tag(203, "SR");
      break;
    case kINameCAC:
      FillTags(r, {"ZRam", "ZRav", "Dn", "L", "K", "HD", "SR"});
      break;
    case kINameCAF:
    case kINameCAO:
      r.Tag(1, "ZRam");
      r.Tag(2, "ZRav");
      r.Text(3, "IdSect", kSectionNameSize);
      r.Tag(7, "L");
      r.Tag(8, kind == kINameCAF ? "K" : "Kmin");
      r.Tag(9, kind == kINameCAF ? "HD" : "Largeur");
      r.Tag(10, kind == kINameCAF ? "SR" : "Kmaj");
      break;
    case kINameDQQ:
      r.Tag(1, "NbDer");
      PointTable<4>(r, nb_pt(), 10, {1, 11, 21, 31}, {"X", "Y", "Z", "T"});
      break;
    case kINameDQZ:
      FillTags(r, {"NbDer", "TypeAval", "TypeDer_a", "TypeDer_b", "TypeDer_c"});
      LevelLaw(r, "NbPtAv", 5, "Xav", "Yav");
      LevelLaw(r, "NbPtDa", 25, "Xda", "Yda");
      LevelLaw(r, "NbPtDb", 45, "Xdb", "Ydb");
      LevelLaw(r, "NbPtDc", 65, "Xdc", "Ydc");
      break;
    case kINameRS:
      FillTags(r, {"Qf", "Z0"});
      PointTable<2>(r, nb_pt(), 10, {2, 12}, {"X", "Y"});
      break;
    case kINameRSP:
      r.Tag(1, "Z0");
      PointTable<4>(r, nb_pt(), 10, {1, 11, 21, 31}, {"X", "Y", "Z", "T"});
      break;
    case kINameCLAV:
    case kINameMark:
      r.Tag(1, "Export");
      break;
    default:  // 13 and the others: all zero
      break;
  }
}

}  // namespace

int GenFicLi2(ModelContext& context, const std::string& path) {
  const Surface& surface = context.surface;
  try {
    const LinkWalk walk(surface);
    errno = 0;
    std::ofstream file(path, std::ios::binary | std::ios::trunc);
    if (!file) throw FileError(errno);
    for (const LinkElement& element : walk.elements()) {
      Record record(surface, element.number);
      FillRecord(record, element.kind);
      file.write(record.bytes().data(), kLi2RecordSize);
    }
    file.flush();
    if (!file) throw FileError(EIO);
    return walk.count();
  } catch (const AppError& error) {
    ShowError(context.ui, &error, "GenFicLi2");
    return 0;
  }
}

}  // namespace pluvane
