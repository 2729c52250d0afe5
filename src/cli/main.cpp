#include <unistd.h>

#include <CLI/CLI.hpp>
#include <algorithm>
#include <cerrno>
#include <csignal>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iostream>
#include <map>
#include <memory>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "cli/commands.h"
#include "cli/form/form_command.h"
#include "cli/help.h"
#include "cli/language.h"
#include "cli/memory_stage.h"
#include "cli/names.h"

#include "gabarito/control/interface.h"
#include "gabarito/control/versao.h"
#include "script/script.h"

namespace gabarito::cli {
namespace {

std::string Version() {
  return std::to_string(App::Major) + "." + std::to_string(App::Minor) + "." + std::to_string(App::Revision);
}

// The language of this run.
Language language = Language::kEnglish;

std::string T(std::string_view english) { return Told(english, language); }

// "Properties: MaxLength, ComboItens, ...", in the order of the type information.
std::string PropertyList() {
  std::string list;
  for (const Membro& member : MembrosDaInterface()) {
    if (member.tipo != TipoDeMembro::kPropriedade) continue;
    list.append(list.empty() ? "Properties: " : ", ").append(member.nome);
  }
  return T(list) + ".\n" + T(kPropertyHelp) + "\n\n" + T(kExitStatuses);
}

// A value belongs to one --set alone: the parser would otherwise take FILE for one more of its values.
void AddFieldOptions(CLI::App& command, FieldOptions& options) {
  command
      .add_option("-m,--mask", options.mask,
                  "Kind: a name that 'gabarito masks' lists, in any case and with or without gb, or a number")
      ->required()
      ->type_name("KIND");
  command.add_option("-s,--set", options.sets, "Sets a property; may be given several times")
      ->type_name("NAME=VALUE")
      ->allow_extra_args(false);
  command.footer(PropertyList());
}

// Standard output is written to the end, or the command has failed.
void Finish(std::ostream& out) {
  // A stream keeps no reason; the failed call has left it in errno.
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

int RunScriptFiles(const std::vector<std::string>& files) {
  return script::RunScripts(
      files, [] { return std::make_unique<MemoryStage>(); }, std::cin, std::cout, std::cerr,
      "gabarito script");
}

constexpr std::string_view kLanguageOption = "--lang";

// Known before the parser is told its texts: of --lang, or else of the environment.
Language LanguageOfRun(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string_view argument = argv[i];
    if (argument == "--") break;
    if (argument == kLanguageOption && i + 1 < argc) return LanguageOf(argv[i + 1]);
    if (argument.starts_with("--lang=")) return LanguageOf(argument.substr(kLanguageOption.size() + 1));
  }
  return LanguageOfEnvironment();
}

// What the command that was given does, once the whole line is understood.
using Action = std::function<int()>;

void AddMasks(CLI::App& program, Action& action) {
  CLI::App& command = *program.add_subcommand("masks", "List the kinds of field");
  auto json = std::make_shared<bool>(false);
  command.add_flag("--json", *json, "As JSON, with the members of the public class");
  command.callback([json, &action] {
    action = [json] { return RunMasks(*json ? ListForm::kJson : ListForm::kText, language, std::cout); };
  });
}

void AddField(CLI::App& program, Action& action) {
  CLI::App& command =
      *program.add_subcommand("field", "Put one value through a field and print what it gives");
  auto options = std::make_shared<FieldCommandOptions>();
  AddFieldOptions(command, options->field);
  command.add_option("-t,--text", options->text, "Value that is loaded")->type_name("VALUE");
  command
      .add_option("-k,--keys", options->keys,
                  "Keys played into the field after that, all at once: 05{TAB}03{TAB}2024")
      ->type_name("KEYSTRING");
  command.callback(
      [options, &action] { action = [options] { return RunField(*options, std::cout, std::cerr); }; });
}

void AddBatch(CLI::App& program, Action& action) {
  CLI::App& command = *program.add_subcommand(
      "batch", "Put each line of a file through a field: input, value and message, parted by TAB");
  auto options = std::make_shared<BatchOptions>();
  AddFieldOptions(command, options->field);
  command.add_option("FILE", options->file, "UTF-8, one value a line; standard input without it");
  command.callback(
      [options, &action] { action = [options] { return RunBatch(*options, STDIN_FILENO, STDOUT_FILENO); }; });
}

void AddScript(CLI::App& program, Action& action) {
  CLI::App& command = *program.add_subcommand("script", "Play host and user actions and write what happens");
  auto files = std::make_shared<std::vector<std::string>>();
  command.add_option("FILE", *files, "Actions, one a line; - or none for standard input");
  command.callback([files, &action] { action = [files] { return RunScriptFiles(*files); }; });
}

void AddForm(CLI::App& program, Action& action) {
  CLI::App& command = *program.add_subcommand("form", "Fill in a form in the terminal");
  auto options = std::make_shared<FormOptions>();
  command
      .add_option("--fields", options->fields_file,
                  "List of fields as JSON; a field of every kind without it")
      ->type_name("FILE");
  const std::map<std::string, FormFormat> formats{
      {"json", FormFormat::kJson}, {"env", FormFormat::kEnv}, {"tsv", FormFormat::kTsv}};
  CLI::Option* const format =
      command
          .add_option_function<std::string>(
              "--format",
              [options, formats](const std::string& name) { options->output.format = formats.at(name); },
              "json (the default), env (name='value' for a shell) or tsv (name, TAB, value)")
          ->check(CLI::IsMember(formats))
          ->type_name("FORMAT");
  CLI::Option* const nulls =
      command.add_flag("--nulls", options->output.nulls, "In JSON an empty field is null instead of \"\"");
  auto print0 = [options](std::int64_t) { options->output.format = FormFormat::kPrint0; };
  command.add_flag_function("--print0", print0, "The values alone, each ended by NUL")
      ->excludes(format)
      ->excludes(nulls);
  command.footer(T(kFormHelp));
  command.callback([options, &action] {
    if (options->output.nulls && options->output.format != FormFormat::kJson) {
      throw UsageError("form: --nulls goes with --format json alone");
    }
    action = [options] { return RunForm(*options); };
  });
}

// The texts that are given to the parser, and those that it brings along.
void TellHelp(CLI::App& app) {
  for (const char* const label : {"Usage", "OPTIONS", "SUBCOMMAND", "Positionals", "REQUIRED", "Excludes",
                                  "KIND", "NAME=VALUE", "VALUE", "KEYSTRING", "FILE", "FORMAT", "LANGUAGE"}) {
    app.get_formatter()->label(label, T(label));
  }
  app.description(T(app.get_description()));
  app.group(T(app.get_group()));
  app.footer(T(app.get_footer()));
  for (CLI::Option* const option : app.get_options()) {
    option->description(T(option->get_description()));
    option->group(T(option->get_group()));
  }
  for (CLI::App* const command : app.get_subcommands({})) TellHelp(*command);
}

// The parser would say that a command is required, not which word it does not know.
void RefuseUnknownCommand(const CLI::App& program, int argc, char** argv) {
  int first = 1;
  while (first < argc && std::string_view(argv[first]).starts_with(kLanguageOption)) {
    first += argv[first] == kLanguageOption ? 2 : 1;
  }
  const std::string_view word = first < argc ? argv[first] : "-";
  if (word.starts_with('-')) return;
  std::vector<std::string> names;
  for (const CLI::App* command : program.get_subcommands({})) names.push_back(command->get_name());
  if (std::find(names.begin(), names.end(), word) != names.end()) return;
  std::string list;
  for (const std::string& name : names) list.append(list.empty() ? "" : ", ").append(name);
  const std::vector<std::string_view> commands(names.begin(), names.end());
  throw UsageError("unknown command '" + std::string(word) + "'" + DidYouMean(word, commands) +
                   "; the commands are " + list);
}

int Run(int argc, char** argv) {
  CLI::App program(std::string(kProgramHelp), "gabarito");
  program.fallthrough();  // --lang may stand behind the command too
  program.add_option("--lang", "Language of help and messages: en or pt")->type_name("LANGUAGE");
  program.set_version_flag("-V,--version", Version(), "Print the version and exit");
  program.require_subcommand(1);
  program.footer(T(kExitStatuses));
  Action action;
  AddMasks(program, action);
  AddField(program, action);
  AddBatch(program, action);
  AddScript(program, action);
  AddForm(program, action);
  TellHelp(program);

  int status = kNothingRefused;
  try {
    RefuseUnknownCommand(program, argc, argv);
    program.parse(Arguments(argc, argv));
    status = action();
  } catch (const CLI::Success& asked) {  // --help and --version
    program.exit(asked);
  }
  Finish(std::cout);
  return status;
}

int Fail(std::string_view reason) {
  std::cerr << "gabarito: " << reason << '\n';
  return kFailed;
}

int Guarded(int argc, char** argv) {
  try {
    return Run(argc, argv);
  } catch (const CLI::ParseError& error) {
    return Fail(std::string(error.what()) + "; see --help");
  } catch (const UsageError& error) {
    return Fail(error.what());
  } catch (const std::system_error& error) {
    return error.code() == std::errc::broken_pipe ? kFailed : Fail(error.what());
  } catch (const Erro& error) {  // a setter that fails by design: MaxLength -32768
    return Fail("run-time error " + std::to_string(error.Number()) + ": " + ToUtf8(error.Description()));
  } catch (const std::exception& error) {
    return Fail(error.what());
  }
}

}  // namespace
}  // namespace gabarito::cli

int main(int argc, char** argv) {
  using namespace gabarito::cli;
  // A reader that has gone away is an error of a write, not the end of the process.
  std::signal(SIGPIPE, SIG_IGN);
  try {
    language = LanguageOfRun(argc, argv);
  } catch (const UsageError& error) {
    return Fail(error.what());
  }
  const TellsIn tells(std::cerr, language);
  return Guarded(argc, argv);
}
