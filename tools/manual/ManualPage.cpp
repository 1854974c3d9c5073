// SPDX-FileCopyrightText: 2026 The Nascor developers
// SPDX-License-Identifier: MIT

#include "manual/ManualPage.h"

#include <algorithm>
#include <cctype>
#include <string_view>

namespace nascor::manual {

namespace {

/// Text that roff prints as it stands: a dash stays one that can be copied, and no line begins a macro.
std::string plain(std::string_view text) {
  std::string out;
  bool begins = true;
  for (const char each : text) {
    if (begins && (each == '.' || each == '\'')) out += "\\&";
    begins = each == '\n';
    if (each == '-') {
      out += "\\-";
    } else if (each == '\\') {
      out += "\\e";
    } else {
      out += each;
    }
  }
  return out;
}

/// The argument of a macro.
std::string quoted(std::string_view text) {
  std::string out = "\"";
  for (const char each : plain(text)) out += each == '"' ? std::string("\\(dq") : std::string(1, each);
  return out + '"';
}

std::string upperCase(std::string text) {
  std::ranges::transform(text, text.begin(), [](char each) {
    return static_cast<char>(std::toupper(static_cast<unsigned char>(each)));
  });
  return text;
}

std::string term(const Option& option) {
  std::string names;
  for (const std::string& name : option.names)
    names.append(names.empty() ? "" : ", ").append("\\fB").append(plain(name)).append("\\fR");
  return option.value.empty() ? names : names + " \\fI" + plain(option.value) + "\\fR";
}

std::string listed(const std::vector<Operand>& operands, const std::vector<Option>& options) {
  std::string out;
  for (const Operand& each : operands)
    out += ".TP\n\\fI" + plain(each.name) + "\\fR\n" + plain(each.help) + "\n";
  for (const Option& each : options) out += ".TP\n" + term(each) + "\n" + plain(each.help) + "\n";
  return out;
}

/// Lines that stay as they are.
std::string unfilled(std::string_view lines) {
  std::string out = ".nf\n" + plain(lines);
  if (out.back() != '\n') out += '\n';
  return out + ".fi\n";
}

std::string synopsis(const std::string& name, const Command& command) {
  return "\\fB" + plain(name) + "\\fR " + plain(command.usage) + "\n";
}

}  // namespace

std::string manualPage(const Program& program) {
  const Command& whole = program.whole;
  std::string out = ".TH " + quoted(upperCase(whole.name)) + " 1 \"\" " +
                    quoted("Nascor " + program.version) + " " + quoted("Nascor") + "\n";
  // Words are not broken: options and columns are copied from here.
  out += ".nh\n.ad l\n";
  out += ".SH NAME\n" + plain(whole.name) + " \\- " + plain(whole.summary) + "\n";
  out += ".SH SYNOPSIS\n" + synopsis(whole.name, whole);
  if (!whole.details.empty()) out += ".SH DESCRIPTION\n" + unfilled(whole.details);
  out += ".SH OPTIONS\n" + listed(whole.operands, whole.options);
  if (!program.commands.empty()) out += ".SH COMMANDS\n";
  for (const Command& each : program.commands) {
    out += ".SS " + quoted(each.name) + "\n" + synopsis(whole.name + " " + each.name, each) + ".PP\n" +
           plain(each.summary) + "\n" + listed(each.operands, each.options);
    if (!each.details.empty()) out += ".PP\n" + unfilled(each.details);
  }
  if (!program.seeAlso.empty()) out += ".SH SEE ALSO\n\\fB" + plain(program.seeAlso) + "\\fR(1)\n";
  return out;
}

}  // namespace nascor::manual
