#include "ui/render_command.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "network/persistence.h"
#include "drawing/surface.h"
#include "plot/morvex_draw.h"
#include "plot/plot_command.h"
#include "shell/cli.h"
#include "shell/cli_capacity.h"
#include "ui/capacity_picture.h"
#include "shell/cli_network.h"
#include "shell/cli_options.h"
#include "shell/cli_profile.h"
#include "ui/drawing_picture.h"
#include "ui/picture_format.h"

namespace pluvane {

namespace {

constexpr const char* kTitle = "Pluvane";

// Qt's own notes (no runtime folder, fonts) would mix with the treatment's
// messages on the error stream; only its fatal ones are let through.
void QuietQtMessages(QtMsgType type, const QMessageLogContext&, const QString& message) {
  if (type == QtCriticalMsg || type == QtFatalMsg)
    std::fprintf(stderr, "%s\n", message.toLocal8Bit().constData());
}

// Drawing needs a Qt application; a command line has no display to give it.
void EnsureGuiApplication() {
  if (QCoreApplication::instance()) return;
  qInstallMessageHandler(QuietQtMessages);
  if (std::getenv("QT_QPA_PLATFORM") == nullptr) setenv("QT_QPA_PLATFORM", "offscreen", 1);
  static int argc = 1;
  static char name[] = "pluvane-cli";
  static char* argv[] = {name, nullptr};
  static auto* app = new QGuiApplication(argc, argv);
  (void)app;
}

const CliOption kOutputOption{{"-o", "--output"}, true, true};
const CliOption kWidthOption{{"--width"}, true, false};

// The picture width of `--width`, the default when absent; 0 when the value
// is no whole number of pixels.
int PictureWidth(const CliOptions& words) {
  if (!words.Has("--width")) return kDefaultPictureWidth;
  const std::string value = words.Value("--width");
  const int width = static_cast<int>(ValLong(value));
  return width >= 1 && NumToText(width) == value ? width : 0;
}

}  // namespace

int RenderCommand(const std::vector<std::string>& args, const std::string& app_path,
                  std::ostream& out, ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {kOutputOption, kWidthOption}, 1, 1)) return 2;
  const std::string& network = words.Positional()[0];
  const std::string output = words.Value("-o");
  const int width = PictureWidth(words);
  if (output.empty() || width == 0) return 2;
  if (!IsNetworkPath(network)) {
    ui.ShowMessage(network + " n'est pas de type Pluvane !!!", kTitle, MessageIcon::kExclamation);
    return 1;
  }
  if (PictureFormatOf(output) == PictureFormat::kUnknown) {
    ui.ShowMessage(
        "Erreur de sauvegarde : format d'image non reconnu (" + LastExtension(output) + ")", kTitle,
        MessageIcon::kCritical);
    return 1;
  }
  // The symbols are looked for in the folder that the configuration names.
  CliNetwork program(ui);
  if (!program.OpenDrawing(app_path, network, kTitle)) return 1;
  EnsureGuiApplication();
  const PictureFolders folders{DirOf(network), program.state().SymbolDir};
  if (!SaveDrawingPicture(program.surface, output, width, folders)) {
    ui.ShowMessage("Erreur de sauvegarde : écriture impossible de " + output, kTitle,
                   MessageIcon::kCritical);
    return 1;
  }
  out << output << "\n";
  return 0;
}

int PlotCommand(const std::vector<std::string>& args, const std::string&, std::ostream& out,
                ScriptedUi& ui) {
  CliOptions words;
  if (!words.Parse(args, {{{"--ctl"}, true, true}, kOutputOption, kWidthOption}, 1, 1)) return 2;
  const std::string& script = words.Positional()[0];
  const std::string ctl = words.Value("--ctl");
  const std::string output = words.Value("-o");
  const int width = PictureWidth(words);
  if (width == 0) return 2;
  if (!output.empty() && PictureFormatOf(output) == PictureFormat::kUnknown) {
    ui.ShowMessage(
        "Erreur de sauvegarde : format d'image non reconnu (" + LastExtension(output) + ")", kTitle,
        MessageIcon::kCritical);
    return 1;
  }
  if (!CompileScriptPage(ui, script, ctl)) return 1;
  if (!ctl.empty()) out << ctl << "\n";
  if (output.empty()) return 0;
  return WriteScriptPicture(ui, script, output, out, width);
}

int WriteScriptPicture(ScriptedUi& ui, const std::string& script, const std::string& output,
                       std::ostream& out, int width) {
  if (PictureFormatOf(output) == PictureFormat::kUnknown) {
    ui.ShowMessage(
        "Erreur de sauvegarde : format d'image non reconnu (" + LastExtension(output) + ")", kTitle,
        MessageIcon::kCritical);
    return 1;
  }
  PlotPicture page = DrawScriptPage(ui, script);
  if (!page.drawn) return 1;
  EnsureGuiApplication();
  if (!SaveAreaPicture(*page.surface, QRectF(0, 0, page.width, page.height), output, width)) {
    ui.ShowMessage("Erreur de sauvegarde : écriture impossible de " + output, kTitle,
                   MessageIcon::kCritical);
    return 1;
  }
  out << output << "\n";
  return 0;
}

std::vector<CliCommand> RenderCliCommands() {
  return {
      CapacityCliCommand([](const Surface& map, const Surface& legend, const std::string& path,
                            const std::string& folder, const std::string& symbols) {
        EnsureGuiApplication();
        return SaveCapacityPicture(map, legend, path, folder, symbols);
      }),
      {"plot",
       "  plot SCRIPT.Mst [--ctl OUT.ctl] [-o OUT.svg|pdf|png] [--width PIXELS]\n"
       "                compiles page 1 of a plot script in the script's folder;\n"
       "                --ctl also writes the control file there, -o draws the\n"
       "                page into a picture\n",
       PlotCommand},
      {"render",
       "  render NETWORK.mtf -o OUT.svg|pdf|png [--width PIXELS]\n"
       "                draws the whole network as the window shows it into a\n"
       "                picture (SVG, PDF, PNG, BMP or JPG by the extension),\n"
       "                PIXELS wide (1600 if not given)\n",
       RenderCommand},
      ProfileCliCommand([](ScriptedUi& ui, const std::string& script, const std::string& picture,
                           std::ostream& out) {
        return WriteScriptPicture(ui, script, picture, out, kDefaultPictureWidth);
      }),
  };
}

}  // namespace pluvane
