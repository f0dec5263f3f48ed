// The tool bands of the main window, built from the program's table: the
// display tools ("Boîte à Outils"), the creation tools ("CREATE RESO"), and
// the two small bands that the catchment tools X_BVCOM and X_BVSIM open as
// drop-downs. Each tool shows its caption as a tip and a picture: its drawing
// in the icon folder (Icones/, one SVG file per key in capitals), else the
// element's own symbol, else a short text in a box.
#pragma once

#include <QAction>
#include <QIcon>
#include <QMainWindow>
#include <QToolBar>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

namespace pluvane {

class MainToolBars {
 public:
  // Adds the bands to the window; a click on a tool calls `clicked` with its key.
  MainToolBars(QMainWindow* window, const std::string& symbol_dir, const std::string& icon_dir,
               std::function<void(const std::string&)> clicked);

  // The band by its name ("DisplayManagerBand", "RESO_CREATE").
  QToolBar* Band(const std::string& name) const;
  // The action of a tool by key; the first when a key stands in two bands.
  QAction* Tool(const std::string& key) const;
  // The drop-down menu that a tool opens (X_BVCOM, X_BVSIM), nullptr if none.
  QMenu* DropDown(const std::string& key) const;
  // Shows the tool of the armed key pressed and every other one raised; an
  // empty key raises them all. Keys are compared in capitals.
  void SetPressed(const std::string& key);

  // The docking area of the tool box as the configuration numbers it (1 top,
  // 2 bottom, 4 left, 8 right), and back.
  static Qt::ToolBarArea AreaOfPosition(int position);
  static int PositionOfArea(Qt::ToolBarArea area);

  // The picture file of a tool: "<icon_dir>/<KEY>.svg" when it stands, else
  // the symbol of its element; empty when it has none.
  static std::string IconFileOf(const std::string& key, const std::string& icon_dir,
                                const std::string& symbol_dir);
  // The picture of a tool, drawn from its file at the size and pixel ratio
  // asked; the short text in a box when the file is missing or unreadable.
  static QIcon IconOf(const std::string& key, const std::string& icon_dir,
                      const std::string& symbol_dir);
  // The short text in a box of a tool.
  static QIcon FallbackIcon(const std::string& key);

 private:
  std::map<std::string, QToolBar*> bands_;
  std::map<std::string, QAction*> tools_;
  // Every tool with its key in capitals, a key standing in two bands twice.
  std::vector<std::pair<std::string, QAction*>> all_tools_;
  std::map<std::string, QMenu*> drop_downs_;
};

}  // namespace pluvane
