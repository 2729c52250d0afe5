#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/properties.h"
#include "cli/script/script.h"
#include "cli/utf8.h"
#include "gabarito/control/interface.h"
#include "gabarito/control/versao.h"

namespace gabarito::cli {
namespace {

std::string Version() {
  return std::to_string(App::Major) + "." + std::to_string(App::Minor) + "." + std::to_string(App::Revision);
}

// "Properties: MaxLength, ComboItens, ...", as they are published.
std::string PropertyList() {
  std::string list;
  for (const Membro& member : MembrosDaInterface()) {
    if (member.tipo != TipoDeMembro::kPropriedade) continue;
    list.append(list.empty() ? "Properties: " : ", ").append(member.nome);
  }
  return list +
         ".\nTexts stand as they are or as a JSON string, numbers decimal or 0x..., ComboItens and Font as "
         "JSON.\nThey are set in the order given and Mask after them, so that ComboItens, MaskText and "
         "MaxLength\nare in place when the kind takes its shape; ComboListIndex and Text come behind Mask.";
}

void AddFieldOptions(CLI::App& command, FieldOptions& options) {
  command.add_option("-m,--mask", options.mask, "Kind: a name that 'gabarito masks' lists, or a number")
      ->required()
      ->type_name("KIND");
  command.add_option("-s,--set", options.sets, "Sets a property; may be given several times")
      ->type_name("NAME=VALUE")
      ->allow_extra_args(false);
  command.footer(PropertyList());
}

// Standard output is written to the end, or the command has failed.
void Finish(std::ostream& out) {
  errno = 0;
  out.flush();
  if (!out) {
    throw std::system_error(errno != 0 ? errno : EIO, std::generic_category(), "cannot write the output");
  }
}

// In the order that the parser takes: last one first. An empty value ("--text=") becomes an argument of its
// own, which is how the parser knows it.
std::vector<std::string> Arguments(int argc, char** argv) {
  std::vector<std::string> arguments;
  for (int i = 1; i < argc; ++i) {
    std::string argument = argv[i];
    if (argument.starts_with("--") && argument.find('=') == argument.size() - 1) {
      argument.pop_back();
      arguments.push_back(std::move(argument));
      argument.clear();
    }
    arguments.push_back(std::move(argument));
  }
  std::reverse(arguments.begin(), arguments.end());
  return arguments;
}

int RunScriptFile(const std::string& file) {
  if (file.empty() || file == "-") return RunScript(std::cin, std::cout, std::cerr);
  errno = 0;
  std::ifstream in(file);
  if (in && std::filesystem::is_directory(file)) errno = EISDIR;
  if (errno != 0) throw std::system_error(errno, std::generic_category(), "cannot open " + file);
  return RunScript(in, std::cout, std::cerr);
}

int Run(int argc, char** argv) {
  CLI::App program("Gabarito: one input field for Brazilian forms that is 23 kinds of field.", "gabarito");
  program.set_version_flag("--version", Version(), "Print the version and exit");
  program.require_subcommand(1);
  program.footer("Exit status: 0 nothing was refused, 1 the field refused something, 2 a usage error.");

  CLI::App& masks = *program.add_subcommand("masks", "List the kinds of field");
  bool json = false;
  masks.add_flag("--json", json, "As JSON, with the members of the public class");

  CLI::App& field = *program.add_subcommand("field", "Put one value through a field and print what it gives");
  FieldCommandOptions field_options;
  AddFieldOptions(field, field_options.field);
  field.add_option("-t,--text", field_options.text, "Value that is loaded")->type_name("VALUE");
  field
      .add_option("-k,--keys", field_options.keys,
                  "Keys that are typed into the field after that, such as 1203{TAB}")
      ->type_name("KEYSTRING");

  CLI::App& batch = *program.add_subcommand("batch", "Put each line of a file through a field");
  BatchOptions batch_options;
  AddFieldOptions(batch, batch_options.field);
  batch.add_option("FILE", batch_options.file, "UTF-8, one value a line; standard input without it");

  CLI::App& script = *program.add_subcommand("script", "Play host and user actions and write what happens");
  std::string script_file;
  script.add_option("FILE", script_file, "Actions, one a line; standard input without it");

  try {
    program.parse(Arguments(argc, argv));
  } catch (const CLI::Success& asked) {  // --help and --version
    program.exit(asked);
    Finish(std::cout);
    return kNothingRefused;
  }
  int status = kFailed;
  if (masks.parsed()) {
    status = RunMasks(json ? ListForm::kJson : ListForm::kText, std::cout);
  } else if (field.parsed()) {
    status = RunField(field_options, std::cout, std::cerr);
  } else if (batch.parsed()) {
    status = RunBatch(batch_options, STDIN_FILENO, STDOUT_FILENO);
  } else if (script.parsed()) {
    status = RunScriptFile(script_file);
  }
  Finish(std::cout);
  return status;
}

int Fail(std::string_view reason) {
  std::cerr << "gabarito: " << reason << '\n';
  return kFailed;
}

}  // namespace
}  // namespace gabarito::cli

int main(int argc, char** argv) {
  using namespace gabarito::cli;
  // A reader that has gone away is an error of a write, not the end of the process.
  std::signal(SIGPIPE, SIG_IGN);
  try {
    return Run(argc, argv);
  } catch (const CLI::ParseError& error) {
    return Fail(std::string(error.what()) + "; see --help");
  } catch (const UsageError& error) {
    return Fail(error.what());
  } catch (const std::system_error& error) {
    return error.code() == std::errc::broken_pipe ? kFailed : Fail(error.what());
  } catch (const gabarito::Erro& error) {
    return Fail("run-time error " + std::to_string(error.Number()) + ": " + ToUtf8(error.Description()));
  } catch (const std::exception& error) {
    return Fail(error.what());
  }
}
