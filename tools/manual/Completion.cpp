// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "manual/Completion.h"

#include <algorithm>
#include <array>
#include <optional>
#include <string_view>

namespace nascor::manual {

namespace {

/// What may stand in the place of a value or of an operand.
struct Choice {
  bool isFile = false;
  std::vector<std::string> words;  ///< one of these; none where anything may stand
};

Choice choiceOf(std::string_view placeholder) {
  while (placeholder.ends_with('.')) placeholder.remove_suffix(1);
  static constexpr std::array<std::string_view, 5> kFiles{"FILE", "DIR", "FOLDER", "PATH", "DOCUMENT"};
  Choice choice{.isFile = std::ranges::find(kFiles, placeholder) != kFiles.end(), .words = {}};
  if (placeholder.find('|') == std::string_view::npos) return choice;
  for (std::size_t begin = 0; begin <= placeholder.size();) {
    const std::size_t end = std::min(placeholder.find('|', begin), placeholder.size());
    choice.words.emplace_back(placeholder.substr(begin, end - begin));
    begin = end + 1;
  }
  return choice;
}

Choice choiceOf(const Operand& operand) {
  return operand.words.empty() ? choiceOf(operand.name) : Choice{.isFile = false, .words = operand.words};
}

std::string joined(const std::vector<std::string>& words) {
  std::string out;
  for (const std::string& word : words) out.append(out.empty() ? "" : " ").append(word);
  return out;
}

/// The name of a shell's function.
std::string functionName(const Program& program) {
  std::string name = std::string("_").append(program.whole.name);
  std::ranges::replace(name, '-', '_');
  return name;
}

/// Text within single quotes. What a shell makes of a quote within differs, so the quote is written another way.
std::string quoted(std::string_view text) {
  std::string out = "'";
  for (const char each : text) out += each == '\'' ? std::string("\xE2\x80\x99") : std::string(1, each);
  return out + "'";
}

std::vector<std::string> commandNames(const Program& program) {
  std::vector<std::string> names;
  for (const Command& command : program.commands) names.push_back(command.name);
  return names;
}

// Bash

/// Branches of a `case` on the option before: what is offered as its value.
std::string bashValues(const Command& command) {
  std::string out;
  for (const Option& option : command.options) {
    if (option.value.empty()) continue;
    std::string names;
    for (const std::string& name : option.names) names.append(names.empty() ? "" : " | ").append(name);
    const Choice choice = choiceOf(option.value);
    out += "        " + names + ") words=" + quoted(joined(choice.words)) +
           " files=" + (choice.isFile ? "yes" : "''") + " ;;\n";
  }
  return out;
}

std::string bashOffers(const Command& command) {
  std::vector<std::string> words;
  for (const Option& option : command.options)
    words.insert(words.end(), option.names.begin(), option.names.end());
  bool areFiles = false;
  for (const Operand& operand : command.operands) {
    const Choice choice = choiceOf(operand);
    words.insert(words.end(), choice.words.begin(), choice.words.end());
    areFiles = areFiles || choice.isFile;
  }
  return "      words=" + quoted(joined(words)) + " files=" + (areFiles ? "yes" : "''") +
         "\n      case \"$previous\" in\n" + bashValues(command) + "        *) ;;\n      esac\n";
}

// Zsh

/// Text within what `_arguments` is told of an option: brackets and colons mean something there.
std::string zshText(std::string_view text) {
  std::string out;
  for (const char each : text) {
    if (each == '[' || each == ']' || each == ':' || each == '\\') out += '\\';
    out += each;
  }
  return out;
}

std::string zshAction(const Choice& choice) {
  if (!choice.words.empty()) return std::string("(").append(joined(choice.words)).append(")");
  return choice.isFile ? "_files" : " ";
}

std::string zshArguments(const Command& command) {
  std::string out = "_arguments -s";
  for (const Option& option : command.options) {
    for (const std::string& name : option.names) {
      if (name == "--") continue;  // ends the options, and is none
      std::string spec("*");
      spec.append(name).append("[").append(zshText(option.help)).append("]");
      if (!option.value.empty())
        spec.append(":").append(zshText(option.value)).append(":").append(zshAction(choiceOf(option.value)));
      out += " \\\n        " + quoted(spec);
    }
  }
  for (const Operand& operand : command.operands) {
    const std::string place = operand.name.ends_with("...") ? "*" : "";
    out += " \\\n        " + quoted(place + ":" + zshText(operand.name) + ":" + zshAction(choiceOf(operand)));
  }
  return out + "\n";
}

// Fish

std::string fishOptions(const std::string& program, const std::string& condition, const Command& command) {
  std::string out;
  const std::string begin = "complete -c " + program + (condition.empty() ? "" : " -n " + quoted(condition));
  for (const Option& option : command.options) {
    std::string names;
    for (const std::string& name : option.names)
      names += name.starts_with("--") ? " -l " + name.substr(2) : " -s " + name.substr(1);
    if (names == " -l ") continue;  // what follows "--" is no option
    out += begin + names;
    if (!option.value.empty()) {
      const Choice choice = choiceOf(option.value);
      out += choice.isFile ? " -r -F" : " -x";
      if (!choice.words.empty()) out += " -a " + quoted(joined(choice.words));
    }
    out += " -d " + quoted(option.help) + "\n";
  }
  for (const Operand& operand : command.operands) {
    const Choice choice = choiceOf(operand);
    if (choice.isFile) out += begin + " -F\n";
    if (!choice.words.empty()) out += begin + " -a " + quoted(joined(choice.words)) + "\n";
  }
  return out;
}

}  // namespace

std::string bashCompletion(const Program& program) {
  const std::string function = functionName(program);
  std::string out = "# Completion of " + program.whole.name + " for bash.\n" + function + "() {\n";
  out +=
      "  local current=\"${COMP_WORDS[COMP_CWORD]}\" previous=\"${COMP_WORDS[COMP_CWORD - 1]}\" words='' "
      "files=''\n"
      "  # Bash takes \"--format=csv\" for three words.\n"
      "  if [[ \"$current\" == = ]]; then current=''; elif [[ \"$previous\" == = ]]; then "
      "previous=\"${COMP_WORDS[COMP_CWORD - 2]}\"; fi\n"
      "  COMPREPLY=()\n";
  if (program.commands.empty()) {
    out += bashOffers(program.whole);
  } else {
    std::vector<std::string> first = commandNames(program);
    for (const Option& option : program.whole.options)
      first.insert(first.end(), option.names.begin(), option.names.end());
    out +=
        "  local command=''\n  ((COMP_CWORD == 1)) || command=\"${COMP_WORDS[1]}\"\n  case \"$command\" in\n";
    out += "    '') words=" + quoted(joined(first)) + " ;;\n";
    for (const Command& each : program.commands)
      out += "    " + each.name + ")\n" + bashOffers(each) + "      ;;\n";
    out += "    *) ;;\n  esac\n";
  }
  out +=
      "  mapfile -t COMPREPLY < <(compgen -W \"$words\" -- \"$current\")\n"
      "  [[ -n \"$files\" && \"$current\" != -* ]] || return 0\n"
      "  compopt -o filenames 2>/dev/null\n"
      "  mapfile -t -O \"${#COMPREPLY[@]}\" COMPREPLY < <(compgen -f -- \"$current\")\n}\n";
  return out + "complete -F " + function + " " + program.whole.name + "\n";
}

std::string zshCompletion(const Program& program) {
  const std::string function = functionName(program);
  std::string out = "#compdef " + program.whole.name + "\n# Completion of " + program.whole.name +
                    " for zsh.\n" + function + "() {\n";
  if (program.commands.empty()) {
    out += "  " + zshArguments(program.whole);
  } else {
    out += "  local -a commands=(\n";
    for (const Command& each : program.commands)
      out += "    " + quoted(each.name + ":" + zshText(each.summary)) + "\n";
    out +=
        "  )\n  if ((CURRENT == 2)); then _describe command commands; return; fi\n"
        "  local command=\"${words[2]}\"\n  shift words\n  ((CURRENT--))\n  case \"$command\" in\n";
    for (const Command& each : program.commands)
      out += "    " + each.name + ")\n      " + zshArguments(each) + "      ;;\n";
    out += "  esac\n";
  }
  return out + "}\n" + function + " \"$@\"\n";
}

std::string fishCompletion(const Program& program) {
  const std::string& name = program.whole.name;
  std::string out = "# Completion of " + name + " for fish.\n";
  if (program.commands.empty()) return out + fishOptions(name, "", program.whole);
  out += "complete -c " + name + " -f\n";
  out += fishOptions(name, "__fish_use_subcommand", program.whole);
  for (const Command& each : program.commands) {
    out += "complete -c " + name + " -n __fish_use_subcommand -a " + each.name + " -d " +
           quoted(each.summary) + "\n";
    out += fishOptions(name, "__fish_seen_subcommand_from " + each.name, each);
  }
  return out;
}

}  // namespace nascor::manual
