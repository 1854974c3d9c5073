// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "cli_commands/CommandLine.h"

#include <algorithm>
#include <exception>
#include <new>

#include <CLI/CLI.hpp>

#include "cli_commands/Command.h"
#include "cli_commands/Suggestion.h"
#include "foundation/Assertion.h"
#include "foundation/ProgramVersion.h"
#include "foundation/RangeError.h"
#include "foundation/SourceLocation.h"

namespace nascor::cli {

namespace {

constexpr std::string_view kProgram = "nascor-cli";
constexpr std::string_view kHelp = "CommandHelp";
constexpr std::string_view kNotAMedicalDevice =
    translatable("CommandHelp", "Not a medical device. Not validated for clinical use.");
constexpr std::string_view kThisText = translatable("CommandHelp", "this text");
constexpr int kAllWell = 0;
constexpr int kBadInput = 1;
constexpr int kWrongUsage = 2;

Sentence usageLine(const std::string& how) { return Sentence("CommandHelp", "usage: %1").with(how); }

Sentence usageOf(const Command& command) {
  return usageLine(std::string(kProgram).append(" ").append(command.name).append(" ").append(command.usage));
}

Sentence usage() {
  const GeneralHelp general = generalHelp();
  return usageLine(std::string(general.program).append(" ").append(general.usage));
}

std::string padded(std::string text, std::size_t width) {
  if (text.size() < width) text.append(width - text.size(), ' ');
  return text;
}

/// Two columns: a term and what it means.
std::string listed(const std::vector<std::pair<std::string, std::string_view>>& terms,
                   const foundation::Localizer& localizer) {
  std::size_t width = 0;
  for (const auto& [term, meaning] : terms) width = std::max(width, term.size());
  std::string text;
  for (const auto& [term, meaning] : terms)
    text += "  " + padded(term, width + 2) + localizer.text(kHelp, meaning) + "\n";
  return text;
}

std::string version(const foundation::Localizer& localizer) {
  return std::string(kProgram).append(" ").append(foundation::programVersion()) + "\n" +
         localizer.text(kHelp, kNotAMedicalDevice) + "\n";
}

std::string help(const foundation::Localizer& localizer) {
  const GeneralHelp general = generalHelp();
  std::vector<std::pair<std::string, std::string_view>> terms;
  for (const Command& command : commands()) terms.emplace_back(command.name, command.summary);
  terms.emplace_back("help", general.helpOfHelp);
  std::vector<std::pair<std::string, std::string_view>> options;
  for (const auto& [names, meaning] : general.options) {
    std::string term;
    for (const std::string_view name : names) term.append(term.empty() ? "" : ", ").append(name);
    options.emplace_back(term, meaning);
  }
  return said(usage(), localizer) + "\n\n" + localizer.text(kHelp, general.summary) + "\n" +
         localizer.text(kHelp, kNotAMedicalDevice) + "\n\n" + localizer.text("CommandHelp", "Commands:") +
         "\n" + listed(terms, localizer) + "\n" + localizer.text("CommandHelp", "Options:") + "\n" +
         listed(options, localizer) + "\n" + localizer.text(kHelp, general.rules);
}

std::string helpOn(const Command& command, const foundation::Localizer& localizer) {
  std::vector<std::pair<std::string, std::string_view>> operands;
  for (const OperandSpec& operand : command.operands) operands.emplace_back(operand.name, operand.help);
  std::vector<std::pair<std::string, std::string_view>> options;
  for (const OptionSpec& option : command.options) {
    std::string term = "--" + std::string(option.name);
    if (!option.value.empty()) term += " " + std::string(option.value);
    options.emplace_back(term, option.help);
  }
  options.emplace_back("--help, -h", kThisText);
  return said(usageOf(command), localizer) + "\n\n" + localizer.text(kHelp, command.summary) + "\n" +
         localizer.text(kHelp, kNotAMedicalDevice) + "\n" +
         (operands.empty() ? "" : "\n" + listed(operands, localizer)) + "\n" +
         localizer.text("CommandHelp", "Options:") + "\n" + listed(options, localizer) +
         (command.details.isEmpty() ? "" : "\n" + said(command.details, localizer));
}

/// A command as the parser knows it.
class Parser {
 public:
  Parser(CLI::App& app, const Command& command)
      : command_(&command), app_(app.add_subcommand(std::string(command.name))) {
    app_->set_help_flag("-h,--help");
    for (const OptionSpec& option : command.options) {
      const std::string name = "--" + std::string(option.name);
      options_.push_back(option.value.empty() ? app_->add_flag(name) : app_->add_option(name)->type_size(1));
      if (option.repeated) options_.back()->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
    }
    // As many as there are, each taken as it was typed: otherwise the parser would split a file named "[a]", and take
    // what follows "--" for options again once it has enough operands.
    constexpr int kMany = 1 << 28;
    operands_ = app_->add_option("operands");
    operands_->type_size(1)->expected(kMany)->allow_extra_args(false);
    operands_->multi_option_policy(CLI::MultiOptionPolicy::TakeAll);
  }

  const Command& command() const { return *command_; }
  std::vector<std::string> remaining() const { return app_->remaining(); }
  bool isChosen() const { return app_->parsed(); }

  /// What was typed behind the command. Throws UsageError.
  Arguments arguments() const {
    Arguments arguments{.options = {}, .operands = operands_->results(), .repeated = {}};
    for (std::size_t i = 0; i < options_.size(); ++i) {
      if (options_[i]->count() == 0) continue;
      const OptionSpec& spec = command_->options[i];
      const std::string value = options_[i]->results().back();
      if (spec.value.empty() && value != "true") {
        throw UsageError(Sentence("CommandLine", "--%1 takes no value").with(spec.name));
      }
      arguments.options.emplace(spec.name, value);
      if (!spec.value.empty()) arguments.repeated.emplace(spec.name, options_[i]->results());
    }
    const auto specs = command_->operands;
    const std::size_t given = arguments.operands.size();
    if (given < specs.size() && !specs[given].isOptional)
      throw UsageError(Sentence("CommandLine", "%1 is missing").with(specs[given].name));
    const bool anyNumber = !specs.empty() && specs.back().repeated;
    if (given > specs.size() && !anyNumber) {
      const std::string extra = oneLine(arguments.operands[specs.size()]);
      throw UsageError(Sentence("CommandLine", "\"%1\" is one argument too many").with(extra));
    }
    return arguments;
  }

 private:
  const Command* command_;
  CLI::App* app_;
  std::vector<CLI::Option*> options_;
  CLI::Option* operands_;
};

bool isCommand(std::string_view name) {
  return std::ranges::any_of(commands(), [&](const Command& command) { return command.name == name; });
}

/// The sentence about what the parser could not place: a command, else the first option.
Sentence unknownArgument(const std::vector<std::string>& remaining, const Command* chosen) {
  const auto isOption = [](const std::string& text) { return text.starts_with('-'); };
  if (!chosen && std::ranges::any_of(remaining, std::not_fn(isOption))) {
    std::vector<std::string> names{"help"};
    for (const Command& command : commands()) names.emplace_back(command.name);
    const std::string& word = *std::ranges::find_if_not(remaining, isOption);
    return didYouMean(Sentence("CommandLine", "there is no command \"%1\"").with(word), word, names);
  }
  std::vector<std::string> names{"--help"};
  if (chosen) {
    for (const OptionSpec& option : chosen->options) names.push_back("--" + std::string(option.name));
  } else {
    names.emplace_back("--version");
  }
  const auto unknown = std::ranges::find_if(remaining, isOption);
  const std::string option =
      unknown == remaining.end() ? std::string() : unknown->substr(0, unknown->find('='));
  return didYouMean(Sentence("CommandLine", "there is no option \"%1\"").with(option), option, names);
}

int wrongUsage(const Sentence& sentence, const std::string& usage, const foundation::Localizer& localizer) {
  Console::writeError(std::string(kProgram) + ": " + oneLine(said(sentence, localizer)) + "\n" + usage);
  return kWrongUsage;
}

/// What the parser says, word by word: it knows no other language.
Sentence parsersSentence(const std::string& text) {
  constexpr std::string_view kMissing = ": 1 required  missing";
  constexpr std::string_view kSeveral = ": At Most 1 required but received ";
  if (text.ends_with(kMissing)) {
    return Sentence("CommandLine", "%1 has no value").with(text.substr(0, text.size() - kMissing.size()));
  }
  if (const std::size_t at = text.find(kSeveral); at != std::string::npos) {
    return Sentence("CommandLine", "%1 can be given once, and stands there %2 times")
        .with(text.substr(0, at), text.substr(at + kSeveral.size()));
  }
  return Sentence::verbatim(text);
}

/// What was typed behind the program's name, the last first as the parser wants it. It knows a negative number only by the
/// digit behind the sign, so -.5 gets one where numbers are expected.
std::vector<std::string> reversedArguments(std::vector<std::string> arguments) {
  const auto isChosen = [&](const Command& command) {
    return !arguments.empty() && command.name == arguments.front();
  };
  const auto all = commands();
  const auto command = std::ranges::find_if(all, isChosen);
  if (command != all.end() && (std::ranges::any_of(command->operands, &OperandSpec::isNumber) ||
                               std::ranges::any_of(command->options, &OptionSpec::isNumber))) {
    for (std::string& argument : arguments) {
      if (argument == "--") break;
      if (argument.starts_with("-.")) argument.insert(1, "0");
    }
  }
  std::ranges::reverse(arguments);
  return arguments;
}

int parseAndRun(int argc, char** argv, Console& console) {
  CLI::App app;
  app.set_help_flag("-h,--help");
  const CLI::Option* versionFlag = app.add_flag("--version");
  app.require_subcommand(0, 1);
  std::vector<Parser> parsers;
  for (const Command& command : commands()) parsers.emplace_back(app, command);
  const auto chosen = [&] { return std::ranges::find_if(parsers, &Parser::isChosen); };
  const foundation::Localizer& localizer = console.localizer();
  const auto wrong = [&](const Sentence& sentence) {
    const bool isAnyChosen = chosen() != parsers.end();
    const Sentence how = isAnyChosen ? usageOf(chosen()->command()) : usage();
    return wrongUsage(sentence, said(how, localizer) + "\n", localizer);
  };

  std::vector<std::string> arguments(argv + 1, argv + argc);
  if (!arguments.empty() && arguments.front() == "help") {
    // Help on a command is that command's own.
    arguments.erase(arguments.begin());
    if (arguments.size() > 1) return wrong(Sentence("CommandLine", "help explains one command"));
    if (!arguments.empty() && !isCommand(arguments.front()))
      return wrong(unknownArgument(arguments, nullptr));
    arguments.emplace_back("--help");
  }
  try {
    app.parse(reversedArguments(std::move(arguments)));
    if (versionFlag->count() > 0) {
      console.out() += version(localizer);
      console.flush();
      return kAllWell;
    }
    if (chosen() == parsers.end())
      return wrongUsage(Sentence("CommandLine", "a command is missing"), help(localizer), localizer);
    chosen()->command().run(chosen()->arguments(), console);
    console.flush();
    return console.allWell() ? kAllWell : kBadInput;
  } catch (const CLI::CallForHelp&) {
    console.out() += chosen() == parsers.end() ? help(localizer) : helpOn(chosen()->command(), localizer);
    console.flush();
    return kAllWell;
  } catch (const CLI::ExtrasError&) {
    const bool isAnyChosen = chosen() != parsers.end();
    const Command* command = isAnyChosen ? &chosen()->command() : nullptr;
    return wrong(unknownArgument(isAnyChosen ? chosen()->remaining() : app.remaining(), command));
  } catch (const CLI::ParseError& error) {
    return wrong(parsersSentence(error.what()));
  } catch (const UsageError& error) {
    return wrong(error.sentence());
  }
}

std::string placeOf(const foundation::SourceLocation& where) {
  return std::string(" (") + where.file_name() + ", line " + std::to_string(where.line()) + ")";
}

}  // namespace

GeneralHelp generalHelp() {
  return {.program = kProgram,
          .usage = "COMMAND [ARGUMENT...]",
          .summary = translatable("CommandHelp", "Obstetric ultrasound biometry for shells and scripts."),
          .rules = translatable(
              "CommandHelp",
              "Lengths are in millimetres, weights in grams, ages in weeks after the last menstrual period.\n"
              "A FILE or a value of - is standard input. No question is ever asked.\n"
              "Exit status: 0 all well, 1 some input was bad, 2 wrong usage.\n"),
          .helpOfHelp = translatable("CommandHelp", "this text; help COMMAND explains one command"),
          .options = {{{"--help", "-h"},
                       translatable("CommandHelp", "this text; behind a command, that command's help")},
                      {{"--version"}, translatable("CommandHelp", "the version of the program")},
                      {{"--"}, translatable("CommandHelp", "what follows is no option")}}};
}

int runCommandLine(int argc, char** argv, const foundation::Localizer& localizer) {
  Console console(localizer);
  Sentence sentence;
  try {
    return parseAndRun(argc, argv, console);
  } catch (const OutputError& error) {
    if (error.readerIsGone()) return kBadInput;
    sentence = Sentence("CommandLine", "standard output: %1").with(error.sentence());
  } catch (const foundation::RangeError& error) {
    sentence = Sentence::verbatim(error.what() + placeOf(error.where()));
  } catch (const foundation::AssertionFailure& error) {
    sentence = Sentence::verbatim(error.what());
  } catch (const std::bad_alloc&) {
    sentence = Sentence("CommandLine", "there is not enough memory");
  } catch (const std::exception& error) {
    sentence = foundation::sentenceOf(error);
  }
  Console::writeError(std::string(kProgram) + ": " + oneLine(said(sentence, localizer)) + "\n");
  return kBadInput;
}

}  // namespace nascor::cli
