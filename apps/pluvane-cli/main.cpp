// pluvane-cli: the treatments of the program without a window.
#include <cstring>
#include <iostream>
#include <string>

namespace {

const char kUsage[] =
    "usage: pluvane-cli COMMAND [ARGUMENTS]\n"
    "\n"
    "Runs the treatments of Pluvane without a window. Messages go to standard\n"
    "error as 'title: text'; questions take their default answer.\n"
    "\n"
    "Commands:\n"
    "  --help        this text\n"
    "\n"
    "Exit status: 0 success, 1 the treatment refused, 2 bad usage.\n";

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    std::cerr << kUsage;
    return 2;
  }
  std::string command = argv[1];
  if (command == "--help" || command == "-h" || command == "help") {
    std::cout << kUsage;
    return 0;
  }
  std::cerr << "pluvane-cli: commande inconnue : " << command << "\n" << kUsage;
  return 2;
}
