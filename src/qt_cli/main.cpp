// gabarito-qt: the field as a Qt widget, in a window to try it and in scripts.
#include <CLI/CLI.hpp>
#include <QtCore/QTimer>
#include <QtWidgets/QApplication>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "qt_cli/form_window.h"
#include "qt_cli/qt_stage.h"
#include "script/script.h"

namespace gabarito::qt_cli {
namespace {

constexpr int kBadUsage = 2;

int RunForm() {
  FormWindow window;
  window.show();
  const int status = QApplication::exec();
  std::cout << window.Values().toStdString() << std::endl;
  return status;
}

int Play(const std::vector<std::string>& files) {
  return script::RunScripts(
      files, [] { return std::make_unique<QtStage>(); }, std::cin, std::cout, std::cerr,
      "gabarito-qt script");
}

// A script needs no display, and must not be disturbed by one.
bool IsScript(int argc, char** argv) { return argc > 1 && std::string_view(argv[1]) == "script"; }

int Main(int argc, char** argv) {
  if (IsScript(argc, argv) && qgetenv("QT_QPA_PLATFORM").isEmpty()) qputenv("QT_QPA_PLATFORM", "offscreen");
  CLI::App commands("The field as a Qt widget", "gabarito-qt");
  std::vector<std::string> files;
  auto* const form =
      commands.add_subcommand("form", "Opens a window with a field of every kind; without a command too");
  auto* const play = commands.add_subcommand("script", "Plays host and user actions on real widgets");
  play->add_option("FILE", files, "Scripts, - for standard input");
  commands.require_subcommand(0, 1);
  try {
    commands.parse(argc, argv);
  } catch (const CLI::ParseError& fault) {
    return commands.exit(fault) == 0 ? 0 : kBadUsage;
  }
  (void)form;
  QApplication application(argc, argv);
  return play->parsed() ? Play(files) : RunForm();
}

}  // namespace
}  // namespace gabarito::qt_cli

int main(int argc, char** argv) { return gabarito::qt_cli::Main(argc, argv); }
