#include "ui/main_tool_bars.h"

#include <QMenu>
#include <QPainter>
#include <QPixmap>
#include <QToolButton>
#include <memory>
#include <string_view>

#include "foundation/paths.h"
#include "foundation/text.h"
#include "network/catalogue.h"
#include "shell/main_menus.h"
#include "ui/picture_icon_engine.h"

namespace pluvane {

namespace {

constexpr int kIconSize = 24;

struct BandInfo {
  std::string_view name;
  std::string_view title;
};

// The bands shown as tool bars, with the titles their users know.
constexpr BandInfo kBars[] = {{"DisplayManagerBand", "Boîte à Outils"},
                              {"RESO_CREATE", "CREATE RESO"}};

// The tools that open a band as a drop-down.
constexpr std::pair<std::string_view, std::string_view> kDropDowns[] = {
    {"X_BVCOM", "RESO_CREATE_BV_C"}, {"X_BVSIM", "RESO_CREATE_BV_S"}};

// Short texts of the tools, shown when their picture is missing.
constexpr std::pair<std::string_view, std::string_view> kShortTexts[] = {
    {"MDDELETE", "Sup"},    {"MDMOVE", "Dép"},       {"MDFUSION", "Fus"},  {"MDBREAK", "Div"},
    {"MDBREAKPLUS", "Rép"}, {"MDEDIT1", "Ed"},       {"MDEDITALL", "EdG"}, {"MDSAVE", "Sav"},
    {"ZOOMT", "ZT"},        {"ZOOMF", "ZF"},         {"ZOOM11", "Z1"},     {"ZOOMM", "Z-"},
    {"MDREFRESH", "F5"},    {"MDSHOWLNKARROW", "→"}, {"MDASCENS", "Asc"},  {"MDGRID", "Gr"},
    {"MDCOBACK", "Co"},     {"MYMDBUBLE", "i"},      {"X_CALAGE", "Cal"},  {"X_PARAM", "Par"},
    {"X_CAC", "CAC"},       {"X_CAF", "CAF"},        {"X_CAO", "CAO"},     {"X_TR", "TR"},
    {"X_BVCOM", "BV"},      {"X_BVSIM", "BVs"},      {"X_ROUT", "Rou"},
};

std::string_view ShortText(const std::string& key) {
  for (const auto& [k, text] : kShortTexts) {
    if (k == key) return text;
  }
  return {};
}

QIcon TextIcon(std::string_view text) {
  QPixmap pixmap(kIconSize, kIconSize);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(QColor(70, 90, 120), 1));
  painter.setBrush(QColor(232, 238, 246));
  painter.drawRoundedRect(QRectF(1.5, 3.5, kIconSize - 3, kIconSize - 7), 3, 3);
  QFont font = painter.font();
  font.setPixelSize(text.size() > 2 ? 9 : 11);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(QColor(30, 45, 70));
  painter.drawText(QRectF(0, 0, kIconSize, kIconSize), Qt::AlignCenter,
                   QString::fromUtf8(text.data(), static_cast<int>(text.size())));
  return QIcon(pixmap);
}

}  // namespace

std::string MainToolBars::IconFileOf(const std::string& key, const std::string& icon_dir,
                                     const std::string& symbol_dir) {
  const std::string upper = UCase(key);
  if (!icon_dir.empty()) {
    const std::string drawn = JoinPath(icon_dir, upper + ".svg");
    if (FileExist(drawn)) return drawn;
  }
  return symbol_dir.empty() ? std::string() : SymbolPathOfKey(symbol_dir, upper);
}

QIcon MainToolBars::FallbackIcon(const std::string& key) {
  const std::string upper = UCase(key);
  std::string_view text = ShortText(upper);
  const std::string fallback = upper.size() > 2 ? upper.substr(2, 3) : upper;
  return TextIcon(text.empty() ? std::string_view(fallback) : text);
}

QIcon MainToolBars::IconOf(const std::string& key, const std::string& icon_dir,
                           const std::string& symbol_dir) {
  const std::string file = IconFileOf(key, icon_dir, symbol_dir);
  if (!file.empty()) {
    // The symbols of the elements fill their square: a small margin keeps
    // them the size of the drawn tools.
    const bool drawn = !icon_dir.empty() && file == JoinPath(icon_dir, UCase(key) + ".svg");
    auto engine = std::make_unique<PictureIconEngine>(file, drawn ? 0.0 : 2.0 / kIconSize);
    if (engine->IsReadable()) return QIcon(engine.release());
  }
  return FallbackIcon(key);
}

Qt::ToolBarArea MainToolBars::AreaOfPosition(int position) {
  switch (position) {
    case 1:
      return Qt::TopToolBarArea;
    case 2:
      return Qt::BottomToolBarArea;
    case 8:
      return Qt::RightToolBarArea;
    default:
      return Qt::LeftToolBarArea;
  }
}

int MainToolBars::PositionOfArea(Qt::ToolBarArea area) {
  switch (area) {
    case Qt::TopToolBarArea:
      return 1;
    case Qt::BottomToolBarArea:
      return 2;
    case Qt::RightToolBarArea:
      return 8;
    default:
      return 4;
  }
}

MainToolBars::MainToolBars(QMainWindow* window, const std::string& symbol_dir,
                           const std::string& icon_dir,
                           std::function<void(const std::string&)> clicked) {
  for (const BandInfo& info : kBars) {
    auto* bar = new QToolBar(QString::fromUtf8(info.title.data(), info.title.size()), window);
    bar->setObjectName(QString::fromUtf8(info.name.data(), info.name.size()));
    bar->setIconSize(QSize(kIconSize, kIconSize));
    bands_[std::string(info.name)] = bar;
  }
  for (const auto& [tool, band] : kDropDowns) {
    auto* menu = new QMenu(window);
    menu->setObjectName(QString::fromUtf8(band.data(), band.size()));
    drop_downs_[std::string(tool)] = menu;
  }
  auto menu_of_band = [this](std::string_view band) -> QMenu* {
    for (const auto& [tool, name] : kDropDowns) {
      if (name == band) return drop_downs_[std::string(tool)];
    }
    return nullptr;
  };
  for (const ToolItem& item : pluvane::ToolBands()) {
    const std::string key(item.key);
    QString tip = QString::fromUtf8(item.tip.data(), static_cast<int>(item.tip.size()));
    tip.remove('&');
    auto* action = new QAction(IconOf(key, icon_dir, symbol_dir), tip, window);
    action->setObjectName(QString::fromStdString(key));
    action->setToolTip(tip);
    if (!tools_.count(key)) tools_[key] = action;
    all_tools_.emplace_back(UCase(key), action);
    auto drop = drop_downs_.find(key);
    if (drop != drop_downs_.end()) {
      // The tool opens its band; its tools do the placing.
      action->setMenu(drop->second);
    } else {
      action->setCheckable(true);
      QObject::connect(action, &QAction::triggered, window, [clicked, key] { clicked(key); });
    }
    if (QMenu* menu = menu_of_band(item.band)) {
      menu->addAction(action);
    } else if (QToolBar* bar = Band(std::string(item.band))) {
      bar->addAction(action);
      if (action->menu()) {
        if (auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action))) {
          button->setPopupMode(QToolButton::InstantPopup);
        }
      }
    }
  }
}

void MainToolBars::SetPressed(const std::string& key) {
  const std::string armed = UCase(key);
  for (const auto& [tool, action] : all_tools_) {
    if (action->isCheckable()) action->setChecked(!armed.empty() && tool == armed);
  }
}

QToolBar* MainToolBars::Band(const std::string& name) const {
  auto found = bands_.find(name);
  return found == bands_.end() ? nullptr : found->second;
}

QAction* MainToolBars::Tool(const std::string& key) const {
  auto found = tools_.find(key);
  return found == tools_.end() ? nullptr : found->second;
}

QMenu* MainToolBars::DropDown(const std::string& key) const {
  auto found = drop_downs_.find(key);
  return found == drop_downs_.end() ? nullptr : found->second;
}

}  // namespace pluvane
