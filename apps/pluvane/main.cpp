// The desktop program: pluvane [NETWORK.mtf [0] [n]].
#include <QApplication>
#include <QLabel>
#include <clocale>

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  // Qt takes the user's locale; numbers in every file keep the point.
  std::setlocale(LC_NUMERIC, "C");
  QLabel window("Pluvane");
  window.setWindowTitle("Pluvane");
  window.resize(480, 240);
  window.show();
  return app.exec();
}
