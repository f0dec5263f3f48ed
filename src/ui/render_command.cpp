#include "ui/render_command.h"

#include <QGuiApplication>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "foundation/numbers.h"
#include "foundation/paths.h"
#include "foundation/scripted_ui.h"
#include "network/persistence.h"
#include "network/surface.h"
#include "plot/morvex_draw.h"
#include "plot/plot_command.h"
#include "shell/cli.h"
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

}  // namespace

int RenderCommand(const std::vector<std::string>& args, const std::string& app_path,
                  std::ostream& out, ScriptedUi& ui) {
  std::string network, output;
  int width = kDefaultPictureWidth;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if (arg == "-o" || arg == "--output") {
      if (i + 1 >= args.size()) return 2;
      output = args[++i];
    } else if (arg == "--width") {
      if (i + 1 >= args.size()) return 2;
      const std::string& value = args[++i];
      width = static_cast<int>(ValLong(value));
      if (width < 1 || NumToText(width) != value) return 2;
    } else if (network.empty() && arg.rfind("-", 0) != 0) {
      network = arg;
    } else {
      return 2;
    }
  }
  if (network.empty() || output.empty()) return 2;
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
  Surface surface;
  if (!surface.LoadFile(network, 0)) {
    ui.ShowMessage("Le fichier " + network + " ne peut pas être lu comme un réseau Pluvane.",
                   kTitle, MessageIcon::kExclamation);
    return 1;
  }
  EnsureGuiApplication();
  const PictureFolders folders{DirOf(network), JoinPath(app_path, "Symboles")};
  if (!SaveDrawingPicture(surface, output, width, folders)) {
    ui.ShowMessage("Erreur de sauvegarde : écriture impossible de " + output, kTitle,
                   MessageIcon::kCritical);
    return 1;
  }
  out << output << "\n";
  return 0;
}

int PlotCommand(const std::vector<std::string>& args, const std::string&, std::ostream& out,
                ScriptedUi& ui) {
  std::string script, ctl, output;
  int width = kDefaultPictureWidth;
  for (std::size_t i = 0; i < args.size(); ++i) {
    const std::string& arg = args[i];
    if ((arg == "--ctl" || arg == "-o" || arg == "--width") && i + 1 >= args.size()) return 2;
    if (arg == "--ctl") {
      ctl = args[++i];
    } else if (arg == "-o" || arg == "--output") {
      output = args[++i];
    } else if (arg == "--width") {
      width = static_cast<int>(ValLong(args[++i]));
      if (width < 1) return 2;
    } else if (script.empty() && arg.rfind("-", 0) != 0) {
      script = arg;
    } else {
      return 2;
    }
  }
  if (script.empty()) return 2;
  if (!output.empty() && PictureFormatOf(output) == PictureFormat::kUnknown) {
    ui.ShowMessage(
        "Erreur de sauvegarde : format d'image non reconnu (" + LastExtension(output) + ")", kTitle,
        MessageIcon::kCritical);
    return 1;
  }
  if (!CompileScriptPage(ui, script, ctl)) return 1;
  if (!ctl.empty()) out << ctl << "\n";
  if (output.empty()) return 0;
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

void RegisterRenderCommand() {
  RegisterCliCommand("plot",
                     "  plot SCRIPT.Mst [--ctl OUT.ctl] [-o OUT.svg|pdf|png] [--width PIXELS]\n"
                     "                compiles page 1 of a plot script in the script's folder;\n"
                     "                --ctl also writes the control file there, -o draws the\n"
                     "                page into a picture\n",
                     PlotCommand);
  RegisterCliCommand("render",
                     "  render NETWORK.mtf -o OUT.svg|pdf|png [--width PIXELS]\n"
                     "                draws the whole network as the window shows it into a\n"
                     "                picture (SVG, PDF, PNG, BMP or JPG by the extension),\n"
                     "                PIXELS wide (1600 if not given)\n",
                     RenderCommand);
}

}  // namespace pluvane
