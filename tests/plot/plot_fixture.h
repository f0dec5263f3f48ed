// Helpers of the rendering tests: curve files and scripts written into a
// temporary folder, a page drawn from them, and the objects of the surface
// looked at by kind.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <utility>
#include <vector>

#include "foundation/fixed_width.h"
#include "foundation/scripted_ui.h"
#include "foundation/test_files.h"
#include "drawing/surface.h"
#include "plot/morvex_draw.h"

namespace pluvane {

using XY = std::pair<double, double>;

// One curve of a curve file: its header and its data lines.
inline std::string CurveText(const std::string& name, const std::vector<XY>& points) {
  std::string text = "'" + name + "'\r\n";
  for (const XY& p : points)
    text += FormatFixed(p.first, 10, 3) + FormatFixed(p.second, 10, 3) + "\r\n";
  return text;
}

// The frame and scale of most tests: 2 to 28 by 2 to 20 cm, X 0 to 100 by
// steps of 10 with a label every 5, Y 0 to 10 by 1 with a label every 2.
inline std::string PageScript(const std::string& plots, const std::string& frame_title = "",
                              const std::string& scale = "\"F\" 0 100 0 10 10 1 5 2 \"\" \"\"",
                              const std::string& grid = "0 0 2 1 0",
                              const std::string& frame_tail = "6 1 0 6 0 0") {
  return "PAGE \"A4\" \"H\"\r\n Cadre 2 28 2 20 \"" + frame_title + "\" " + frame_tail +
         "\r\n Echelle " + scale + " \"V\" 5 \"######0.00\" \"######0.00\"\r\n Grille " + grid +
         "\r\n" + plots + " EndCadre\r\nENDPAGE\r\n";
}

// Every object of the surface in creation order.
inline std::vector<const Shape*> AllShapes(Surface& surface) {
  std::vector<const Shape*> shapes;
  const int saved = surface.CurrentObject();
  for (int n = surface.FirstObject(); n != 0; n = surface.NextObject()) {
    shapes.push_back(surface.ObjectShape(n));
  }
  surface.SetCurrentObject(saved);
  return shapes;
}

inline std::vector<const Shape*> ShapesOfKind(Surface& surface, int kind) {
  std::vector<const Shape*> shapes;
  for (const Shape* shape : AllShapes(surface)) {
    if (shape->kind == kind) shapes.push_back(shape);
  }
  return shapes;
}

inline std::vector<std::string> TextsOf(Surface& surface) {
  std::vector<std::string> texts;
  for (const Shape* shape : ShapesOfKind(surface, kKindText)) texts.push_back(shape->text.string);
  return texts;
}

inline const Shape* TextShape(Surface& surface, const std::string& text) {
  for (const Shape* shape : ShapesOfKind(surface, kKindText)) {
    if (shape->text.string == text) return shape;
  }
  return nullptr;
}

// A page drawn from a script and curve files in a folder of its own.
class PlotFixture : public ::testing::Test {
 protected:
  void WriteCurves(const std::string& file, const std::string& text) {
    WriteBytes(folder.File(file), text);
  }
  void Draw(const std::string& script_text, bool no_legend = false) {
    const std::string script = folder.File("t.Mst");
    WriteBytes(script, script_text);
    MorvexDraw(ui, no_legend, surface, script, folder.Path());
  }
  // Polylines and polygons of a colour: the curves (the frames of the tests
  // are black).
  std::vector<const Shape*> Curves() {
    std::vector<const Shape*> curves;
    for (const Shape* shape : AllShapes(surface)) {
      if ((shape->kind == kKindPolyline || shape->kind == kKindPolygon) &&
          shape->points.size() >= 2 && shape->line_color != 0)
        curves.push_back(shape);
    }
    return curves;
  }

  TempFolder folder;
  ScriptedUi ui;
  Surface surface;
};

}  // namespace pluvane
