// Reading back a printed PDF with poppler's tools, to check what its page
// shows: the text it carries, or its first page drawn as a picture. The
// tools are a test dependency (tools/install-deps.sh); a test without them
// is skipped with RequirePdfTools().
#pragma once

#include <QColor>
#include <QImage>
#include <QProcess>
#include <QStandardPaths>
#include <QString>
#include <QStringList>
#include <cstdlib>
#include <string>

namespace pluvane {

// Why the PDF cannot be read back here; empty when it can.
inline std::string MissingPdfTools() {
  for (const char* tool : {"pdftotext", "pdftoppm", "pdfinfo"}) {
    if (QStandardPaths::findExecutable(tool).isEmpty()) {
      return std::string(tool) +
             " (poppler-utils) is not installed: the printed page cannot be read back "
             "(tools/install-deps.sh installs it)";
    }
  }
  return "";
}

// Skips the test when the tools are missing.
#define RequirePdfTools()                                        \
  do {                                                           \
    const std::string missing = ::pluvane::MissingPdfTools();    \
    if (!missing.empty()) GTEST_SKIP() << missing;               \
  } while (false)

// The text of every page, as pdftotext lays it out; empty on failure.
inline QString PdfText(const std::string& pdf) {
  QProcess tool;
  tool.start("pdftotext", {"-layout", "-enc", "UTF-8", QString::fromStdString(pdf), "-"});
  if (!tool.waitForFinished(30000) || tool.exitCode() != 0) return {};
  return QString::fromUtf8(tool.readAllStandardOutput());
}

// The first page drawn at `dpi`; a null image on failure.
inline QImage PdfPage(const std::string& pdf, int dpi) {
  const QString stem = QString::fromStdString(pdf) + "-page";
  QProcess tool;
  tool.start("pdftoppm", {"-png", "-r", QString::number(dpi), "-f", "1", "-l", "1", "-singlefile",
                          QString::fromStdString(pdf), stem});
  if (!tool.waitForFinished(30000) || tool.exitCode() != 0) return {};
  return QImage(stem + ".png");
}

// The pixels of the image within `tolerance` of the colour on each channel.
inline int PixelsNear(const QImage& image, QColor colour, int tolerance = 60) {
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor c = image.pixelColor(x, y);
      count += std::abs(c.red() - colour.red()) <= tolerance &&
               std::abs(c.green() - colour.green()) <= tolerance &&
               std::abs(c.blue() - colour.blue()) <= tolerance;
    }
  }
  return count;
}

// The pages in the PDF, 0 when it cannot be read.
inline int PdfPageCount(const std::string& pdf) {
  QProcess tool;
  tool.start("pdfinfo", {QString::fromStdString(pdf)});
  if (!tool.waitForFinished(30000) || tool.exitCode() != 0) return 0;
  for (const QString& line : QString::fromUtf8(tool.readAllStandardOutput()).split('\n')) {
    if (line.startsWith("Pages:")) return line.mid(6).trimmed().toInt();
  }
  return 0;
}

}  // namespace pluvane
