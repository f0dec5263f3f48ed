// Times the drawing on a large network: 100 000 objects with 20 tags each,
// a whole FindByTag walk, 10 000 look-ups by Id, saving and loading.
#include "drawing/surface.h"

#include <chrono>
#include <cstdio>
#include <filesystem>
#include <string>

#include "bench_clock.h"
#include "drawing/surface_helpers.h"

int main() {
  using pluvane::Surface;
  constexpr int kObjects = 100000;
  constexpr int kTags = 20;
  Surface surface;
  auto start = std::chrono::steady_clock::now();
  surface.BeginStep("Construction");
  for (int i = 0; i < kObjects; ++i) {
    const int x = (i % 300) * 300;
    const int y = (i / 300) * 300;
    surface.AddObject(pluvane::kKindPicture, x, y, x + 100, y + 100);
    surface.SetObjTag("Id", "Nod_" + std::to_string(i));
    surface.SetObjTag("iName", i % 2 ? 99 : 5);
    surface.SetObjTag("iGroup", i % 2 ? 99 : 2);
    surface.SetObjTag("libell", "Element " + std::to_string(i));
    for (int t = 4; t < kTags; ++t) surface.SetObjTag("Tag" + std::to_string(t), t * 0.5);
  }
  surface.EndStep();
  std::printf("build %d objects x %d tags: %.0f ms\n", kObjects, kTags, Milliseconds(start));

  start = std::chrono::steady_clock::now();
  int found = 0;
  surface.SetCurrentObject(pluvane::kPage);
  for (int n = surface.FindByTag("iName", 99, true); n > 0;
       n = surface.FindByTag("iName", 99, false))
    ++found;
  std::printf("FindByTag walk (%d hits): %.1f ms\n", found, Milliseconds(start));

  start = std::chrono::steady_clock::now();
  int hits = 0;
  for (int i = 0; i < 10000; ++i)
    hits += pluvane::FindObject(surface, "Id", "Nod_" + std::to_string((i * 7919) % kObjects)) > 0;
  std::printf("10000 FindObject by Id (%d hits): %.1f ms\n", hits, Milliseconds(start));

  const std::string path =
      (std::filesystem::temp_directory_path() / "pluvane_bench_surface.mtf").string();
  start = std::chrono::steady_clock::now();
  const bool saved = surface.SaveFile(path, pluvane::kNativeFormat, 0);
  std::printf("SaveFile (%s, %.1f MB): %.0f ms\n", saved ? "ok" : "FAILED",
              static_cast<double>(std::filesystem::file_size(path)) / 1e6, Milliseconds(start));

  Surface loaded;
  start = std::chrono::steady_clock::now();
  const bool ok = loaded.LoadFile(path, 0);
  std::printf("LoadFile (%s, %d objects): %.0f ms\n", ok ? "ok" : "FAILED",
              loaded.ObjectCount(pluvane::kPage), Milliseconds(start));
  std::filesystem::remove(path);
  return saved && ok ? 0 : 1;
}
